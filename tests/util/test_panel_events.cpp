// Panel events the screens send: hard key lock words and their counts, LED words, the temporary
// release, error display control and the login notices, read as the platform receives them.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "orvanta/host/panel_host.h"
#include "support/event_recorder.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"

namespace orvanta::test {
namespace {

constexpr long kAllLock = 0x8001ffffL;    // 2147614719
constexpr long kAllUnlock = 0x4001ffffL;  // 1073872895
constexpr unsigned long kLock = DVC_PNL_CMN_ENUM_HARDKEY_OPE_LOCK;
constexpr unsigned long kUnlock = DVC_PNL_CMN_ENUM_HARDKEY_OPE_UNLOCK;
constexpr unsigned long kClear = DVC_PNL_CMN_ENUM_HARDKEY_OPE_CLEAR;
constexpr auto kStart = DVC_PNL_CMN_ENUM_HARDKEY_TYPE_START_KEY;
constexpr auto kStop = DVC_PNL_CMN_ENUM_HARDKEY_TYPE_STOP_KEY;
constexpr auto kReset = DVC_PNL_CMN_ENUM_HARDKEY_TYPE_RESET_KEY;

class PanelEvents : public ::testing::Test {
 protected:
  void SetUp() override {
    host::reset();
    dvc_pnl_ceh_contents_hdl_reset_hardkey_locks();
    recorder_ =
        std::make_unique<event_recorder>(std::initializer_list<int>{1044, 1094, 1175, 1176});
  }
  void TearDown() override {
    recorder_.reset();
    dvc_pnl_ceh_contents_hdl_reset_hardkey_locks();
    host::reset();
  }

  // The lock words sent since the last look, as the platform reads them.
  std::vector<long> words() {
    std::vector<long> out;
    for (const dvc_pnl_evh_panel_event& e : recorder_->take()) {
      EXPECT_EQ(1044, e.dvc_pnl_evh_get_id());
      EXPECT_EQ(1, e.dvc_pnl_evh_get_init_type());
      EXPECT_EQ(0, e.dvc_pnl_evh_get_priority());
      dvc_pnl_cmm_valueset lock;
      long word = -1;
      EXPECT_EQ(0, e.source().dvc_pnl_cmm_get_valueset(key_of("0.2883"), lock)) << dump(e.source());
      EXPECT_EQ(0, lock.dvc_pnl_cmm_get_int(key_of("0.2883.2884"), word)) << dump(e.source());
      // The word sits in a set of its own under 0.2883, and nothing else travels with it.
      EXPECT_TRUE(sets_equal(e.source(), make_valueset({{"0.2883.2884", word}}, 2)));
      out.push_back(word);
    }
    return out;
  }

  static unsigned count(DVC_PNL_CMN_ENUM_HARDKEY_TYPE type) {
    return dvc_pnl_ceh_contents_hdl_get_hardkey_lock(type);
  }
  static void lock_word(long word) {
    dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(word);
  }

  std::unique_ptr<event_recorder> recorder_;
};

TEST_F(PanelEvents, AllKeysAndNoKeysAreTranslatedToLockAndUnlockWords) {
  lock_word(0x1ffff);
  EXPECT_EQ(std::vector<long>{kAllLock}, words());
  EXPECT_TRUE(traced("DVC_PNL_CMN_ENUM_HARDKEY_TYPE_ALL_KEY | DVC_PNL_CMN_ENUM_HARDKEY_OPE_LOCK"));
  EXPECT_EQ(1u, count(kStart));
  EXPECT_EQ(1u, count(DVC_PNL_CMN_ENUM_HARDKEY_TYPE_MONO_COLOR_KEY));
  lock_word(0);
  EXPECT_EQ(std::vector<long>{kAllUnlock}, words());
  EXPECT_TRUE(
      traced("DVC_PNL_CMN_ENUM_HARDKEY_TYPE_ALL_KEY | DVC_PNL_CMN_ENUM_HARDKEY_OPE_UNLOCK"));
  EXPECT_EQ(0u, count(kStart));
  // Any other word goes out as it is; a word with the high bit set arrives as its 32-bit pattern.
  lock_word(static_cast<long>(kLock | kStart));
  lock_word(-2147483648L | kStop);  // the same lock bit, as a sign-extended int would carry it
  // As a long holds the pattern: negative where long has 32 bits.
  EXPECT_EQ((std::vector<long>{static_cast<long>(0x80000800UL), static_cast<long>(0x80000400UL)}),
            words());
}

TEST_F(PanelEvents, CountsFollowLocksUnlocksAndClears) {
  lock_word(static_cast<long>(kLock | kStart | kStop));
  lock_word(static_cast<long>(kLock | kStart));
  lock_word(static_cast<long>(kUnlock | kStart));
  EXPECT_EQ(1u, count(kStart)) << "two locks and one unlock leave the key locked";
  EXPECT_EQ(1u, count(kStop));
  lock_word(static_cast<long>(kUnlock | kStart | kReset));
  EXPECT_EQ(0u, count(kStart));
  EXPECT_EQ(0u, count(kReset)) << "an unlock of a key with count 0 stays at 0";
  lock_word(static_cast<long>(kUnlock | kReset));
  EXPECT_EQ(0u, count(kReset));
  lock_word(static_cast<long>(kLock | kReset));
  EXPECT_EQ(1u, count(kReset));
  lock_word(static_cast<long>(kLock | kStop));
  lock_word(static_cast<long>(kClear | kStop));
  EXPECT_EQ(0u, count(kStop));
  EXPECT_EQ(1u, count(kReset)) << "a clear touches only the keys it names";
  // Every request reached the platform, whatever the counts said.
  EXPECT_EQ(8u, words().size());
  EXPECT_TRUE(traced("OPE_LOCK [START_KEY ] count 0 + 1"));
  EXPECT_TRUE(traced("OPE_UNLOCK [START_KEY ] count 2 - 1"));
  EXPECT_TRUE(traced("OPE_CLEAR [STOP_KEY ] count = 2"));
  EXPECT_TRUE(traced("key [RESET_KEY ] count = 1"));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_hardkey_lock [00000200]sts = 1 "));
}

TEST_F(PanelEvents, LogNamesOfTheColourKeysAreKeptAsTheLogWritesThem) {
  lock_word(static_cast<long>(kLock | DVC_PNL_CMN_ENUM_HARDKEY_TYPE_AUTO_COLOR_KEY |
                              DVC_PNL_CMN_ENUM_HARDKEY_TYPE_MONO_COLOR_KEY));
  EXPECT_TRUE(traced("OPE_LOCK [AUTO_COLOR_KEY] count 0 + 1"));
  EXPECT_TRUE(traced("OPE_LOCK [MONO_COLOR_KE] count 0 + 1"));
  EXPECT_TRUE(traced("key [MONO_COLOR_KE] count = 1"));
}

TEST_F(PanelEvents, WhileAFunctionLoginPreLoadsNothingIsCountedOrSent) {
  lock_word(0x1ffff);
  words();
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(
                   DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING, 1));
  lock_word(0x1ffff);
  dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status_led(0x80000001L, 3);
  EXPECT_TRUE(words().empty());
  EXPECT_EQ(1u, count(kStart));
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(
                   DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING, 0));
  lock_word(0);
  EXPECT_EQ(std::vector<long>{kAllUnlock}, words());
  EXPECT_EQ(0u, count(kStart)) << "the later unlock counts down from the older count";
}

TEST_F(PanelEvents, LedWordsCarryTheFunctionAndAreNotCounted) {
  dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status_led(0x80000001L, 3);
  const auto events = recorder_->take();
  ASSERT_EQ(1u, events.size());
  EXPECT_EQ(1044, events[0].dvc_pnl_evh_get_id());
  EXPECT_EQ(1, events[0].dvc_pnl_evh_get_init_type());
  EXPECT_TRUE(sets_equal(
      events[0].source(),
      make_valueset({{"0.2883.2898", static_cast<long>(0x80000001UL)}, {"0.2883.1035", 3L}}, 2)));
  EXPECT_EQ(0u, count(DVC_PNL_CMN_ENUM_HARDKEY_TYPE_CHANGE_FUNCTION_KEY));
}

TEST_F(PanelEvents, TemporaryReleaseFreesKeysAndRestoringLocksThemPerCount) {
  lock_word(static_cast<long>(kLock | kStart | kStop));
  lock_word(static_cast<long>(kLock | kStart));
  words();
  dvc_pnl_ceh_contents_hdl_hardkey_lock_release_temporarily(static_cast<long>(kStart | kStop), 1);
  EXPECT_EQ(std::vector<long>{static_cast<long>(kClear | kStart | kStop)}, words());
  EXPECT_EQ(2u, count(kStart)) << "the counts stay while the keys are free";

  // Requests meanwhile are counted, but released keys stay free at the platform.
  lock_word(static_cast<long>(kLock | kStart | kReset));
  EXPECT_EQ(std::vector<long>{static_cast<long>(kLock | kReset)}, words());
  EXPECT_EQ(3u, count(kStart));
  lock_word(static_cast<long>(kUnlock | kStart));
  EXPECT_EQ(std::vector<long>{static_cast<long>(kUnlock)}, words());

  // Counts 2 and 1: two words, the first with both keys, the second with the key locked twice.
  dvc_pnl_ceh_contents_hdl_hardkey_lock_release_temporarily(static_cast<long>(kStart | kStop), 0);
  EXPECT_EQ((std::vector<long>{static_cast<long>(kLock | kStart | kStop),
                               static_cast<long>(kLock | kStart)}),
            words());
  // The release is over: words go out whole again.
  lock_word(static_cast<long>(kLock | kStop));
  EXPECT_EQ(std::vector<long>{static_cast<long>(kLock | kStop)}, words());
}

TEST_F(PanelEvents, RestoringKeysWithoutLocksSendsNothing) {
  dvc_pnl_ceh_contents_hdl_hardkey_lock_release_temporarily(static_cast<long>(kStart), 1);
  words();
  dvc_pnl_ceh_contents_hdl_hardkey_lock_release_temporarily(static_cast<long>(kStart), 0);
  EXPECT_TRUE(words().empty());
}

TEST_F(PanelEvents, ErrorDisplayControlWordsAndValue) {
  struct display_case {
    int show;
    long word;
  };
  for (const display_case c :
       {display_case{1, 0x40000004L}, display_case{0, 0x20000004L}, display_case{2, 0x20000004L}}) {
    dvc_pnl_ceh_contents_hdl_throw_event_error_display_control(c.show, 17);
    const auto events = recorder_->take();
    ASSERT_EQ(1u, events.size());
    EXPECT_EQ(1094, events[0].dvc_pnl_evh_get_id());
    EXPECT_EQ(1, events[0].dvc_pnl_evh_get_init_type());
    EXPECT_EQ(0, events[0].dvc_pnl_evh_get_priority());
    EXPECT_TRUE(sets_equal(events[0].source(),
                           make_valueset({{"0.3069.843", c.word}, {"0.3069.2776", 17L}}, 2)))
        << c.show;
  }
}

TEST_F(PanelEvents, LoginScreenNoticesMarkTheShownFunctionAndSendTheirEvents) {
  dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance()->dvc_pnl_psm_change_function(4);
  login_screen_opened(0);
  int state = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_STATUS_PAGE_STATE, state, 4));
  EXPECT_EQ(1, state);
  login_screen_closed(-1);  // -1: the page state stays
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_STATUS_PAGE_STATE, state, 4));
  EXPECT_EQ(1, state);
  login_screen_closed(7);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_STATUS_PAGE_STATE, state, 4));
  EXPECT_EQ(0, state);
  std::vector<int> ids;
  for (const auto& e : recorder_->take()) {
    ids.push_back(e.dvc_pnl_evh_get_id());
    EXPECT_EQ(1, e.dvc_pnl_evh_get_init_type());
  }
  EXPECT_EQ((std::vector<int>{1175, 1176, 1176}), ids);
}

TEST_F(PanelEvents, LoginWindowNoticesKeepTheApplicationFlagInStep) {
  auto app = [] {
    int v = -1;
    EXPECT_EQ(
        0, dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_OPEN_LOGIN_PAGE, v));
    return v;
  };
  auto window = [](int function) {
    int v = -1;
    EXPECT_EQ(
        0, dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, v, function));
    return v;
  };
  ASSERT_EQ(0,
            dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_OPEN_LOGIN_PAGE, 0));
  login_window_display_on(3);
  EXPECT_EQ(1, window(3));
  EXPECT_EQ(1, app());
  login_window_display_off(3);
  EXPECT_EQ(0, window(3));
  EXPECT_EQ(0, app());
  // A flag at another value is left alone.
  ASSERT_EQ(0,
            dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_OPEN_LOGIN_PAGE, 2));
  login_window_display_on(3);
  login_window_display_off(3);
  EXPECT_EQ(2, app());
  EXPECT_EQ(0, window(3));
}

}  // namespace
}  // namespace orvanta::test
