// The monkey: seeded random input streams per screen, the checks after each step, and the
// cutting down of a failing stream to the smallest scenario that still fails.
#include "monkey.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "isolated.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/sim/names.h"
#include "orvanta/sim/panel_runtime.h"
#include "orvanta/sim/scenario_syntax.h"

namespace orvanta::sim {
namespace {

constexpr int kMaintenanceFunction = 11;
constexpr int kFunctionCount = 37;  // function ids 0 to 36
constexpr int kKeyRelease = 87;
// Event source sets are keyed (0, n) at the top, as the scenario language builds them.
constexpr std::size_t kSourceTopLen = 2;
// Traces that name a loop the panel would never leave on its own.
constexpr std::string_view kTimerLoopTrace = "timer loop stopped";
constexpr std::string_view kPostingLoopTrace = "posting loop";

using entry = std::pair<std::vector<unsigned long>, scenario_value>;

// One input of a monkey run, replayable as one scenario line.
struct step {
  enum kind_t { key, hold, keyboard, event, wait } kind = key;
  int key_id = 0;
  bool remote = false;
  long ms = 0;
  long code = 0;  // keyboard: the code, -1 a release
  int event_id = 0;
  std::vector<entry> entries;
};

std::string line_of(const step& s) {
  switch (s.kind) {
    case step::key:
      return "key " + key_name(s.key_id) + (s.remote ? " remote" : "");
    case step::hold:
      return "hold " + key_name(s.key_id) + " " + std::to_string(s.ms) +
             (s.remote ? " remote" : "");
    case step::keyboard:
      return s.code < 0 ? "keyboard release" : "keyboard " + std::to_string(s.code);
    case step::event: {
      std::string out = "event " + std::to_string(s.event_id);
      for (const entry& e : s.entries)
        out += " " + dotted(e.first) + "=" + e.second.written();
      return out;
    }
    case step::wait:
      return "wait " + std::to_string(s.ms);
  }
  return {};
}

// Carries out a step as `panelsim script` carries out its line.
void apply(panel_runtime& rt, const step& s) {
  switch (s.kind) {
    case step::key:
      rt.press(s.key_id, s.remote);
      break;
    case step::hold:
      rt.press(s.key_id, s.remote);
      rt.wait(static_cast<unsigned long>(s.ms));
      rt.press(kKeyRelease, s.remote);
      break;
    case step::keyboard:
      rt.keyboard(s.code < 0 ? 0 : s.code, s.code < 0);
      break;
    case step::event: {
      dvc_pnl_evh_panel_event event(s.event_id);
      if (!s.entries.empty())
        event.dvc_pnl_evh_set_event_source_valueset(build_valueset(s.entries, kSourceTopLen));
      rt.send_event(event);
      break;
    }
    case step::wait:
      rt.wait(static_cast<unsigned long>(s.ms));
      break;
  }
}

// ---- the random stream ----

// Keys of the panel: the named ones, the digits, the flexible keys and the one touch and program
// keys.
const std::vector<int>& key_pool() {
  static const std::vector<int> keys = [] {
    std::vector<int> k = {
        38, 40, 41, 42, 43, 57, 58, 59, 60, 61, 81, 87, host::kKeyFlexLeft, host::kKeyFlexRight};
    for (int d = 45; d <= 54; ++d)
      k.push_back(d);
    for (int p = 62; p <= 85; ++p)
      k.push_back(p);
    return k;
  }();
  return keys;
}

class stream {
 public:
  stream(unsigned long seed, int id) {
    std::seed_seq seq{static_cast<unsigned>(seed), static_cast<unsigned>(seed >> 32),
                      static_cast<unsigned>(id)};
    rng_.seed(seq);
  }

  // Below n, the same on every standard library (unlike the distributions).
  int below(int n) { return static_cast<int>(rng_() % static_cast<unsigned long>(n)); }
  template <typename T>
  const T& pick(const std::vector<T>& v) {
    return v[static_cast<std::size_t>(below(static_cast<int>(v.size())))];
  }

  step next(const std::vector<int>& events) {
    step s;
    const int roll = below(100);
    if (roll < 50) {
      s.kind = step::key;
      s.key_id = pick(key_pool());
      s.remote = below(10) == 0;
    } else if (roll < 58) {
      s.kind = step::hold;
      s.key_id = pick(key_pool());
      s.ms = pick(std::vector<long>{100, 400, 800, 1500, 3000});
      s.remote = below(10) == 0;
    } else if (roll < 62) {
      s.kind = step::keyboard;
      s.code = pick(std::vector<long>{-1, 8, 13, 27, '0', '5', '9', 'a', 'Z', ' ', 200});
    } else if (roll < 82 && !events.empty()) {
      s.kind = step::event;
      s.event_id = pick(events);
      s.entries = source_for(s.event_id);
    } else {
      s.kind = step::wait;
      s.ms = pick(std::vector<long>{0, 10, 100, 500, 1000, 3000, 10000, 60000});
    }
    return s;
  }

 private:
  // A source set of the kind the framework sends: a few of the entries the screens read, with
  // values from small plausible sets, sometimes nothing at all, sometimes an entry of the wrong
  // type or a count that promises more than the set holds.
  std::vector<entry> source_for(int event_id) {
    std::vector<entry> out;
    if (below(5) == 0)
      return out;
    auto num = [](long n) { return scenario_value{false, n, {}}; };
    auto text = [](const std::string& t) { return scenario_value{true, 0, t}; };
    auto any_int = [&](std::vector<long> values) {
      return below(8) == 0 ? text("x") : num(pick(values));
    };
    switch (event_id) {
      case DVC_PNL_CEH_EVENT_TIMER:
        out.push_back({{0, DVC_PNL_CEH_NODE_TIMER_INFO, DVC_PNL_CEH_NODE_TIMER_HANDLE},
                       any_int({0, 1, 2, 3, 5, 10, 50})});
        // An expiry carries the period its timer was started with, and the proxy restarts the
        // timer with it: a period of 0 for a timer that runs with another would be a 0 ms loop
        // no framework sends. Real 0 ms timers expire through the clock advances.
        out.push_back({{0, DVC_PNL_CEH_NODE_TIMER_INFO, DVC_PNL_CEH_NODE_TIMER_PERIOD},
                       any_int({100, 500, 1000})});
        break;
      case DVC_PNL_CEH_EVENT_USB_KEYBOARD:
        out.push_back({{0, host::kKeyboardCodeNode}, any_int({8, 13, 27, 48, 53, 65})});
        if (below(3) == 0)
          out.push_back({{0, host::kKeyboardReleaseNode}, num(1)});
        break;
      case 1044:  // hard key lock word
        out.push_back({{0, 2883, 2884},
                       any_int({0, 0x80000001L, 0x40000001L, 0x20000000L, 0x8001ffffL, 0x4001ffffL,
                                0x80000040L})});
        break;
      case 113:  // message lists of the copy (group 1058) and box print (1077) home screens
      case 117: {
        const unsigned long group = event_id == 113 ? 1058 : 1077;
        const long count = pick(std::vector<long>{0, 1, 2, 3});
        // Now and then the count promises a message the list does not hold.
        const long listed = below(4) == 0 ? std::max(0L, count - 1) : count;
        out.push_back({{0, group, 1059}, any_int({count})});
        for (long i = 0; i < listed; ++i) {
          out.push_back({{0, group, 1060, static_cast<unsigned long>(i), 1061},
                         num(pick(std::vector<long>{0, 1, 5, 12, 30, 61, 99, -1}))});
          if (below(2) == 0)
            out.push_back(
                {{0, group, 1060, static_cast<unsigned long>(i), 1062}, any_int({0, 1, 7, 100})});
        }
        break;
      }
      default:
        break;
    }
    // Entries some handlers read from any event: the operation source, the original sensors,
    // the option network status.
    const int extra = below(3);
    for (int i = 0; i < extra; ++i) {
      switch (below(4)) {
        case 0:
          add_once(out, {{0, 4165}, any_int({1, 2})});
          break;
        case 1:
          add_once(out, {{0, 1210, 1211}, any_int({0, 1})});
          add_once(out, {{0, 1210, 1212}, any_int({0, 1})});
          break;
        case 2:
          add_once(out, {{0, 3362, 714}, any_int({0, 1, 2})});
          break;
        default:
          add_once(out, {{0, static_cast<unsigned long>(event_id)}, any_int({0, 1, -1})});
          break;
      }
    }
    return out;
  }

  static void add_once(std::vector<entry>& out, entry e) {
    for (const entry& have : out) {
      const auto& a = have.first;
      const auto& b = e.first;
      const std::size_t n = std::min(a.size(), b.size());
      // The same path, or one the prefix of the other, cannot both be in a set.
      if (std::equal(a.begin(), a.begin() + static_cast<long>(n), b.begin()))
        return;
    }
    out.push_back(std::move(e));
  }

  std::mt19937_64 rng_;
};

// ---- one run ----

struct run_plan {
  int id = 0;
  int function = 1;
  int base = CID_01_01_N1;
  std::vector<step> steps;
};

std::size_t open_page_count() {
  std::size_t n = 0;
  for (int f = 0; f < kFunctionCount; ++f)
    n += host::pages_of(f).size();
  return n;
}

// 0 while the run is healthy, else the child exit code that names what went wrong.
int check(const monkey_options& o) {
  host::trace_sink& sink = host::trace_sink::instance();
  int verdict = 0;
  for (const std::string& m : sink.messages()) {
    if (m.find(kTimerLoopTrace) != std::string::npos)
      verdict = kChildTimerLoop;
    else if (m.find(kPostingLoopTrace) != std::string::npos && verdict == 0)
      verdict = kChildPostingLoop;
  }
  sink.clear();
  if (verdict != 0)
    return verdict;
  if (open_page_count() > static_cast<std::size_t>(o.stack_bound))
    return kChildStackBound;
  return 0;
}

// The body of a child: the screens open, then the steps, each under the watchdog.
int run_plan_in_child(panel_runtime& rt, const run_plan& plan, const monkey_options& o) {
  watchdog(o.hang_seconds);
  rt.reset(o.model);
  rt.set_function(plan.function);
  rt.open(plan.base);
  if (plan.id != plan.base)
    rt.open(plan.id);
  if (int c = check(o); c != 0)
    return c;
  for (const step& s : plan.steps) {
    watchdog(o.hang_seconds);
    apply(rt, s);
    if (int c = check(o); c != 0)
      return c;
  }
  watchdog(0);
  // Pages go before the process ends, so that what they leak shows as a leak.
  rt.reset(o.model);
  return 0;
}

bool same_failure(const child_result& a, const child_result& b) {
  return a.hang == b.hang && a.signal == b.signal && a.exit_code == b.exit_code;
}

// Delta debugging over the steps: drops chunks, then single steps, as long as the run still
// fails the same way, within the trial budget.
std::vector<step> cut_down(panel_runtime& rt, run_plan plan, const child_result& failure,
                           const monkey_options& o) {
  int trials = 0;
  auto fails = [&](const std::vector<step>& steps) {
    ++trials;
    run_plan p = plan;
    p.steps = steps;
    const child_result r = run_isolated([&] { return run_plan_in_child(rt, p, o); }, true);
    return same_failure(r, failure);
  };
  std::vector<step> steps = plan.steps;
  // The steps after the failing one never ran: find the shortest failing prefix first.
  std::size_t lo = 0;
  std::size_t hi = steps.size();
  while (lo < hi && trials < o.max_trials) {
    const std::size_t mid = (lo + hi) / 2;
    if (fails(std::vector<step>(steps.begin(), steps.begin() + static_cast<long>(mid))))
      hi = mid;
    else
      lo = mid + 1;
  }
  steps.resize(hi);
  std::size_t chunk = std::max<std::size_t>(1, steps.size() / 2);
  while (!steps.empty() && trials < o.max_trials) {
    bool removed = false;
    for (std::size_t at = 0; at < steps.size() && trials < o.max_trials;) {
      std::vector<step> fewer = steps;
      fewer.erase(fewer.begin() + static_cast<long>(at),
                  fewer.begin() + static_cast<long>(std::min(at + chunk, fewer.size())));
      if (fails(fewer)) {
        steps = std::move(fewer);
        removed = true;
      } else {
        at += chunk;
      }
    }
    if (!removed) {
      if (chunk == 1)
        break;
      chunk = std::max<std::size_t>(1, chunk / 2);
    }
  }
  return steps;
}

std::string write_scenario(const run_plan& plan, const std::vector<step>& steps,
                           const child_result& failure, const monkey_options& o) {
  std::ostringstream text;
  text << "# panelsim monkey --seed " << o.seed << " --events " << o.events << " --id "
       << contents_name(plan.id);
  if (o.stack_bound != monkey_options{}.stack_bound)
    text << " --stack-bound " << o.stack_bound;
  text << "\n";
  text << "# " << failure.what() << "\n";
  text << "function " << plan.function << "\n";
  text << "open " << contents_name(plan.base) << "\n";
  if (plan.id != plan.base)
    text << "open " << contents_name(plan.id) << "\n";
  for (const step& s : steps)
    text << line_of(s) << "\n";
  if (failure.exit_code == kChildTimerLoop)
    text << "# Holds while the fault is there: the proxy had to stop a timer loop.\n"
         << "expect trace \"" << kTimerLoopTrace << "\"\n";
  if (failure.exit_code == kChildStackBound)
    text << "# The pages now open exceed the bound of " << o.stack_bound << ".\nshow\n";
  std::filesystem::create_directories(o.out_dir);
  const std::string path =
      (std::filesystem::path(o.out_dir) /
       ("monkey-" + contents_name(plan.id) + "-" + std::to_string(o.seed) + ".scn"))
          .string();
  std::ofstream file(path);
  file << text.str();
  return file ? path : std::string();
}

}  // namespace

int base_screen_of(int function) {
  return function == kMaintenanceFunction ? CID_MNT_000 : first_screen_of(function);
}

std::vector<int> routed_ids() {
  std::vector<int> ids;
  for (int id = 0; id <= DVC_PNL_CEH_CONTENTS_ID_MAX; ++id) {
    if (class_of(id) != "none")
      ids.push_back(id);
  }
  return ids;
}

int command_monkey(const monkey_options& o, std::ostream& out) {
  panel_runtime rt;
  return run_monkey(rt, o, out);
}

int run_monkey(panel_runtime& rt, const monkey_options& o, std::ostream& out) {
  if (std::string error = rt.reset(o.model); !error.empty()) {
    out << "monkey: bad model: " << error << "\n";
    return 2;
  }
  const std::vector<int> ids = o.ids.empty() ? routed_ids() : o.ids;
  const std::vector<int> events =
      host::subscriptions_of(dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance());
  std::vector<run_plan> plans;
  for (int id : ids) {
    run_plan plan;
    plan.id = id;
    plan.function = area_function(id);
    plan.base = base_screen_of(plan.function);
    stream random(o.seed, id);
    for (int i = 0; i < o.events; ++i)
      plan.steps.push_back(random.next(events));
    plans.push_back(std::move(plan));
  }
  int passed = 0;
  int failed = 0;
  const std::size_t batch = static_cast<std::size_t>(std::max(1, o.batch));
  for (std::size_t first = 0; first < plans.size(); first += batch) {
    const std::size_t last = std::min(plans.size(), first + batch);
    // Many ids share one child, which is far cheaper; a batch that fails runs again one id a
    // child, to name the ids that fail.
    if (last - first > 1) {
      const child_result r = run_isolated(
          [&] {
            for (std::size_t i = first; i < last; ++i) {
              if (const int verdict = run_plan_in_child(rt, plans[i], o); verdict != 0)
                return verdict;
            }
            return 0;
          },
          true);
      if (r.ok) {
        passed += static_cast<int>(last - first);
        continue;
      }
    }
    for (std::size_t i = first; i < last; ++i) {
      const run_plan& plan = plans[i];
      const child_result r = run_isolated([&] { return run_plan_in_child(rt, plan, o); }, false);
      if (r.ok) {
        ++passed;
        continue;
      }
      ++failed;
      out << "FAIL " << contents_name(plan.id) << " (" << plan.id << ") seed " << o.seed << ": "
          << r.what() << "\n";
      const std::vector<step> steps = cut_down(rt, plan, r, o);
      const std::string file = write_scenario(plan, steps, r, o);
      out << "  cut down to " << steps.size() << " of " << plan.steps.size()
          << " steps: " << (file.empty() ? "the scenario file could not be written" : file) << "\n";
    }
  }
  out << "monkey: seed " << o.seed << ", " << o.events << " events per id\n";
  out << passed << " passed, " << failed << " failed\n";
  return failed == 0 ? 0 : 1;
}

}  // namespace orvanta::sim
