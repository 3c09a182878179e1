// What a panel user feels, on the real screens: a key to a frame on the copy home screen and on an
// option list, opening and closing one screen of each class, building list rows and the option
// list table, timer delivery, and the heap a screen and a list of rows hold. Has the benchmark
// program's main, which registers one open-and-close benchmark per screen class.
#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_contents_id.h"
#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "heap_count.h"
#include "monkey.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/sim/names.h"
#include "orvanta/sim/panel_runtime.h"
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_01.h"

namespace orvanta::sim {
namespace {

constexpr int kKeyDown = 58;
constexpr int kKeyUp = 57;
constexpr int kKeyClear = 38;
constexpr int kKeyFive = 50;
constexpr int kListPart = 64;

// The first id of each screen class, by class name.
const std::map<std::string, int>& first_id_of_each_class() {
  static const std::map<std::string, int> classes = [] {
    panel_runtime rt;
    std::map<std::string, int> out;
    for (int id = 0; id <= DVC_PNL_CEH_CONTENTS_ID_MAX; ++id) {
      const std::string c = class_of(id);
      if (c != "none")
        out.emplace(c, id);
    }
    return out;
  }();
  return classes;
}

void quiet() {
  host::trace_sink::instance().set_level_limit(0);
}

// Quiets the trace and makes the function of the id's area the active one; answers it.
int enter_function_of(panel_runtime& rt, int id) {
  quiet();
  const int function = area_function(id);
  rt.set_function(function);
  return function;
}

// Closes the page as the framework closes it, and delivers what follows.
void close_page(panel_runtime& rt, int id, int function) {
  dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance()->dvc_pnl_ceh_remove_contents_in_page_stack(
      id, function);
  rt.drain();
}

// A list part of the top page filled with `rows` rows of a text and an icon each.
dvu_pnl_gcp_list* fill_list(int id, int function, int rows) {
  dvu_pnl_gcp_list* list = nullptr;
  for (auto& [part_id, part] : host::parts_of(id, function)) {
    if (part_id == kListPart)
      list = dynamic_cast<dvu_pnl_gcp_list*>(part);
  }
  if (list == nullptr)
    list = host::add_list_part(id, function, kListPart);
  list->dvu_pnl_gcp_clear_all_row();
  for (int r = 0; r < rows; ++r) {
    dvu_pnl_gcp_list_row row;
    row.dvu_pnl_gcp_set_str_val(0, ("Setting " + std::to_string(r)).c_str());
    row.dvu_pnl_gcp_set_int_val(1, 5);
    list->dvu_pnl_gcp_add_row(row);
  }
  return list;
}

// Digits and Clear change the copy count, so each key gives the LCD a new frame.
void BM_CopyHomeKeyToFrame(benchmark::State& state) {
  panel_runtime rt;
  quiet();
  rt.set_function(1);
  rt.open(CID_01_01_N1);
  const std::size_t before = rt.frame_count();
  bool five = true;
  for (auto _ : state) {
    rt.press(five ? kKeyFive : kKeyClear);
    five = !five;
  }
  state.counters["frames_per_key"] = benchmark::Counter(
      static_cast<double>(rt.frame_count() - before) / static_cast<double>(state.iterations()));
}
BENCHMARK(BM_CopyHomeKeyToFrame);

// The paper size list of copy (26 rows) over the copy home screen, the cursor moving down and
// up: each move sounds and redraws.
void BM_ListKeyToFrame(benchmark::State& state) {
  panel_runtime rt;
  quiet();
  rt.set_function(1);
  rt.open(CID_01_01_N1);
  rt.open(CID_02_08_01_N6);
  const std::size_t before = rt.frame_count();
  int n = 0;
  for (auto _ : state)
    rt.press((n++ / 10) % 2 == 0 ? kKeyDown : kKeyUp);
  state.counters["frames_per_key"] = benchmark::Counter(
      static_cast<double>(rt.frame_count() - before) / static_cast<double>(state.iterations()));
}
BENCHMARK(BM_ListKeyToFrame);

// Opens the class's first id over its function's base screen and closes it again.
void open_and_close(benchmark::State& state, int id) {
  panel_runtime rt;
  const int function = enter_function_of(rt, id);
  const int base = base_screen_of(function);
  if (id != base)
    rt.open(base);
  for (auto _ : state) {
    if (!rt.open(id)) {
      state.SkipWithError("the screen does not open");
      break;
    }
    close_page(rt, id, function);
  }
}

// Rows built into a list part and drawn: the cost of showing a long list.
void BM_BuildListRows(benchmark::State& state) {
  panel_runtime rt;
  const int id = first_id_of_each_class().at("d_01_01_01");
  enter_function_of(rt, id);
  rt.open(id);
  const int rows = static_cast<int>(state.range(0));
  for (auto _ : state)
    benchmark::DoNotOptimize(fill_list(id, rt.active_function(), rows));
  state.SetItemsProcessed(state.iterations() * rows);
}
BENCHMARK(BM_BuildListRows)->Arg(10)->Arg(100)->Arg(1000);

// The option list table built from empty: every row of the class, as a long run would hold it
// once every list was opened.
void BM_BuildOptionListTable(benchmark::State& state) {
  using list = dvc_pnl_ceh_contents_hdl_d_01_01_01;
  std::size_t rows = 0;
  for (auto _ : state) {
    list::s_map_.reset();
    for (int id = 0; id <= DVC_PNL_CEH_CONTENTS_ID_MAX; ++id)
      list::s_map_.row_of(id, &list::build_row);
    rows = list::s_map_.size();
  }
  state.counters["rows"] = benchmark::Counter(static_cast<double>(rows));
  state.SetItemsProcessed(state.iterations() * static_cast<long>(rows));
}
BENCHMARK(BM_BuildOptionListTable);

// A page whose timer restarts itself and draws on every expiry.
class ticking_page : public dvc_pnl_ceh_contents_hdl_base {
 public:
  static constexpr int kId = 100;
  static constexpr int kPeriod = 100;
  ticking_page(int id, dvu_pnl_gcp_components* gui) : dvc_pnl_ceh_contents_hdl_base(id, gui) {}
  void dvc_pnl_ceh_on_load() override {
    set_timer(1, kPeriod);
    draw();
  }
  void dvc_pnl_ceh_on_timer(int id) override {
    set_timer(id, kPeriod);
    ++ticks;
  }
  static inline long ticks = 0;
};

// One timer expiry from its due time to the page's handler: the clock moves to the due time,
// the expiry posts the timer event, the proxy finds the timer and calls the page.
void BM_TimerDelivery(benchmark::State& state) {
  panel_runtime rt;
  quiet();
  host::set_contents_creator(
      [](int id, dvu_pnl_gcp_components* gui) -> dvc_pnl_ceh_contents_interface* {
        if (id == ticking_page::kId)
          return new ticking_page(id, gui);
        return dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance()
            ->dvc_pnl_ceh_create_contents_proc_class(id, gui);
      });
  rt.open(ticking_page::kId);
  ticking_page::ticks = 0;
  for (auto _ : state)
    rt.wait(ticking_page::kPeriod);
  if (ticking_page::ticks != static_cast<long>(state.iterations()))
    state.SkipWithError("an expiry was not delivered");
  // The next benchmark's runtime wires the library's factory in again.
}
BENCHMARK(BM_TimerDelivery);

// The heap a page holds while it is open: its contents, GUI parts and page scope entries, and the
// simulated machine's log records of the calls it made while opening.
void heap_of_screen(benchmark::State& state, int id) {
  panel_runtime rt;
  const int function = enter_function_of(rt, id);
  long long held = 0;
  for (auto _ : state) {
    host::devices().frames.clear();
    host::trace_sink::instance().clear();
    machine::simulated_machine::instance().clear_log();
    const long long before = live_heap_bytes();
    rt.open(id);
    held = live_heap_bytes() - before;
    close_page(rt, id, function);
  }
  state.counters["heap_bytes"] = benchmark::Counter(static_cast<double>(held));
}

void BM_HeapOfListRows(benchmark::State& state) {
  panel_runtime rt;
  const int id = first_id_of_each_class().at("d_01_01_01");
  enter_function_of(rt, id);
  rt.open(id);
  const int rows = static_cast<int>(state.range(0));
  long long held = 0;
  for (auto _ : state) {
    dvu_pnl_gcp_list* list = fill_list(id, rt.active_function(), 0);
    const long long before = live_heap_bytes();
    fill_list(id, rt.active_function(), rows);
    held = live_heap_bytes() - before;
    list->dvu_pnl_gcp_clear_all_row();
  }
  state.counters["heap_bytes"] = benchmark::Counter(static_cast<double>(held));
  state.counters["bytes_per_row"] = benchmark::Counter(static_cast<double>(held) / rows);
}
BENCHMARK(BM_HeapOfListRows)->Arg(100)->Arg(1000);

}  // namespace
}  // namespace orvanta::sim

int main(int argc, char** argv) {
  using namespace orvanta::sim;
  for (const auto& [name, id] : first_id_of_each_class()) {
    const int first = id;
    benchmark::RegisterBenchmark(("BM_OpenClose/" + name).c_str(),
                                 [first](benchmark::State& s) { open_and_close(s, first); });
  }
  benchmark::RegisterBenchmark("BM_HeapOfScreen/copy_home", [](benchmark::State& s) {
    heap_of_screen(s, orvanta::CID_01_01_N1);
  });
  const int list = first_id_of_each_class().at("d_01_01_01");
  benchmark::RegisterBenchmark("BM_HeapOfScreen/list",
                               [list](benchmark::State& s) { heap_of_screen(s, list); });
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
