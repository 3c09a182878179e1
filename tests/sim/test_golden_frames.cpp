// Golden frames: fixed screens filled through the view helper, drawn by the host GUI and compared
// byte for byte with the reference frames checked in under tests/sim/golden.
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <string>

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/sim/frame_render.h"
#include "scripted_screen.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

// Set ORVANTA_UPDATE_GOLDEN=1 to write the references anew (scripts/update-golden does).
bool updating() {
  const char* value = std::getenv("ORVANTA_UPDATE_GOLDEN");
  return value != nullptr && std::string(value) == "1";
}

dvc_pnl_ceh_contents_hdl_gui* view(scripted_screen& s) {
  return dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_register_gui_operator(
      s.dvc_pnl_ceh_get_gui_components());
}

struct golden_case {
  const char* name;  // the reference is golden/<name>.pbm
  int function;
  int contents_id;
  std::function<void(scripted_screen&)> fill;  // nullptr: the screen fills itself
  std::vector<int> keys;                       // pressed after the open
};

// A choice list: title, three rows with index icons, the star on the value in force, both keys.
void fill_choice_list(scripted_screen& s) {
  dvc_pnl_ceh_contents_hdl_gui* g = view(s);
  g->dvc_pnl_ceh_update_view_text(GUI_ID_TITLE, std::string("Paper Size"), 0);
  g->dvc_pnl_ceh_clear_list();
  g->dvc_pnl_ceh_add_view_list_index_text(1, std::string("Auto"), 0);
  g->dvc_pnl_ceh_add_view_list_index_text(2, std::string("A4"), 0);
  g->dvc_pnl_ceh_add_view_list_index_text(3, std::string("Letter"), 0);
  g->dvc_pnl_ceh_add_view_list_index_text(4, std::string("Legal"), 0);
  g->dvc_pnl_ceh_set_star_to_select_row(1);
  g->dvc_pnl_ceh_update_view_flexiblekey(17, 48);
  s.draw();
}

// A status list scrolled to its end: a long text shown by its tail, status icons, the right key.
void fill_status_list(scripted_screen& s) {
  dvc_pnl_ceh_contents_hdl_gui* g = view(s);
  g->dvc_pnl_ceh_update_view_text(GUI_ID_TITLE, std::string("Job Status"), 0);
  g->dvc_pnl_ceh_clear_list();
  const char* jobs[] = {"Copy 0001", "Print report.pdf", "Scan to folder of a long name",
                        "Fax 0123456"};
  for (int i = 0; i < 4; ++i)
    g->dvc_pnl_ceh_add_view_list_text_subfix_text_status(1000 + i, 0, std::string(jobs[i]), 0,
                                                         i == 2 ? 1 : 0);
  g->dvc_pnl_ceh_set_list_select_row(3);
  g->dvc_pnl_ceh_update_view_flexiblekey(-1, 23);
  s.draw();
}

class GoldenFrames : public SimFixture, public ::testing::WithParamInterface<golden_case> {};

TEST_P(GoldenFrames, MatchTheReference) {
  const golden_case& c = GetParam();
  if (c.fill)
    scripted_screen::hooks()[c.contents_id].load = c.fill;
  rt->set_function(c.function);
  ASSERT_TRUE(rt->open(c.contents_id));
  for (int key : c.keys)
    rt->press(key);
  const sim::lcd_frame have = rt->frame();

  const fs::path path = fs::path(ORVANTA_GOLDEN_DIR) / (std::string(c.name) + ".pbm");
  if (updating()) {
    std::ofstream(path, std::ios::binary) << sim::to_pbm(have);
    GTEST_SKIP() << "wrote " << path;
  }
  std::ifstream file(path, std::ios::binary);
  ASSERT_TRUE(file) << path << " is missing; scripts/update-golden writes it";
  std::stringstream bytes;
  bytes << file.rdbuf();
  sim::lcd_frame want{};
  ASSERT_EQ(sim::from_pbm(bytes.str(), want), "");
  EXPECT_TRUE(have == want) << c.name
                            << " differs ('+' dark only now, '-' only in the reference):\n"
                            << sim::render_diff(have, want) << "now:\n"
                            << sim::render_boxed(have);
}

INSTANTIATE_TEST_SUITE_P(
    Screens, GoldenFrames,
    ::testing::Values(golden_case{"choice_list", 1, kScriptedFirst, fill_choice_list, {}},
                      golden_case{
                          "choice_list_moved", 1, kScriptedFirst, fill_choice_list, {58, 58}},
                      golden_case{"status_list", 1, kScriptedFirst + 1, fill_status_list, {}},
                      golden_case{"status_message", 9, CID_02_44_N1, nullptr, {}}),
    [](const ::testing::TestParamInfo<golden_case>& info) { return std::string(info.param.name); });

}  // namespace
}  // namespace orvanta::test
