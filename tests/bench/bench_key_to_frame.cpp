// Cost of one key press, from the GUI event entry to a changed frame on the host LCD.
#include <benchmark/benchmark.h>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "contents/dvc_pnl_ceh_statics.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"

namespace orvanta {
namespace {

constexpr int kPage = 100;
constexpr int kFunc = 1;
constexpr int kCounterPart = 30;

// The least a screen does: a button notify changes one icon, so every key gives a new frame.
class counter_page : public dvc_pnl_ceh_contents_hdl_base {
 public:
  counter_page(int id, dvu_pnl_gcp_components* gui) : dvc_pnl_ceh_contents_hdl_base(id, gui) {}
  void dvc_pnl_ceh_on_load() override { draw(); }
  int dvc_pnl_ceh_on_gui_button_notify(DVU_PNL_GCP_NOTIFY* /*notify*/) override {
    if (dvu_pnl_gcp_parts* part = dvu_pnl_gcp_get_gui_parts_by_id(gui_, kCounterPart))
      // Two icons in turn: an ever larger number would soon be clipped to the same pixels.
      part->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ICON, 1 + (++count_ % 2));
    return 1;
  }

 private:
  int count_ = 0;
};

void BM_KeyToFrame(benchmark::State& state) {
  dvc_pnl_ceh_event_proxy* proxy = dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance();
  host::reset();
  dvc_pnl_ceh_reset_library_statics();
  host::set_contents_creator(
      [](int id, dvu_pnl_gcp_components* gui) -> dvc_pnl_ceh_contents_interface* {
        return new counter_page(id, gui);
      });
  proxy->dvc_pnl_ceh_event_initialize();
  // Errors only: the trace sink is not what is measured.
  host::trace_sink::instance().set_level_limit(0);

  CONTENTS_OPEN_INFO open{0, kFunc, 2, kPage};
  CONTENTS_OPEN_INFO opener{0, kFunc, 0, 0};
  proxy->dvc_pnl_ceh_open_contents(open, opener);
  host::add_icon_part(kPage, kFunc, kCounterPart, 0);
  host::gui_script* script = host::gui_of(kPage, kFunc);
  script->next_notify = DVU_PNL_GCP_NOTIFY{3, 0, 0, 0, 0};

  const dvc_pnl_evh_panel_event key(40);
  for (auto _ : state) {
    benchmark::DoNotOptimize(proxy->dvc_pnl_ceh_gui_event_proc(key));
    if (host::devices().frames.empty()) {
      state.SkipWithError("the key gave no frame");
      break;
    }
    benchmark::DoNotOptimize(host::devices().frames.back().data());
    host::devices().frames.clear();
    script->keys_seen.clear();
  }

  host::trace_sink::instance().set_level_limit(2);
  host::reset();
  dvc_pnl_ceh_reset_library_statics();
}
BENCHMARK(BM_KeyToFrame);

}  // namespace
}  // namespace orvanta
