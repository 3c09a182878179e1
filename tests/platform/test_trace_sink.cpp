// Trace service: formatted lines with module, level and message; level filter; bounded store.
#include <gtest/gtest.h>

#include <cctype>
#include <string>

#include "orvanta/host/trace_sink.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta::host {
namespace {

class TraceSink : public ::testing::Test {
 protected:
  void SetUp() override {
    sink.clear();
    sink.set_level_limit(~0UL);
  }
  void TearDown() override {
    sink.set_level_limit(~0UL);
    sink.set_capacity(20000);
    sink.clear();
  }
  trace_sink& sink = trace_sink::instance();
};

TEST_F(TraceSink, PanelTracesCarryModuleLevelAndThePrefix) {
  CEH_ERR("something failed ret_code = %d", 3);
  CEH_TRC("%s ENTER CONTENTS", "CID_01_01_N1");
  const auto lines = sink.lines();
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].module, 8706u);
  EXPECT_EQ(lines[0].sub_module, 258u);
  EXPECT_EQ(lines[0].level, 0u);
  EXPECT_EQ(lines[1].level, 2u);
  EXPECT_EQ(lines[0].message, "something failed ret_code = 3");
  EXPECT_EQ(lines[1].message, "CID_01_01_N1 ENTER CONTENTS");
  // Thread id in eight hex digits, the file's base name, the line, the function.
  const std::string& text = lines[0].text;
  ASSERT_GT(text.size(), 9u);
  for (int i = 0; i < 8; ++i) {
    EXPECT_TRUE(std::isxdigit(static_cast<unsigned char>(text[i])) != 0) << text;
  }
  EXPECT_EQ(text.substr(8, 21), ":test_trace_sink.cpp[") << text;
  EXPECT_NE(text.find("]: <<TestBody()>> something failed"), std::string::npos) << text;
}

TEST_F(TraceSink, LevelLimitDropsTracesButKeepsErrors) {
  sink.set_level_limit(0);
  CEH_TRC("only a trace");
  CEH_ERR("an error");
  EXPECT_FALSE(sink.has_message("only a trace"));
  EXPECT_TRUE(sink.has_message("an error"));
  sink.set_level_limit(2);
  CEH_TRC("only a trace");
  EXPECT_EQ(sink.count_message("only a trace"), 1u);
}

TEST_F(TraceSink, TheStoreKeepsTheNewestLines) {
  sink.set_capacity(3);
  for (int i = 0; i < 5; ++i)
    emwGENTrcPrintf(1, 2, 2, "line %d", i);
  EXPECT_EQ(sink.messages(), (std::vector<std::string>{"line 2", "line 3", "line 4"}));
  EXPECT_NE(emwGENTrcPrintf(1, 2, 2, nullptr), 0);
}

}  // namespace
}  // namespace orvanta::host
