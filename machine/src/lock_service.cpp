// The simulated lock service: grants the panel what no other panel holds and remembers it.
#include "orvanta/machine/lock_service.h"

#include <algorithm>
#include <mutex>

#include "machine_internal.h"

namespace orvanta::machine {
namespace {

constexpr unsigned long kNodeKind = 1180;
constexpr unsigned long kNodeFirst = 1301;
constexpr unsigned long kNodeSecond = 197;

struct lock_table {
  std::mutex lock;
  std::vector<lock_record> panel;
  std::vector<lock_record> elsewhere;
};

lock_table& table() {
  static auto* t = new lock_table;  // never destroyed: the machine lives to the end
  return *t;
}

// Two records collide when they name the same record, or when one of them, with the second
// argument -1, names every record of that kind and first argument (a whole kind of box).
bool collide(const lock_record& a, const lock_record& b) {
  return a.kind == b.kind && a.first == b.first &&
         (a.second == b.second || a.second == -1 || b.second == -1);
}

bool held_elsewhere(const lock_table& t, const lock_record& r) {
  return std::any_of(t.elsewhere.begin(), t.elsewhere.end(),
                     [&](const lock_record& e) { return collide(e, r); });
}

// A missing argument counts as 0, as the panel sends 0 for arguments it does not use.
bool read_record(const service_call& call, lock_record& r) {
  r = {0, 0, 0};
  if (!detail::request_int(call, kNodeKind, r.kind))
    return false;
  detail::request_int(call, kNodeFirst, r.first);
  detail::request_int(call, kNodeSecond, r.second);
  return true;
}

int serve_lock(simulated_machine&, service_call& call) {
  lock_record r{};
  if (!read_record(call, r))
    return detail::answer_result(call, kLockBadRequest);
  lock_table& t = table();
  std::lock_guard<std::mutex> guard(t.lock);
  if (held_elsewhere(t, r))
    return detail::answer_result(call, kLockRefused);
  // The panel may take again what it holds: one record, one entry.
  if (std::find(t.panel.begin(), t.panel.end(), r) == t.panel.end())
    t.panel.push_back(r);
  return detail::answer_result(call, 0);
}

int serve_unlock(simulated_machine&, service_call& call) {
  lock_record r{};
  if (!read_record(call, r))
    return detail::answer_result(call, kLockBadRequest);
  lock_table& t = table();
  std::lock_guard<std::mutex> guard(t.lock);
  auto it = std::find(t.panel.begin(), t.panel.end(), r);
  if (it != t.panel.end()) {
    t.panel.erase(it);
    return detail::answer_result(call, 0);
  }
  // What another panel holds is not the panel's to give back; what nobody holds is free already.
  return detail::answer_result(call, held_elsewhere(t, r) ? kLockRefused : 0);
}

}  // namespace

void hold_lock_elsewhere(const lock_record& record) {
  lock_table& t = table();
  std::lock_guard<std::mutex> guard(t.lock);
  if (std::find(t.elsewhere.begin(), t.elsewhere.end(), record) == t.elsewhere.end())
    t.elsewhere.push_back(record);
}

void release_lock_elsewhere(const lock_record& record) {
  lock_table& t = table();
  std::lock_guard<std::mutex> guard(t.lock);
  std::erase(t.elsewhere, record);
}

std::vector<lock_record> locks_held_by_panel() {
  lock_table& t = table();
  std::lock_guard<std::mutex> guard(t.lock);
  return t.panel;
}

std::vector<lock_record> locks_held_elsewhere() {
  lock_table& t = table();
  std::lock_guard<std::mutex> guard(t.lock);
  return t.elsewhere;
}

namespace detail {

void install_lock_service(simulated_machine& machine) {
  {
    lock_table& t = table();
    std::lock_guard<std::mutex> guard(t.lock);
    t.panel.clear();
    t.elsewhere.clear();
  }
  machine.register_service("0.503.2528", serve_lock);
  machine.register_service("0.503.2529", serve_unlock);
}

void apply_locks(const std::vector<lock_record>& records, bool replace) {
  lock_table& t = table();
  {
    std::lock_guard<std::mutex> guard(t.lock);
    if (replace)
      t.elsewhere.clear();
  }
  for (const lock_record& r : records)
    hold_lock_elsewhere(r);
}

}  // namespace detail
}  // namespace orvanta::machine
