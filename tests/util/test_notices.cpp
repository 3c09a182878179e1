// Colour keys and the colour LED of polling reception, the destination size judgement, and the
// notices the panel sends the machine.
#include <string>
#include <vector>

#include "support/event_recorder.h"
#include "test_conditions_support.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_errors.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_notices.h"

namespace orvanta::test {
namespace {

using Notices = Conditions;

// ---- colour keys ----

TEST_F(Notices, ColourKeysWriteTheValueOfTheirFunctionsRow) {
  struct key_case {
    int function;
    unsigned long key;
    std::string node;
    long value;
  };
  const key_case cases[] = {
      {1, 37, "0.1.2.160.99.100", 6},       {1, 36, "0.1.2.160.99.100", 1},
      {1, 35, "0.1.2.160.99.100", 2},       {3, 37, "0.1.161.160.12.104.165", 7},
      {3, 35, "0.1.161.160.12.104.165", 3}, {7, 36, "0.1.214.160.12.104.165", 1},
  };
  for (const key_case& c : cases) {
    machine().clear_log();
    int prohibited = -1;
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_color_key_press(c.key, c.function, prohibited))
        << c.function << " " << c.key;
    EXPECT_EQ(0, prohibited);
    EXPECT_EQ(c.value, machine().int_at(c.node).value_or(-99)) << c.function << " " << c.key;
    EXPECT_EQ("set " + c.node, calls().back());
  }
}

TEST_F(Notices, TheBoxWritesItsColourGroupWhole) {
  machine().set_int("0.1.207.160.99.100.7", 5);  // a neighbour the group write replaces
  int prohibited = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_color_key_press(35, 6, prohibited));
  EXPECT_EQ("set 0.1.207.160.99.100", calls().back());
  EXPECT_EQ(3, machine().int_at("0.1.207.160.99.100.100").value_or(-99));
  EXPECT_FALSE(machine().int_at("0.1.207.160.99.100.7").has_value());
}

TEST_F(Notices, ColourKeysWithoutAValueOrRowAnswer1AndWriteNothing) {
  struct refusal_case {
    int function;
    unsigned long key;
    const char* trace;
  };
  const refusal_case cases[] = {
      {6, 37, "dvc_pnl_ceh_contents_hdl_color_key_press select_val error."},
      {4, 37, "dvc_pnl_ceh_contents_hdl_color_key_press f_id error."},
      {1, 40, "dvc_pnl_ceh_contents_hdl_color_key_press event_id error."},
  };
  for (const refusal_case& c : cases) {
    machine().clear_log();
    int prohibited = -1;
    EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_color_key_press(c.key, c.function, prohibited));
    EXPECT_EQ(0, prohibited);
    EXPECT_TRUE(traced(c.trace)) << c.trace;
    for (const std::string& call : calls())
      EXPECT_EQ(0u, call.rfind("get ", 0)) << "only reads: " << call;
  }
}

TEST_F(Notices, AColourKeyBarredByTheProhibitMaskIsRefusedQuietly) {
  // Bit 8 clear in the copy colour mask: full colour is barred, the others are not.
  machine().set_int("0.223.224.2.42.225", ~8L & 0xffff);
  machine().set_int("0.1.2.160.99.100", 0);
  int prohibited = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_color_key_press(36, 1, prohibited));
  EXPECT_EQ(1, prohibited);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_color_key_press pro_value full return."));
  EXPECT_EQ(0, machine().int_at("0.1.2.160.99.100").value_or(-99)) << "nothing written";
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_color_key_press(37, 1, prohibited));
  EXPECT_EQ(0, prohibited);
  EXPECT_EQ(6, machine().int_at("0.1.2.160.99.100").value_or(-99));
  // Send bars auto colour with bit 512.
  machine().set_int("0.223.224.161.42.225", 0xffff & ~512L);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_color_key_press(37, 3, prohibited));
  EXPECT_EQ(1, prohibited);
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_color_key_press pro_value auto return."));
}

TEST_F(Notices, AFailedColourWriteAnswersItsCode) {
  machine().fail_next(verb::set, "0.1.2.160.99.100");
  int prohibited = -1;
  const int ret = dvc_pnl_ceh_contents_hdl_color_key_press(35, 1, prohibited);
  EXPECT_NE(0, ret);
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm ret_code = " + std::to_string(ret)));
}

// ---- colour LED of polling reception ----

class PollingLed : public Conditions {
 protected:
  void SetUp() override {
    Conditions::SetUp();
    recorder_ = std::make_unique<event_recorder>(std::initializer_list<int>{1044});
  }
  void TearDown() override {
    recorder_.reset();
    Conditions::TearDown();
  }
  // The LED words sent for function 3 since the last look.
  std::vector<long> led_words() {
    std::vector<long> out;
    for (const auto& e : recorder_->take()) {
      dvc_pnl_cmm_valueset group;
      long word = -1;
      long function = -1;
      EXPECT_EQ(0, e.source().dvc_pnl_cmm_get_valueset(key_of("0.2883"), group));
      EXPECT_EQ(0, group.dvc_pnl_cmm_get_int(key_of("0.2883.2898"), word));
      EXPECT_EQ(0, group.dvc_pnl_cmm_get_int(key_of("0.2883.1035"), function));
      EXPECT_EQ(3, function);
      out.push_back(word);
    }
    return out;
  }
  static DVC_PNL_CEH_POLLING_LED_RECORD record() {
    DVC_PNL_CEH_POLLING_LED_RECORD r{-9, -9, -9};
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope(
                     DVC_PNL_PDM_DVC_CEH_SEND_BINARY, &r, sizeof r, 3,
                     static_cast<DVC_PNL_CEH_CONTENTS_ID>(3)));
    return r;
  }
  static void store(DVC_PNL_CEH_POLLING_LED_RECORD r) {
    ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_page_scope(
                     DVC_PNL_PDM_DVC_CEH_SEND_BINARY, &r, sizeof r, 3,
                     static_cast<DVC_PNL_CEH_CONTENTS_ID>(3)));
  }
  std::unique_ptr<event_recorder> recorder_;
};

TEST_F(PollingLed, FollowsThePollingSettingOfTheSendFunction) {
  dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(1);
  EXPECT_TRUE(calls().empty()) << "only function 3 has the LED";

  machine().set_int("0.1.161.160.203.204", 1);
  dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(3);
  EXPECT_EQ(std::vector<long>{static_cast<long>(0x80000001UL)}, led_words());
  EXPECT_EQ(1, record().polling);
  dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(3);
  EXPECT_TRUE(led_words().empty()) << "no change, no word";

  machine().set_int("0.1.161.160.203.204", 0);
  dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(3);
  EXPECT_EQ(std::vector<long>{0x40000001L}, led_words());
  // An unreadable setting counts as -1, a change: the LED goes off.
  machine().remove_node("0.1.161.160.203.204");
  dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(3);
  EXPECT_EQ(std::vector<long>{0x40000001L}, led_words());
  EXPECT_EQ(-1, record().polling);
}

TEST_F(PollingLed, AFirstLookWithPollingOffSendsNothing) {
  dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(3);
  EXPECT_TRUE(led_words().empty());
  const DVC_PNL_CEH_POLLING_LED_RECORD r = record();
  EXPECT_EQ(0, r.polling);
  EXPECT_EQ(0, r.flag_1);
  EXPECT_EQ(0, r.flag_2);
}

TEST_F(PollingLed, TheSecondFlagTurnsALitLedOffOnceAndClearsBothFlags) {
  store({0, 1, 1});
  dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(3);
  EXPECT_EQ(std::vector<long>{0x40000001L}, led_words());
  EXPECT_EQ(0, record().flag_1);
  EXPECT_EQ(0, record().flag_2);
  store({0, 0, 1});
  dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(3);
  EXPECT_TRUE(led_words().empty());
  EXPECT_EQ(0, record().flag_2);
}

// ---- destination sizes ----

TEST_F(Notices, ErrorOccurrenceJudgesBothLimits) {
  struct judge_case {
    long b, c, d;
    int result;
  };
  const judge_case cases[] = {
      {100, 5, 1, 0}, {101, 5, 1, 2},  {100, 6, 1, 1}, {101, 6, 2, 3},
      {100, 6, 0, 0}, {101, 60, 3, 2}, {1, 6, 2, 1},   {100, 100, 2, 1},
  };
  for (const judge_case& c : cases) {
    EXPECT_EQ(c.result, dvc_pnl_ceh_contents_hdl_get_error_occurrence(999, c.b, c.c, c.d))
        << c.b << " " << c.c << " " << c.d;
  }
}

TEST_F(Notices, JudgementCountsTheNewContactOrGroupIn) {
  auto sizes = [](long x, long y, long z) {
    script("0.896.901", 0, {{1569, x}, {206, y}, {1345, z}});
  };
  sizes(99, 5, 0);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_judge_error_occurrence(1, 0, 0, 3));
  EXPECT_EQ(3, request_word("0.896.901", 1035));
  sizes(100, 5, 0);
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_judge_error_occurrence(1, 0, 2, 3));
  sizes(100, 5, 0);
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_judge_error_occurrence(1, 0, 0, 3));

  // A group: its members count into b; its fax-like members (2540, 2541) into c and d.
  sizes(90, 3, 0);
  script("0.887.921.584", 0, {{2540, 2L}, {2541, 1L}, {2542, 4L}, {2544, 4L}});
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_judge_error_occurrence(2, 12, 0, 3));
  EXPECT_EQ(12, request_word("0.887.921.584", 1462));
  sizes(90, 3, 0);
  script("0.887.921.584", 0, {{2540, 0L}, {2541, 0L}, {2542, 9L}, {2544, 0L}});
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_judge_error_occurrence(2, 12, 0, 3))
      << "without fax-like members c does not count";

  machine().clear_log();
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_judge_error_occurrence(5, 12, 1, 3));
  EXPECT_TRUE(calls().empty()) << "another kind reads nothing";
}

// ---- notices to the machine ----

TEST_F(Notices, UseOfAFunctionIsReported) {
  script("0.503.3473", 0);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_use_function_notify(7));
  EXPECT_EQ(1, request_word("0.503.3473", 1320));
  EXPECT_EQ(7, request_word("0.503.3473", 3477));
  script("0.503.3473", 2);
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_use_function_notify(7));
  EXPECT_TRUE(traced("result = 2"));
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_use_function_notify(7));  // nobody serves it
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_invoke_cmm ret_code = 3"));
}

TEST_F(Notices, AnAdministratorIsLoggedOutOnlyWhereUsersDoNotLogIn) {
  serve_users({{42, {{1561, 1L}}}, {43, {{1561, 0L}}}});
  struct logout_case {
    int management;
    long user;
    bool logs_out;
  };
  const logout_case cases[] = {
      {0, 42, true}, {2, 42, true}, {1, 42, false}, {3, 42, false}, {0, 43, false},
  };
  for (const logout_case& c : cases) {
    login(c.management, c.user);
    machine().clear_log();
    dvc_pnl_ceh_contents_hdl_login_out();
    const Calls made = calls();
    const bool logged_out = !made.empty() && made.back() == "invoke 0.874.875";
    EXPECT_EQ(c.logs_out, logged_out) << c.management << " " << c.user;
    if (logged_out) {
      EXPECT_EQ(1, request_word("0.874.875", 1320));
      EXPECT_EQ(42, request_word("0.874.875", 1012));
      EXPECT_EQ(1, request_word("0.874.875", 1334));
      EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_login_out:dvc_pnl_cmm_invoke ret_code = 3"))
          << "the default machine serves no logout";
    }
  }
}

TEST_F(Notices, UsbKeyboardStatus) {
  int connected = -1;
  long status = -1;
  EXPECT_NE(0, usb_keyboard_check(connected, status));
  EXPECT_EQ(-1, connected) << "a failed read leaves it";
  EXPECT_EQ(0, status);
  for (long value : {0L, 1L, 2L}) {
    machine().set_int("0.684.685.2920", value);
    EXPECT_EQ(0, usb_keyboard_check(connected, status));
    EXPECT_EQ(value, status);
    EXPECT_EQ(value != 0 ? 1 : 0, connected);
  }
}

}  // namespace
}  // namespace orvanta::test
