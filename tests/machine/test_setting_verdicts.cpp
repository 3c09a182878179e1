// The machine's verdict on written job settings: the event of each function, the change groups of
// the conflicts a write triggers, and what stays quiet.
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "orvanta/machine/setting_verdicts.h"
#include "support/event_recorder.h"
#include "support/machine_test.h"
#include "support/valueset_builder.h"

namespace orvanta::test {
namespace {

struct verdict_function {
  int function;
  std::string tree;     // the job settings of the function
  int event_id;         // its verdict
  std::string changes;  // where the verdict keeps its change groups
};

const std::vector<verdict_function> kFunctions = {
    {1, "2", 219, "0.1253"},   {3, "161", 220, "0.1265"}, {4, "206", 221, "0.1266"},
    {6, "207", 222, "0.1267"}, {7, "214", 224, "0.1269"},
};

class SettingVerdicts : public MachineTest {
 protected:
  static int write(const std::string& path, long value) {
    dvc_pnl_cmm_value v;
    v.dvc_pnl_cmm_set_int(value);
    return machine().dvc_pnl_cmm_set_value(key_of(path), v, 0);
  }
  static dvc_pnl_cmm_valueset source_of(const dvc_pnl_evh_panel_event& event) {
    dvc_pnl_cmm_valueset source;
    EXPECT_EQ(0, event.dvc_pnl_evh_get_event_source_valueset(source));
    return source;
  }
};

TEST_F(SettingVerdicts, EachFunctionAnswersAWriteWithItsEvent) {
  for (const verdict_function& f : kFunctions) {
    SCOPED_TRACE(f.function);
    EXPECT_EQ(f.event_id, machine::setting_verdict_event(f.function));
    event_recorder recorder({219, 220, 221, 222, 224});
    ASSERT_EQ(0, write("0.1." + f.tree + ".160.148.149", 1));
    const std::vector<dvc_pnl_evh_panel_event> events = recorder.take();
    ASSERT_EQ(1u, events.size());
    EXPECT_EQ(f.event_id, events[0].dvc_pnl_evh_get_id());
    // Without a conflict the verdict accepts: no change groups.
    EXPECT_EQ(0u, source_of(events[0]).dvc_pnl_cmm_size());
  }
  EXPECT_EQ(0, machine::setting_verdict_event(5));
}

TEST_F(SettingVerdicts, OnlyWritesIntoTheCurrentSettingsOfAFunctionAreJudged) {
  event_recorder recorder({219, 220, 221, 222, 224});
  EXPECT_EQ(0, write("0.1.2.3.148.149", 1));  // the default scope
  EXPECT_EQ(0, write("0.230.303.304", 5));
  EXPECT_EQ(0, write("0.1.5.160.1", 1));      // no function keeps its settings there
  machine().set_int("0.1.2.160.148.149", 0);  // set-up, not a write of the panel
  machine().fail_next(machine::verb::set, "0.1.2.160.148.149", 3);
  EXPECT_EQ(3, write("0.1.2.160.148.149", 1));  // a refused write
  EXPECT_TRUE(recorder.take().empty());
}

TEST_F(SettingVerdicts, ConflictsOfTheWrittenValueBecomeChangeGroups) {
  for (const verdict_function& f : kFunctions) {
    SCOPED_TRACE(f.function);
    machine().reset();
    const std::string setting = "0.1." + f.tree + ".160.99.100";
    machine::add_setting_conflict(machine(), {setting, 1, "1.2.160.12.13.14", 3});
    machine::add_setting_conflict(machine(), {setting, 1, "1.2.160.46.49.51", 2});
    machine::add_setting_conflict(machine(), {setting, 2, "1.2.160.12.29.34", 9});
    event_recorder recorder({f.event_id});
    ASSERT_EQ(0, write(setting, 1));
    const std::vector<dvc_pnl_evh_panel_event> events = recorder.take();
    ASSERT_EQ(1u, events.size());
    const std::string g = f.changes + ".1255";
    EXPECT_TRUE(sets_equal(
        source_of(events[0]),
        make_valueset({{g + ".0.1256.1.2.160.12.13.14", 3L}, {g + ".1.1256.1.2.160.46.49.51", 2L}},
                      3)));
  }
}

TEST_F(SettingVerdicts, AGroupWriteIsJudgedByTheValuesItLeaves) {
  machine::add_setting_conflict(machine(), {"0.1.207.160.99.100.100", 3, "1.207.160.12.13.14", 1});
  event_recorder recorder({222});
  dvc_pnl_cmm_valueset group = make_valueset({{"0.1.207.160.99.100.100", 3L}});
  dvc_pnl_cmm_value v;
  v.dvc_pnl_cmm_set_valueset(group);
  ASSERT_EQ(0, machine().dvc_pnl_cmm_set_value(key_of("0.1.207.160.99.100"), v, 0));
  std::vector<dvc_pnl_evh_panel_event> events = recorder.take();
  ASSERT_EQ(1u, events.size());
  EXPECT_NE(0u, source_of(events[0]).dvc_pnl_cmm_size());

  // Another value in the same place: accepted.
  group = make_valueset({{"0.1.207.160.99.100.100", 1L}});
  v.dvc_pnl_cmm_set_valueset(group);
  ASSERT_EQ(0, machine().dvc_pnl_cmm_set_value(key_of("0.1.207.160.99.100"), v, 0));
  events = recorder.take();
  ASSERT_EQ(1u, events.size());
  EXPECT_EQ(0u, source_of(events[0]).dvc_pnl_cmm_size());
}

TEST_F(SettingVerdicts, AtMostEightChangeGroupsAndResetDropsTheRules) {
  for (int i = 0; i < 10; ++i)
    machine::add_setting_conflict(machine(),
                                  {"0.1.2.160.99.100", 1, "1.2.160.5." + std::to_string(i), i});
  event_recorder recorder({219});
  ASSERT_EQ(0, write("0.1.2.160.99.100", 1));
  std::vector<dvc_pnl_evh_panel_event> events = recorder.take();
  ASSERT_EQ(1u, events.size());
  dvc_pnl_cmm_valueset groups;
  ASSERT_EQ(0, source_of(events[0]).dvc_pnl_cmm_get_valueset(key_of("0.1253.1255"), groups));
  EXPECT_EQ(8u, groups.dvc_pnl_cmm_size());

  machine().reset();
  ASSERT_EQ(0, write("0.1.2.160.99.100", 1));
  events = recorder.take();
  ASSERT_EQ(1u, events.size());
  EXPECT_EQ(0u, source_of(events[0]).dvc_pnl_cmm_size());
}

TEST_F(SettingVerdicts, RulesOutsideTheCurrentSettingsAreRefused) {
  EXPECT_THROW(machine::add_setting_conflict(machine(), {"0.1.2.3.99.100", 1, "1.2", 1}),
               std::invalid_argument);
  EXPECT_THROW(machine::add_setting_conflict(machine(), {"0.230.303", 1, "1.2", 1}),
               std::invalid_argument);
  EXPECT_THROW(machine::add_setting_conflict(machine(), {"0.1.x", 1, "1.2", 1}),
               std::invalid_argument);
  EXPECT_THROW(machine::add_setting_conflict(machine(), {"0.1.2.160.1", 1, "", 1}),
               std::invalid_argument);
}

}  // namespace
}  // namespace orvanta::test
