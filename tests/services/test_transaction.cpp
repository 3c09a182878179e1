// Setting transactions: the commands each operation sends, the nesting count in the data
// manager, the success values and failures, and the job settings they keep or roll back on the
// simulated machine.
#include <string>
#include <vector>

#include "orvanta/host/host_data_manager.h"
#include "services/dvc_pnl_ceh_contents_hdl_func.h"
#include "services/dvc_pnl_ceh_contents_hdl_transaction.h"
#include "util/test_conditions_support.h"

namespace orvanta::test {
namespace {

constexpr const char* kStartup = "0.821.822.823";
constexpr const char* kOk = "0.821.822.824";
constexpr const char* kCancel = "0.821.822.825";
constexpr const char* kCollate = "0.1.2.160.148.149";

class Transaction : public Conditions {
 protected:
  // The count of `function`; -1 when it has no entry.
  static int count(int function) {
    int value = -1;
    if (dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_CEH_TRANSACTION_TIMES, value,
                                                 function) != 0)
      return -1;
    return value;
  }
  static void set_count(int function, int value) {
    ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_CEH_TRANSACTION_TIMES, value,
                                                        function));
  }
  // How many times `command` was invoked.
  static int invoked(const std::string& command) {
    int n = 0;
    for (const call_record& c : machine().log())
      n += c.kind == verb::invoke && c.key == command ? 1 : 0;
    return n;
  }
  // Opens `levels` detail settings of `function` through the panel.
  void open_levels(int function, int levels) {
    for (int i = 0; i < levels; ++i)
      ASSERT_EQ(0, transaction.transaction_startup(function));
  }

  dvc_pnl_ceh_contents_hdl_transaction transaction;
};

TEST_F(Transaction, TheMachineKnowsEachViewFunctionByItsCommonFunction) {
  const std::vector<std::pair<int, long>> table = {{1, 1},  {3, 3}, {4, 4}, {5, 1},  {6, 5},
                                                   {7, 6},  {8, 1}, {9, 9}, {10, 1}, {11, 1},
                                                   {24, 1}, {0, 1}, {36, 1}};
  for (const auto& [view, common] : table) {
    SCOPED_TRACE(view);
    EXPECT_EQ(common, transaction.get_cmn_function_id_from_view_function_id(view));
    machine().clear_log();
    EXPECT_EQ(0, transaction.transaction_startup(view));
    EXPECT_EQ(1, request_word(kStartup, 1320));
    EXPECT_EQ(common, request_word(kStartup, 1035));
    // The count stands under the view function, not under the machine's number.
    EXPECT_EQ(1, count(view));
  }
}

TEST_F(Transaction, StartupCountsEachOpenedLevel) {
  EXPECT_EQ(-1, count(1)) << "no entry before the first detail setting";
  open_levels(1, 2);
  EXPECT_EQ(2, count(1));
  EXPECT_EQ(2, invoked(kStartup));
}

TEST_F(Transaction, StartupFailuresLeaveTheCount) {
  set_count(3, 1);
  machine().fail_next(verb::invoke, kStartup, 4);
  EXPECT_EQ(3, transaction.transaction_startup(3));
  EXPECT_TRUE(traced("ret = 4."));
  EXPECT_TRUE(traced(" ret_code = 3"));
  EXPECT_EQ(1, count(3));

  machine().fail_next_result(kStartup, 1);
  EXPECT_EQ(2, transaction.transaction_startup(3));
  EXPECT_EQ(1, count(3));

  // A response without RESULT: the read's own code.
  machine().script_next_response(kStartup, dvc_pnl_cmm_valueset{});
  const int ret = transaction.transaction_startup(3);
  EXPECT_NE(0, ret);
  EXPECT_NE(2, ret);
  EXPECT_TRUE(traced("get RESULT ret_code = " + std::to_string(ret)));
  EXPECT_EQ(1, count(3));
}

TEST_F(Transaction, AFunctionOutsideTheDataManagerFailsOnTheCountWrite) {
  EXPECT_EQ(6, transaction.transaction_startup(37));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_int_from_dm error ret_code = 6"));
  EXPECT_EQ(6, transaction.transaction_times_init(37));
  EXPECT_TRUE(traced("transaction_times_init failed. ret_code = 6"));
}

TEST_F(Transaction, OkCommitsEveryOpenLevel) {
  open_levels(6, 3);
  machine().clear_log();
  EXPECT_EQ(0, transaction.transaction_ok(6));
  EXPECT_EQ(3, invoked(kOk));
  EXPECT_EQ(5, request_word(kOk, 1035, 2));
  EXPECT_EQ(0, count(6));

  machine().clear_log();
  EXPECT_EQ(0, transaction.transaction_ok(6)) << "nothing open";
  EXPECT_EQ(0, invoked(kOk));
  EXPECT_EQ(0, count(6));
}

TEST_F(Transaction, ARefusedCommitStopsAndKeepsTheCount) {
  open_levels(1, 3);
  machine().clear_log();
  // The second commit answers 0, which is a failure for a commit.
  machine().script_next_response(kOk, make_valueset({{std::string(kOk) + ".1484", 1L}}));
  machine().fail_next_result(kOk, 0);
  EXPECT_EQ(2, transaction.transaction_ok(1));
  EXPECT_EQ(2, invoked(kOk));
  EXPECT_EQ(3, count(1));

  machine().fail_next(verb::invoke, kOk, 5);
  EXPECT_EQ(3, transaction.transaction_ok(1));
  EXPECT_TRUE(traced("ret = 5."));
  EXPECT_TRUE(traced("ROOT.JOB.DETAIL_SETTING.OK ret_code = 3"));
  EXPECT_EQ(3, count(1));

  // A commit without RESULT counts as refused.
  machine().script_next_response(kOk, dvc_pnl_cmm_valueset{});
  EXPECT_EQ(2, transaction.transaction_ok(1));
  EXPECT_EQ(3, count(1));
}

TEST_F(Transaction, CancelClosesTheInnermostLevel) {
  open_levels(4, 2);
  machine().clear_log();
  EXPECT_EQ(0, transaction.transaction_cancel(4));
  EXPECT_EQ(1, invoked(kCancel));
  EXPECT_EQ(4, request_word(kCancel, 1035));
  EXPECT_EQ(1, count(4));

  set_count(4, 0);
  machine().clear_log();
  EXPECT_EQ(0, transaction.transaction_cancel(4));
  EXPECT_EQ(0, invoked(kCancel));
}

TEST_F(Transaction, CancelFailures) {
  open_levels(1, 2);
  machine().fail_next_result(kCancel, 1);
  EXPECT_EQ(2, transaction.transaction_cancel(1)) << "1 is the success of a commit, not a cancel";
  EXPECT_EQ(2, count(1));

  machine().fail_next(verb::invoke, kCancel, 9);
  EXPECT_EQ(3, transaction.transaction_cancel(1));
  EXPECT_TRUE(traced("ret = 9."));
  EXPECT_TRUE(traced(" ret_code = 3"));
  EXPECT_EQ(2, count(1));
}

TEST_F(Transaction, WithoutACountOnlyStartupAndResetGoOn) {
  ASSERT_EQ(-1, count(1));
  const int ok = transaction.transaction_ok(1);
  EXPECT_NE(0, ok);
  EXPECT_TRUE(
      traced("get from PanelDataManager of TRANSACTION_TIMES ret_code = " + std::to_string(ok)));
  const int cancel = transaction.transaction_cancel(1);
  EXPECT_EQ(ok, cancel) << "both give the read's code";
  EXPECT_EQ(0, invoked(kOk) + invoked(kCancel));

  EXPECT_EQ(0, transaction.transaction_reset(1));
  EXPECT_EQ(0, count(1));
  host::host_data_manager::instance().reset();
  EXPECT_EQ(0, transaction.transaction_startup(1));
  EXPECT_EQ(1, count(1));
}

TEST_F(Transaction, ResetCancelsEveryLevelAndStopsAtTheFirstFailure) {
  open_levels(7, 3);
  machine().clear_log();
  EXPECT_EQ(0, transaction.transaction_reset(7));
  EXPECT_EQ(3, invoked(kCancel));
  EXPECT_EQ(0, count(7));

  open_levels(7, 3);
  machine().script_next_response(kCancel, make_valueset({{std::string(kCancel) + ".1484", 3L}}));
  machine().fail_next_result(kCancel, 0);
  EXPECT_EQ(2, transaction.transaction_reset(7));
  EXPECT_TRUE(traced("transaction_cancel ret_code = 2"));
  EXPECT_EQ(2, count(7)) << "the one cancel that went through counted";
}

TEST_F(Transaction, FreeFunctionsForScreensWithoutAnObject) {
  open_levels(3, 2);
  machine().clear_log();
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_init_transaction_times(3));
  EXPECT_EQ(0, count(3));
  EXPECT_EQ(0, invoked(kCancel)) << "the machine is not told";

  open_levels(4, 2);
  dvc_pnl_ceh_contents_hdl_reset_transaction_times(4);
  EXPECT_EQ(0, count(4));
  EXPECT_EQ(2, invoked(kCancel));

  open_levels(4, 1);
  machine().fail_next(verb::invoke, kCancel, 3);
  dvc_pnl_ceh_contents_hdl_reset_transaction_times(4);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_reset_transaction_times ret_code = 3"));
}

// What the machine keeps of job settings written inside detail settings.
TEST_F(Transaction, SettingsWrittenInsideACancelledLevelAreRolledBack) {
  machine().set_int(kCollate, 1);
  dvc_pnl_ceh_contents_hdl_func* settings =
      dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_get_instance(1);

  open_levels(1, 1);
  settings->set_current_collate_setting(2);
  EXPECT_EQ(2, machine().int_at(kCollate));
  EXPECT_EQ(0, transaction.transaction_cancel(1));
  EXPECT_EQ(1, machine().int_at(kCollate));

  open_levels(1, 1);
  settings->set_current_collate_setting(2);
  EXPECT_EQ(0, transaction.transaction_ok(1));
  EXPECT_EQ(2, machine().int_at(kCollate));
}

TEST_F(Transaction, NestedLevelsCommitTogetherOrCancelOneByOne) {
  machine().set_int(kCollate, 1);
  dvc_pnl_ceh_contents_hdl_func* settings =
      dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_get_instance(1);

  // Outer page writes 2, inner page writes 3, Back on the inner page, Back on the outer one.
  open_levels(1, 1);
  settings->set_current_collate_setting(2);
  open_levels(1, 1);
  settings->set_current_collate_setting(3);
  EXPECT_EQ(0, transaction.transaction_cancel(1));
  EXPECT_EQ(2, machine().int_at(kCollate));
  EXPECT_EQ(0, transaction.transaction_cancel(1));
  EXPECT_EQ(1, machine().int_at(kCollate));

  // OK on the inner page commits the outer level as well.
  open_levels(1, 1);
  settings->set_current_collate_setting(2);
  open_levels(1, 1);
  settings->set_current_collate_setting(3);
  EXPECT_EQ(0, transaction.transaction_ok(1));
  EXPECT_EQ(0, count(1));
  EXPECT_EQ(3, machine().int_at(kCollate));
  EXPECT_EQ(0, transaction.transaction_cancel(1)) << "nothing left to cancel";
  EXPECT_EQ(3, machine().int_at(kCollate));

  // Reset rolls back every level.
  open_levels(1, 2);
  settings->set_current_collate_setting(4);
  EXPECT_EQ(0, transaction.transaction_reset(1));
  EXPECT_EQ(3, machine().int_at(kCollate));
}

}  // namespace
}  // namespace orvanta::test
