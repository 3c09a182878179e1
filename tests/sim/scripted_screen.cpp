// The scripted test screen and the runtime fixture of the simulator tests.
#include "scripted_screen.h"

#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/platform/osw.h"

namespace orvanta::test {

std::map<int, screen_hooks>& scripted_screen::hooks() {
  static std::map<int, screen_hooks> h;
  return h;
}

std::vector<std::string>& scripted_screen::journal() {
  static std::vector<std::string> j;
  return j;
}

void scripted_screen::dvc_pnl_ceh_on_load() {
  if (auto& h = hooks()[get_contents_id()]; h.load)
    h.load(*this);
  draw();
}

int scripted_screen::dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) {
  auto& h = hooks()[get_contents_id()];
  return h.key ? h.key(*this, event.dvc_pnl_evh_get_id()) : 0;
}

void scripted_screen::dvc_pnl_ceh_on_timer(int id) {
  journal().push_back("timer " + std::to_string(id) + " at " + std::to_string(emwOSWGetSysTimer()));
  if (auto& h = hooks()[get_contents_id()]; h.timer)
    h.timer(*this, id);
}

void SimFixture::SetUp() {
  scripted_screen::hooks().clear();
  scripted_screen::journal().clear();
  make_runtime(sim::clock_mode::virtual_time);
}

void SimFixture::make_runtime(sim::clock_mode mode) {
  rt.reset();
  rt = std::make_unique<sim::panel_runtime>(mode);
  // After the runtime: its constructor wires the library's factory in.
  host::set_contents_creator(
      [](int id, dvu_pnl_gcp_components* gui) -> dvc_pnl_ceh_contents_interface* {
        if (id >= kScriptedFirst && id <= kScriptedLast)
          return new scripted_screen(id, gui);
        return dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance()
            ->dvc_pnl_ceh_create_contents_proc_class(id, gui);
      });
}

void SimFixture::TearDown() {
  rt.reset();
  scripted_screen::hooks().clear();
  scripted_screen::journal().clear();
}

}  // namespace orvanta::test
