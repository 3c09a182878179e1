// The panel runtime: reset, inputs, draining posted events and 0 ms timers, the virtual clock's
// stops at due times, the real clock, and what the top screen shows.
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/platform/dvu_pnl_gcp_resource.h"
#include "scripted_screen.h"

namespace orvanta::test {
namespace {

using strings = std::vector<std::string>;

class Runtime : public SimFixture {};

bool traced(const std::string& part) {
  for (const std::string& m : host::trace_sink::instance().messages()) {
    if (m.find(part) != std::string::npos)
      return true;
  }
  return false;
}

TEST_F(Runtime, ResetGivesAFreshPanel) {
  rt->set_function(9);
  ASSERT_TRUE(rt->open(CID_04_02_N6));
  machine::simulated_machine::instance().set_int("0.555.2141.1890", 5);
  dvc_pnl_cmm_value v;
  v.dvc_pnl_cmm_set_int(1L);
  host::host_data_manager::instance().dvc_pnl_pdm_set_by_application_scope(
      DVC_PNL_PDM_AUTHENTICATION_MODE, v);
  rt->wait(500);

  EXPECT_EQ(rt->reset(), "");
  EXPECT_EQ(rt->active_function(), 1);
  EXPECT_FALSE(rt->top().has_value());
  EXPECT_EQ(rt->now_ms(), 0u);
  EXPECT_EQ(rt->frame_count(), 0u);
  EXPECT_EQ(machine::simulated_machine::instance().int_at("0.555.2141.1890"), 1);
  EXPECT_EQ(host::host_data_manager::instance().application_entry_count(), 0u);
  EXPECT_TRUE(machine::simulated_machine::instance().log().empty());
  ASSERT_TRUE(rt->open(CID_04_02_N6)) << "the proxy is subscribed again and opens pages";
}

TEST_F(Runtime, ABadModelIsReportedAndTheDefaultModelStays) {
  EXPECT_NE(rt->reset("{\"nodes\": {\"1.2\": 1}}"), "");
  EXPECT_EQ(machine::simulated_machine::instance().int_at("0.555.2141.1890"), 1);
  EXPECT_EQ(rt->reset("{\"nodes\": {\"0.7.7\": 3}}"), "");
  EXPECT_EQ(machine::simulated_machine::instance().int_at("0.7.7"), 3);
}

TEST_F(Runtime, OpenAnswersWhetherAPageOpened) {
  EXPECT_TRUE(rt->open(CID_01_01_N1));
  EXPECT_FALSE(rt->open(10)) << "an id without a class";
  ASSERT_TRUE(rt->top().has_value());
  EXPECT_EQ(rt->top()->contents_id, CID_01_01_N1);
  EXPECT_FALSE(rt->send_event(dvc_pnl_evh_panel_event(123456)));
}

TEST_F(Runtime, WaitStopsAtEachDueTimeSoLaterTimersSeeEarlierEffects) {
  scripted_screen::hooks()[kScriptedFirst].load = [](scripted_screen& s) {
    s.set_timer(1, 100);
    s.set_timer(2, 250);
  };
  // The second expiry of timer 1 (at 200) stops timer 2 before it falls due.
  scripted_screen::hooks()[kScriptedFirst].timer = [](scripted_screen& s, int id) {
    if (id == 1 && emwOSWGetSysTimer() == 200)
      s.kill_timer(2);
  };
  ASSERT_TRUE(rt->open(kScriptedFirst));
  rt->wait(350);
  EXPECT_EQ(scripted_screen::journal(),
            (strings{"timer 1 at 100", "timer 1 at 200", "timer 1 at 300"}));
  EXPECT_EQ(rt->now_ms(), 350u);
}

TEST_F(Runtime, AZeroMsTimerRunsBeforeTheInputReturns) {
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen& s, int) {
    s.set_timer(7, 0);
    return 1;
  };
  scripted_screen::hooks()[kScriptedFirst].timer = [](scripted_screen& s, int id) {
    s.kill_timer(id);
  };
  ASSERT_TRUE(rt->open(kScriptedFirst));
  rt->press(40);
  EXPECT_EQ(scripted_screen::journal(), (strings{"timer 7 at 0"}));
  EXPECT_EQ(rt->now_ms(), 0u);
}

TEST_F(Runtime, AZeroMsTimerThatNeverStopsIsCutOff) {
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen& s, int) {
    s.set_timer(7, 0);
    return 1;
  };
  ASSERT_TRUE(rt->open(kScriptedFirst));
  rt->press(40);
  EXPECT_EQ(scripted_screen::journal().size(), 99u);
  EXPECT_TRUE(traced("timer loop stopped"));
}

TEST_F(Runtime, KeysCarryTheirOperationSource) {
  int source = 0;
  scripted_screen::hooks()[kScriptedFirst].key = [&source](scripted_screen& s, int) {
    source = s.dvc_pnl_ceh_get_operation_source();
    return 1;
  };
  ASSERT_TRUE(rt->open(kScriptedFirst));
  EXPECT_EQ(rt->press(40, true), 0);
  EXPECT_EQ(source, 2);
  rt->press(40);
  EXPECT_EQ(source, 1);
}

TEST_F(Runtime, TopItemsListWhatThePartsShowWithResourcesResolved) {
  scripted_screen::hooks()[kScriptedFirst].load = [](scripted_screen& s) {
    dvu_pnl_gcp_components* gui = s.dvc_pnl_ceh_get_gui_components();
    auto icon = std::make_unique<dvu_pnl_gcp_parts>(dvu_pnl_gcp_part_kind::icon);
    icon->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, 12);
    host::add_part(gui, 19, std::move(icon));
    auto title = std::make_unique<dvu_pnl_gcp_parts>(dvu_pnl_gcp_part_kind::text);
    title->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, 300);
    host::add_part(gui, 67, std::move(title));
    auto hidden = std::make_unique<dvu_pnl_gcp_parts>(dvu_pnl_gcp_part_kind::text);
    hidden->dvu_pnl_gcp_set_str_val(0, "hidden");
    hidden->dvu_pnl_gcp_set_visible(false);
    host::add_part(gui, 70, std::move(hidden));
    auto* list = static_cast<dvu_pnl_gcp_list*>(
        host::add_part(gui, 64, std::make_unique<dvu_pnl_gcp_list>()));
    dvu_pnl_gcp_list_row row;
    row.dvu_pnl_gcp_add_text(0, 10, "Anna");
    row.dvu_pnl_gcp_add_icon(12, 2, 5);
    list->dvu_pnl_gcp_add_row(row);
  };
  rt->resources().add_text(300, "Copy");
  ASSERT_TRUE(rt->open(kScriptedFirst));
  EXPECT_EQ(sim::format_items(rt->top_items()),
            "19 icon 12\n64.0 text \"Anna\"\n64.0 icon 5\n67 text \"Copy\"\n");
  rt->resources().add_icon(12, "copy-icon");
  EXPECT_EQ(rt->top_items().front().text, "copy-icon");
  // Texts are the host's resource table, which the library reads too; it outlives resets.
  EXPECT_EQ(dvu_pnl_gcp_resource::get_text_resource(300), "Copy");
  // The compiled-in table back, not an empty one: later tests in this process draw with it.
  host::restore_default_resources();
}

TEST_F(Runtime, TheRealClockFiresTimersWithoutBeingAsked) {
  make_runtime(sim::clock_mode::real_time);
  scripted_screen::hooks()[kScriptedFirst].load = [](scripted_screen& s) { s.set_timer(3, 20); };
  scripted_screen::hooks()[kScriptedFirst].timer = [](scripted_screen& s, int id) {
    s.kill_timer(id);
  };
  ASSERT_TRUE(rt->open(kScriptedFirst));
  // Expiries are posted by the timer thread and delivered here; poll until one came.
  const auto give_up = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  while (std::chrono::steady_clock::now() < give_up) {
    rt->drain();
    {
      std::lock_guard<std::recursive_mutex> guard(rt->lock());
      if (!scripted_screen::journal().empty())
        break;
    }
    std::this_thread::sleep_for(std::chrono::milliseconds(5));
  }
  std::lock_guard<std::recursive_mutex> guard(rt->lock());
  ASSERT_EQ(scripted_screen::journal().size(), 1u);
  EXPECT_EQ(scripted_screen::journal().front().rfind("timer 3 at ", 0), 0u);
}

}  // namespace
}  // namespace orvanta::test
