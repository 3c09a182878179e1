// Exclusive lock manager against the simulated lock service: locks, refusals by other panels,
// and the locks given back or handed on when the machine reports events.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvanta/host/panel_host.h"
#include "orvanta/machine/lock_service.h"
#include "orvanta/machine/simulated_machine.h"
#include "services/dvc_pnl_ceh_exclusive_lock_manager.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"

namespace orvanta::test {
namespace {

using machine::lock_record;
using machine::simulated_machine;

class LockManager : public ::testing::Test {
 protected:
  void SetUp() override {
    host::reset();
    machine().reset();
    dvc_pnl_ceh_exclusive_lock_manager::reset_for_tests();
  }
  void TearDown() override {
    dvc_pnl_ceh_exclusive_lock_manager::reset_for_tests();
    machine().reset();
    host::reset();
  }

  static simulated_machine& machine() { return simulated_machine::instance(); }
  static dvc_pnl_ceh_exclusive_lock_manager* mgr() {
    return dvc_pnl_ceh_exclusive_lock_manager::get_instance();
  }

  // "lock 5 (1,7,2)" for each lock service request since the last look, in order.
  static std::vector<std::string> requests() {
    std::vector<std::string> out;
    for (const machine::call_record& c : machine().log()) {
      if (c.kind != machine::verb::invoke || (c.key != "0.503.2528" && c.key != "0.503.2529"))
        continue;
      auto word = [&](const char* node) {
        long v = -999;
        EXPECT_EQ(0, c.request.dvc_pnl_cmm_get_int(key_of(c.key + "." + node), v)) << node;
        return std::to_string(v);
      };
      EXPECT_EQ("1", word("1320"));
      out.push_back(std::string(c.key == "0.503.2528" ? "lock " : "unlock ") + word("1180") + " (" +
                    word("1301") + "," + word("197") + "," + word("2611") + ")");
    }
    machine().clear_log();
    return out;
  }

  static std::vector<lock_record> held() { return machine::locks_held_by_panel(); }

  // Serves the destination count of function `function`'s job.
  static void destinations(long fax, long send) {
    machine().register_service("0.896.901", [fax, send](simulated_machine&,
                                                        machine::service_call& call) {
      long function = -1;
      call.request.dvc_pnl_cmm_get_int(key_of("0.896.901.1035"), function);
      call.response =
          make_valueset({{"0.896.901.1484", 0L}, {"0.896.901.1569", function == 4 ? fax : send}});
      return 0;
    });
  }

  static void deliver(int id, const dvc_pnl_cmm_valueset& source = {}) {
    dvc_pnl_evh_panel_event event(id);
    event.dvc_pnl_evh_set_event_source_valueset(source);
    host::deliver(event);
  }

  static std::pair<int, int> book() {
    int function = -9;
    DVC_PNL_CEH_ENUM_REASON_OF_LOCKING reason = DVC_PNL_CEH_REASON_OF_LOCKING_NONE;
    const int locked = mgr()->isAddressbookLocked(function, reason);
    EXPECT_EQ(locked, function != 0 ? 1 : 0);
    return {function, reason};
  }
};

TEST_F(LockManager, SubscribesItselfOnFirstUse) {
  EXPECT_TRUE(host::subscriptions_of(nullptr).empty());
  const std::vector<int> expected = {854, 248, 249, 610, 609, 880, 1214};
  EXPECT_EQ(expected, host::subscriptions_of(mgr()));
  mgr();
  for (int id : expected)
    EXPECT_EQ(1, host::subscription_count(id, mgr())) << id;
}

TEST_F(LockManager, BoxLocksAreRequestedOnceAndFoundInEitherRecord) {
  EXPECT_EQ(1, mgr()->lockBox(10, 1, 7, 2));
  EXPECT_EQ(std::vector<std::string>{"lock 5 (1,7,2)"}, requests());
  // The system menu holds it: the box function gets it without a request.
  EXPECT_EQ(1, mgr()->lockBox(5, 1, 7, 2));
  EXPECT_TRUE(requests().empty());
  int owner = -1;
  EXPECT_EQ(1, mgr()->isBoxLocked(1, 7, owner));
  EXPECT_EQ(10, owner);
  EXPECT_EQ(0, mgr()->isBoxLocked(1, 8, owner));
  EXPECT_EQ(0, mgr()->isBoxLocked(-1, -1, owner));

  // Only the holder of exactly that box gives it back.
  EXPECT_EQ(1, mgr()->unlockBox(5, 1, 7, 2));
  EXPECT_EQ(1, mgr()->unlockBox(10, 1, 8, 2));
  EXPECT_TRUE(requests().empty());
  EXPECT_EQ(1, mgr()->unlockBox(10, 1, 7, 2));
  EXPECT_EQ(std::vector<std::string>{"unlock 5 (1,7,2)"}, requests());
  EXPECT_EQ(0, mgr()->isBoxLocked(1, 7, owner));
  EXPECT_TRUE(held().empty());

  EXPECT_EQ(1, mgr()->unlockBox(5, -1, -1, 2)) << "nothing held, nothing asked";
  EXPECT_TRUE(requests().empty());
}

TEST_F(LockManager, ABoxAnotherPanelHoldsIsRefusedAndNothingIsRecorded) {
  machine::hold_lock_elsewhere({5, 2, 3});
  EXPECT_EQ(0, mgr()->lockBox(5, 2, 3, 2));
  int owner = -1;
  EXPECT_EQ(0, mgr()->isBoxLocked(2, 3, owner));
  // A lock on the whole kind collides with the one box.
  EXPECT_EQ(0, mgr()->lockBox(5, 2, DVC_PNL_CEH_EXCLUSION_LOCK_MANAGER_NO_SELECT, 2));
  EXPECT_EQ(1, mgr()->lockBox(5, 2, 4, 2));
  EXPECT_EQ((std::vector<lock_record>{{5, 2, 4}}), held());
}

TEST_F(LockManager, AScriptedRefusalRefusesOneRequest) {
  machine().fail_next_result("0.503.2528", 7);
  EXPECT_EQ(0, mgr()->lockUserLoginInformation());
  EXPECT_EQ(0, mgr()->isUserLoginInformationLocked());
  EXPECT_EQ(1, mgr()->lockUserLoginInformation());
  EXPECT_EQ(1, mgr()->isUserLoginInformationLocked());
  machine().fail_next(machine::verb::invoke, "0.503.2529");
  EXPECT_EQ(0, mgr()->unlockUserLoginInformation());
  EXPECT_EQ(1, mgr()->isUserLoginInformationLocked()) << "a failed unlock changes no record";
}

TEST_F(LockManager, InformationLocksUseTheirKindsAndAskOnlyWhenNeeded) {
  struct info_case {
    int (dvc_pnl_ceh_exclusive_lock_manager::*lock)();
    int (dvc_pnl_ceh_exclusive_lock_manager::*unlock)();
    int (dvc_pnl_ceh_exclusive_lock_manager::*locked)();
    int kind;
  };
  using M = dvc_pnl_ceh_exclusive_lock_manager;
  const info_case cases[] = {
      {&M::lockUserLoginInformation, &M::unlockUserLoginInformation,
       &M::isUserLoginInformationLocked, 1},
      {&M::lockJobAccountingInformation, &M::unlockJobAccountingInformation,
       &M::isJobAccountingInformationLocked, 2},
      {&M::lockOptNicSetting, &M::unlockOptNicSetting, &M::isOptNicSettingLocked, 7},
  };
  for (const info_case& c : cases) {
    const std::string k = std::to_string(c.kind);
    EXPECT_EQ(1, (mgr()->*c.unlock)()) << "unlocking what isn't held";
    EXPECT_EQ(1, (mgr()->*c.lock)());
    EXPECT_EQ(1, (mgr()->*c.lock)());
    EXPECT_EQ(1, (mgr()->*c.locked)());
    EXPECT_EQ(1, (mgr()->*c.unlock)());
    EXPECT_EQ(0, (mgr()->*c.locked)());
    EXPECT_EQ((std::vector<std::string>{"lock " + k + " (0,0,4)", "unlock " + k + " (0,0,4)"}),
              requests());
  }
}

TEST_F(LockManager, TheAddressBookStaysWithItsHolderAndEvent248HandsItOver) {
  EXPECT_EQ(1, mgr()->lockAddressbook(3, DVC_PNL_CEH_REASON_OF_LOCKING_1));
  EXPECT_EQ(1, mgr()->lockAddressbook(4, DVC_PNL_CEH_REASON_OF_LOCKING_1));
  EXPECT_EQ(std::vector<std::string>{"lock 3 (0,0,4)"}, requests());
  EXPECT_EQ(std::make_pair(3, 1), book());
  EXPECT_EQ(0, mgr()->isURDSEnable());

  destinations(0, 0);
  deliver(248);  // send settings reset
  EXPECT_EQ(std::make_pair(4, 1), book());
  EXPECT_EQ((std::vector<std::string>{"unlock 3 (0,0,4)", "lock 3 (0,0,4)"}), requests());
}

TEST_F(LockManager, Event248GivesTheBookToAFaxJobWithDestinations) {
  mgr()->lockAddressbook(3, DVC_PNL_CEH_REASON_OF_LOCKING_1);
  destinations(2, 0);
  deliver(248);
  EXPECT_EQ(std::make_pair(4, 2), book());
  // The fax function's reset hands it back to a send job with destinations.
  destinations(0, 1);
  deliver(249);
  EXPECT_EQ(std::make_pair(3, 2), book());
  // Without an owner the reset of the other function changes nothing.
  requests();
  mgr()->unlockAddressbook(3, DVC_PNL_CEH_REASON_OF_LOCKING_2);
  EXPECT_EQ(std::make_pair(0, 0), book());
  deliver(249);
  deliver(248);
  EXPECT_EQ(std::vector<std::string>{"unlock 3 (0,0,4)"}, requests());
}

TEST_F(LockManager, TheSendFunctionTakesTheBookBackForAWishThatOutlivedItsLock) {
  // Held for its destinations (2) while its address book screen wants it too (1).
  mgr()->lockAddressbook(3, DVC_PNL_CEH_REASON_OF_LOCKING_2);
  mgr()->lockAddressbook(3, DVC_PNL_CEH_REASON_OF_LOCKING_1);
  requests();
  EXPECT_EQ(1, mgr()->unlockAddressbook(3, DVC_PNL_CEH_REASON_OF_LOCKING_2));
  EXPECT_EQ((std::vector<std::string>{"unlock 3 (0,0,4)", "lock 3 (0,0,4)"}), requests());
  EXPECT_EQ(std::make_pair(3, 1), book());
  // The screen closes: the wish ends with the lock.
  EXPECT_EQ(1, mgr()->unlockAddressbook(3, DVC_PNL_CEH_REASON_OF_LOCKING_1));
  EXPECT_EQ(std::vector<std::string>{"unlock 3 (0,0,4)"}, requests());
  EXPECT_EQ(std::make_pair(0, 0), book());
  EXPECT_EQ(1, mgr()->isURDSEnable());
}

TEST_F(LockManager, AnAddressBookAnotherPanelHoldsIsRefused) {
  machine::hold_lock_elsewhere({3, 0, 0});
  EXPECT_EQ(0, mgr()->lockAddressbook(4, DVC_PNL_CEH_REASON_OF_LOCKING_1));
  EXPECT_EQ(std::make_pair(0, 0), book());
  machine::release_lock_elsewhere({3, 0, 0});
  EXPECT_EQ(1, mgr()->lockAddressbook(4, DVC_PNL_CEH_REASON_OF_LOCKING_1));
  EXPECT_EQ(std::make_pair(4, 1), book());
}

TEST_F(LockManager, Event880ReleasesWhatFunctions5_3_4And10Hold) {
  mgr()->lockBox(5, 1, 7, 2);
  mgr()->lockBox(10, 3, -1, 2);
  mgr()->lockAddressbook(4, DVC_PNL_CEH_REASON_OF_LOCKING_1);
  mgr()->lockUserLoginInformation();
  mgr()->lockJobAccountingInformation();
  mgr()->lockOptNicSetting();
  requests();
  deliver(880);
  EXPECT_EQ((std::vector<std::string>{"unlock 5 (1,7,2)", "unlock 3 (0,0,4)", "unlock 5 (3,-1,2)",
                                      "unlock 1 (0,0,4)", "unlock 2 (0,0,4)", "unlock 7 (0,0,4)"}),
            requests());
  EXPECT_TRUE(held().empty());
  EXPECT_EQ(1, mgr()->isURDSEnable());
}

TEST_F(LockManager, Event854ReleasesWhatTheShownFunctionHolds) {
  auto show = [](int function) {
    dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_change_function(
        function);
  };
  mgr()->lockBox(5, 2, 9, 2);
  mgr()->lockBox(10, 1, 4, 2);
  mgr()->lockAddressbook(10, DVC_PNL_CEH_REASON_OF_LOCKING_1);
  mgr()->lockJobAccountingInformation();
  requests();
  EXPECT_EQ(0, mgr()->isURDSEnable());

  show(3);
  deliver(854);
  EXPECT_TRUE(requests().empty()) << "function 3 keeps nothing that 854 gives back";

  show(5);
  deliver(854);
  EXPECT_EQ(std::vector<std::string>{"unlock 5 (2,9,2)"}, requests());

  show(10);
  deliver(854);
  EXPECT_EQ((std::vector<std::string>{"unlock 5 (1,4,2)", "unlock 3 (0,0,4)", "unlock 2 (0,0,4)"}),
            requests());
  EXPECT_TRUE(held().empty());
}

TEST_F(LockManager, Events609And610ReleaseTheBoxOfTheBoxFunction) {
  for (int id : {609, 610}) {
    mgr()->lockBox(5, 2, 1, 2);
    mgr()->lockBox(10, 1, 1, 2);
    EXPECT_EQ(0, mgr()->isURDSEnable()) << "a box of kind 2 is held";
    requests();
    deliver(id);
    EXPECT_EQ(std::vector<std::string>{"unlock 5 (2,1,2)"}, requests()) << id;
    EXPECT_EQ(1, mgr()->isURDSEnable());
    mgr()->unlockBox(10, 1, 1, 2);
  }
}

TEST_F(LockManager, Event1214WithStatus5LocksTheNetworkOptionSetting) {
  // Until its first use the manager hears nothing.
  deliver(1214, make_valueset({{"0.3362.714", 5L}}, 2));
  EXPECT_TRUE(requests().empty());
  mgr();
  struct status_case {
    long status;
    bool locks;
  };
  for (const status_case c : {status_case{4, false}, status_case{5, true}, status_case{5, false}}) {
    deliver(1214, make_valueset({{"0.3362.714", c.status}}, 2));
    EXPECT_EQ(c.locks ? std::vector<std::string>{"lock 7 (0,0,4)"} : std::vector<std::string>{},
              requests())
        << c.status;
  }
  EXPECT_EQ(1, mgr()->isOptNicSettingLocked());
  deliver(1214);  // no status in the event
  EXPECT_TRUE(requests().empty());
}

TEST_F(LockManager, PullPrintLockAndDestinationCount) {
  ASSERT_EQ(
      0, dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_ID, 42));
  machine().script_next_response("0.3693.860.3694", make_valueset({{"0.3693.860.3694.1484", 1L}}));
  EXPECT_EQ(0, mgr()->pullprint_exclusive_lock(1));
  const machine::call_record& call = machine().log().back();
  EXPECT_EQ("0.3693.860.3694", call.key);
  EXPECT_TRUE(sets_equal(
      call.request, make_valueset({{"0.3693.860.3694.1320", 1L}, {"0.3693.860.3694.1012", 42L}})));
  machine().script_next_response("0.3693.860.3695", make_valueset({{"0.3693.860.3695.1484", 0L}}));
  EXPECT_EQ(-1, mgr()->pullprint_exclusive_lock(0)) << "only RESULT 1 grants it";
  EXPECT_EQ(-1, mgr()->pullprint_exclusive_lock(0)) << "no service answers";

  destinations(3, 8);
  EXPECT_EQ(3, mgr()->get_destination_count(4));
  EXPECT_EQ(8, mgr()->get_destination_count(3));
  machine().fail_next(machine::verb::invoke, "0.896.901");
  EXPECT_EQ(0, mgr()->get_destination_count(4));
}

}  // namespace
}  // namespace orvanta::test
