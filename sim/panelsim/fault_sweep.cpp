// The fault sweep: a clean run of each scenario file names its injection points, then each
// point runs in a child with that one failure armed, and the child checks what must survive.
#include "fault_sweep.h"

#include <iostream>
#include <optional>
#include <set>
#include <sstream>
#include <tuple>

#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "isolated.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/platform/dvc_pnl_cmn_hardkey.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "orvanta/sim/panel_runtime.h"
#include "orvanta/sim/scenario.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"

namespace orvanta::sim {
namespace {

constexpr int kFunctionCount = 37;  // function ids 0 to 36
constexpr int kMediatorFailure = 3;
// A RESULT that no command answers for success: success is 0 for most commands, 1 for some
// (commit, registers, program call) and 3 for cancel.
constexpr long kFailedResult = 2;
// Closing a page may open another (an error screen, a parent); this many rounds end that.
constexpr int kCloseRounds = 20;
constexpr std::string_view kTimerLoopTrace = "timer loop stopped";
constexpr std::string_view kPostingLoopTrace = "posting loop";

enum class fault_kind { mediator, result, dm_read };

// One failure to inject: the mediator's answer 3 to the call numbered `call` (counted from the
// start of the input numbered `input`), a RESULT that is not success when that call is an invoke,
// or the data manager read numbered `read` (counted from the reset). `verb` and `key` name the
// call or the read as the clean run made it.
struct injection {
  fault_kind kind = fault_kind::mediator;
  std::size_t input = 0;
  std::size_t call = 0;
  machine::verb verb = machine::verb::get;
  std::string key;
  std::size_t read = 0;

  // What --cover counts as the same point: the kind and where it fails, not when.
  std::tuple<int, int, std::string> identity() const {
    return {static_cast<int>(kind), static_cast<int>(verb), key};
  }
  std::string describe() const {
    static const char* const verbs[] = {"get", "set", "invoke"};
    switch (kind) {
      case fault_kind::mediator:
        return std::string("mediator ") + verbs[static_cast<int>(verb)] + " " + key +
               " answers 3 (" + where() + ")";
      case fault_kind::result:
        return "invoke " + key + " answers RESULT " + std::to_string(kFailedResult) + " (" +
               where() + ")";
      case fault_kind::dm_read:
        return "data manager read " + std::to_string(read + 1) + " (" + key + ") fails";
    }
    return {};
  }
  std::string where() const {
    return "call " + std::to_string(call + 1) + " of input " + std::to_string(input + 1);
  }
};

// What the clean run of a file did: where each input began in the machine's call log and in the
// data manager's reads.
struct clean_run {
  std::vector<machine::call_record> calls;
  std::vector<std::size_t> input_calls;  // call log size as each input began
  std::vector<std::string> reads;        // keys of the data manager reads
  std::size_t first_input_read = 0;      // reads made before the first input (the runner's)
  bool any_input = false;
};

script_options sweep_script_options(const sweep_options& o) {
  script_options s;
  s.model = o.model;
  s.keep_going = true;
  s.skip_expectations = true;
  // Verbose, so that the trace reaches the output, where the loop warnings are looked for.
  s.verbose = true;
  return s;
}

clean_run record_clean(panel_runtime& rt, const std::string& file, const sweep_options& o) {
  clean_run c;
  machine::simulated_machine& m = machine::simulated_machine::instance();
  host::host_data_manager& dm = host::host_data_manager::instance();
  script_options s = sweep_script_options(o);
  s.on_input = [&] {
    if (!c.any_input)
      c.first_input_read = dm.call_count(host::dm_op::get);
    c.any_input = true;
    c.input_calls.push_back(m.log().size());
  };
  std::ostringstream ignored;
  run_scenario_file(rt, file, s, ignored);
  c.calls = m.log();
  c.reads = dm.read_keys();
  return c;
}

std::vector<injection> points_of(const clean_run& c) {
  std::vector<injection> out;
  for (std::size_t in = 0; in < c.input_calls.size(); ++in) {
    const std::size_t from = c.input_calls[in];
    const std::size_t to = in + 1 < c.input_calls.size() ? c.input_calls[in + 1] : c.calls.size();
    for (std::size_t i = from; i < to; ++i) {
      const machine::call_record& call = c.calls[i];
      out.push_back({fault_kind::mediator, in, i - from, call.kind, call.key, 0});
      if (call.kind == machine::verb::invoke)
        out.push_back({fault_kind::result, in, i - from, call.kind, call.key, 0});
    }
  }
  if (c.any_input) {
    for (std::size_t r = c.first_input_read; r < c.reads.size(); ++r)
      out.push_back({fault_kind::dm_read, 0, 0, machine::verb::get, c.reads[r], r});
  }
  return out;
}

// After the file: every page still answers, then with every page closed no hard key stays
// locked. Answers 0 or the child exit code of what failed.
int check_survivors(panel_runtime& rt) {
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> windows;
  dvu_pnl_wmg_list_controller::get_instance()->dvu_pnl_lst_get_list(windows);
  for (int f = 0; f < kFunctionCount; ++f) {
    for (const host::page_record& page : host::pages_of(f)) {
      if (page.contents == nullptr) {
        std::cerr << "faults: page " << page.contents_id << " of function " << f
                  << " has no contents\n";
        return kChildDeadPage;
      }
      bool listed = false;
      for (const DVU_PNL_WMG_WINDOW_TRAITS& w : windows)
        listed = listed || (w.contents_id == page.contents_id && w.function == f);
      if (!listed) {
        std::cerr << "faults: page " << page.contents_id << " of function " << f
                  << " has no window\n";
        return kChildDeadPage;
      }
      // A call into the page: a page freed behind the stack's back shows here under ASan.
      page.contents->dvc_pnl_ceh_lock();
      page.contents->dvc_pnl_ceh_unlock();
    }
  }
  // The top page still takes keys and time.
  rt.press(58);
  rt.press(57);
  rt.wait(1000);

  auto* proxy = dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance();
  for (int round = 0; round < kCloseRounds; ++round) {
    bool any = false;
    for (int f = 0; f < kFunctionCount; ++f) {
      const std::vector<host::page_record> pages = host::pages_of(f);
      for (auto it = pages.rbegin(); it != pages.rend(); ++it) {
        proxy->dvc_pnl_ceh_remove_contents_in_page_stack(it->contents_id, f);
        any = true;
      }
    }
    rt.drain();
    if (!any)
      break;
  }
  for (unsigned long bit = 1; bit <= DVC_PNL_CMN_ENUM_HARDKEY_TYPE_MONO_COLOR_KEY; bit <<= 1) {
    const auto type = static_cast<DVC_PNL_CMN_ENUM_HARDKEY_TYPE>(bit);
    if (const unsigned n = dvc_pnl_ceh_contents_hdl_get_hardkey_lock(type); n != 0) {
      std::cerr << "faults: hard key type 0x" << std::hex << bit << std::dec << " still locked "
                << n << " times with every page closed\n";
      return kChildLockCount;
    }
  }
  return 0;
}

// The body of a child: the file with the injection armed, then the checks. `point` nullptr runs
// the file without injection (the baseline).
int run_point(panel_runtime& rt, const std::string& file, const injection* point,
              const sweep_options& o) {
  machine::simulated_machine& m = machine::simulated_machine::instance();
  host::host_data_manager& dm = host::host_data_manager::instance();
  script_options s = sweep_script_options(o);
  std::size_t input = 0;
  std::optional<std::size_t> hit;  // where the armed call lands in the machine's log
  s.on_input = [&] {
    watchdog(o.hang_seconds);
    if (point != nullptr && point->kind == fault_kind::dm_read && input == 0)
      dm.fail_call(host::dm_op::get, point->read);
    if (point != nullptr && point->kind != fault_kind::dm_read && input == point->input) {
      hit = m.log().size() + point->call;
      if (point->kind == fault_kind::mediator)
        m.fail_call(point->call, kMediatorFailure);
      else
        m.fail_call_result(point->call, kFailedResult);
    }
    ++input;
  };
  std::ostringstream output;
  watchdog(o.hang_seconds);
  run_scenario_file(rt, file, s, output);
  // The same inputs make the same calls, so the armed call is the one the clean run named.
  if (hit && (*hit >= m.log().size() || m.log()[*hit].key != point->key ||
              m.log()[*hit].kind != point->verb)) {
    std::cerr << "faults: " << point->describe() << " did not land on that call\n";
    return kChildMissedPoint;
  }
  const std::string text = output.str();
  if (text.find(kTimerLoopTrace) != std::string::npos)
    return kChildTimerLoop;
  if (text.find(kPostingLoopTrace) != std::string::npos)
    return kChildPostingLoop;
  watchdog(o.hang_seconds);
  const int verdict = check_survivors(rt);
  watchdog(0);
  if (verdict == 0)
    rt.reset(o.model);  // the pages go, so that what they leaked shows as a leak at exit
  return verdict;
}

}  // namespace

int command_faults(const sweep_options& o, std::ostream& out) {
  panel_runtime rt;
  return run_faults(rt, o, out);
}

int run_faults(panel_runtime& rt, const sweep_options& o, std::ostream& out) {
  if (o.point >= 0 && o.files.size() != 1) {
    out << "faults: --point needs exactly one file\n";
    return 2;
  }
  if (std::string error = rt.reset(o.model); !error.empty()) {
    out << "faults: bad model: " << error << "\n";
    return 2;
  }
  // The points of data manager reads are named by their keys.
  host::host_data_manager::instance().log_reads(true);
  std::set<std::tuple<int, int, std::string>> covered;
  int passed = 0;
  int failed = 0;
  for (const std::string& file : o.files) {
    const clean_run clean = record_clean(rt, file, o);
    std::vector<injection> points = points_of(clean);
    if (o.point >= 0) {
      if (static_cast<std::size_t>(o.point) >= points.size()) {
        out << "faults: " << file << " has " << points.size() << " points\n";
        return 2;
      }
      const injection& p = points[static_cast<std::size_t>(o.point)];
      out << file << " point " << o.point << ": " << p.describe() << "\n";
      const int verdict = run_point(rt, file, &p, o);
      child_result r;
      r.exit_code = verdict;
      r.ok = verdict == 0;
      out << (r.ok ? "passed" : r.what()) << "\n";
      return r.ok ? 0 : 1;
    }
    std::vector<std::size_t> chosen;
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (!o.cover || covered.insert(points[i].identity()).second)
        chosen.push_back(i);
    }
    if (o.list) {
      for (std::size_t i : chosen)
        out << file << " point " << i << ": " << points[i].describe() << "\n";
      continue;
    }
    int file_failed = 0;
    const child_result base = run_isolated([&] { return run_point(rt, file, nullptr, o); }, false);
    if (!base.ok) {
      ++file_failed;
      out << "FAIL " << file << " without injection: " << base.what() << "\n";
    }
    for (std::size_t i : chosen) {
      const injection& p = points[i];
      const child_result r = run_isolated([&] { return run_point(rt, file, &p, o); }, false);
      if (!r.ok) {
        ++file_failed;
        out << "FAIL " << file << " point " << i << " (" << p.describe() << "): " << r.what()
            << "\n  again: panelsim faults " << file << " --point " << i << "\n";
      }
    }
    out << file << ": " << chosen.size() << " of " << points.size() << " injection points run, "
        << file_failed << " failed\n";
    failed += file_failed;
    passed += static_cast<int>(chosen.size()) + 1 - file_failed;
  }
  if (o.list)
    return 0;
  out << passed << " passed, " << failed << " failed\n";
  return failed == 0 ? 0 : 1;
}

}  // namespace orvanta::sim
