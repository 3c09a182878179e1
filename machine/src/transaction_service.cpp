// The simulated setting transaction service: startup opens a level over a function's job
// settings, commit closes the innermost one keeping its changes, cancel closes it restoring the
// settings as they were when it opened.
#include "orvanta/machine/transaction_service.h"

#include <map>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "machine_internal.h"

namespace orvanta::machine {
namespace {

constexpr unsigned long kRequestKind = 1320;
constexpr unsigned long kCommonFunction = 1035;
constexpr long kSettingRequest = 1;

// One open level: the function's settings tree when it opened (nullopt when the tree was not
// there). A function without a tree still opens and closes levels, which cover nothing.
struct level {
  bool covers_tree = false;
  std::optional<dvc_pnl_cmm_value> saved;
};

struct level_table {
  std::mutex lock;
  std::map<long, std::vector<level>> open;  // by common function, innermost last
};

level_table& table() {
  static auto* t = new level_table;  // never destroyed: the machine lives to the end
  return *t;
}

// The root of the job settings tree of a common function, both scopes below it; empty for a
// function without one.
std::string settings_tree(long common_function) {
  switch (common_function) {
    case 1:
      return "0.1.2";  // copy
    case 3:
      return "0.1.161";  // send
    case 4:
      return "0.1.206";  // fax
    case 5:
      return "0.1.207";  // box print
    case 6:
      return "0.1.214";  // box store
    default:
      return {};
  }
}

// The common function a well-formed request names; nullopt for any other request.
std::optional<long> requested_function(const service_call& call) {
  long kind = 0;
  long function = 0;
  if (!detail::request_int(call, kRequestKind, kind) || kind != kSettingRequest ||
      !detail::request_int(call, kCommonFunction, function))
    return std::nullopt;
  return function;
}

int startup(simulated_machine& machine, service_call& call) {
  const std::optional<long> function = requested_function(call);
  if (!function)
    return detail::answer_result(call, kSettingRefused);
  level opened;
  const std::string tree = settings_tree(*function);
  if (!tree.empty()) {
    opened.covers_tree = true;
    opened.saved = machine.node(tree);
  }
  level_table& t = table();
  std::lock_guard<std::mutex> guard(t.lock);
  t.open[*function].push_back(std::move(opened));
  return detail::answer_result(call, kSettingStarted);
}

// Closes the innermost level of the requested function; `restore` puts the tree back as the
// level saw it. Answers `done` for success.
int close_level(simulated_machine& machine, service_call& call, bool restore, long done) {
  const std::optional<long> function = requested_function(call);
  if (!function)
    return detail::answer_result(call, kSettingRefused);
  level_table& t = table();
  std::lock_guard<std::mutex> guard(t.lock);
  auto it = t.open.find(*function);
  if (it == t.open.end() || it->second.empty())
    return detail::answer_result(call, kSettingRefused);
  const level closing = std::move(it->second.back());
  it->second.pop_back();
  if (it->second.empty())
    t.open.erase(it);
  if (restore && closing.covers_tree) {
    const std::string tree = settings_tree(*function);
    if (closing.saved)
      machine.set_node(tree, *closing.saved);
    else
      machine.remove_node(tree);  // the level opened before the tree existed
  }
  return detail::answer_result(call, done);
}

int commit(simulated_machine& machine, service_call& call) {
  // The changes stay; an outer level still holds the state before them.
  return close_level(machine, call, false, kSettingCommitted);
}

int cancel(simulated_machine& machine, service_call& call) {
  return close_level(machine, call, true, kSettingCancelled);
}

}  // namespace

std::size_t open_setting_levels(long common_function) {
  level_table& t = table();
  std::lock_guard<std::mutex> guard(t.lock);
  auto it = t.open.find(common_function);
  return it == t.open.end() ? 0 : it->second.size();
}

namespace detail {

void install_transaction_service(simulated_machine& machine) {
  {
    level_table& t = table();
    std::lock_guard<std::mutex> guard(t.lock);
    t.open.clear();
  }
  machine.register_service("0.821.822.823", startup);
  machine.register_service("0.821.822.824", commit);
  machine.register_service("0.821.822.825", cancel);
}

}  // namespace detail
}  // namespace orvanta::machine
