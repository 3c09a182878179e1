// The simulated lock service and the model file sections for locks and the error table.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvanta/host/error_table.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/machine/lock_service.h"
#include "orvanta/machine/simulated_machine.h"
#include "support/machine_test.h"
#include "support/valueset_builder.h"

namespace orvanta::test {
namespace {

using machine::lock_record;
using machine::simulated_machine;

class LockService : public MachineTest {
 protected:
  // RESULT of a lock (true) or unlock request for `r`.
  static long ask(bool lock, const lock_record& r, long third = 4) {
    const std::string c = lock ? "0.503.2528" : "0.503.2529";
    dvc_pnl_cmm_valueset response;
    EXPECT_EQ(0, machine().dvc_pnl_cmm_invoke(key_of(c),
                                              make_valueset({{c + ".1320", 1L},
                                                             {c + ".1180", r.kind},
                                                             {c + ".1301", r.first},
                                                             {c + ".197", r.second},
                                                             {c + ".2611", third}}),
                                              response));
    long result = -99;
    EXPECT_EQ(0, response.dvc_pnl_cmm_get_int(key_of(c + ".1484"), result));
    return result;
  }
};

TEST_F(LockService, GrantsWhatNoOtherPanelHoldsAndRemembersIt) {
  EXPECT_EQ(0, ask(true, {5, 1, 7}));
  EXPECT_EQ(0, ask(true, {5, 1, 7}, 2)) << "taking again what the panel holds";
  EXPECT_EQ(0, ask(true, {3, 0, 0}));
  EXPECT_EQ((std::vector<lock_record>{{5, 1, 7}, {3, 0, 0}}), machine::locks_held_by_panel());
  EXPECT_EQ(0, ask(false, {5, 1, 7}));
  EXPECT_EQ(0, ask(false, {5, 1, 7})) << "what nobody holds is free already";
  EXPECT_EQ((std::vector<lock_record>{{3, 0, 0}}), machine::locks_held_by_panel());
}

TEST_F(LockService, RefusesWhatAnotherPanelHolds) {
  machine::hold_lock_elsewhere({5, 2, 3});
  machine::hold_lock_elsewhere({1, 0, 0});
  struct refusal_case {
    lock_record record;
    long result;
  };
  const refusal_case cases[] = {
      {{5, 2, 3}, 1}, {{5, 2, -1}, 1},  // the whole kind holds the box
      {{5, 2, 4}, 0}, {{5, 3, 3}, 0},  {{1, 0, 0}, 1}, {{2, 0, 0}, 0},
  };
  for (const refusal_case& c : cases) {
    EXPECT_EQ(c.result, ask(true, c.record))
        << c.record.kind << " " << c.record.first << " " << c.record.second;
  }
  EXPECT_EQ(1, ask(false, {1, 0, 0})) << "another panel's lock is not the panel's to give back";
  machine::release_lock_elsewhere({5, 2, 3});
  EXPECT_EQ(0, ask(true, {5, 2, 3}));
  // A panel holding a whole kind keeps others from each box of it.
  machine::hold_lock_elsewhere({5, 9, -1});
  EXPECT_EQ(1, ask(true, {5, 9, 12}));
}

TEST_F(LockService, ARequestWithoutAKindIsBadAndAResetForgetsEverything) {
  dvc_pnl_cmm_valueset response;
  machine().dvc_pnl_cmm_invoke(key_of("0.503.2528"), make_valueset({{"0.503.2528.1320", 1L}}),
                               response);
  long result = -1;
  EXPECT_EQ(0, response.dvc_pnl_cmm_get_int(key_of("0.503.2528.1484"), result));
  EXPECT_EQ(machine::kLockBadRequest, result);
  ask(true, {7, 0, 0});
  machine::hold_lock_elsewhere({1, 0, 0});
  machine().reset();
  EXPECT_TRUE(machine::locks_held_by_panel().empty());
  EXPECT_TRUE(machine::locks_held_elsewhere().empty());
  EXPECT_EQ(0, ask(true, {1, 0, 0}));
}

TEST_F(LockService, ModelFilesListLocksOtherPanelsHold) {
  ASSERT_EQ("", machine().load_model_json(R"({"locks": [
      {"kind": 5, "first": 1, "second": 3}, {"kind": 3}]})"));
  EXPECT_EQ((std::vector<lock_record>{{5, 1, 3}, {3, 0, 0}}), machine::locks_held_elsewhere());
  EXPECT_EQ(1, ask(true, {3, 0, 0}));
  ASSERT_EQ("", machine().load_model_json(R"({"locks": [{"kind": 7}]})"));
  EXPECT_EQ(3u, machine::locks_held_elsewhere().size()) << "a model file adds";
  ASSERT_EQ("", machine().load_model_json(R"({"locks": [{"kind": 2}]})", true));
  EXPECT_EQ((std::vector<lock_record>{{2, 0, 0}}), machine::locks_held_elsewhere());

  for (const char* bad :
       {R"({"locks": {"kind": 5}})", R"({"locks": [{"first": 1}]})",
        R"({"locks": [{"kind": 5, "third": 1}]})", R"({"locks": [{"kind": "5"}]})"}) {
    EXPECT_NE("", machine().load_model_json(bad)) << bad;
  }
  EXPECT_EQ((std::vector<lock_record>{{2, 0, 0}}), machine::locks_held_elsewhere());
}

TEST_F(LockService, ModelFilesSupplyErrorTableRows) {
  const auto sample = host::error_table_rows();
  ASSERT_EQ("", machine().load_model_json(
                    R"({"error_table": [[1765, 7, 2, 0, 500, 0], [1832, 2, 1, 3, 501, 9]]})"));
  ASSERT_EQ(2, DVC_PNL_CMN_ERROR_TABLE_SIZE);
  EXPECT_EQ(501, dvc_pnl_cmn_error_table[1].error_code);
  EXPECT_EQ(3, dvc_pnl_cmn_error_table[1].open_flag);
  ASSERT_EQ("", machine().load_model_json(R"({"nodes": {"0.1.2": 1}})"));
  EXPECT_EQ(2, DVC_PNL_CMN_ERROR_TABLE_SIZE) << "a file without rows keeps the table";
  for (const char* bad :
       {R"({"error_table": [[1, 2, 3]]})", R"({"error_table": [[1, 2, 3, 4, 5, "6"]]})",
        R"({"error_table": [[1, 2, 3, 4, 5, 4294967296]]})", R"({"error_table": 5})"}) {
    EXPECT_NE("", machine().load_model_json(bad)) << bad;
  }
  EXPECT_EQ(2, DVC_PNL_CMN_ERROR_TABLE_SIZE);
  machine().reset();
  EXPECT_EQ(static_cast<int>(sample.size()), DVC_PNL_CMN_ERROR_TABLE_SIZE)
      << "a replacing model without rows brings the sample rows back";
}

}  // namespace
}  // namespace orvanta::test
