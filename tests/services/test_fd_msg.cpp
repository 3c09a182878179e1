// Main message engine: the message table, raw ids, remote panel and guest messages, paper and
// function dependent messages, reading from the acquire command and from refresh events, and the
// polling reception query, against the simulated machine.
#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "orvanta/host/host_data_manager.h"
#include "orvanta/machine/main_messages.h"
#include "services/dvc_pnl_ceh_contents_hdl_fd_msg.h"
#include "support/event_recorder.h"
#include "util/test_conditions_support.h"

namespace orvanta::test {
namespace {

using List = std::vector<long>;
using Fields = std::map<unsigned long, long>;

// One machine message: its id and further fields.
machine::list_row message(long id, const Fields& fields = {}) {
  machine::list_row row = machine::main_message(id);
  for (const auto& [node, value] : fields)
    row.fields[node].dvc_pnl_cmm_set_int(value);
  return row;
}

class FdMsg : public Conditions {
 protected:
  // Every entry of the list, in order.
  List entries() {
    List out;
    for (int i = 0; i < msg.get_curr_msg_cnt(); ++i)
      out.push_back(msg.get_msg_res_by_index(i));
    return out;
  }
  // Positions the screen shows as digits, and positions that start a size and kind pair.
  List raw_positions() {
    List out;
    for (int i = 0; i < msg.get_curr_msg_cnt(); ++i) {
      if (msg.check_msg_index_status(i) == 0)
        out.push_back(i);
    }
    return out;
  }
  List pair_positions() {
    List out;
    for (int i = 0; i < msg.get_curr_msg_cnt(); ++i) {
      if (msg.check_additional_msg_index_status(i) == 0)
        out.push_back(i);
    }
    return out;
  }
  // Reads `messages` as the machine's copy list.
  List read(std::vector<machine::list_row> messages, int function = 1) {
    machine::set_main_messages(machine(), function, std::move(messages));
    msg.get_main_msg_list_from_cmm(function);
    return entries();
  }
  static void remote_status(long status) {
    dvc_pnl_cmm_value v;
    ASSERT_EQ(0, v.dvc_pnl_cmm_set_valueset(make_valueset({{"0.2096", status}})));
    ASSERT_EQ(0, host::host_data_manager::instance().dvc_pnl_pdm_set_by_application_scope(
                     DVC_PNL_PDM_REMOTE_PANEL_STATUS, v));
  }
  static void log_in_guest() { login(1, DVC_PNL_CEH_USER_GUEST, 1); }

  dvc_pnl_ceh_contents_hdl_fd_msg msg;
};

// ---- what each message shows ----

struct table_row {
  List ids;
  List resources;
};

const table_row kTable[] = {
    {{4}, {3396}},
    {{6}, {2083}},
    {{9}, {960}},
    {{10}, {3395}},
    {{20, 23}, {2480}},
    {{35, 36, 65, 73, 74, 269, 270, 384, 386, 392, 429}, {858}},
    {{41, 378, 423, 424, 425, 426, 427, 430, 431, 432, 433, 436}, {2483}},
    {{42, 383, 428, 577}, {2481}},
    {{62, 63, 64}, {2485}},
    {{67, 69}, {2484}},
    {{83}, {3558, 3559}},
    {{119}, {2427, 2428}},
    {{168, 169}, {1652}},
    {{170, 487}, {1646}},
    {{171}, {1647}},
    {{172}, {1648}},
    {{173}, {1649}},
    {{206, 214}, {1042}},
    {{207, 215}, {1043}},
    {{208, 216}, {1044}},
    {{209, 217}, {1644}},
    {{210, 218}, {1645}},
    {{213, 221}, {1045}},
    {{222}, {934}},
    {{234, 255, 257}, {963}},
    {{237}, {800, 1560}},
    {{238}, {800}},
    {{263}, {803, 1560}},
    {{277}, {803}},
    {{284, 285, 537}, {3364, 3365}},
    {{326}, {799, 858}},
    {{333}, {799, 1651}},
    {{335}, {799, 2784}},
    {{337}, {799}},
    {{343}, {802, 858}},
    {{346}, {802}},
    {{360}, {801, 858}},
    {{366}, {801}},
    {{373, 379, 385, 391}, {2482}},
    {{402, 403, 413, 437}, {803, 858}},
    {{438, 443}, {800, 858}},
    {{474}, {799, 1046}},
    {{479}, {2705}},
    {{480}, {3649, 3365}},
    {{492, 543}, {3324}},
    {{494, 497, 500, 502}, {3432, 3434}},
    {{495, 498, 501, 503}, {3433, 3434}},
    {{505, 542}, {1040}},
    {{509}, {2425, 2426}},
    {{527}, {3086}},
    {{549}, {3091}},
    {{558, 562}, {3538, 3540}},
    {{559, 563}, {3538, 3541}},
    {{560, 564}, {3538, 3539}},
    {{561, 565}, {3538, 3542}},
    {{576}, {1650}},
    {{580, 586}, {1040, 2920}},
    {{581}, {2994}},
    {{582, 584}, {3088}},
    {{583, 585}, {3088, 2920}},
    {{593}, {799, 3321}},
    {{594}, {799, 3322}},
    {{595, 597}, {803, 3321}},
    {{596, 598}, {803, 3322}},
    {{599}, {802, 3321}},
    {{600}, {802, 3322}},
    {{622}, {991}},
};

const List kGuestIds = {23, 22,  20,  560, 558, 559, 561, 564, 562, 563, 565, 24,  35,  36,
                        25, 37,  41,  423, 424, 378, 425, 436, 426, 427, 430, 431, 432, 433,
                        42, 577, 383, 428, 373, 379, 385, 391, 67,  68,  69,  62,  63,  64};

TEST_F(FdMsg, EveryIdOfTheTableShowsItsResources) {
  for (const table_row& row : kTable) {
    for (long id : row.ids) {
      SCOPED_TRACE(id);
      dvc_pnl_ceh_contents_hdl_fd_msg one;
      one.convert_main_msg_from_cm_to_res(id, -1, -1);
      List got;
      for (int i = 0; i < one.get_curr_msg_cnt(); ++i) {
        got.push_back(one.get_msg_res_by_index(i));
        EXPECT_EQ(1, one.check_msg_index_status(i));
        EXPECT_EQ(1, one.check_additional_msg_index_status(i));
      }
      EXPECT_EQ(row.resources, got);
    }
  }
}

TEST_F(FdMsg, IdsOutsideTheTableStandForThemselvesAtTheirPosition) {
  for (long id : {3L, 623L, 5L, 0L, -7L, 68L, 1000L}) {
    SCOPED_TRACE(id);
    EXPECT_EQ((List{3396, id, 960}), read({message(4), message(id), message(9)}));
    EXPECT_EQ((List{1}), raw_positions());
  }
}

TEST_F(FdMsg, AGuestSees3513AfterTheGuestIdsOnly) {
  log_in_guest();
  for (long id : kGuestIds) {
    SCOPED_TRACE(id);
    const List got = read({message(id)});
    ASSERT_GE(got.size(), 2u);
    EXPECT_EQ(DVC_PNL_CEH_MSG_RES_GUEST, got.back());
    EXPECT_EQ(1, std::count(got.begin(), got.end(), DVC_PNL_CEH_MSG_RES_GUEST));
  }
  EXPECT_EQ((List{22, 3513}), read({message(22)}));
  EXPECT_EQ((List{0}), raw_positions());
  EXPECT_EQ((List{3396, 5}), read({message(4), message(5)}));

  login(1, 7, 1);  // somebody else
  EXPECT_EQ((List{2480}), read({message(20)}));
}

TEST_F(FdMsg, AConnectedRemotePanelStandsBeforeEachMessage) {
  remote_status(2);
  EXPECT_EQ((List{4039, 3396, 4039, 623}), read({message(4), message(623)}));
  EXPECT_EQ((List{3}), raw_positions());
  // One message makes two entries, so the rotation runs.
  EXPECT_EQ((List{4039, 960}), read({message(9)}));
  remote_status(4);
  EXPECT_EQ((List{960}), read({message(9)}));
}

TEST_F(FdMsg, RemotePanelMessageAddedOnceAndRemovedEverywhere) {
  remote_status(3);
  read({message(4), message(9)});
  remote_status(0);
  msg.add_remote_panel_message();
  EXPECT_EQ((List{4039, 3396, 4039, 960}), entries());
  msg.remove_remote_panel_message();
  EXPECT_EQ((List{3396, 960}), entries());
  msg.add_remote_panel_message();
  msg.add_remote_panel_message();
  EXPECT_EQ((List{4039, 3396, 960}), entries());
  // The positions noted at the read are not moved.
  read({message(5)});
  msg.add_remote_panel_message();
  EXPECT_EQ((List{4039, 5}), entries());
  EXPECT_EQ(0, msg.check_msg_index_status(0));
  EXPECT_EQ(1, msg.check_msg_index_status(1));
}

TEST_F(FdMsg, MessagesNamingTheFunction) {
  const std::vector<std::pair<int, List>> by_482 = {
      {1, {799, 2191}}, {3, {803, 2191}}, {4, {803, 2191}}, {7, {802, 2191}},
      {6, {801, 2191}}, {24, {2191}},     {5, {2191}}};
  for (const auto& [function, expected] : by_482) {
    SCOPED_TRACE(function);
    EXPECT_EQ(expected, read({message(482)}, function));
  }
  const std::vector<std::pair<int, List>> by_pair = {
      {1, {799, 3076, 3077}}, {6, {801, 3076, 3077}}, {3, {3076, 3077}}, {7, {3076, 3077}}};
  for (const auto& [function, expected] : by_pair) {
    for (long id : {493L, 499L, 578L}) {
      SCOPED_TRACE(testing::Message() << function << " " << id);
      EXPECT_EQ(expected, read({message(id)}, function));
      EXPECT_TRUE(raw_positions().empty());
    }
  }
}

// ---- paper messages ----

TEST_F(FdMsg, PaperPairOf190) {
  // Size 4 and kind 1 of the message give 33 and 619; kind 15 has no text.
  EXPECT_EQ((List{3396, 1047, 33, 619}), read({message(4), message(190, {{3306, 1}, {2063, 4}})}));
  EXPECT_EQ((List{2}), pair_positions());
  EXPECT_TRUE(raw_positions().empty());
  EXPECT_EQ((List{1047, 1277}), read({message(190, {{3306, 15}, {2063, 5}})}));
  EXPECT_TRUE(pair_positions().empty());
  // Without fields the locals keep their preset: neither size nor kind has a text.
  EXPECT_EQ((List{1047, -1}), read({message(190)}));
}

struct feeder_case {
  const char* what;
  Fields fields;
  long size_resource;
  long kind_resource;
};

TEST_F(FdMsg, PaperOfMessages129132133ByFeeder) {
  machine().set_int("0.704.705.715.723.373", 3);  // manual tray: size 3, kind 2
  machine().set_int("0.704.705.715.723.719", 2);
  const unsigned long cassettes[] = {372, 375, 376, 377, 3049};
  for (long feeder = 1; feeder <= 5; ++feeder) {
    const std::string node = "0.704.705.715." + std::to_string(cassettes[feeder - 1]);
    machine().set_int(node + ".373", feeder == 5 ? 16 : 17);
    machine().set_int(node + ".719", feeder == 5 ? 7 : 10);
  }
  const std::vector<feeder_case> cases = {
      {"given", {{3301, 255}, {3306, 12}, {2063, 1}}, 35, 393},
      {"no feeder is the manual tray", {}, 34, 1398},
      {"tray mode 0", {{3301, 0}, {1068, 0}}, 34, 1398},
      {"tray mode 1", {{3301, 0}, {1068, 1}, {2791, 13}, {1071, 2}}, 30, 291},
      {"tray mode 2", {{3301, 0}, {1068, 2}, {2791, 14}, {1071, 4}}, 33, 308},
      {"tray mode 3 reads nothing", {{3301, 0}, {1068, 3}}, -1, -1},
      {"cassette 1", {{3301, 1}}, 31, 311},
      {"cassette 4", {{3301, 4}}, 31, 311},
      {"cassette 5", {{3301, 5}}, 32, 777},
      {"no feeder node", {{3301, 6}, {3306, 1}, {2063, 4}}, -1, -1},
  };
  for (const feeder_case& c : cases) {
    SCOPED_TRACE(c.what);
    EXPECT_EQ((List{2401, c.size_resource, 2400, c.size_resource, 2400, c.kind_resource}),
              read({message(129, c.fields), message(132, c.fields), message(133, c.fields)}));
    EXPECT_TRUE(raw_positions().empty());
    EXPECT_TRUE(pair_positions().empty());
  }
}

TEST_F(FdMsg, KindAndSizeCarryOverToTheNextMessage) {
  // 190 sets both; 129 with a feeder without paper node reads nothing and shows size 5.
  EXPECT_EQ((List{1047, 1277, 1398, 2401, 1277}),
            read({message(190, {{3306, 2}, {2063, 5}}), message(129, {{3301, 9}})}));
  // Any other message reads its parameter into the kind.
  EXPECT_EQ((List{3396, 2400, 1398}), read({message(4, {{1062, 2}}), message(133, {{3301, 9}})}));
  // A new read starts from the presets again.
  EXPECT_EQ((List{2400, -1}), read({message(133, {{3301, 9}})}));
}

TEST_F(FdMsg, PaperSizeTakesTheOrientationOfTheCassetteInUse) {
  // The default machine takes cassette 1 for copy; size 13 has a text of its own on its side.
  machine().set_int("0.704.705.715.372.718", 1);
  EXPECT_EQ((List{2401, 3796}), read({message(129, {{3301, 255}, {2063, 13}})}));
  EXPECT_EQ((List{2401, -1}), read({message(129, {{3301, 255}, {2063, 4}})}));
  machine().clear_log();
  read({message(190, {{3306, 1}, {2063, 13}})});
  const Calls got = calls();
  EXPECT_NE(std::find(got.begin(), got.end(), "get 0.230.49.368.370"), got.end())
      << "message 190 reads the cassette's record as for 190";
}

// ---- reading from the machine ----

TEST_F(FdMsg, AcquireCommandOfEachFunction) {
  const std::vector<std::pair<int, std::string>> commands = {
      {1, "0.800.801"}, {3, "0.800.802"}, {4, "0.800.803"}, {6, "0.800.805"},
      {7, "0.800.806"}, {5, "0.800.801"}, {24, "0.800.801"}};
  for (const auto& [function, command] : commands) {
    SCOPED_TRACE(function);
    machine().clear_log();
    msg.get_main_msg_list_from_cmm(function);
    EXPECT_EQ(1, request_word(command, 1320));
  }
  // The default machine's sample lists.
  msg.get_main_msg_list_from_cmm(1);
  EXPECT_EQ((List{3396, 960}), entries());
}

TEST_F(FdMsg, AcquireFailuresLeaveAnEmptyList) {
  read({message(4), message(9)});
  machine().fail_next(verb::invoke, "0.800.801", 4);
  msg.get_main_msg_list_from_cmm(1);
  EXPECT_EQ(0, msg.get_curr_msg_cnt());
  EXPECT_EQ(-1, msg.get_msg_res_by_index(0));
  EXPECT_TRUE(traced("ret = 4.")) << trace_dump();
  EXPECT_TRUE(traced("ROOT.MESSAGE.XXX_MAIN_MESSAGE_ACQUIRE ret_code = 3")) << trace_dump();

  // A RESULT other than 0 ends the read without a trace.
  read({message(4), message(5)});
  host::trace_sink::instance().clear();
  machine().fail_next_result("0.800.801", 1);
  msg.get_main_msg_list_from_cmm(1);
  EXPECT_EQ(0, msg.get_curr_msg_cnt());
  EXPECT_EQ(1, msg.check_msg_index_status(1));
  for (const std::string& line : host::trace_sink::instance().messages())
    EXPECT_EQ(std::string::npos, line.find("MAIN_MESSAGE_ACQUIRE")) << line;

  machine().script_next_response("0.800.801", make_valueset({{"0.800.801.1592", 0L}}));
  msg.get_main_msg_list_from_cmm(1);
  EXPECT_TRUE(traced("ROOT.MESSAGE.XXX_MAIN_MESSAGE_ACQUIRE ret_code = 3")) << trace_dump();

  machine().script_next_response("0.800.801", make_valueset({{"0.800.801.1484", 0L}}));
  msg.get_main_msg_list_from_cmm(1);
  EXPECT_TRUE(traced("Can not get valueset from valueset. ret_code = 3")) << trace_dump();
  EXPECT_EQ(0, msg.get_curr_msg_cnt());
}

TEST_F(FdMsg, AFailureInTheMiddleKeepsTheMessagesBefore) {
  machine::list_row no_id;
  no_id.fields[1062].dvc_pnl_cmm_set_int(1);
  EXPECT_EQ((List{3396, 623}), read({message(4), message(623), no_id, message(9)}));
  EXPECT_EQ((List{1}), raw_positions());
  EXPECT_TRUE(traced("Can not get msg id from cmm. ret_code = 3")) << trace_dump();
}

TEST_F(FdMsg, TheAcquiredListLeavesTheNumberAlone) {
  EXPECT_EQ((List{1040, 2920, 3088, 2920}),
            read({message(580, {{1062, 12}}), message(585, {{1062, 3}})}));
  EXPECT_EQ(-1, msg.msg_number_value_);
}

// ---- reading from a refresh event ----

TEST_F(FdMsg, RefreshEventPostedByTheMachine) {
  machine::set_main_messages(machine(), 4,
                             {message(586, {{1062, 42}}), message(5), message(133, {{3301, 0}})});
  event_recorder recorder({115});
  ASSERT_TRUE(machine::post_main_messages_refresh(machine(), 4));
  const std::vector<dvc_pnl_evh_panel_event> events = recorder.take();
  ASSERT_EQ(1u, events.size());
  dvc_pnl_cmm_valueset source;
  ASSERT_EQ(0, events[0].dvc_pnl_evh_get_event_source_valueset(source));
  EXPECT_EQ(0, msg.on_panel_event_refresh_msg(4, source));
  // The manual tray of the default machine holds kind 1.
  EXPECT_EQ((List{1040, 2920, 5, 2400, 619}), entries());
  EXPECT_EQ((List{2}), raw_positions());
  EXPECT_EQ(42, msg.msg_number_value_);
  // The number outlives the next acquired list.
  msg.get_main_msg_list_from_cmm(4);
  EXPECT_EQ(42, msg.msg_number_value_);
}

TEST_F(FdMsg, EventNumbersAndFailures) {
  // The group of each function; an unknown function reads copy's group.
  const std::vector<std::pair<int, std::string>> groups = {
      {1, "0.1058"}, {3, "0.1074"}, {4, "0.1075"}, {6, "0.1077"}, {7, "0.1078"}, {9, "0.1058"}};
  for (const auto& [function, group] : groups) {
    SCOPED_TRACE(function);
    const dvc_pnl_cmm_valueset event = make_valueset({{group + ".1059", 2L},
                                                      {group + ".1060.0.1061", 583L},
                                                      {group + ".1060.0.1062", 7L},
                                                      {group + ".1060.1.1061", 580L}},
                                                     2);
    EXPECT_EQ(0, msg.on_panel_event_refresh_msg(function, event));
    EXPECT_EQ((List{3088, 2920, 1040, 2920}), entries());
    EXPECT_EQ(-1, msg.msg_number_value_) << "580 without its number presets -1";
  }

  const dvc_pnl_cmm_valueset no_count = make_valueset({{"0.1058.1060.0.1061", 4L}}, 2);
  EXPECT_EQ(3, msg.on_panel_event_refresh_msg(1, no_count));
  EXPECT_EQ(0, msg.get_curr_msg_cnt());
  EXPECT_TRUE(traced("Can not get effective message num from valueset ret_code = 3"))
      << trace_dump();

  const dvc_pnl_cmm_valueset short_list = make_valueset(
      {{"0.1074.1059", 3L}, {"0.1074.1060.0.1061", 9L}, {"0.1074.1060.2.1061", 4L}}, 2);
  EXPECT_EQ(3, msg.on_panel_event_refresh_msg(3, short_list));
  EXPECT_EQ((List{960}), entries());
  EXPECT_TRUE(traced("Can not get msg id from cmm  ret_code = 3")) << trace_dump();
}

// ---- the list as the screens walk it ----

TEST_F(FdMsg, IndexesGoRoundTheList) {
  EXPECT_EQ(-1, msg.get_msg_res_by_index(0));
  EXPECT_EQ(1, msg.check_msg_index_status(0));
  EXPECT_EQ(1, msg.check_additional_msg_index_status(0));
  read({message(4), message(9), message(5)});
  EXPECT_EQ(3396, msg.get_msg_res_by_index(3));
  EXPECT_EQ(5, msg.get_msg_res_by_index(8));
  EXPECT_EQ(5, msg.get_msg_res_by_index(-1));
  EXPECT_EQ(0, msg.check_msg_index_status(2));
  EXPECT_EQ(1, msg.check_msg_index_status(5)) << "statuses are by position, not modulo";
}

// ---- paper information and polling reception ----

TEST_F(FdMsg, PaperInformationOfEachFeeder) {
  const unsigned long nodes[] = {723, 372, 375, 376, 377, 3049};
  for (int feeder = 0; feeder <= 5; ++feeder) {
    SCOPED_TRACE(feeder);
    const std::string node = "0.704.705.715." + std::to_string(nodes[feeder]);
    machine().set_int(node + ".373", 10 + feeder);
    machine().set_int(node + ".719", 20 + feeder);
    long kind = -1, size = -1;
    EXPECT_EQ(1, msg.get_paper_information(kind, size, feeder));
    EXPECT_EQ(20 + feeder, kind);
    EXPECT_EQ(10 + feeder, size);
  }
  for (int feeder : {6, 255, -1}) {
    machine().clear_log();
    long kind = -5, size = -5;
    EXPECT_EQ(0, msg.get_paper_information(kind, size, feeder));
    EXPECT_EQ(-5, kind);
    EXPECT_EQ(-5, size);
    EXPECT_TRUE(calls().empty());
  }
  long kind = -5, size = -5;
  machine().fail_next(verb::get, "0.704.705.715.375.373");
  EXPECT_EQ(0, msg.get_paper_information(kind, size, 2));
  EXPECT_EQ((List{-5, -5}), (List{kind, size}));
  EXPECT_TRUE(traced("can not get cst paper size ret_code = 3")) << trace_dump();
  machine().fail_next(verb::get, "0.704.705.715.375.719");
  EXPECT_EQ(0, msg.get_paper_information(kind, size, 2));
  EXPECT_EQ((List{-5, 12}), (List{kind, size}));
  EXPECT_TRUE(traced("can not get cst paper kind ret_code = 3")) << trace_dump();
}

TEST_F(FdMsg, PollingReceptionOfTheFaxOrTheSendJob) {
  machine().set_int("0.1.206.160.203.204", 1);
  machine().set_int("0.1.161.160.203.204", 2);
  EXPECT_EQ(1, msg.get_polling_rx_status(4));
  EXPECT_EQ(0, msg.get_polling_rx_status(3));
  EXPECT_EQ(0, msg.get_polling_rx_status(1));
  machine().set_int("0.1.161.160.203.204", 1);
  EXPECT_EQ(1, msg.get_polling_rx_status(1));
  machine().fail_next(verb::get, "0.1.206.160.203.204");
  EXPECT_EQ(0, msg.get_polling_rx_status(4));
  EXPECT_TRUE(traced("Can not get polling status from cmm. ret_code = 3")) << trace_dump();
}

}  // namespace
}  // namespace orvanta::test
