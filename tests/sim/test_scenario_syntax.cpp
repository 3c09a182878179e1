// The scenario language's lexical layer and the names it reads: tokens, values, paths, value
// sets, contents ids, keys, classes and the function of a screen's area.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "orvanta/host/panel_host.h"
#include "orvanta/sim/names.h"
#include "orvanta/sim/scenario_syntax.h"

namespace orvanta::sim {
namespace {

using strings = std::vector<std::string>;

TEST(ScenarioTokens, SplitsOnBlanksKeepsQuotedPartsAndDropsComments) {
  EXPECT_EQ(tokenize("  key  enter\tremote  "), (strings{"key", "enter", "remote"}));
  EXPECT_EQ(tokenize("expect text \"a # b\" # a comment"),
            (strings{"expect", "text", "\"a # b\""}));
  EXPECT_EQ(tokenize("event 5 0.1.2=\"x y\" 0.1.3=4"),
            (strings{"event", "5", "0.1.2=\"x y\"", "0.1.3=4"}));
  EXPECT_EQ(tokenize("expect text \"say \\\"hi\\\"\""),
            (strings{"expect", "text", "\"say \\\"hi\\\"\""}));
  EXPECT_TRUE(tokenize("# only a comment").empty());
  EXPECT_TRUE(tokenize("").empty());
  EXPECT_THROW(tokenize("expect text \"open"), scenario_error);
}

TEST(ScenarioValues, ReadNumbersNamesAndStrings) {
  struct row {
    const char* token;
    scenario_value want;
  };
  const row rows[] = {
      {"42", {false, 42, ""}},
      {"-7", {false, -7, ""}},
      {"0x1ffff", {false, 0x1ffff, ""}},
      {"0x80001fff", {false, 0x80001fffL, ""}},
      {"CID_04_01_N1", {false, 292, ""}},
      {"CID_08_05_N1", {false, 1703, ""}},
      {"CID_NONE", {false, 900003, ""}},
      {"CID_UNNAMED_1169", {false, 1169, ""}},
      {"\"a \\\"b\\\" \\\\ c\"", {true, 0, "a \"b\" \\ c"}},
      {"\"\"", {true, 0, ""}},
  };
  for (const row& r : rows) {
    SCOPED_TRACE(r.token);
    EXPECT_EQ(parse_value(r.token), r.want);
  }
  for (const char* bad : {"12x", "CID_NO_SUCH", "word", "\"bad \\n escape\"", "0x", "\"a\"b\""}) {
    SCOPED_TRACE(bad);
    EXPECT_THROW(parse_value(bad), scenario_error);
  }
}

TEST(ScenarioValues, PathsAreDottedFromRoot) {
  EXPECT_EQ(parse_path("0.938.959.1484"), (std::vector<unsigned long>{0, 938, 959, 1484}));
  EXPECT_EQ(dotted({0, 1, 2}), "0.1.2");
  for (const char* bad : {"1.2", "0..2", "0.a", "", "0.1.", "-0.1"}) {
    SCOPED_TRACE(bad);
    EXPECT_THROW(parse_path(bad), scenario_error);
  }
  EXPECT_EQ(split_entry("1501.0.1365=\"x=y\""),
            std::make_pair(std::string("1501.0.1365"), std::string("\"x=y\"")));
  EXPECT_THROW(split_entry("1484"), scenario_error);
  EXPECT_THROW(split_entry("=3"), scenario_error);
}

TEST(ScenarioValueSets, NestLikeMachineAnswersAndAreFoundByFullPath) {
  const auto set = build_valueset({{{0, 9, 1484}, {false, 0, ""}},
                                   {{0, 9, 1501, 0, 1365}, {false, 7, ""}},
                                   {{0, 9, 1501, 1, 1037}, {true, 0, "Ben"}}},
                                  3);
  EXPECT_EQ(set.dvc_pnl_cmm_size(), 2u) << "RESULT and the body at the top";
  dvc_pnl_cmm_value v;
  ASSERT_TRUE(find_in_valueset(set, {0, 9, 1501, 0, 1365}, v));
  EXPECT_TRUE(value_matches(v, {false, 7, ""}));
  ASSERT_TRUE(find_in_valueset(set, {0, 9, 1501, 1, 1037}, v));
  EXPECT_TRUE(value_matches(v, {true, 0, "Ben"}));
  EXPECT_FALSE(value_matches(v, {true, 0, "Be"}));
  ASSERT_TRUE(find_in_valueset(set, {0, 9, 1501}, v));
  EXPECT_EQ(describe(v), "a value set of 2 entries");
  EXPECT_FALSE(find_in_valueset(set, {0, 9, 1501, 2}, v));

  EXPECT_THROW(build_valueset({{{0, 9}, {}}}, 3), scenario_error) << "shorter than the top";
  EXPECT_THROW(build_valueset({{{0, 9, 1}, {}}, {{0, 9, 1}, {}}}, 3), scenario_error);
  EXPECT_THROW(build_valueset({{{0, 9, 1}, {}}, {{0, 9, 1, 2}, {}}}, 3), scenario_error);
}

TEST(ScenarioNames, KeysByNameOrNumber) {
  struct row {
    const char* name;
    int key;
  };
  const row rows[] = {{"enter", 40},
                      {"start", 41},
                      {"stop", 42},
                      {"reset", 43},
                      {"back", 61},
                      {"clear", 38},
                      {"0", 45},
                      {"9", 54},
                      {"up", 57},
                      {"down", 58},
                      {"left", 59},
                      {"right", 60},
                      {"menu", 81},
                      {"release", 87},
                      {"fleft", host::kKeyFlexLeft},
                      {"fright", host::kKeyFlexRight},
                      {"62", 62}};
  for (const row& r : rows) {
    SCOPED_TRACE(r.name);
    EXPECT_EQ(parse_key(r.name), r.key);
    EXPECT_EQ(parse_key(key_name(r.key)), r.key) << "names print back";
  }
  EXPECT_EQ(parse_key("Enter"), std::nullopt);
}

TEST(ScenarioNames, ContentsIdsClassesAndAreas) {
  EXPECT_EQ(parse_contents_id("CID_01_01_N1"), 0);
  EXPECT_EQ(parse_contents_id("2249"), 2249);
  EXPECT_EQ(parse_contents_id("CID_01_01"), std::nullopt);
  EXPECT_EQ(contents_name(1702), "CID_08_05_N1");
  EXPECT_EQ(class_of(2249), "d_mnt_006");
  EXPECT_EQ(class_of(1703), "d_03_05");
  EXPECT_EQ(class_of(10), "none");
  EXPECT_EQ(class_of(900001), "none") << "pseudo ids have no class";

  struct row {
    const char* id;
    int function;
  };
  const row rows[] = {
      {"CID_01_01_N1", 1},     {"CID_02_44_N1", 1}, {"CID_04_02_N6", 9}, {"CID_05_01_N1", 5},
      {"CID_07_01_01_N1", 10}, {"CID_08_24_N1", 1}, {"CID_MNT_000", 11}, {"1169", 1}};
  for (const row& r : rows) {
    SCOPED_TRACE(r.id);
    EXPECT_EQ(area_function(*parse_contents_id(r.id)), r.function);
  }
}

}  // namespace
}  // namespace orvanta::sim
