// Command mediator access against the simulated machine: what is asked of the machine for each
// start position, group writes, position-keyed tables, commands, subscriptions, the user list.
#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/host/value_faults.h"
#include "orvanta/machine/simulated_machine.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"

namespace orvanta {
namespace {

using machine::call_record;
using machine::simulated_machine;
using machine::verb;
using test::bytes;
using test::key_of;
using test::make_valueset;
using test::sets_equal;
using test::trace_dump;
using test::traced;

constexpr const char* kGetFailed =
    "dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance().dvc_pnl_cmm_get_value ret_code = 3";
constexpr const char* kSetFailed =
    "dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance().dvc_pnl_cmm_set_value ret_code = 3";

// A setting inside a group: 0.555.2141 holds 1890 and 1891.
const unsigned long kSetting[] = {0, 555, 2141, 1890};
constexpr unsigned kSettingSize = 4;

class CmmAccess : public ::testing::Test {
 protected:
  void SetUp() override {
    machine().reset();
    machine().set_int("0.555.2141.1890", 7);
    machine().set_int("0.555.2141.1891", 2);
    machine().clear_log();
    host::clear_value_faults();
    host::trace_sink::instance().clear();
  }
  void TearDown() override {
    host::clear_value_faults();
    machine().reset();
  }

  static simulated_machine& machine() { return simulated_machine::instance(); }
  static const std::vector<call_record>& log() { return machine().log(); }

  // "get 0.555.2141", "set 0.555.2141", ... in call order.
  static std::vector<std::string> calls() {
    std::vector<std::string> out;
    for (const call_record& c : log()) {
      const char* v = c.kind == verb::get ? "get " : c.kind == verb::set ? "set " : "invoke ";
      out.push_back(v + c.key);
    }
    return out;
  }
};

using Calls = std::vector<std::string>;

// ---- reads: which node the machine is asked for ----

struct start_case {
  int vs_start_pos;
  const char* asked;  // the key the machine sees
};

TEST_F(CmmAccess, ReadAsksTheMachineForTheFirstStartPosElementsAndPicksTheEntry) {
  const start_case cases[] = {
      {0, "0.555.2141.1890"},  // the machine resolves the whole path
      {1, "0"},                // only the first element: the whole tree as one group
      {2, "0.555"},
      {3, "0.555.2141"},
  };
  for (const start_case& c : cases) {
    SCOPED_TRACE(c.vs_start_pos);
    machine().clear_log();
    long value = -1;
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kSetting, c.vs_start_pos,
                                                               kSettingSize, value));
    EXPECT_EQ(7, value);
    EXPECT_EQ(Calls{std::string("get ") + c.asked}, calls());
  }
}

TEST_F(CmmAccess, ReadTracesKeyStartAndSize) {
  long value = 0;
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kSetting, 3, kSettingSize, value));
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm() key:(0.555.2141.1890), "
             "start_pos:3, size:4 ."))
      << trace_dump();
  std::string text;
  machine().set_string("0.555.2141.1892", "x");
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(
                   std::vector<unsigned long>{0, 555, 2141, 1892}.data(), 0, 4, text));
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm() key:(0.555.2141.1892), "
             "start_pos:0, size:4 ."))
      << trace_dump();
}

TEST_F(CmmAccess, StartPosEqualToSizeReadsTheNodeAsAGroupAndLooksForItsOwnKeyInside) {
  // As a leaf the node is no group at all.
  long value = 99;
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kSetting, 4, kSettingSize, value));
  EXPECT_EQ(0, value);
  EXPECT_EQ(Calls{"get 0.555.2141.1890"}, calls());

  // As a group it holds only longer keys, never its own.
  machine().remove_node("0.555.2141.1890");
  machine().set_int("0.555.2141.1890.1", 5);
  machine().clear_log();
  value = 99;
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kSetting, 4, kSettingSize, value));
  EXPECT_EQ(0, value);
  EXPECT_EQ(Calls{"get 0.555.2141.1890"}, calls());
}

TEST_F(CmmAccess, FailedMediatorReadGives3AndZeroesTheInteger) {
  machine().fail_next(verb::get, "0.555.2141", 5);
  long value = 99;
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kSetting, 3, kSettingSize, value));
  EXPECT_EQ(0, value);
  EXPECT_TRUE(traced("ret = 5.")) << trace_dump();
  EXPECT_TRUE(traced(kGetFailed)) << trace_dump();
}

TEST_F(CmmAccess, EntryMissingFromTheGroupGives3) {
  const unsigned long missing[] = {0, 555, 2141, 1999};
  long value = 99;
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(missing, 3, 4, value));
  EXPECT_EQ(0, value);
}

TEST_F(CmmAccess, StringReads) {
  const unsigned long name[] = {0, 555, 2141, 1892};
  machine().set_string("0.555.2141.1892", "office 3");
  std::string text = "old";
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(name, 0, 4, text));
  EXPECT_EQ("office 3", text);
  text = "old";
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(name, 3, 4, text));
  EXPECT_EQ("office 3", text);

  // An empty text reads as empty, directly and out of a group.
  machine().set_string("0.555.2141.1892", "");
  for (int start : {0, 3}) {
    text = "old";
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(name, start, 4, text));
    EXPECT_EQ("", text);
  }

  // An integer node is no string: 3, and the text stays as it was.
  text = "old";
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(kSetting, 0, kSettingSize, text));
  EXPECT_EQ("old", text);
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(kSetting, 3, kSettingSize, text));
  EXPECT_EQ("old", text);
}

TEST_F(CmmAccess, ValuesetReadOfAGroupAndOfAGroupInsideAGroup) {
  const unsigned long group[] = {0, 555, 2141};
  dvc_pnl_cmm_valueset set;
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm(group, 0, 3, set));
  EXPECT_TRUE(sets_equal(set, make_valueset({{"0.555.2141.1890", 7}, {"0.555.2141.1891", 2}})));

  dvc_pnl_cmm_valueset inner;
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm(group, 2, 3, inner));
  EXPECT_TRUE(sets_equal(inner, set));
  EXPECT_EQ((Calls{"get 0.555.2141", "get 0.555"}), calls());
}

// The common read picks the entry out of the group in the kind asked for.
TEST_F(CmmAccess, CommonReadOutOfAGroupInEveryKind) {
  machine().set_string("0.555.2141.1892", "abc");
  dvc_pnl_cmm_value blob;
  dvc_pnl_cmm_binary b;
  const unsigned char raw[] = {1, 2, 3};
  const unsigned long raw_len = sizeof raw;
  ASSERT_EQ(0, b.dvc_pnl_cmm_set_data(raw, raw_len));
  ASSERT_EQ(0, blob.dvc_pnl_cmm_set_binary(b));
  machine().set_node("0.555.2141.1893", blob);
  machine().set_int("0.555.2141.1894.1", 4);

  struct kind_case {
    unsigned long node;
    NAME_SPACE_NODE_TYPE type;
    std::function<void(const dvc_pnl_cmm_value&)> check;
  };
  const kind_case cases[] = {
      {1890, NODE_TYPE_INTEGER,
       [](const dvc_pnl_cmm_value& v) {
         long i = 0;
         ASSERT_EQ(0, v.dvc_pnl_cmm_get_int(i));
         EXPECT_EQ(7, i);
       }},
      {1892, NODE_TYPE_STRING,
       [](const dvc_pnl_cmm_value& v) {
         const char* s = nullptr;
         ASSERT_EQ(0, v.dvc_pnl_cmm_get_string(s));
         EXPECT_STREQ("abc", s);
       }},
      {1893, NODE_TYPE_BINARY,
       [](const dvc_pnl_cmm_value& v) {
         dvc_pnl_cmm_binary out;
         ASSERT_EQ(0, v.dvc_pnl_cmm_get_binary(out));
         EXPECT_EQ((bytes{1, 2, 3}), out.bytes());
       }},
      {1894, NODE_TYPE_VALUESET,
       [](const dvc_pnl_cmm_value& v) {
         dvc_pnl_cmm_valueset out;
         ASSERT_EQ(0, v.dvc_pnl_cmm_get_valueset(out));
         EXPECT_TRUE(sets_equal(out, make_valueset({{"0.555.2141.1894.1", 4}})));
       }},
  };
  for (const kind_case& c : cases) {
    SCOPED_TRACE(c.node);
    const unsigned long path[] = {0, 555, 2141, c.node};
    dvc_pnl_cmm_value v;
    ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm(path, 3, 4, v, c.type));
    c.check(v);
  }
}

TEST_F(CmmAccess, UnknownKindGives2OnlyWhereTheKindIsUsed) {
  const auto unknown = static_cast<NAME_SPACE_NODE_TYPE>(4);
  dvc_pnl_cmm_value v;
  EXPECT_EQ(2,
            dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm(kSetting, 3, kSettingSize, v, unknown));
  EXPECT_TRUE(traced("Unknown type")) << trace_dump();

  // A direct read hands over what the machine gave; the kind plays no part.
  dvc_pnl_cmm_value direct;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm(kSetting, 0, kSettingSize, direct,
                                                              unknown));
  long i = 0;
  EXPECT_EQ(0, direct.dvc_pnl_cmm_get_int(i));
  EXPECT_EQ(7, i);

  // A group write of an unknown kind never reaches the machine's set.
  machine().clear_log();
  dvc_pnl_cmm_value nine;
  ASSERT_EQ(0, nine.dvc_pnl_cmm_set_int(9));
  EXPECT_EQ(2,
            dvc_pnl_ceh_contents_hdl_set_data_to_pnl_cmm(kSetting, 3, kSettingSize, nine, unknown));
  EXPECT_EQ(Calls{"get 0.555.2141"}, calls());
  EXPECT_EQ(7, machine().int_at("0.555.2141.1890"));
}

// ---- argument errors, for every operation of the family ----

struct operation {
  const char* name;  // full name as the traces give it
  std::function<int(const unsigned long*, int, unsigned)> call;
};

std::vector<operation> node_operations() {
  static long l = 0;
  static std::string s;
  static dvc_pnl_cmm_valueset vs;
  static dvc_pnl_cmm_value v;
  static const NAME_SPACE_NODE_TYPE kInt = NODE_TYPE_INTEGER;
  return {
      {"dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm",
       [](const unsigned long* n, int p, unsigned z) {
         return dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm(n, p, z, v, kInt);
       }},
      {"dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm",
       [](const unsigned long* n, int p, unsigned z) {
         return dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(n, p, z, l);
       }},
      {"dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm",
       [](const unsigned long* n, int p, unsigned z) {
         return dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(n, p, z, s);
       }},
      {"dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm",
       [](const unsigned long* n, int p, unsigned z) {
         return dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm(n, p, z, vs);
       }},
      {"dvc_pnl_ceh_contents_hdl_set_data_to_pnl_cmm",
       [](const unsigned long* n, int p, unsigned z) {
         return dvc_pnl_ceh_contents_hdl_set_data_to_pnl_cmm(n, p, z, v, kInt);
       }},
      {"dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm",
       [](const unsigned long* n, int p, unsigned z) {
         return dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(n, p, z, 1L);
       }},
      {"dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm",
       [](const unsigned long* n, int p, unsigned z) {
         return dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm(n, p, z, "x");
       }},
      {"dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm",
       [](const unsigned long* n, int p, unsigned z) {
         return dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm(n, p, z, vs);
       }},
  };
}

TEST_F(CmmAccess, ArgumentErrorsGive6WithoutAskingTheMachine) {
  for (const operation& op : node_operations()) {
    SCOPED_TRACE(op.name);
    host::trace_sink::instance().clear();
    EXPECT_EQ(6, op.call(nullptr, 0, kSettingSize));
    EXPECT_TRUE(traced(std::string(op.name) + " node_name is NULL")) << trace_dump();

    host::trace_sink::instance().clear();
    EXPECT_EQ(6, op.call(kSetting, -1, kSettingSize));
    EXPECT_TRUE(host::trace_sink::instance().messages().empty()) << trace_dump();

    EXPECT_EQ(6, op.call(kSetting, kSettingSize + 1, kSettingSize));
    EXPECT_TRUE(traced(std::string(op.name) + " vs_start_pos > nsize")) << trace_dump();
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(CmmAccess, ArgumentErrorsLeaveTheIntegerAsItWas) {
  long value = 42;
  EXPECT_EQ(6, dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(nullptr, 0, 4, value));
  EXPECT_EQ(6, dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kSetting, 5, 4, value));
  EXPECT_EQ(42, value);
}

TEST_F(CmmAccess, NullStringWriteGives6) {
  EXPECT_EQ(6, dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm(kSetting, 0, kSettingSize, nullptr));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm value is NULL"))
      << trace_dump();
  EXPECT_TRUE(log().empty());
}

// ---- writes ----

TEST_F(CmmAccess, DirectWriteSetsTheNodeOnly) {
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(kSetting, 0, kSettingSize, 11L));
  EXPECT_EQ(Calls{"set 0.555.2141.1890"}, calls());
  EXPECT_EQ(11, machine().int_at("0.555.2141.1890"));
  EXPECT_EQ(2, machine().int_at("0.555.2141.1891"));
  EXPECT_TRUE(
      traced("dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm() key:(0.555.2141.1890), "
             "start_pos:0, size:4 ."))
      << trace_dump();
}

TEST_F(CmmAccess, GroupWriteReadsTheGroupAndSendsAllOfItBack) {
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(kSetting, 3, kSettingSize, 11L));
  ASSERT_EQ((Calls{"get 0.555.2141", "set 0.555.2141"}), calls());
  // The whole group travels, the untouched sibling included.
  dvc_pnl_cmm_valueset sent;
  sent.dvc_pnl_cmm_set_valueset(key_of("0.555.2141"),
                                make_valueset({{"0.555.2141.1890", 11}, {"0.555.2141.1891", 2}}));
  EXPECT_TRUE(sets_equal(log()[1].request, sent));
  EXPECT_EQ(11, machine().int_at("0.555.2141.1890"));
  EXPECT_EQ(2, machine().int_at("0.555.2141.1891"));
}

TEST_F(CmmAccess, GroupWriteTwoLevelsUp) {
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm(
                   std::vector<unsigned long>{0, 555, 2141, 1891}.data(), 2, 4, "t"));
  EXPECT_EQ((Calls{"get 0.555", "set 0.555"}), calls());
  const std::optional<dvc_pnl_cmm_value> written = machine().node("0.555.2141.1891");
  ASSERT_TRUE(written.has_value());
  const char* s = nullptr;
  ASSERT_EQ(0, written->dvc_pnl_cmm_get_string(s));
  EXPECT_STREQ("t", s);
  EXPECT_EQ(7, machine().int_at("0.555.2141.1890"));
}

TEST_F(CmmAccess, GroupWriteWritesNothingWhenTheReadFails) {
  machine().fail_next(verb::get, "0.555.2141", 4);
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(kSetting, 3, kSettingSize, 11L));
  EXPECT_EQ(Calls{"get 0.555.2141"}, calls());
  EXPECT_EQ(7, machine().int_at("0.555.2141.1890"));
  EXPECT_TRUE(traced("ret = 4.")) << trace_dump();
  EXPECT_TRUE(traced(kGetFailed)) << trace_dump();
}

TEST_F(CmmAccess, GroupWriteOfAnEntryTheGroupLacksWritesNothing) {
  const unsigned long missing[] = {0, 555, 2141, 1999};
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(missing, 3, 4, 1L));
  EXPECT_EQ(Calls{"get 0.555.2141"}, calls());
  EXPECT_FALSE(machine().node("0.555.2141.1999").has_value());
}

TEST_F(CmmAccess, RefusedWriteGives3) {
  for (int start : {0, 3}) {
    SCOPED_TRACE(start);
    const char* key = start == 0 ? "0.555.2141.1890" : "0.555.2141";
    machine().fail_next(verb::set, key, 8);
    host::trace_sink::instance().clear();
    EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(kSetting, start, kSettingSize, 11L));
    EXPECT_TRUE(traced("ret = 8.")) << trace_dump();
    EXPECT_TRUE(traced(kSetFailed)) << trace_dump();
    EXPECT_EQ(7, machine().int_at("0.555.2141.1890"));
  }
}

TEST_F(CmmAccess, ValuesetWriteReplacesTheGroup) {
  const unsigned long group[] = {0, 555, 2141};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm(
                   group, 0, 3, make_valueset({{"0.555.2141.1890", 3}})));
  EXPECT_EQ(3, machine().int_at("0.555.2141.1890"));
  EXPECT_FALSE(machine().node("0.555.2141.1891").has_value());
}

// ---- position-keyed tables ----

class CmmTable : public CmmAccess {
 protected:
  void SetUp() override {
    CmmAccess::SetUp();
    machine().set_int("0.700.800.0.1", 10);
    machine().set_int("0.700.800.0.2", 11);
    machine().set_int("0.700.800.1.1", 20);
    machine().set_int("0.700.800.1.2", 21);
    machine().clear_log();
  }
  static constexpr unsigned long kTable[] = {0, 700, 800};
};

TEST_F(CmmTable, ReadsOneEntryOfTheTable) {
  dvc_pnl_cmm_valueset row;
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(kTable, 0, 3, 1, row));
  EXPECT_TRUE(sets_equal(row, make_valueset({{"0.700.800.1.1", 20}, {"0.700.800.1.2", 21}})));
  EXPECT_EQ(Calls{"get 0.700.800"}, calls());
}

TEST_F(CmmTable, ReadOfAMissingIndexGives3AndKeepsTheSet) {
  dvc_pnl_cmm_valueset row = make_valueset({{"0.1", 1}});
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(kTable, 0, 3, 5, row));
  EXPECT_TRUE(sets_equal(row, make_valueset({{"0.1", 1}})));
}

TEST_F(CmmTable, WriteReplacesAnExistingEntryWholly) {
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm_by_index(
                   kTable, 0, 3, 1, make_valueset({{"0.700.800.1.1", 99}})));
  EXPECT_EQ((Calls{"get 0.700.800", "set 0.700.800"}), calls());
  EXPECT_EQ(99, machine().int_at("0.700.800.1.1"));
  EXPECT_FALSE(machine().node("0.700.800.1.2").has_value());  // replaced, not merged
  EXPECT_EQ(10, machine().int_at("0.700.800.0.1"));
  EXPECT_EQ(11, machine().int_at("0.700.800.0.2"));
}

TEST_F(CmmTable, WriteAddsANewEntry) {
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm_by_index(
                   kTable, 0, 3, 2, make_valueset({{"0.700.800.2.1", 30}})));
  EXPECT_EQ(30, machine().int_at("0.700.800.2.1"));
  EXPECT_EQ(20, machine().int_at("0.700.800.1.1"));
  EXPECT_EQ(10, machine().int_at("0.700.800.0.1"));
}

TEST_F(CmmTable, WriteSendsNothingWhenTheReadFails) {
  machine().fail_next(verb::get, "0.700.800", 2);
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm_by_index(
                   kTable, 0, 3, 1, make_valueset({{"0.700.800.1.1", 99}})));
  EXPECT_EQ(Calls{"get 0.700.800"}, calls());
  EXPECT_EQ(20, machine().int_at("0.700.800.1.1"));
  EXPECT_TRUE(traced(kGetFailed)) << trace_dump();
}

TEST_F(CmmTable, OtherStartPositionsInRangeDoNothing) {
  dvc_pnl_cmm_valueset row = make_valueset({{"0.1", 1}});
  for (int start : {1, 2, 3}) {
    SCOPED_TRACE(start);
    EXPECT_EQ(
        0, dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(kTable, start, 3, 1, row));
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm_by_index(
                     kTable, start, 3, 1, make_valueset({{"0.700.800.1.1", 99}})));
  }
  EXPECT_TRUE(sets_equal(row, make_valueset({{"0.1", 1}})));
  EXPECT_TRUE(log().empty());
  EXPECT_EQ(20, machine().int_at("0.700.800.1.1"));
}

TEST_F(CmmTable, ArgumentErrors) {
  using by_index = std::function<int(const unsigned long*, int, unsigned)>;
  const by_index ops[] = {
      [](const unsigned long* n, int p, unsigned z) {
        dvc_pnl_cmm_valueset out;
        return dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(n, p, z, 0, out);
      },
      [](const unsigned long* n, int p, unsigned z) {
        return dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm_by_index(n, p, z, 0,
                                                                         dvc_pnl_cmm_valueset());
      },
  };
  for (const by_index& op : ops) {
    host::trace_sink::instance().clear();
    EXPECT_EQ(6, op(nullptr, 0, 3));
    EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm node_name_ is NULL"))
        << trace_dump();
    EXPECT_EQ(6, op(kTable, -2, 3));
    EXPECT_TRUE(traced("vs_start_pos_ : -2")) << trace_dump();
    EXPECT_EQ(6, op(kTable, 4, 3));
    EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm vs_start_pos_ > nsize_"))
        << trace_dump();
  }
  EXPECT_TRUE(log().empty());
}

// ---- commands ----

TEST_F(CmmAccess, InvokeRunsTheCommandWithTheRequest) {
  machine().register_service("0.503.9000", [](simulated_machine&, machine::service_call& call) {
    long in = 0;
    call.request.dvc_pnl_cmm_get_int(key_of("0.503.9000.1320"), in);
    call.response.dvc_pnl_cmm_set_int(key_of("0.503.9000.1484"), 0);
    call.response.dvc_pnl_cmm_set_int(key_of("0.503.9000.7"), in * 10);
    return 0;
  });
  const dvc_pnl_cmm_valueset request = make_valueset({{"0.503.9000.1320", 4}});
  dvc_pnl_cmm_valueset response;
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_invoke_cmm(key_of("0.503.9000"), request, response));
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.503.9000.1484", 0}, {"0.503.9000.7", 40}})));
  ASSERT_EQ(Calls{"invoke 0.503.9000"}, calls());
  EXPECT_TRUE(sets_equal(log()[0].request, request));
}

TEST_F(CmmAccess, FailedInvokeGives3AndLeavesTheResponse) {
  machine().fail_next(verb::invoke, "0.938.959", 6);
  dvc_pnl_cmm_valueset response = make_valueset({{"0.1.2", 5}});
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_invoke_cmm(key_of("0.938.959"), dvc_pnl_cmm_valueset(),
                                                   response));
  EXPECT_TRUE(sets_equal(response, make_valueset({{"0.1.2", 5}})));
  EXPECT_TRUE(traced("ret = 6.")) << trace_dump();
  EXPECT_TRUE(traced("dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_invoke ret_code = 3"))
      << trace_dump();
}

// ---- subscriptions ----

TEST_F(CmmAccess, RegisterAndRemoveReachTheDispatcherForTheProxy) {
  const dvu_pnl_evd_event_handler* proxy = dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance();
  for (int id : {260, 583, 777, 841, 842, 890, 1037}) {
    SCOPED_TRACE(id);
    const int before = host::subscription_count(id, proxy);
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_register_event(static_cast<unsigned long>(id)));
    EXPECT_EQ(before + 1, host::subscription_count(id, proxy));
    // This layer keeps no count of its own: a second add is a second subscription.
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_register_event(static_cast<unsigned long>(id)));
    EXPECT_EQ(before + 2, host::subscription_count(id, proxy));
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_remove_event(static_cast<unsigned long>(id)));
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_remove_event(static_cast<unsigned long>(id)));
    EXPECT_EQ(before, host::subscription_count(id, proxy));
  }
}

TEST_F(CmmAccess, RemoveOfAnIdNeverAddedStillGoesToTheDispatcher) {
  const dvu_pnl_evd_event_handler* proxy = dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance();
  ASSERT_EQ(0, host::subscription_count(64999, proxy));
  // The dispatcher refuses it, and that refusal is what comes back.
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_remove_event(64999));
  EXPECT_TRUE(traced("dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_remove_handler ret_code = 3"))
      << trace_dump();
  EXPECT_EQ(0, host::subscription_count(64999, proxy));
}

// ---- the user list ----

machine::list_row user(long id, const std::string& name, long role) {
  machine::list_row row;
  row.fields[1365].dvc_pnl_cmm_set_int(id);
  row.fields[1037].dvc_pnl_cmm_set_string(name.c_str());
  row.fields[1561].dvc_pnl_cmm_set_int(role);
  return row;
}

class CmmUserList : public CmmAccess {
 protected:
  void SetUp() override {
    CmmAccess::SetUp();
    machine().register_list(
        "0.938.959",
        {user(100, "ann", 0), user(101, "bob", 1), user(102, "cyd", 3), user(103, "dan", 0)}, 7, 8);
    machine().clear_log();
  }
  static DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_REQUEST by_position(long count, long start) {
    return {1, 0, count, 1, start, 0, 0};
  }
};

TEST_F(CmmUserList, ReadsAPageByPosition) {
  DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_RESPONSE response{};
  response.list_status.push_back({1, "stale", 0});
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_user_list_from_cmm(by_position(2, 1), response));
  EXPECT_EQ(0, response.result);
  EXPECT_EQ(4, response.list_total_size);
  EXPECT_EQ(7, response.value_1337);
  EXPECT_EQ(8, response.value_1524);
  ASSERT_EQ(2u, response.list_status.size());
  EXPECT_EQ(101, response.list_status[0].id);
  EXPECT_STREQ("bob", response.list_status[0].name);
  EXPECT_EQ(1, response.list_status[0].role);
  EXPECT_EQ(102, response.list_status[1].id);
  EXPECT_STREQ("cyd", response.list_status[1].name);
  EXPECT_EQ(3, response.list_status[1].role);
}

TEST_F(CmmUserList, SendsTheSevenRequestWordsToTheirNodes) {
  DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_RESPONSE response{};
  const DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_REQUEST request{1, 2, 3, 1, 0, 5, 6};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_user_list_from_cmm(request, response));
  ASSERT_EQ(Calls{"invoke 0.938.959"}, calls());
  EXPECT_TRUE(sets_equal(log()[0].request, make_valueset({{"0.938.959.1320", 1},
                                                          {"0.938.959.1475", 2},
                                                          {"0.938.959.1476", 3},
                                                          {"0.938.959.1477", 1},
                                                          {"0.938.959.1478", 0},
                                                          {"0.938.959.2054", 5},
                                                          {"0.938.959.3620", 6}})));
  EXPECT_EQ(3u, response.list_status.size());
}

TEST_F(CmmUserList, LongNamesAreCutToTheBufferAndTerminated) {
  const std::string long_name(2000, 'n');
  machine().register_list("0.938.959", {user(1, long_name, 0)});
  DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_RESPONSE response{};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_user_list_from_cmm(by_position(10, 0), response));
  ASSERT_EQ(1u, response.list_status.size());
  EXPECT_EQ(std::string(DVC_PNL_CEH_USER_NAME_SIZE - 1, 'n'), response.list_status[0].name);
}

TEST_F(CmmUserList, FailedInvokeGivesItsCodeAndLeavesTheRecord) {
  machine().fail_next(verb::invoke, "0.938.959", 9);
  DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_RESPONSE response{};
  response.result = 55;
  response.list_status.push_back({1, "kept", 0});
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_user_list_from_cmm(by_position(10, 0), response));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_invoke_cmm ret_code = 3")) << trace_dump();
  EXPECT_EQ(55, response.result);
  ASSERT_EQ(1u, response.list_status.size());
  EXPECT_STREQ("kept", response.list_status[0].name);
}

TEST_F(CmmUserList, ARowWithoutAFieldEndsTheWalkWithTheReadsCode) {
  machine::list_row nameless;
  nameless.fields[1365].dvc_pnl_cmm_set_int(5);
  nameless.fields[1561].dvc_pnl_cmm_set_int(0);
  machine().register_list("0.938.959", {user(1, "ann", 0), nameless, user(3, "cyd", 0)});
  DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_RESPONSE response{};
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_user_list_from_cmm(by_position(10, 0), response));
  // The rows before the failed one are kept; the head was read.
  ASSERT_EQ(1u, response.list_status.size());
  EXPECT_STREQ("ann", response.list_status[0].name);
  EXPECT_EQ(3, response.list_total_size);
}

TEST_F(CmmUserList, TheHeadIsReadWhateverResultHolds) {
  const dvc_pnl_cmm_valueset answer = make_valueset({{"0.938.959.1484", 2},
                                                     {"0.938.959.1592", 0},
                                                     {"0.938.959.1337", 0},
                                                     {"0.938.959.1524", 0},
                                                     {"0.938.959.1501", dvc_pnl_cmm_valueset()}});
  machine().script_next_response("0.938.959", answer);
  DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_RESPONSE response{};
  response.list_status.push_back({1, "stale", 0});
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_user_list_from_cmm(by_position(10, 0), response));
  EXPECT_EQ(2, response.result);
  EXPECT_TRUE(response.list_status.empty());
}

}  // namespace
}  // namespace orvanta
