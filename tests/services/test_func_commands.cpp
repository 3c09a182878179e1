// Function settings: the error key of each function, paper queries, application rows, and the
// shared commands with their requests, answers and failures.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "orvanta/host/host_data_manager.h"
#include "services/dvc_pnl_ceh_contents_hdl_func.h"
#include "support/machine_test.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"

namespace orvanta::test {
namespace {

using machine::call_record;
using machine::verb;
using Func = dvc_pnl_ceh_contents_hdl_func;
using Feeders = std::vector<WSC_VAL_FEEDER>;
using Strings = std::vector<std::string>;

constexpr unsigned long kNone = DVC_PNL_CEH_ERROR_NODE_NONE;

class FuncCommands : public MachineTest {
 protected:
  void TearDown() override {
    Func::reset_for_tests();
    MachineTest::TearDown();
  }

  static Strings calls(verb kind) {
    Strings out;
    for (const call_record& c : machine().log()) {
      if (c.kind == kind)
        out.push_back(c.key);
    }
    return out;
  }

  // The requests sent with `command`, oldest first.
  static std::vector<dvc_pnl_cmm_valueset> requests(const std::string& command) {
    std::vector<dvc_pnl_cmm_valueset> out;
    for (const call_record& c : machine().log()) {
      if (c.kind == verb::invoke && c.key == command)
        out.push_back(c.request);
    }
    return out;
  }

  // The one invoke made was `command` with exactly `expected`.
  static ::testing::AssertionResult sent_once(const std::string& command,
                                              const dvc_pnl_cmm_valueset& expected) {
    const Strings invokes = calls(verb::invoke);
    if (invokes != Strings{command}) {
      std::string made;
      for (const std::string& i : invokes)
        made += " " + i;
      return ::testing::AssertionFailure() << "invokes made:" << made;
    }
    return sets_equal(requests(command).front(), expected);
  }

  static void answer_ok(const std::string& command) {
    machine().register_answer(command, {{"1484", leaf(0).value()}});
  }

  // An error event as the platform stores it: the fields below 0.<node>.
  static void store_error_event(int function, const std::vector<entry>& fields) {
    dvc_pnl_cmm_valueset event = make_valueset(fields, 2);
    ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_valueset_to_dm(DVC_PNL_PDM_ERROR_OCCURRENCE, function,
                                                             event));
  }
};

// ---------------------------------------------------------------- error key

TEST_F(FuncCommands, ErrorNodeOfEveryFunctionId) {
  const unsigned long expected[] = {kNone, 1080, kNone, 1093,  1094,  1095,  1097,
                                    1098,  1096, 1099,  1101,  kNone, kNone, kNone,
                                    kNone, 1100, 1103,  kNone, 1102,  kNone};
  for (int id = 0; id <= 19; ++id) {
    const Func func(id);
    EXPECT_EQ(expected[id], func.get_error_event_node_key_by_current_function()) << "id " << id;
  }
  EXPECT_EQ(kNone, Func(-1).get_error_event_node_key_by_current_function());
  EXPECT_EQ(kNone, Func(24).get_error_event_node_key_by_current_function());
}

TEST_F(FuncCommands, ErrorNodeFollowsTheSharedInstance) {
  Func* kept = Func::dvc_pnl_ceh_get_instance(1);
  EXPECT_EQ(1080u, kept->get_error_event_node_key_by_current_function());
  Func::dvc_pnl_ceh_get_instance(16);
  EXPECT_EQ(1103u, kept->get_error_event_node_key_by_current_function());
}

// ---------------------------------------------------------------- paper type

struct selecting_case {
  const char* name;
  long mask;
  long kinds[4];  // paper type in cassettes 1 to 4
  ENV_MEDIA_TYPE_VAL type;
  Feeders before;
  Feeders expected;
  Strings reads;  // the cassette reads made
};

TEST_F(FuncCommands, PaperTypeSelectingReadsTheInstalledCassettes) {
  const std::string k1 = "0.230.49.371.372.374", k2 = "0.230.49.371.375.374",
                    k3 = "0.230.49.371.376.374", k4 = "0.230.49.371.377.374";
  const selecting_case cases[] = {
      {"no cassette", 0, {5, 5, 5, 5}, 5, {}, {}, {}},
      {"only bit 1, which no cassette has", 1, {5, 5, 5, 5}, 5, {}, {}, {}},
      {"cassette 1", 2, {5, 5, 5, 5}, 5, {}, {1}, {k1}},
      {"cassettes 2 and 4", 4 | 16, {5, 5, 5, 5}, 5, {}, {2, 4}, {k2, k4}},
      {"all, one holds the type", 30, {1, 2, 7, 3}, 7, {}, {3}, {k1, k2, k3, k4}},
      {"all, two hold the type", 30, {1, 7, 1, 3}, 1, {}, {1, 3}, {k1, k2, k3, k4}},
      {"all, none holds the type", 30, {1, 7, 1, 3}, 9, {}, {}, {k1, k2, k3, k4}},
      {"appends to what is there", 8, {0, 0, 6, 0}, 6, {4}, {4, 3}, {k3}},
  };
  for (const selecting_case& c : cases) {
    SCOPED_TRACE(c.name);
    machine().reset();
    machine().set_int("0.728.713.129", c.mask);
    const std::string kind_nodes[] = {k1, k2, k3, k4};
    for (int i = 0; i < 4; ++i)
      machine().set_int(kind_nodes[i], c.kinds[i]);
    machine().clear_log();

    Feeders feeders = c.before;
    const int ret = Func(1).get_paper_type_selecting(c.type, feeders);
    EXPECT_EQ(c.expected, feeders);
    EXPECT_EQ(c.reads.empty() ? -1 : 0, ret);
    Strings expected_reads = {"0.728.713.129"};
    expected_reads.insert(expected_reads.end(), c.reads.begin(), c.reads.end());
    EXPECT_EQ(expected_reads, calls(verb::get));
  }
}

TEST_F(FuncCommands, PaperTypeSelectingAnswersTheLastCassetteRead) {
  machine().set_int("0.728.713.129", 2 | 4);
  machine().set_int("0.230.49.371.372.374", 5);
  machine().set_int("0.230.49.371.375.374", 5);

  machine().fail_next(verb::get, "0.230.49.371.375.374");
  Feeders feeders;
  EXPECT_EQ(3, Func(1).get_paper_type_selecting(5, feeders));
  EXPECT_EQ(Feeders{1}, feeders);
  EXPECT_TRUE(traced("can not get cst paper type ret_code = 3")) << trace_dump();

  // A failure before the last read does not count.
  machine().fail_next(verb::get, "0.230.49.371.372.374");
  feeders.clear();
  EXPECT_EQ(0, Func(1).get_paper_type_selecting(5, feeders));
  EXPECT_EQ(Feeders{2}, feeders);
}

TEST_F(FuncCommands, PaperTypeSelectingWithoutTheMaskReadsNoCassette) {
  machine().set_int("0.728.713.129", 30);
  machine().fail_next(verb::get, "0.728.713.129");
  Feeders feeders;
  EXPECT_EQ(-1, Func(1).get_paper_type_selecting(5, feeders));
  EXPECT_TRUE(feeders.empty());
  EXPECT_EQ(Strings{"0.728.713.129"}, calls(verb::get));
  EXPECT_TRUE(traced("can not get cassette status ret_code = 3")) << trace_dump();
}

// ---------------------------------------------------------------- paper weight

TEST_F(FuncCommands, PaperWeightOfTypesWithAFixedNode) {
  const struct {
    ENV_MEDIA_TYPE_VAL type;
    const char* node;
  } rows[] = {{1, "383"},  {2, "385"},  {3, "386"},  {4, "387"},  {5, "388"},  {6, "389"},
              {7, "390"},  {8, "391"},  {9, "392"},  {10, "393"}, {11, "394"}, {12, "395"},
              {13, "396"}, {16, "397"}, {14, "400"}, {17, "399"}, {18, "3748"}};
  long stored = 40;
  for (const auto& row : rows)
    machine().set_int(std::string("0.230.49.382.") + row.node + ".384", ++stored);
  stored = 40;
  for (const auto& row : rows) {
    SCOPED_TRACE(row.type);
    machine().clear_log();
    ENV_PAPER_WEIGHT_VAL weight = -7;
    EXPECT_EQ(-1, Func(1).get_paper_weight(row.type, weight));
    EXPECT_EQ(++stored, weight);
    EXPECT_EQ(Strings{std::string("0.230.49.382.") + row.node + ".384"}, calls(verb::get));
  }
}

TEST_F(FuncCommands, PaperWeightOfCustomTypesByIndex) {
  for (int i = 0; i < 8; ++i) {
    const std::string row = "0.230.49.382.401.402." + std::to_string(i);
    machine().set_int(row + ".384", 70 + i);
    machine().set_int(row + ".385", 99);  // a neighbour field of the row
  }
  for (int type = 21; type <= 28; ++type) {
    SCOPED_TRACE(type);
    machine().clear_log();
    ENV_PAPER_WEIGHT_VAL weight = -7;
    EXPECT_EQ(-1, Func(1).get_paper_weight(type, weight));
    EXPECT_EQ(70 + (type - 21), weight);
    EXPECT_EQ(Strings{"0.230.49.382.401.402"}, calls(verb::get));
  }
}

TEST_F(FuncCommands, PaperWeightIsLeftAloneWhenNothingCanBeRead) {
  for (ENV_MEDIA_TYPE_VAL type : {0, 15, 19, 20, 29}) {
    ENV_PAPER_WEIGHT_VAL weight = -7;
    EXPECT_EQ(-1, Func(1).get_paper_weight(type, weight));
    EXPECT_EQ(-7, weight) << type;
  }
  EXPECT_TRUE(calls(verb::get).empty());
  EXPECT_TRUE(traced("paper type 15 has no weight")) << trace_dump();

  machine().set_int("0.230.49.382.383.384", 3);
  machine().fail_next(verb::get, "0.230.49.382.383.384");
  ENV_PAPER_WEIGHT_VAL weight = -7;
  EXPECT_EQ(-1, Func(1).get_paper_weight(1, weight));
  EXPECT_EQ(-7, weight);
  EXPECT_TRUE(traced("can not get paper weight ret_code = 3")) << trace_dump();

  // A custom row that the table lacks.
  machine().remove_node("0.230.49.382.401.402");
  machine().set_int("0.230.49.382.401.402.0.384", 5);
  EXPECT_EQ(-1, Func(1).get_paper_weight(22, weight));
  EXPECT_EQ(-7, weight);
}

// ---------------------------------------------------------------- application rows

TEST_F(FuncCommands, ParseAplInfoCopiesEveryField) {
  const std::string row = "0.938.953.1501.3";
  dvc_pnl_cmm_valueset set = make_valueset({
      {row + ".2516", "Scan to cloud"},
      {row + ".2486", 1},
      {row + ".2488", 2},
      {row + ".2489", 3},
      {row + ".2490", 4},
      {row + ".2491", 5},
      {row + ".2492", "2.1.0"},
      {row + ".2494", "Sends scans to a folder"},
      {row + ".2591", 6},
      {row + ".2145", 7},
      {row + ".2633", 8},
      {row + ".2592", 9},
  });
  dvc_pnl_cmm_key key = key_of(row);
  APPLICATION_MANAGE_INFO info;
  std::memset(&info, 0x5a, sizeof info);
  Func(1).parse_apl_info(set, key, info);
  EXPECT_STREQ("Scan to cloud", info.name);
  EXPECT_STREQ("2.1.0", info.text_2492);
  EXPECT_STREQ("Sends scans to a folder", info.text_2494);
  EXPECT_EQ(1, info.value_2486);
  EXPECT_EQ(2, info.value_2488);
  EXPECT_EQ(3, info.value_2489);
  EXPECT_EQ(4, info.value_2490);
  EXPECT_EQ(5, info.value_2491);
  EXPECT_EQ(6, info.value_2591);
  EXPECT_EQ(7, info.value_2145);
  EXPECT_EQ(8, info.value_2633);
  EXPECT_EQ(9, info.value_2592);
}

TEST_F(FuncCommands, ParseAplInfoCutsLongTextsAndTerminatesThem) {
  const std::string row = "0.938.953.1501.0";
  const std::string name(40, 'n'), version(20, 'v'), text(300, 't');
  dvc_pnl_cmm_valueset set =
      make_valueset({{row + ".2516", name}, {row + ".2492", version}, {row + ".2494", text}});
  dvc_pnl_cmm_key key = key_of(row);
  APPLICATION_MANAGE_INFO info;
  std::memset(&info, 0x5a, sizeof info);
  Func(1).parse_apl_info(set, key, info);
  EXPECT_EQ(name.substr(0, DVC_PNL_CEH_APL_NAME_SIZE - 1), info.name);
  EXPECT_EQ(version.substr(0, DVC_PNL_CEH_APL_VERSION_SIZE - 1), info.text_2492);
  EXPECT_EQ(text.substr(0, DVC_PNL_CEH_APL_TEXT_SIZE - 1), info.text_2494);
  // Fields the row lacks are not left as they were.
  EXPECT_EQ(0, info.value_2486);
  EXPECT_EQ(0, info.value_2592);
}

TEST_F(FuncCommands, ParseAplInfoReadsOnlyBelowTheRowKey) {
  dvc_pnl_cmm_valueset set =
      make_valueset({{"0.938.953.1501.0.2516", "first"}, {"0.938.953.1501.1.2516", "second"}});
  dvc_pnl_cmm_key key = key_of("0.938.953.1501.1");
  APPLICATION_MANAGE_INFO info{};
  Func(1).parse_apl_info(set, key, info);
  EXPECT_STREQ("second", info.name);
}

// ---------------------------------------------------------------- Wi-Fi commands

struct wifi_command {
  const char* name;
  const char* command;
  std::vector<entry> request;
  bool gives_result;  // RESULT goes into the caller's variable
  std::function<int(const Func&, long&)> call;
};

std::vector<wifi_command> wifi_commands() {
  return {
      {"auto setting cancel",
       "0.503.3939.3953.825",
       {{"0.503.3939.3953.825.1320", 1}},
       true,
       [](const Func& f, long& r) {
         return f.dvc_pnl_ceh_contents_hdl_wifi_direct_auto_setting_cancel(r);
       }},
      {"push button start",
       "0.503.3939.3953.3955",
       {{"0.503.3939.3953.3955.1320", 2}},
       false,
       [](const Func& f, long&) {
         return f.dvc_pnl_ceh_contents_hdl_wifi_direct_wps_pbc_connection_start();
       }},
      {"acceptance",
       "0.503.3939.3953.3954",
       {{"0.503.3939.3953.3954.1320", 1}},
       true,
       [](const Func& f, long& r) { return f.dvc_pnl_ceh_contents_hdl_wifi_direct_acceptance(r); }},
      {"confirm",
       "0.503.3939.975",
       {{"0.503.3939.975.1320", 1}},
       true,
       [](const Func& f, long& r) { return f.dvc_pnl_ceh_contents_hdl_wifi_direct_confirm(r); }},
      {"cancel connect",
       "0.503.3492.3510",
       {{"0.503.3492.3510.1320", 2}, {"0.503.3492.3510.3959", 2}},
       true,
       [](const Func& f, long& r) { return f.dvc_pnl_ceh_contents_hdl_wifi_cancel_connect(r); }},
  };
}

TEST_F(FuncCommands, WifiCommandsSendTheirRequestAndAnswerRESULT) {
  for (const wifi_command& c : wifi_commands()) {
    SCOPED_TRACE(c.name);
    machine().reset();
    answer_ok(c.command);
    long result = 99;
    EXPECT_EQ(0, c.call(Func(3), result));
    EXPECT_TRUE(sent_once(c.command, make_valueset(c.request)));
    EXPECT_EQ(c.gives_result ? 0 : 99, result);
  }
}

TEST_F(FuncCommands, WifiCommandsHandAMachineRefusalOn) {
  for (const wifi_command& c : wifi_commands()) {
    SCOPED_TRACE(c.name);
    host::trace_sink::instance().clear();
    machine().fail_next_result(c.command, 7);
    long result = 99;
    EXPECT_EQ(0, c.call(Func(3), result));
    EXPECT_EQ(c.gives_result ? 7 : 99, result);
    EXPECT_EQ(c.gives_result, traced("command result NG. RESULT = 7")) << trace_dump();
  }
}

TEST_F(FuncCommands, WifiCommandsReadNothingAfterAMediatorFailure) {
  for (const wifi_command& c : wifi_commands()) {
    SCOPED_TRACE(c.name);
    host::trace_sink::instance().clear();
    answer_ok(c.command);
    machine().fail_next(verb::invoke, c.command);
    long result = 99;
    EXPECT_EQ(3, c.call(Func(3), result));
    EXPECT_EQ(99, result);
    EXPECT_TRUE(traced("invoke failed : ret_code = 3")) << trace_dump();
  }
}

TEST_F(FuncCommands, AnAnswerWithoutRESULTIsNoSuccess) {
  machine().script_next_response("0.503.3939.975", dvc_pnl_cmm_valueset());
  long result = 0;
  EXPECT_EQ(0, Func(3).dvc_pnl_ceh_contents_hdl_wifi_direct_confirm(result));
  EXPECT_EQ(-1, result);
}

// ---------------------------------------------------------------- error screen close

constexpr const char* kClose = "0.503.2449";

dvc_pnl_cmm_valueset close_request(long job, long error) {
  return make_valueset({{"0.503.2449.1320", 1},
                        {"0.503.2449.221", job},
                        {"0.503.2449.1081", error},
                        {"0.503.2449.2466", ""},
                        {"0.503.2449.1002", 0}});
}

TEST_F(FuncCommands, ErrorScreenCloseSendsTheEventOfTheCurrentFunction) {
  answer_ok(kClose);
  for (int function = 1; function <= 18; ++function) {
    const unsigned long node = Func(function).get_error_event_node_key_by_current_function();
    if (node == kNone)
      continue;
    SCOPED_TRACE(function);
    const std::string base = "0." + std::to_string(node);
    store_error_event(
        function,
        {{base + ".221", 100 + function}, {base + ".1081", 200 + function}, {base + ".1000", 9}});
    // Another function's event must not be what goes out.
    store_error_event(function == 1 ? 3 : 1, {{"0.1080.221", 1}, {"0.1080.1081", 2}});
    machine().clear_log();
    EXPECT_EQ(0, Func::dvc_pnl_ceh_get_instance(function)->op_error_screen_close_setting());
    EXPECT_TRUE(sent_once(kClose, close_request(100 + function, 200 + function)));
  }
}

TEST_F(FuncCommands, ErrorScreenCloseStaysSuccessfulWhenTheMachineRefuses) {
  store_error_event(4, {{"0.1094.221", 5}, {"0.1094.1081", 6}});
  machine().fail_next_result(kClose, 2);
  EXPECT_EQ(0, Func(4).op_error_screen_close_setting());
  EXPECT_TRUE(sent_once(kClose, close_request(5, 6)));
  EXPECT_TRUE(traced("command result NG. RESULT = 2")) << trace_dump();
}

TEST_F(FuncCommands, ErrorScreenCloseGives3WhenTheMediatorFails) {
  store_error_event(4, {{"0.1094.221", 5}, {"0.1094.1081", 6}});
  answer_ok(kClose);
  machine().fail_next(verb::invoke, kClose);
  EXPECT_EQ(3, Func(4).op_error_screen_close_setting());
  EXPECT_TRUE(traced("invoke failed : ret_code = 3")) << trace_dump();
}

TEST_F(FuncCommands, ErrorScreenCloseWithoutAJobIdSends0) {
  answer_ok(kClose);
  store_error_event(4, {{"0.1094.1081", 6}});
  EXPECT_EQ(0, Func(4).op_error_screen_close_setting());
  EXPECT_TRUE(sent_once(kClose, close_request(0, 6)));
}

TEST_F(FuncCommands, ErrorScreenCloseSendsNothingWithoutAnErrorId) {
  answer_ok(kClose);
  struct {
    const char* name;
    int function;
    std::function<void()> arrange;
    int expected;
    const char* trace;
  } cases[] = {
      {"no event stored", 4, [] {}, 3,
       "get from PanelDataManager of DVC_PNL_PDM_ERROR_OCCURRENCE ret_code = 3"},
      {"the manager fails", 4,
       [] {
         store_error_event(4, {{"0.1094.221", 5}, {"0.1094.1081", 6}});
         host::host_data_manager::instance().fail_next(host::dm_op::get);
       },
       3, "get from PanelDataManager of DVC_PNL_PDM_ERROR_OCCURRENCE ret_code = 3"},
      {"the event lies under another node", 4,
       [] {
         store_error_event(4, {{"0.1080.221", 5}, {"0.1080.1081", 6}});
       },
       3, "error_id ret_code = 3"},
      {"the event has no error id", 4,
       [] {
         store_error_event(4, {{"0.1094.221", 5}, {"0.1094.1000", 6}});
       },
       3, "error_id ret_code = 3"},
      {"the function has no error node", 2,
       [] {
         store_error_event(2, {{"0.1080.221", 5}, {"0.1080.1081", 6}});
       },
       DVC_PNL_CEH_RET_BAD_ARGUMENT, "it is beyond reasonable scope."},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    host::host_data_manager::instance().reset();
    host::trace_sink::instance().clear();
    c.arrange();
    machine().clear_log();
    const int ret = Func(c.function).op_error_screen_close_setting();
    EXPECT_EQ(c.expected, ret);
    EXPECT_TRUE(calls(verb::invoke).empty());
    EXPECT_TRUE(traced(c.trace)) << trace_dump();
  }
}

// ---------------------------------------------------------------- job cancel in error

constexpr const char* kManipulation = "0.821.847";

class FuncJobCancel : public FuncCommands {
 protected:
  void SetUp() override {
    FuncCommands::SetUp();
    answer_ok(kManipulation);
    store_error_event(1, {{"0.1080.221", 12}, {"0.1080.1000", 3402}, {"0.1080.1081", 8}});
    machine().clear_log();
  }
  static int maintenance_flag() {
    int flag = -1;
    if (dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, flag, 11) != 0)
      return -1;
    return flag;
  }
};

TEST_F(FuncJobCancel, CancelsTheCopyJobAndEndsTheMaintenance) {
  // Whatever function the shared instance serves, the copy function's error is the one.
  Func::dvc_pnl_ceh_get_instance(3);
  store_error_event(3, {{"0.1093.221", 1}, {"0.1093.1000", 2}});
  EXPECT_EQ(0, Func::dvc_pnl_ceh_contents_hdl_set_job_cancel_and_maintenance_finish());
  EXPECT_TRUE(sent_once(kManipulation, make_valueset({{"0.821.847.1320", 1},
                                                      {"0.821.847.221", 12},
                                                      {"0.821.847.1334", 4},
                                                      {"0.821.847.1000", 3402}})));
  EXPECT_EQ(1, maintenance_flag());
}

TEST_F(FuncJobCancel, ARefusalGives1AndLeavesTheMaintenanceRunning) {
  machine().fail_next_result(kManipulation, 4);
  EXPECT_EQ(1, Func::dvc_pnl_ceh_contents_hdl_set_job_cancel_and_maintenance_finish());
  EXPECT_EQ(-1, maintenance_flag());
  EXPECT_TRUE(traced("command result NG. RESULT = 4")) << trace_dump();
}

TEST_F(FuncJobCancel, AMediatorFailureGives0AndLeavesTheMaintenanceRunning) {
  machine().fail_next(verb::invoke, kManipulation);
  EXPECT_EQ(0, Func::dvc_pnl_ceh_contents_hdl_set_job_cancel_and_maintenance_finish());
  EXPECT_EQ(-1, maintenance_flag());
  EXPECT_TRUE(traced("invoke failed : ret_code = 3")) << trace_dump();
}

TEST_F(FuncJobCancel, AFailedWriteOfTheMaintenanceFlagIsTheResult) {
  host::host_data_manager::instance().fail_next(host::dm_op::set);
  EXPECT_EQ(3, Func::dvc_pnl_ceh_contents_hdl_set_job_cancel_and_maintenance_finish());
  EXPECT_EQ(1u, requests(kManipulation).size());
  EXPECT_EQ(-1, maintenance_flag());
}

TEST_F(FuncJobCancel, AnUnreadableErrorSendsNothing) {
  struct {
    const char* name;
    std::vector<entry> fields;  // of function 1's event; empty: none stored
    const char* trace;
  } cases[] = {
      {"no event", {}, "get from PanelDataManager of DVC_PNL_PDM_ERROR_OCCURRENCE ret_code = 3"},
      {"no job id", {{"0.1080.1000", 3402}}, "job_id ret_code = 3"},
      {"no error code", {{"0.1080.221", 12}, {"0.1080.1081", 8}}, "error_code ret_code = 3"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    host::host_data_manager::instance().reset();
    host::trace_sink::instance().clear();
    if (!c.fields.empty())
      store_error_event(1, c.fields);
    EXPECT_EQ(0, Func::dvc_pnl_ceh_contents_hdl_set_job_cancel_and_maintenance_finish());
    EXPECT_TRUE(calls(verb::invoke).empty());
    EXPECT_EQ(-1, maintenance_flag());
    EXPECT_TRUE(traced(c.trace)) << trace_dump();
  }
}

// ---------------------------------------------------------------- access points

constexpr const char* kConnect = "0.503.3492.3508";
constexpr int kWifiFunction = 10;

template <typename Record>
void store_record(const Record& record, int function = kWifiFunction) {
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_binary_to_dm(DVC_PNL_PDM_CEH_ACCESS_POINT_INFO, &record,
                                                         sizeof record, function));
}

ACCESS_POINT_INFO access_point() {
  ACCESS_POINT_INFO info{};
  info.value_3511 = 11;
  info.value_3512 = 12;
  info.value_3513 = 13;
  info.value_3514 = 14;
  info.value_3496 = 15;
  info.value_3515 = 16;
  info.value_3516 = 17;
  info.value_3517 = 18;
  info.value_3518 = 19;
  std::strcpy(info.ssid, "office-net");
  const unsigned char address[] = {0x00, 0x1b, 0x2c, 0x3d, 0x4e, 0xff};
  std::memcpy(info.address, address, sizeof address);
  return info;
}

TEST_F(FuncCommands, AccessPointConnectionSendsTheRecordInOrder) {
  answer_ok(kConnect);
  store_record(access_point());
  store_record(ACCESS_POINT_INFO{}, 3);  // another function's choice
  EXPECT_EQ(0, Func(kWifiFunction).dvc_pnl_ceh_contents_hdl_execute_access_point_connection());
  const std::string c = kConnect;
  EXPECT_TRUE(sent_once(kConnect, make_valueset({
                                      {c + ".1320", 2},
                                      {c + ".3511", 11},
                                      {c + ".3512", 12},
                                      {c + ".3513", 13},
                                      {c + ".3514", 14},
                                      {c + ".3496", 15},
                                      {c + ".3515", 16},
                                      {c + ".3516", 17},
                                      {c + ".3517", 18},
                                      {c + ".3518", 19},
                                      {c + ".3495", "office-net"},
                                      {c + ".3519", bytes{0x00, 0x1b, 0x2c, 0x3d, 0x4e, 0xff}},
                                  })));
}

TEST_F(FuncCommands, AccessPointConnectionSendsAFullNameWhole) {
  answer_ok(kConnect);
  ACCESS_POINT_INFO info = access_point();
  std::memset(info.ssid, 'w', sizeof info.ssid);  // 33 bytes, no terminator
  store_record(info);
  EXPECT_EQ(0, Func(kWifiFunction).dvc_pnl_ceh_contents_hdl_execute_access_point_connection());
  const std::vector<dvc_pnl_cmm_valueset> sent = requests(kConnect);
  ASSERT_EQ(1u, sent.size());
  const char* ssid = nullptr;
  ASSERT_EQ(0, sent[0].dvc_pnl_cmm_get_string(key_of("0.503.3492.3508.3495"), ssid));
  EXPECT_EQ(std::string(DVC_PNL_CEH_SSID_SIZE, 'w'), ssid);
}

TEST_F(FuncCommands, AccessPointConnectionAnswersTheInvoke) {
  store_record(access_point());
  // A refusal is the caller's to read from the machine: the result is that of the call.
  machine().fail_next_result(kConnect, 5);
  EXPECT_EQ(0, Func(kWifiFunction).dvc_pnl_ceh_contents_hdl_execute_access_point_connection());

  answer_ok(kConnect);
  machine().fail_next(verb::invoke, kConnect);
  EXPECT_EQ(3, Func(kWifiFunction).dvc_pnl_ceh_contents_hdl_execute_access_point_connection());
  EXPECT_TRUE(traced("invoke failed : ret_code = 3")) << trace_dump();
}

TEST_F(FuncCommands, AccessPointConnectionNeedsItsRecord) {
  answer_ok(kConnect);
  // Nothing stored: the manager has no entry.
  EXPECT_EQ(3, Func(kWifiFunction).dvc_pnl_ceh_contents_hdl_execute_access_point_connection());
  EXPECT_TRUE(traced("get binary from pdm error ret_code = 3")) << trace_dump();
  // A record of the other size is not this one.
  store_record(WIFI_ACCESS_POINT_INFO{});
  EXPECT_EQ(6, Func(kWifiFunction).dvc_pnl_ceh_contents_hdl_execute_access_point_connection());
  EXPECT_TRUE(traced("get binary from pdm error ret_code = 6")) << trace_dump();
  EXPECT_TRUE(calls(verb::invoke).empty());
}

// ---------------------------------------------------------------- Wi-Fi access points

WIFI_ACCESS_POINT_INFO wifi_access_point(std::int32_t security, std::int32_t certificate) {
  WIFI_ACCESS_POINT_INFO info{};
  info.value_3513 = security;
  info.value_3514 = 24;
  info.value_3496 = 25;
  info.value_3515 = 26;
  info.value_3957 = certificate;
  std::strcpy(info.ssid, "lab-5G");
  const unsigned char address[] = {0xa0, 0xb1, 0xc2, 0xd3, 0xe4, 0xf5};
  std::memcpy(info.address, address, sizeof address);
  return info;
}

// The request of a Wi-Fi connection with `security` and `certificate`, and `more` entries.
dvc_pnl_cmm_valueset wifi_request(long security, long certificate, std::vector<entry> more = {}) {
  const std::string c = kConnect;
  std::vector<entry> entries = {
      {c + ".1320", 1},           {c + ".3959", 2},
      {c + ".3511", 0},           {c + ".3512", 0},
      {c + ".3513", security},    {c + ".3514", 24},
      {c + ".3496", 25},          {c + ".3515", 26},
      {c + ".3516", 0},           {c + ".3517", 0},
      {c + ".3957", certificate}, {c + ".3518", 6},
      {c + ".3495", "lab-5G"},    {c + ".3519", bytes{0xa0, 0xb1, 0xc2, 0xd3, 0xe4, 0xf5}},
  };
  entries.insert(entries.end(), more.begin(), more.end());
  return make_valueset(entries);
}

class FuncWifiConnection : public FuncCommands {
 protected:
  void SetUp() override {
    FuncCommands::SetUp();
    answer_ok(kConnect);
    store_settings();
  }
  // The machine's enterprise and certificate settings.
  static void store_settings() {
    machine().set_string("0.633.3937.3497.3499.3500", "corp\\alice");
    machine().set_int("0.633.3937.3497.3499.3938", 3);
    machine().set_int("0.633.3937.3501.3503.2247", 2);
    machine().clear_log();
  }
  static int connect(long& result) {
    return Func(kWifiFunction)
        .dvc_pnl_ceh_contents_hdl_execute_wifi_access_point_connection(result);
  }
};

TEST_F(FuncWifiConnection, SendsTheRecordWithTheFixedWords) {
  store_record(wifi_access_point(1, 0));
  long result = 99;
  EXPECT_EQ(0, connect(result));
  EXPECT_EQ(0, result);
  EXPECT_TRUE(sent_once(kConnect, wifi_request(1, 0)));
  EXPECT_TRUE(calls(verb::get).empty());
}

TEST_F(FuncWifiConnection, AddsTheSettingsTheNetworkAsksFor) {
  const dvc_pnl_cmm_valueset enterprise =
      make_valueset({{"0.503.3492.3499.3500", "corp\\alice"}, {"0.503.3492.3499.3938", 3}});
  const dvc_pnl_cmm_valueset certificate = make_valueset({{"0.503.3492.2247.2247", 2}});
  const struct {
    const char* name;
    std::int32_t security, with_certificate;
    std::vector<entry> more;
    Strings reads;
  } cases[] = {
      {"enterprise",
       2,
       0,
       {{"0.503.3492.3508.3499", enterprise}},
       {"0.633.3937.3497.3499", "0.633.3937.3497.3499"}},
      {"certificate", 1, 1, {{"0.503.3492.3508.2247", certificate}}, {"0.633.3937.3501.3503"}},
      {"both",
       2,
       1,
       {{"0.503.3492.3508.3499", enterprise}, {"0.503.3492.3508.2247", certificate}},
       {"0.633.3937.3497.3499", "0.633.3937.3497.3499", "0.633.3937.3501.3503"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    machine().clear_log();
    store_record(wifi_access_point(c.security, c.with_certificate));
    long result = 99;
    EXPECT_EQ(0, connect(result));
    EXPECT_EQ(0, result);
    EXPECT_TRUE(sent_once(kConnect, wifi_request(c.security, c.with_certificate, c.more)));
    EXPECT_EQ(c.reads, calls(verb::get));
  }
}

TEST_F(FuncWifiConnection, AMissingSettingStopsTheConnection) {
  const struct {
    const char* name;
    std::int32_t security, with_certificate;
    const char* node;
    const char* trace;
  } cases[] = {
      {"identity", 2, 0, "0.633.3937.3497.3499.3500",
       "can not get enterprise identity ret_code = 3"},
      {"method", 2, 0, "0.633.3937.3497.3499.3938", "can not get enterprise method ret_code = 3"},
      {"certificate", 1, 1, "0.633.3937.3501.3503.2247",
       "can not get certificate setting ret_code = 3"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    host::trace_sink::instance().clear();
    store_settings();
    machine().remove_node(c.node);
    store_record(wifi_access_point(c.security, c.with_certificate));
    long result = 99;
    EXPECT_EQ(3, connect(result));
    EXPECT_EQ(99, result);
    EXPECT_TRUE(calls(verb::invoke).empty());
    EXPECT_TRUE(traced(c.trace)) << trace_dump();
  }
}

TEST_F(FuncWifiConnection, RESULTGoesToTheCaller) {
  store_record(wifi_access_point(1, 0));
  machine().fail_next_result(kConnect, 6);
  long result = 99;
  EXPECT_EQ(0, connect(result));
  EXPECT_EQ(6, result);
  EXPECT_TRUE(traced("command result NG. RESULT = 6")) << trace_dump();

  machine().fail_next(verb::invoke, kConnect);
  result = 99;
  EXPECT_EQ(3, connect(result));
  EXPECT_EQ(99, result);
  EXPECT_TRUE(traced("invoke failed : ret_code = 3")) << trace_dump();
}

TEST_F(FuncWifiConnection, NeedsItsRecord) {
  long result = 99;
  EXPECT_EQ(3, connect(result));
  store_record(access_point());  // the 76-byte record of the other connection
  EXPECT_EQ(6, connect(result));
  EXPECT_TRUE(traced("get binary from pdm error ret_code = 6")) << trace_dump();
  EXPECT_EQ(99, result);
  EXPECT_TRUE(calls(verb::invoke).empty());
}

}  // namespace
}  // namespace orvanta::test
