// Scenario expectations: what they look at, and what they report when they do not hold.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "orvanta/host/dm_key_registry.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/sim/names.h"
#include "scenario_run.h"

namespace orvanta::sim {
namespace {

constexpr int kEventLockWord = 1044;
constexpr int kPartList = 64;
const std::vector<unsigned long> kLockWordPath = {0, 2883, 2884};

std::string id_text(int id) {
  return contents_name(id) + " (" + std::to_string(id) + ")";
}

std::string join(const std::vector<std::string>& items, const char* empty) {
  if (items.empty())
    return empty;
  std::string out;
  for (const std::string& s : items)
    out += (out.empty() ? "" : " ") + s;
  return out;
}

std::string hex(unsigned long word) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "0x%lx", word & 0xffffffffUL);
  return buf;
}

std::vector<DVU_PNL_WMG_WINDOW_TRAITS> all_windows() {
  std::vector<DVU_PNL_WMG_WINDOW_TRAITS> list;
  dvu_pnl_wmg_list_controller::get_instance()->dvu_pnl_lst_get_list(list);
  return list;
}

dvu_pnl_gcp_parts* top_part(panel_runtime& rt, int part_id) {
  const std::optional<top_window> top = rt.top();
  if (!top)
    throw expectation_failed("no page is open");
  for (auto& [id, part] : host::parts_of(top->contents_id, top->function)) {
    if (id == part_id)
      return part;
  }
  throw expectation_failed(contents_name(top->contents_id) + " has no part " +
                           std::to_string(part_id));
}

dvu_pnl_gcp_list* top_list(panel_runtime& rt) {
  auto* list = dynamic_cast<dvu_pnl_gcp_list*>(top_part(rt, kPartList));
  if (list == nullptr)
    throw expectation_failed("part 64 of the top page is not a list");
  return list;
}

// Compares attribute `n` of a part with a value: an integer attribute, or a string attribute
// when the value is quoted.
void check_attribute(const dvu_pnl_gcp_parts& part, int n, const scenario_value& want,
                     const std::string& what) {
  if (want.is_string) {
    std::string s;
    if (part.dvu_pnl_gcp_get_str_val(n, s) != 0)
      throw expectation_failed(what + " has no string attribute " + std::to_string(n));
    if (s != want.text)
      throw expectation_failed(what + " string attribute " + std::to_string(n) + " is \"" + s +
                               "\"");
    return;
  }
  int v = 0;
  if (part.dvu_pnl_gcp_get_int_val(n, v) != 0)
    throw expectation_failed(what + " has no attribute " + std::to_string(n));
  if (v != want.number)
    throw expectation_failed(what + " attribute " + std::to_string(n) + " is " + std::to_string(v));
}

}  // namespace

void scenario_run::expect(const std::vector<std::string>& t, const std::string& dir) {
  need(t, 2, "expect <what> ...");
  const std::string& what = t[1];
  machine::simulated_machine& m = machine::simulated_machine::instance();

  if (what == "top") {
    need(t, 3, "expect top <ID>");
    const int id = parse_id(t[2]);
    const std::optional<top_window> top = rt_.top();
    if (!top)
      throw expectation_failed("no page is open");
    if (top->contents_id != id)
      throw expectation_failed("the top page is " + id_text(top->contents_id));
  } else if (what == "open" || what == "closed") {
    need(t, 3, "expect open|closed <ID>");
    const int id = parse_id(t[2]);
    const auto windows = all_windows();
    const bool open = std::any_of(windows.begin(), windows.end(),
                                  [id](const auto& w) { return w.contents_id == id; });
    if (open != (what == "open"))
      throw expectation_failed(open ? "it is open" : "it is not open");
  } else if (what == "stack") {
    std::vector<int> want;
    for (std::size_t i = 2; i < t.size(); ++i)
      want.push_back(parse_id(t[i]));
    std::vector<int> have;
    std::vector<std::string> names;
    for (const host::page_record& p : rt_.stack()) {
      have.push_back(p.contents_id);
      names.push_back(contents_name(p.contents_id));
    }
    if (have != want)
      throw expectation_failed("the stack is " + join(names, "empty"));
  } else if (what == "page") {
    expect_page(t);
  } else if (what == "buzzer") {
    need(t, 3, "expect buzzer <pattern> ... | none");
    std::vector<int> want;
    if (!(t.size() == 3 && t[2] == "none")) {
      for (std::size_t i = 2; i < t.size(); ++i)
        want.push_back(parse_int(t[i], "pattern"));
    }
    const auto& all = host::devices().buzzer;
    std::vector<int> have(all.begin() + static_cast<std::ptrdiff_t>(buzzer_seen_), all.end());
    buzzer_seen_ = all.size();
    if (have != want) {
      std::vector<std::string> played;
      for (int p : have)
        played.push_back(std::to_string(p));
      throw expectation_failed("played " + join(played, "none"));
    }
  } else if (what == "led") {
    need(t, 4, "expect led <id> <status>");
    const int id = parse_int(t[2], "LED id");
    const int want = parse_int(t[3], "LED status");
    int have = 0;
    for (const auto& s : host::devices().led_status) {
      if (s.id == id)
        have = s.status;
    }
    if (have != want)
      throw expectation_failed("LED " + t[2] + " is " + std::to_string(have));
  } else if (what == "lockword") {
    need(t, 3, "expect lockword <hex> ... | none");
    std::vector<unsigned long> want;
    if (!(t.size() == 3 && t[2] == "none")) {
      for (std::size_t i = 2; i < t.size(); ++i)
        want.push_back(static_cast<unsigned long>(parse_long(t[i], "lock word")) & 0xffffffffUL);
    }
    std::vector<unsigned long> have;
    std::vector<std::string> sent;
    for (std::size_t i = lockword_seen_; i < posted_.size(); ++i) {
      if (posted_[i].dvc_pnl_evh_get_id() != kEventLockWord)
        continue;
      dvc_pnl_cmm_value word;
      long n = 0;
      if (find_in_valueset(posted_[i].source(), kLockWordPath, word) &&
          word.dvc_pnl_cmm_get_int(n) == 0) {
        have.push_back(static_cast<unsigned long>(n) & 0xffffffffUL);
        sent.push_back(hex(static_cast<unsigned long>(n)));
      }
    }
    lockword_seen_ = posted_.size();
    if (have != want)
      throw expectation_failed("sent " + join(sent, "none"));
  } else if (what == "invoked") {
    expect_invoked(t, true);
  } else if (what == "not-invoked") {
    expect_invoked(t, false);
  } else if (what == "node") {
    if (t.size() != 5 || t[3] != "=")
      throw scenario_error("usage: expect node <path> = <value>");
    const std::string path = dotted(parse_path(t[2]));
    const scenario_value want = parse_value(t[4]);
    const std::optional<dvc_pnl_cmm_value> have = m.node(path);
    if (!have)
      throw expectation_failed("node " + path + " does not exist");
    if (!value_matches(*have, want))
      throw expectation_failed("node " + path + " holds " + describe(*have));
  } else if (what == "dm") {
    expect_dm(t);
  } else if (what == "text" || what == "no-text") {
    if (t.size() != 3)
      throw scenario_error("usage: expect text|no-text \"<s>\"");
    const std::string want = unquote(t[2]);
    std::vector<std::string> texts;
    bool found = false;
    for (const shown_item& item : rt_.top_items()) {
      if (item.is_icon)
        continue;
      texts.push_back("\"" + item.text + "\"");
      found = found || item.text.find(want) != std::string::npos;
    }
    if (found != (what == "text"))
      throw expectation_failed("the texts are " + join(texts, "none"));
  } else if (what == "part") {
    expect_part(t);
  } else if (what == "rows") {
    need(t, 3, "expect rows <n>");
    const int want = parse_int(t[2], "row count");
    const int have = top_list(rt_)->dvu_pnl_gcp_get_max_row() + 1;  // index of the last row
    if (have != want)
      throw expectation_failed("the list has " + std::to_string(have) + " rows");
  } else if (what == "row") {
    expect_row(t);
  } else if (what == "timer") {
    expect_timer(t);
  } else if (what == "opened") {
    need(t, 3, "expect opened <ID>");
    const int id = parse_id(t[2]);
    const auto& all = rt_.opened();
    std::vector<std::string> opened;
    for (std::size_t i = opened_mark_; i < all.size(); ++i) {
      if (all[i].contents_id == id)
        return;
      opened.push_back(contents_name(all[i].contents_id));
    }
    throw expectation_failed("opened " + join(opened, "nothing"));
  } else if (what == "trace") {
    if (t.size() != 3)
      throw scenario_error("usage: expect trace \"<s>\"");
    const std::string want = unquote(t[2]);
    const std::size_t from = trace_seen_;
    trace_seen_ = traces_.size();
    for (std::size_t i = from; i < traces_.size(); ++i) {
      if (traces_[i].message.find(want) != std::string::npos)
        return;
    }
    throw expectation_failed("no trace message in the window contains it (" +
                             std::to_string(traces_.size() - from) + " messages)");
  } else if (what == "lcd") {
    if (t.size() != 3 || (t[2] != "changed" && t[2] != "unchanged"))
      throw scenario_error("usage: expect lcd changed|unchanged");
    const std::size_t sent = host::devices().frames.size() - frame_mark_;
    if ((sent > 0) != (t[2] == "changed"))
      throw expectation_failed(std::to_string(sent) + " frames reached the LCD");
  } else if (what == "frame") {
    expect_frame(t, dir);
  } else if (what == "thrown") {
    need(t, 3, "expect thrown <command>");
    const int want = parse_int(t[2], "panel command");
    const auto& all = host::devices().panel_commands;
    std::vector<std::string> thrown;
    for (std::size_t i = command_mark_; i < all.size(); ++i) {
      if (all[i] == want)
        return;
      thrown.push_back(std::to_string(all[i]));
    }
    throw expectation_failed("thrown " + join(thrown, "nothing"));
  } else if (what == "posted") {
    need(t, 3, "expect posted <event id>");
    const int want = parse_int(t[2], "event id");
    std::vector<std::string> ids;
    for (std::size_t i = posted_mark_; i < posted_.size(); ++i) {
      if (posted_[i].dvc_pnl_evh_get_id() == want)
        return;
      ids.push_back(std::to_string(posted_[i].dvc_pnl_evh_get_id()));
    }
    throw expectation_failed("posted " + join(ids, "nothing"));
  } else {
    throw scenario_error("unknown expectation " + what);
  }
}

void scenario_run::expect_page(const std::vector<std::string>& t) {
  static constexpr const char* kUsage = "expect page <ID> group <g> state <s> [order <o>]";
  if ((t.size() != 7 && t.size() != 9) || t[3] != "group" || t[5] != "state" ||
      (t.size() == 9 && t[7] != "order"))
    throw scenario_error(std::string("usage: ") + kUsage);
  const int id = parse_id(t[2]);
  const int group = parse_int(t[4], "group");
  const int state = parse_int(t[6], "state");
  const bool with_order = t.size() == 9;
  const long order = with_order ? parse_long(t[8], "order") : 0;
  for (const auto& w : all_windows()) {
    if (w.contents_id != id)
      continue;
    for (const host::page_record& p : host::pages_of(w.function)) {
      if (p.contents_id != id)
        continue;
      if (p.group != group || p.state != state ||
          (with_order && static_cast<long>(p.order) != order))
        throw expectation_failed("placed with group " + std::to_string(p.group) + " state " +
                                 std::to_string(p.state) + " order " + std::to_string(p.order));
      return;
    }
  }
  throw expectation_failed("it is not open");
}

void scenario_run::expect_invoked(const std::vector<std::string>& t, bool wanted) {
  need(t, 3, wanted ? "expect invoked <path> [<node>=<value> ...]" : "expect not-invoked <path>");
  const std::vector<unsigned long> command = parse_path(t[2]);
  const std::string key = dotted(command);
  if (!wanted && t.size() > 3)
    throw scenario_error("usage: expect not-invoked <path>");
  std::vector<std::pair<std::vector<unsigned long>, scenario_value>> entries;
  for (std::size_t i = 3; i < t.size(); ++i) {
    auto [node, value] = split_entry(t[i]);
    std::vector<unsigned long> full = command;
    std::vector<unsigned long> below = parse_path("0." + node);
    full.insert(full.end(), below.begin() + 1, below.end());
    entries.emplace_back(std::move(full), parse_value(value));
  }
  const auto& log = machine::simulated_machine::instance().log();
  std::vector<std::string> invoked;
  std::string mismatch;
  for (std::size_t i = machine_mark_; i < log.size(); ++i) {
    const machine::call_record& call = log[i];
    if (call.kind != machine::verb::invoke)
      continue;
    invoked.push_back(call.key);
    if (call.key != key)
      continue;
    if (!wanted)
      throw expectation_failed(key + " was invoked");
    bool all = true;
    for (const auto& [path, want] : entries) {
      dvc_pnl_cmm_value have;
      if (!find_in_valueset(call.request, path, have)) {
        mismatch = "its request has no " + dotted(path);
        all = false;
        break;
      }
      if (!value_matches(have, want)) {
        mismatch = "its request has " + dotted(path) + " = " + describe(have);
        all = false;
        break;
      }
    }
    if (all)
      return;
  }
  if (!wanted)
    return;
  if (!mismatch.empty())
    throw expectation_failed(key + " was invoked, but " + mismatch);
  throw expectation_failed("invoked " + join(invoked, "nothing"));
}

void scenario_run::expect_dm(const std::vector<std::string>& t) {
  static constexpr const char* kUsage =
      "expect dm app|func <F>|page <F> <ID>|cross <ID> <KEY> = <value>|missing";
  need(t, 6, kUsage);
  const std::string& scope = t[2];
  std::size_t at = 3;
  int function = 0;
  int id = 0;
  if (scope == "func" || scope == "page") {
    function = parse_int(t[3], "function");
    at = 4;
    if (scope == "page") {
      id = parse_id(t[4]);
      at = 5;
    }
  } else if (scope == "cross") {
    id = parse_id(t[3]);
    at = 4;
  } else if (scope != "app") {
    throw scenario_error(std::string("usage: ") + kUsage);
  }
  if (t.size() != at + 3 || t[at + 1] != "=")
    throw scenario_error(std::string("usage: ") + kUsage);
  const host::dm_key_info* info = host::find_dm_key(t[at]);
  if (info == nullptr)
    throw scenario_error("unknown data manager key " + t[at]);
  const std::string& key = *info->key;
  host::host_data_manager& dm = host::host_data_manager::instance();
  dvc_pnl_cmm_value have;
  int ret;
  if (scope == "app") {
    ret = dm.dvc_pnl_pdm_get_by_application_scope(key, have);
  } else if (scope == "func") {
    ret = dm.dvc_pnl_pdm_get_by_function_scope(key, function, have);
  } else if (scope == "page") {
    ret = dm.dvc_pnl_pdm_get_by_page_scope(key, function, id, have);
  } else {
    ret = dm.dvc_pnl_pdm_get_by_cross_function_scope(key, id, have);
  }
  const bool missing = ret != 0;
  if (t[at + 2] == "missing") {
    if (!missing)
      throw expectation_failed(t[at] + " holds " + describe(have));
    return;
  }
  const scenario_value want = parse_value(t[at + 2]);
  if (missing)
    throw expectation_failed(t[at] + " is missing");
  if (!value_matches(have, want))
    throw expectation_failed(t[at] + " holds " + describe(have));
}

void scenario_run::expect_part(const std::vector<std::string>& t) {
  static constexpr const char* kUsage =
      "expect part <gui> attr <n> = <value> | visible | hidden | state <hex>";
  need(t, 4, kUsage);
  const int gui = parse_int(t[2], "part id");
  const std::string& what = t[3];
  dvu_pnl_gcp_parts* part = top_part(rt_, gui);
  const std::string name = "part " + t[2];
  if (what == "attr") {
    if (t.size() != 7 || t[5] != "=")
      throw scenario_error(std::string("usage: ") + kUsage);
    check_attribute(*part, parse_int(t[4], "attribute"), parse_value(t[6]), name);
  } else if (what == "visible" || what == "hidden") {
    if (t.size() != 4)
      throw scenario_error(std::string("usage: ") + kUsage);
    if (part->dvu_pnl_gcp_is_visible() != (what == "visible"))
      throw expectation_failed(name +
                               (part->dvu_pnl_gcp_is_visible() ? " is visible" : " is hidden"));
  } else if (what == "state") {
    if (t.size() != 5)
      throw scenario_error(std::string("usage: ") + kUsage);
    const unsigned long bits = static_cast<unsigned long>(parse_long(t[4], "state word"));
    const unsigned long have = part->dvu_pnl_gcp_get_state();
    if ((have & bits) != bits)
      throw expectation_failed(name + " state is " + hex(have));
  } else {
    throw scenario_error(std::string("usage: ") + kUsage);
  }
}

void scenario_run::expect_row(const std::vector<std::string>& t) {
  if (t.size() != 7 || t[3] != "attr" || t[5] != "=")
    throw scenario_error("usage: expect row <i> attr <n> = <value>");
  const int index = parse_int(t[2], "row");
  dvu_pnl_gcp_list* list = top_list(rt_);
  dvu_pnl_gcp_list_row* row = nullptr;
  if (list->dvu_pnl_gcp_get_row(index, row) != 0 || row == nullptr)
    throw expectation_failed("the list has " + std::to_string(list->dvu_pnl_gcp_get_max_row() + 1) +
                             " rows");
  check_attribute(*row, parse_int(t[4], "attribute"), parse_value(t[6]), "row " + t[2]);
}

void scenario_run::expect_timer(const std::vector<std::string>& t) {
  const bool none = t.size() == 4 && t[3] == "none";
  if (!none && (t.size() != 5 || t[3] != "="))
    throw scenario_error("usage: expect timer <id> = <ms> | expect timer <id> none");
  const int id = parse_int(t[2], "timer id");
  const std::optional<top_window> top = rt_.top();
  if (!top)
    throw expectation_failed("no page is open");
  const int period =
      dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance()->timer_period(top->contents, id);
  if (none) {
    if (period >= 0)
      throw expectation_failed("timer " + t[2] + " runs every " + std::to_string(period) + " ms");
    return;
  }
  const long want = parse_long(t[4], "period");
  if (period < 0)
    throw expectation_failed("timer " + t[2] + " does not run");
  if (period != want)
    throw expectation_failed("timer " + t[2] + " runs every " + std::to_string(period) + " ms");
}

void scenario_run::expect_frame(const std::vector<std::string>& t, const std::string& dir) {
  if (t.size() != 3)
    throw scenario_error("usage: expect frame <file>");
  const std::string name = is_quoted(t[2]) ? unquote(t[2]) : t[2];
  const std::string path = (std::filesystem::path(dir) / name).string();
  const lcd_frame have = rt_.frame();
  std::string bytes;
  std::string error = read_file(path, bytes);
  lcd_frame stored{};
  if (error.empty())
    error = from_pbm(bytes, stored);
  if (error.empty() && stored == have)
    return;
  if (options_.update_frames) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream file(path, std::ios::binary);
    file << to_pbm(have);
    if (!file)
      throw scenario_error("cannot write " + path);
    out_ << "updated " << path << "\n";
    return;
  }
  if (!error.empty())
    throw expectation_failed(error);
  int differ = 0;
  for (int y = 0; y < kLcdHeight; ++y) {
    for (int x = 0; x < kLcdWidth; ++x)
      differ += dark(have, x, y) != dark(stored, x, y) ? 1 : 0;
  }
  out_ << path << " differs: '+' dark only on the LCD, '-' dark only in the file\n"
       << render_diff(have, stored);
  throw expectation_failed(std::to_string(differ) + " pixels differ");
}

void scenario_run::show() {
  const std::optional<top_window> top = rt_.top();
  out_ << "-- " << (top ? id_text(top->contents_id) : std::string("no page open")) << " at "
       << rt_.now_ms() << " ms\n"
       << render_boxed(rt_.frame()) << format_items(rt_.top_items());
}

}  // namespace orvanta::sim
