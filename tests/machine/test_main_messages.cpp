// The simulated main messages: the sample list of each function on its acquire command, lists
// replaced in code and by model files, and the refresh event with the list it carries.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvanta/host/panel_host.h"
#include "orvanta/machine/main_messages.h"
#include "support/event_recorder.h"
#include "support/machine_test.h"
#include "support/valueset_builder.h"

namespace orvanta::test {
namespace {

struct message_function {
  int function;
  std::string command;
  std::string group;
  int event_id;
  std::vector<long> sample_ids;
};

const std::vector<message_function> kFunctions = {
    {1, "0.800.801", "0.1058", 113, {4, 9}}, {3, "0.800.802", "0.1074", 114, {10}},
    {4, "0.800.803", "0.1075", 115, {6}},    {6, "0.800.805", "0.1077", 117, {9}},
    {7, "0.800.806", "0.1078", 118, {4}},
};

class MainMessages : public MachineTest {
 protected:
  // The ids the acquire command of `command` answers, after checking RESULT 0.
  static std::vector<long> acquired_ids(const std::string& command) {
    dvc_pnl_cmm_valueset request = make_valueset({{command + ".1320", 1L}});
    dvc_pnl_cmm_valueset response;
    EXPECT_EQ(0, machine().dvc_pnl_cmm_invoke(key_of(command), request, response));
    long result = -1;
    EXPECT_EQ(0, response.dvc_pnl_cmm_get_int(key_of(command + ".1484"), result));
    EXPECT_EQ(0, result);
    dvc_pnl_cmm_valueset body;
    EXPECT_EQ(0, response.dvc_pnl_cmm_get_valueset(key_of(command + ".1501"), body));
    std::vector<long> ids;
    for (std::size_t i = 0; i < body.dvc_pnl_cmm_size(); ++i) {
      const std::string at = command + ".1501." + std::to_string(i);
      dvc_pnl_cmm_valueset element;
      EXPECT_EQ(0, body.dvc_pnl_cmm_get_valueset(key_of(at), element));
      long id = -1;
      EXPECT_EQ(0, element.dvc_pnl_cmm_get_int(key_of(at + ".1061"), id));
      ids.push_back(id);
    }
    return ids;
  }
};

TEST_F(MainMessages, EachFunctionAnswersItsSampleList) {
  for (const message_function& f : kFunctions) {
    SCOPED_TRACE(f.function);
    EXPECT_EQ(f.command, machine::main_message_command(f.function));
    EXPECT_EQ(f.sample_ids, acquired_ids(f.command));
  }
  EXPECT_EQ("", machine::main_message_command(5));
}

TEST_F(MainMessages, ListsChangeInCodeAndByModelFilesUntilReset) {
  machine::list_row paper = machine::main_message(129);
  paper.fields[machine::kMessageFeeder].dvc_pnl_cmm_set_int(2);
  machine::set_main_messages(machine(), 3, {machine::main_message(5), paper});
  machine::set_main_messages(machine(), 5, {machine::main_message(5)});  // no list: ignored
  EXPECT_EQ((std::vector<long>{5, 129}), acquired_ids("0.800.802"));
  EXPECT_EQ((std::vector<long>{4, 9}), acquired_ids("0.800.801"));

  ASSERT_EQ("", machine().load_model_json(
                    R"({"lists": {"0.800.806": {"rows": [{"1061": 41}, {"1061": 42}]}}})"));
  EXPECT_EQ((std::vector<long>{41, 42}), acquired_ids("0.800.806"));

  machine().reset();
  EXPECT_EQ((std::vector<long>{10}), acquired_ids("0.800.802"));
  EXPECT_EQ((std::vector<long>{4}), acquired_ids("0.800.806"));
}

TEST_F(MainMessages, RefreshEventCarriesTheCurrentList) {
  for (const message_function& f : kFunctions) {
    SCOPED_TRACE(f.function);
    machine::list_row numbered = machine::main_message(580);
    numbered.fields[machine::kMessageParameter].dvc_pnl_cmm_set_int(f.function * 10);
    machine::set_main_messages(machine(), f.function, {numbered, machine::main_message(4)});
    event_recorder recorder({f.event_id});
    ASSERT_TRUE(machine::post_main_messages_refresh(machine(), f.function));
    const std::vector<dvc_pnl_evh_panel_event> events = recorder.take();
    ASSERT_EQ(1u, events.size());
    dvc_pnl_cmm_valueset source;
    ASSERT_EQ(0, events[0].dvc_pnl_evh_get_event_source_valueset(source));
    const std::string g = f.group;
    EXPECT_TRUE(sets_equal(source, make_valueset({{g + ".1059", 2L},
                                                  {g + ".1060.0.1061", 580L},
                                                  {g + ".1060.0.1062", f.function * 10L},
                                                  {g + ".1060.1.1061", 4L}},
                                                 2)));
  }
}

TEST_F(MainMessages, NoRefreshWithoutAList) {
  event_recorder recorder({113});
  EXPECT_FALSE(machine::post_main_messages_refresh(machine(), 5));
  ASSERT_EQ("", machine().load_model_json(R"({"replace": true})"));
  EXPECT_FALSE(machine::post_main_messages_refresh(machine(), 1));
  EXPECT_TRUE(recorder.take().empty());

  // An empty list is still a list: the event says so with count 0.
  machine::set_main_messages(machine(), 1, {});
  ASSERT_TRUE(machine::post_main_messages_refresh(machine(), 1));
  const std::vector<dvc_pnl_evh_panel_event> events = recorder.take();
  ASSERT_EQ(1u, events.size());
  long count = -1;
  dvc_pnl_cmm_valueset source;
  ASSERT_EQ(0, events[0].dvc_pnl_evh_get_event_source_valueset(source));
  dvc_pnl_cmm_valueset group;
  ASSERT_EQ(0, source.dvc_pnl_cmm_get_valueset(key_of("0.1058"), group));
  EXPECT_EQ(0, group.dvc_pnl_cmm_get_int(key_of("0.1058.1059"), count));
  EXPECT_EQ(0, count);
}

}  // namespace
}  // namespace orvanta::test
