// panelsim demo: a fixed tour through a few screens, printing each frame; needs no input.
#include <iostream>
#include <string>

#include "commands.h"
#include "contents/dvc_pnl_ceh_contents_id.h"
#include "orvanta/sim/frame_render.h"
#include "orvanta/sim/names.h"
#include "orvanta/sim/panel_runtime.h"

namespace orvanta::sim {
namespace {

void print_state(panel_runtime& rt, const std::string& step) {
  std::cout << "== " << step << "\n";
  std::string stack;
  for (const host::page_record& p : rt.stack())
    stack += " " + contents_name(p.contents_id);
  std::cout << "function " << rt.active_function()
            << ", pages:" << (stack.empty() ? " none" : stack) << ", " << rt.frame_count()
            << " frames so far, clock " << rt.now_ms() << " ms\n";
  std::cout << render_boxed(rt.frame()) << format_items(rt.top_items());
}

}  // namespace

int command_demo(const std::string& model) {
  panel_runtime rt;
  if (std::string error = rt.reset(model); !error.empty()) {
    std::cerr << "panelsim: bad model: " << error << "\n";
    return kExitUsage;
  }
  rt.set_function(1);
  rt.open(CID_01_01_N1);
  print_state(rt, "copy: its home screen opens (it has no drawing of its own yet)");
  rt.open(CID_02_44_N1);
  print_state(rt, "a status message screen opens above it and draws its title");
  rt.press(parse_key("back").value_or(61));
  print_state(rt, "Back closes it: the home screen is on top again");
  rt.set_function(9);
  rt.open(CID_04_01_N1);
  rt.open(CID_04_02_N6);
  rt.wait(1000);
  print_state(rt, "status: a job detail page over the status base screen, a second later");
  rt.press(parse_key("stop").value_or(42));
  print_state(rt, "Stop goes back to the top of the function");
  return kExitOk;
}

}  // namespace orvanta::sim
