// The machine's verdict on written job settings: every write into the current job settings of a
// function (0.1.F.160 and below) is answered with the function's prohibition event. Its source
// set names, in change groups 0.E.1255.g.1256.<path>, the settings that the write changed
// besides; without any the verdict accepts the value.
#include "orvanta/machine/setting_verdicts.h"

#include <algorithm>
#include <optional>
#include <stdexcept>
#include <utility>
#include <vector>

#include "machine_internal.h"

namespace orvanta::machine {

namespace {

constexpr unsigned long kSettingsRoot = 1;
constexpr unsigned long kCurrentScope = 160;
constexpr unsigned long kChanges = 1255;
constexpr unsigned long kChangedSetting = 1256;
// The panel reads eight change groups.
constexpr std::size_t kChangeGroups = 8;

// The function of each settings tree, with its event and the node of its change groups.
struct verdict_function {
  int function;
  unsigned long tree;
  int event;
  unsigned long changes_node;
};
constexpr verdict_function kFunctions[] = {
    {1, 2, 219, 1253},   {3, 161, 220, 1265}, {4, 206, 221, 1266},
    {6, 207, 222, 1267}, {7, 214, 224, 1269},
};

const verdict_function* function_of_tree(unsigned long tree) {
  for (const verdict_function& f : kFunctions) {
    if (f.tree == tree)
      return &f;
  }
  return nullptr;
}

// The function whose current settings hold `p` (0.1.F.160...), nullptr for any other path.
const verdict_function* function_of_path(const detail::path& p) {
  if (p.size() < 4 || p[0] != 0 || p[1] != kSettingsRoot || p[3] != kCurrentScope)
    return nullptr;
  return function_of_tree(p[2]);
}

struct rule {
  detail::path setting;
  long value;
  detail::path changed;
  long change_value;
};

// Rules belong to the one simulated machine; a reset drops them.
std::vector<rule>& rules() {
  static std::vector<rule> all;
  return all;
}

bool starts_with(const detail::path& p, const detail::path& prefix) {
  return p.size() >= prefix.size() && std::equal(prefix.begin(), prefix.end(), p.begin());
}

detail::path parse(const std::string& dotted, const char* what) {
  std::optional<detail::path> p = detail::parse_path(dotted);
  if (!p || p->empty())
    throw std::invalid_argument(std::string("malformed ") + what + " path \"" + dotted + "\"");
  return *p;
}

}  // namespace

void add_setting_conflict(simulated_machine& /*machine*/, const setting_conflict& conflict) {
  rule r{parse(conflict.setting, "setting"), conflict.value, parse(conflict.changed, "changed"),
         conflict.change_value};
  if (function_of_path(r.setting) == nullptr)
    throw std::invalid_argument("\"" + conflict.setting +
                                "\" is not a current job setting of a function");
  rules().push_back(std::move(r));
}

void clear_setting_conflicts(simulated_machine& /*machine*/) {
  rules().clear();
}

int setting_verdict_event(int function) {
  for (const verdict_function& f : kFunctions) {
    if (f.function == function)
      return f.event;
  }
  return 0;
}

namespace detail {

void install_setting_verdicts(simulated_machine& machine) {
  clear_setting_conflicts(machine);
}

void after_setting_write(simulated_machine& machine, const path& written) {
  const verdict_function* f = function_of_path(written);
  if (f == nullptr)
    return;
  // Each rule whose setting the write reached, and whose value it now holds, is one change group.
  std::vector<std::pair<path, dvc_pnl_cmm_value>> leaves;
  for (const rule& r : rules()) {
    if (leaves.size() == kChangeGroups || !starts_with(r.setting, written))
      continue;
    const std::optional<long> now = machine.int_at(to_dotted(r.setting));
    if (!now || *now != r.value)
      continue;
    path at = {0, f->changes_node, kChanges, leaves.size(), kChangedSetting};
    at.insert(at.end(), r.changed.begin(), r.changed.end());
    dvc_pnl_cmm_value value;
    value.dvc_pnl_cmm_set_int(r.change_value);
    leaves.emplace_back(std::move(at), std::move(value));
  }
  dvc_pnl_cmm_valueset source;
  // The panel reads the change groups from the set of 0.E.1255 at the top.
  if (!leaves.empty() && nested_set(leaves, 3, source) != 0)
    return;
  dvc_pnl_evh_panel_event event(f->event);
  if (event.dvc_pnl_evh_set_event_source_valueset(source) != 0)
    return;
  machine.post_event(event);
}

}  // namespace detail

}  // namespace orvanta::machine
