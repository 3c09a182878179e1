// A screen whose behaviour a test scripts, and the fixture of tests that run it in a runtime.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "orvanta/sim/panel_runtime.h"

namespace orvanta::test {

// Ids the fixture makes scripted screens for; other ids come from the library's factory.
inline constexpr int kScriptedFirst = 100;
inline constexpr int kScriptedLast = 109;

class scripted_screen;

struct screen_hooks {
  std::function<void(scripted_screen&)> load;
  std::function<int(scripted_screen&, int key)> key;
  std::function<void(scripted_screen&, int id)> timer;
};

class scripted_screen : public dvc_pnl_ceh_contents_hdl_base {
 public:
  scripted_screen(int id, dvu_pnl_gcp_components* gui) : dvc_pnl_ceh_contents_hdl_base(id, gui) {}

  void dvc_pnl_ceh_on_load() override;
  int dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) override;
  void dvc_pnl_ceh_on_timer(int id) override;

  // Scripts by contents id, and what the screens did ("timer 5 at 100").
  static std::map<int, screen_hooks>& hooks();
  static std::vector<std::string>& journal();
};

// A runtime whose ids kScriptedFirst..kScriptedLast are scripted screens.
class SimFixture : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;
  void make_runtime(sim::clock_mode mode);

  std::unique_ptr<sim::panel_runtime> rt;
};

}  // namespace orvanta::test
