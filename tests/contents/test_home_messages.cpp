// The main message line of the home screens, on a page that has its parts: rotation on the
// timer, numbers, the paper size and kind pair, refresh and remote panel changes.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "contents_probe.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/machine/main_messages.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"
#include "screens/home/dvc_pnl_ceh_home_messages.h"
#include "support/valueset_builder.h"

namespace orvanta::test {
namespace {

using machine::list_row;
using machine::main_message;
using machine::simulated_machine;

class HomeMessages : public ProbeFixture {
 protected:
  void SetUp() override {
    ProbeFixture::SetUp();
    simulated_machine::instance().reset();
    // Page kA carries the message parts and a message line that follows the timer.
    hooks_by_id()[kA].load = [this](probe& p) {
      for (int id : {DVC_PNL_CEH_PART_MAIN_MSG, DVC_PNL_CEH_PART_ADDITIONAL_SIZE,
                     DVC_PNL_CEH_PART_ADDITIONAL_KIND})
        host::add_part(p.dvc_pnl_ceh_get_gui_components(), id,
                       std::make_unique<dvu_pnl_gcp_text>());
      line = std::make_unique<dvc_pnl_ceh_home_messages>(p);
      line->load(1);
    };
    hooks_by_id()[kA].timer = [this](probe&, int id) {
      if (id == DVC_PNL_CEH_HOME_TIMER_MESSAGES)
        line->tick();
    };
  }
  void TearDown() override {
    line.reset();
    simulated_machine::instance().reset();
    ProbeFixture::TearDown();
  }

  static void messages(std::vector<list_row> rows) {
    machine::set_main_messages(simulated_machine::instance(), 1, std::move(rows));
  }

  static dvu_pnl_gcp_parts* part(int id) {
    return dvu_pnl_gcp_get_gui_parts_by_id(page(kA)->dvc_pnl_ceh_get_gui_components(), id);
  }
  // What the part shows: "res N", "text S" or "hidden".
  static std::string shown(int id) {
    dvu_pnl_gcp_parts* p = part(id);
    if (p == nullptr)
      return "missing";
    if (!p->dvu_pnl_gcp_is_visible())
      return "hidden";
    int rid = -1;
    p->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, rid);
    if (rid >= 0)
      return "res " + std::to_string(rid);
    std::string text;
    p->dvu_pnl_gcp_get_str_val(DVU_PNL_GCP_ATTR_LITERAL, text);
    return "text " + text;
  }

  std::unique_ptr<dvc_pnl_ceh_home_messages> line;
};

TEST_F(HomeMessages, TheLineRotatesEveryOneAndAHalfSeconds) {
  // 4 and 9 are known messages, 5 is shown as its number.
  messages({main_message(4), main_message(9), main_message(5)});
  open(kA);
  EXPECT_EQ(3, line->count());
  EXPECT_EQ("res 3396", shown(DVC_PNL_CEH_PART_MAIN_MSG));
  run_for(1499);
  EXPECT_EQ("res 3396", shown(DVC_PNL_CEH_PART_MAIN_MSG));
  run_for(1);
  EXPECT_EQ("res 960", shown(DVC_PNL_CEH_PART_MAIN_MSG));
  run_for(1500);
  EXPECT_EQ("text 5", shown(DVC_PNL_CEH_PART_MAIN_MSG));
  run_for(1500);
  EXPECT_EQ("res 3396", shown(DVC_PNL_CEH_PART_MAIN_MSG)) << "back to the first";
}

TEST_F(HomeMessages, OneMessageRunsNoTimer) {
  messages({main_message(4)});
  open(kA);
  EXPECT_EQ(1, line->count());
  run_for(5000);
  EXPECT_TRUE(journal_with("timer 100").empty());
  EXPECT_EQ("res 3396", shown(DVC_PNL_CEH_PART_MAIN_MSG));
}

TEST_F(HomeMessages, APaperSizeAndKindShowOnTheTwoLines) {
  // 190 with the paper given in the message: its text, the size, the kind; then a plain message.
  list_row paper = main_message(190);
  paper.fields[3306].dvc_pnl_cmm_set_int(1);
  paper.fields[2063].dvc_pnl_cmm_set_int(4);
  messages({paper, main_message(4)});
  open(kA);
  ASSERT_EQ(4, line->count());
  ASSERT_EQ(0, line->engine().check_additional_msg_index_status(1));
  const std::string size = "res " + std::to_string(line->engine().get_msg_res_by_index(1));
  const std::string kind = "res " + std::to_string(line->engine().get_msg_res_by_index(2));

  EXPECT_EQ("res 1047", shown(DVC_PNL_CEH_PART_MAIN_MSG));
  EXPECT_EQ("hidden", shown(DVC_PNL_CEH_PART_ADDITIONAL_SIZE));
  run_for(1500);
  EXPECT_EQ("hidden", shown(DVC_PNL_CEH_PART_MAIN_MSG));
  EXPECT_EQ(size, shown(DVC_PNL_CEH_PART_ADDITIONAL_SIZE));
  EXPECT_EQ(kind, shown(DVC_PNL_CEH_PART_ADDITIONAL_KIND));
  run_for(1500);
  EXPECT_EQ("res 3396", shown(DVC_PNL_CEH_PART_MAIN_MSG)) << "the kind is not shown again";
  EXPECT_EQ("hidden", shown(DVC_PNL_CEH_PART_ADDITIONAL_SIZE));
  EXPECT_EQ("hidden", shown(DVC_PNL_CEH_PART_ADDITIONAL_KIND));
  run_for(1500);
  EXPECT_EQ("res 1047", shown(DVC_PNL_CEH_PART_MAIN_MSG));
}

TEST_F(HomeMessages, ARefreshStartsOverWithTheEventsList) {
  messages({main_message(4), main_message(9)});
  open(kA);
  run_for(1500);
  EXPECT_EQ(1, line->index());

  // The copy refresh event's list: one message, 10.
  line->refresh(1, make_valueset({{"0.1058.1059", 1L}, {"0.1058.1060.0.1061", 10L}}, 2));
  EXPECT_EQ(1, line->count());
  EXPECT_EQ(0, line->index());
  EXPECT_EQ("res 3395", shown(DVC_PNL_CEH_PART_MAIN_MSG));
  run_for(3000);
  EXPECT_EQ("res 3395", shown(DVC_PNL_CEH_PART_MAIN_MSG)) << "one message: the timer stopped";

  // No remote panel connected: nothing is added.
  line->remote_changed();
  EXPECT_EQ(1, line->count());
}

}  // namespace
}  // namespace orvanta::test
