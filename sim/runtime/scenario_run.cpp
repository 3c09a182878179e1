// Scenario files: reading lines, set-up and input commands, and the report of a run.
#include "scenario_run.h"

#include <chrono>
#include <filesystem>
#include <limits>
#include <sstream>

#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "orvanta/host/dm_key_registry.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/machine/setting_verdicts.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/sim/names.h"

namespace orvanta::sim {
namespace {

constexpr int kIncludeDepth = 16;
constexpr int kKeyRelease = 87;
constexpr std::size_t kEventSourceTopLen = 2;  // source sets hold keys (0, n) at the top
constexpr int kVerboseTraceLevel = 2;
// One wait may let at most a day pass: a repeating timer makes every due time a stop.
constexpr long kLongestWaitMs = 24L * 60 * 60 * 1000;

long parse_time(const std::string& token) {
  const long ms = parse_long(token, "time");
  if (ms < 0)
    throw scenario_error("time cannot go back");
  if (ms > kLongestWaitMs)
    throw scenario_error("one wait lets at most a day (86400000 ms) pass");
  return ms;
}

std::string trim(const std::string& s) {
  const auto first = s.find_first_not_of(" \t\r");
  if (first == std::string::npos)
    return {};
  const auto last = s.find_last_not_of(" \t\r");
  return s.substr(first, last - first + 1);
}

int parse_key_token(const std::string& token) {
  if (auto key = parse_key(token))
    return *key;
  throw scenario_error("unknown key " + token);
}

const std::string& dm_key(const std::string& name) {
  const host::dm_key_info* info = host::find_dm_key(name);
  if (info == nullptr)
    throw scenario_error("unknown data manager key " + name);
  return *info->key;
}

}  // namespace

int parse_id(const std::string& token) {
  if (auto id = parse_contents_id(token))
    return *id;
  throw scenario_error("unknown contents id " + token);
}

int parse_int(const std::string& token, const char* what) {
  const long n = parse_long(token, what);
  if (n < std::numeric_limits<int>::min() || n > std::numeric_limits<int>::max())
    throw scenario_error(std::string(what) + " out of range: " + token);
  return static_cast<int>(n);
}

void need(const std::vector<std::string>& t, std::size_t count, const char* usage) {
  if (t.size() < count)
    throw scenario_error(std::string("usage: ") + usage);
}

scenario_run::scenario_run(panel_runtime& runtime, const script_options& options, std::ostream& out)
    : rt_(runtime), options_(options), out_(out) {}

void scenario_run::run_file(const std::string& path, const std::string& shown, int depth) {
  std::string text;
  if (std::string error = read_file(path, text); !error.empty())
    throw line_failure{shown, 0, "", error};
  const std::string dir = std::filesystem::path(path).parent_path().string();
  std::istringstream lines(text);
  std::string line;
  int number = 0;
  while (std::getline(lines, line)) {
    ++number;
    const std::string trimmed = trim(line);
    try {
      const std::vector<std::string> tokens = tokenize(line);
      if (tokens.empty())
        continue;
      if (options_.verbose)
        out_ << shown << ":" << number << ": " << trimmed << "\n";
      if (tokens[0] == "include") {
        need(tokens, 2, "include <file>");
        if (depth >= kIncludeDepth)
          throw scenario_error("includes nest deeper than " + std::to_string(kIncludeDepth));
        const std::string name = is_quoted(tokens[1]) ? unquote(tokens[1]) : tokens[1];
        const std::string included = (std::filesystem::path(dir) / name).string();
        if (!std::filesystem::is_regular_file(included))
          throw scenario_error("cannot open " + included);
        run_file(included, included, depth + 1);
        continue;
      }
      execute(tokens, dir, depth);
      harvest();
    } catch (const std::exception& e) {
      // Anything the layers below throw on odd input fails the line, not the program.
      harvest();
      line_failure failure{shown, number, trimmed, e.what()};
      if (!options_.keep_going)
        throw failure;
      if (failed_lines_++ == 0)
        first_failure_ = std::move(failure);
    }
  }
}

void scenario_run::execute(const std::vector<std::string>& t, const std::string& dir, int) {
  const std::string& cmd = t[0];
  if (options_.skip_expectations && (cmd == "expect" || cmd == "show"))
    return;
  if (cmd == "expect") {
    expect(t, dir);
  } else if (cmd == "show") {
    show();
  } else if (cmd == "machine") {
    machine_command(t);
  } else if (cmd == "reply") {
    reply_command(t);
  } else if (cmd == "dm") {
    dm_command(t);
  } else if (cmd == "gui") {
    gui_command(t);
  } else if (cmd == "function") {
    need(t, 2, "function <F>");
    mark_input();
    if (rt_.set_function(parse_int(t[1], "function")) != 0)
      throw scenario_error("the page stack refused function " + t[1]);
  } else if (cmd == "open") {
    need(t, 2, "open <ID>");
    const int id = parse_id(t[1]);
    mark_input();
    rt_.open(id);
  } else if (cmd == "close") {
    need(t, 2, "close <ID>");
    const int id = parse_id(t[1]);
    mark_input();
    if (!rt_.close(id))
      throw scenario_error("no page " + t[1] + " is open");
  } else if (cmd == "key") {
    need(t, 2, "key <K> [remote]");
    const int key = parse_key_token(t[1]);
    const bool remote = t.size() > 2 && t[2] == "remote";
    if (t.size() > 3 || (t.size() == 3 && !remote))
      throw scenario_error("usage: key <K> [remote]");
    mark_input();
    rt_.press(key, remote);
  } else if (cmd == "hold") {
    need(t, 3, "hold <K> <ms> [remote]");
    const int key = parse_key_token(t[1]);
    const long ms = parse_time(t[2]);
    const bool remote = t.size() > 3 && t[3] == "remote";
    if (t.size() > 4 || (t.size() == 4 && !remote))
      throw scenario_error("usage: hold <K> <ms> [remote]");
    mark_input();
    rt_.press(key, remote);
    rt_.wait(static_cast<unsigned long>(ms));
    rt_.press(kKeyRelease, remote);
  } else if (cmd == "keyboard") {
    keyboard_command(t);
  } else if (cmd == "event") {
    event_command(t);
  } else if (cmd == "wait") {
    need(t, 2, "wait <ms>");
    const long ms = parse_time(t[1]);
    mark_input();
    rt_.wait(static_cast<unsigned long>(ms));
  } else {
    throw scenario_error("unknown command " + cmd);
  }
}

// ---- set-up ----

void scenario_run::machine_command(const std::vector<std::string>& t) {
  machine::simulated_machine& m = machine::simulated_machine::instance();
  if (t.size() >= 2 && t[1] == "fail") {
    need(t, 4, "machine fail <get|set|invoke> <path> [<code>]");
    machine::verb kind;
    if (t[2] == "get") {
      kind = machine::verb::get;
    } else if (t[2] == "set") {
      kind = machine::verb::set;
    } else if (t[2] == "invoke") {
      kind = machine::verb::invoke;
    } else {
      throw scenario_error("unknown verb " + t[2] + " (get, set or invoke)");
    }
    const std::string path = dotted(parse_path(t[3]));
    const int code = t.size() > 4 ? parse_int(t[4], "code") : 3;
    if (t.size() > 5)
      throw scenario_error("usage: machine fail <get|set|invoke> <path> [<code>]");
    m.fail_next(kind, path, code);
    return;
  }
  if (t.size() >= 2 && t[1] == "conflict") {
    if (t.size() != 6)
      throw scenario_error("usage: machine conflict <setting path> <value> <changed path> <value>");
    machine::setting_conflict conflict;
    conflict.setting = dotted(parse_path(t[2]));
    conflict.value = parse_int(t[3], "value");
    conflict.changed = t[4];
    conflict.change_value = parse_int(t[5], "value");
    try {
      machine::add_setting_conflict(m, conflict);
    } catch (const std::invalid_argument& e) {
      throw scenario_error(e.what());
    }
    return;
  }
  if (t.size() != 4 || t[2] != "=")
    throw scenario_error("usage: machine <path> = <value>");
  const std::string path = dotted(parse_path(t[1]));
  const scenario_value value = parse_value(t[3]);
  if (auto existing = m.node(path)) {
    dvc_pnl_cmm_valueset children;
    if (existing->dvc_pnl_cmm_get_valueset(children) == 0 && children.dvc_pnl_cmm_size() != 0)
      throw scenario_error("node " + path + " has children");
  }
  m.set_node(path, value.to_cmm());
}

void scenario_run::reply_command(const std::vector<std::string>& t) {
  need(t, 3, "reply <path> <node>=<value> ...");
  const std::vector<unsigned long> command = parse_path(t[1]);
  std::vector<std::pair<std::vector<unsigned long>, scenario_value>> entries;
  for (std::size_t i = 2; i < t.size(); ++i) {
    auto [node, value] = split_entry(t[i]);
    std::vector<unsigned long> full = command;
    // Nodes below the command key are written without the leading 0 of a full path.
    std::vector<unsigned long> below = parse_path("0." + node);
    full.insert(full.end(), below.begin() + 1, below.end());
    entries.emplace_back(std::move(full), parse_value(value));
  }
  machine::simulated_machine::instance().script_next_response(
      dotted(command), build_valueset(entries, command.size() + 1));
}

void scenario_run::dm_command(const std::vector<std::string>& t) {
  static constexpr const char* kUsage =
      "dm app|func <F>|page <F> <ID>|cross <ID> <KEY> (= <value> | set <path>=<value> ... | "
      "remove)";
  need(t, 3, kUsage);
  host::host_data_manager& dm = host::host_data_manager::instance();
  std::size_t at = 2;
  int function = 0;
  int id = 0;
  const std::string& scope = t[1];
  if (scope == "func" || scope == "page") {
    need(t, 4, kUsage);
    function = parse_int(t[2], "function");
    at = 3;
    if (scope == "page") {
      need(t, 5, kUsage);
      id = parse_id(t[3]);
      at = 4;
    }
  } else if (scope == "cross") {
    id = parse_id(t[2]);
    at = 3;
  } else if (scope != "app") {
    throw scenario_error(std::string("usage: ") + kUsage);
  }
  need(t, at + 2, kUsage);
  const std::string& key = dm_key(t[at]);
  int ret;
  if (t[at + 1] == "remove" && t.size() == at + 2) {
    if (scope == "app") {
      ret = dm.dvc_pnl_pdm_remove_by_application_scope(key);
    } else if (scope == "func") {
      ret = dm.dvc_pnl_pdm_remove_by_function_scope(key, function);
    } else if (scope == "page") {
      ret = dm.dvc_pnl_pdm_remove_by_page_scope(key, function, id);
    } else {
      ret = dm.dvc_pnl_pdm_remove_by_cross_function_scope(key, id);
    }
  } else {
    dvc_pnl_cmm_value value;
    if (t[at + 1] == "set" && t.size() > at + 2) {
      // A value set, nested as a source set of an event is.
      std::vector<std::pair<std::vector<unsigned long>, scenario_value>> entries;
      for (std::size_t i = at + 2; i < t.size(); ++i) {
        auto [path, leaf] = split_entry(t[i]);
        entries.emplace_back(parse_path(path), parse_value(leaf));
      }
      value.dvc_pnl_cmm_set_valueset(build_valueset(entries, kEventSourceTopLen));
    } else if (t.size() == at + 3 && t[at + 1] == "=") {
      value = parse_value(t[at + 2]).to_cmm();
    } else {
      throw scenario_error(std::string("usage: ") + kUsage);
    }
    if (scope == "app") {
      ret = dm.dvc_pnl_pdm_set_by_application_scope(key, value);
    } else if (scope == "func") {
      ret = dm.dvc_pnl_pdm_set_by_function_scope(key, function, value);
    } else if (scope == "page") {
      ret = dm.dvc_pnl_pdm_set_by_page_scope(key, function, id, value);
    } else {
      ret = dm.dvc_pnl_pdm_set_by_cross_function_scope(key, id, value);
    }
  }
  if (ret != 0)
    throw scenario_error("the data manager refused, code " + std::to_string(ret));
}

void scenario_run::gui_command(const std::vector<std::string>& t) {
  if (t.size() < 3 || t.size() > 4 || t[1] != "notify")
    throw scenario_error("usage: gui notify <type> [<repeat kind>] | gui notify parts");
  const std::optional<top_window> top = rt_.top();
  if (!top)
    throw scenario_error("no page is open");
  host::gui_script* script = host::gui_of(top->contents_id, top->function);
  if (script == nullptr)
    throw scenario_error("the top page has no components");
  if (t[2] == "parts" && t.size() == 3) {
    script->next_notify.reset();
    return;
  }
  DVU_PNL_GCP_NOTIFY notify{};
  notify.type = parse_int(t[2], "notify type");
  notify.repeat_kind = t.size() > 3 ? parse_int(t[3], "repeat kind") : 0;
  if (notify.repeat_kind < 0 || notify.repeat_kind > 4)
    throw scenario_error("the repeat kind is 0 to 4");
  script->next_notify = notify;
}

// ---- input ----

void scenario_run::event_command(const std::vector<std::string>& t) {
  need(t, 2, "event <id> [<path>=<value> ...]");
  const int id = parse_int(t[1], "event id");
  std::vector<std::pair<std::vector<unsigned long>, scenario_value>> entries;
  for (std::size_t i = 2; i < t.size(); ++i) {
    auto [path, value] = split_entry(t[i]);
    entries.emplace_back(parse_path(path), parse_value(value));
  }
  dvc_pnl_evh_panel_event event(id);
  if (!entries.empty())
    event.dvc_pnl_evh_set_event_source_valueset(build_valueset(entries, kEventSourceTopLen));
  mark_input();
  if (!rt_.send_event(event))
    throw scenario_error("the panel is not subscribed to event " + t[1]);
}

void scenario_run::keyboard_command(const std::vector<std::string>& t) {
  if (t.size() != 2)
    throw scenario_error("usage: keyboard <K>");
  const std::string& k = t[1];
  bool release = false;
  long code = 0;
  if (k == "release") {
    release = true;
  } else if (k == "enter") {
    code = 13;
  } else if (k == "escape") {
    code = 27;
  } else if (k == "backspace") {
    code = 8;
  } else if (is_quoted(k)) {
    const std::string c = unquote(k);
    if (c.size() != 1)
      throw scenario_error("a quoted keyboard key is one character");
    code = static_cast<unsigned char>(c[0]);
  } else {
    code = parse_long(k, "keyboard code");
  }
  mark_input();
  rt_.keyboard(code, release);
}

// ---- windows ----

void scenario_run::mark_input() {
  harvest();
  if (options_.on_input)
    options_.on_input();
  machine_mark_ = machine::simulated_machine::instance().log().size();
  opened_mark_ = rt_.opened().size();
  frame_mark_ = host::devices().frames.size();
  command_mark_ = host::devices().panel_commands.size();
  posted_mark_ = posted_.size();
}

void scenario_run::harvest() {
  for (auto& e : host::take_posted_log())
    posted_.push_back(std::move(e));
  host::trace_sink& sink = host::trace_sink::instance();
  for (auto& line : sink.lines()) {
    if (options_.verbose && line.level <= kVerboseTraceLevel)
      out_ << "  trace[" << line.level << "] " << line.message << "\n";
    traces_.push_back(std::move(line));
  }
  sink.clear();
}

// ---- files ----

file_outcome run_scenario_file(panel_runtime& runtime, const std::string& file,
                               const script_options& options, std::ostream& out) {
  const auto start = std::chrono::steady_clock::now();
  file_outcome outcome;
  outcome.file = file;
  auto finish = [&] {
    outcome.seconds =
        std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    return outcome;
  };
  const std::string model_error = runtime.reset(options.model);
  if (!model_error.empty()) {
    outcome.reason = "bad model: " + model_error;
    outcome.report = "FAIL " + file + ":0:  -- " + outcome.reason;
    return finish();
  }
  try {
    scenario_run run(runtime, options, out);
    run.run_file(file, file, 0);
    outcome.failed_lines = run.failed_lines();
    outcome.passed = outcome.failed_lines == 0;
    if (outcome.passed) {
      outcome.report = "PASS " + file;
    } else {
      const line_failure& f = run.first_failure();
      outcome.reason = f.message;
      outcome.report = "FAIL " + f.file + ":" + std::to_string(f.line) + ": " + f.text + " -- " +
                       f.message + " (" + std::to_string(outcome.failed_lines) + " lines failed)";
    }
  } catch (const line_failure& f) {
    outcome.reason = f.message;
    outcome.report =
        "FAIL " + f.file + ":" + std::to_string(f.line) + ": " + f.text + " -- " + f.message;
  }
  return finish();
}

}  // namespace orvanta::sim
