// Cost of what panelsim does per input: a key to a frame through the runtime, opening a screen,
// a scenario line, and the terminal rendering of a frame.
#include <benchmark/benchmark.h>

#include <sstream>

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "orvanta/sim/frame_render.h"
#include "orvanta/sim/panel_runtime.h"
#include "orvanta/sim/scenario_syntax.h"

namespace orvanta::sim {
namespace {

// The flexible key reaches the GUI stand-in, whose button notify makes the page draw.
void BM_RuntimeKeyToFrame(benchmark::State& state) {
  panel_runtime rt;
  rt.open(CID_01_01_N1);
  rt.open(CID_02_44_N1);
  for (auto _ : state)
    rt.press(host::kKeyFlexLeft);
  state.counters["frames"] = static_cast<double>(rt.frame_count());
}
BENCHMARK(BM_RuntimeKeyToFrame);

void BM_RuntimeOpenAndBack(benchmark::State& state) {
  panel_runtime rt;
  rt.open(CID_01_01_N1);
  for (auto _ : state) {
    rt.open(CID_02_44_N1);
    rt.press(61);
  }
}
BENCHMARK(BM_RuntimeOpenAndBack);

void BM_ScenarioLineTokens(benchmark::State& state) {
  for (auto _ : state)
    benchmark::DoNotOptimize(tokenize("expect invoked 0.938.959 1476=3 1501.0.1037=\"Anna B\""));
}
BENCHMARK(BM_ScenarioLineTokens);

void BM_RenderHalfBlocks(benchmark::State& state) {
  lcd_frame frame{};
  for (std::size_t i = 0; i < frame.size(); ++i)
    frame[i] = static_cast<unsigned char>(i * 37);
  for (auto _ : state)
    benchmark::DoNotOptimize(render_half_blocks(frame));
}
BENCHMARK(BM_RenderHalfBlocks);

}  // namespace
}  // namespace orvanta::sim
