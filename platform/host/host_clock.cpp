// Host clock and timers: a virtual clock that expires one-shot timers as time is advanced.
#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <mutex>
#include <utility>

#include "orvanta/host/panel_host.h"
#include "orvanta/platform/osw.h"

namespace orvanta {
namespace {

// The clock's view of one timer control.
struct timer_entry {
  OSW_Timer_Control* control = nullptr;
  OSW_Timer_Control::callback cb = nullptr;
  int args[4] = {0, 0, 0, 0};
  bool running = false;
  unsigned long long due = 0;
  std::uint64_t seq = 0;  // start order, breaks ties between equal due times
  // A 0 ms timer started by a callback during an expiry pass waits for the next pass; otherwise a
  // callback that restarts its own 0 ms timer would keep one pass from ever ending.
  std::uint64_t held_by_pass = 0;
};

// All timer state sits behind host_clock, so that a real-time clock can later take its place
// without the timer controls noticing.
struct clock_state {
  std::mutex lock;
  unsigned long long now = 0;
  std::uint64_t next_seq = 1;
  std::uint64_t next_pass = 1;
  std::uint64_t active_pass = 0;
  std::map<std::pair<unsigned long long, std::uint64_t>, timer_entry*> pending;  // (due, seq)
};

// Never destroyed: timer controls with static lifetime may stop themselves while the process ends.
clock_state& state() {
  static auto* s = new clock_state;
  return *s;
}

void unschedule_locked(clock_state& s, timer_entry& e) {
  if (e.running) {
    s.pending.erase({e.due, e.seq});
    e.running = false;
  }
}

void schedule(timer_entry& e, int ms) {
  clock_state& s = state();
  std::lock_guard<std::mutex> guard(s.lock);
  unschedule_locked(s, e);
  const unsigned long long delay = ms > 0 ? static_cast<unsigned long long>(ms) : 0;
  e.due = s.now + delay;
  e.seq = s.next_seq++;
  e.held_by_pass = delay == 0 ? s.active_pass : 0;
  e.running = true;
  s.pending.emplace(std::make_pair(e.due, e.seq), &e);
}

void unschedule(timer_entry& e) {
  clock_state& s = state();
  std::lock_guard<std::mutex> guard(s.lock);
  unschedule_locked(s, e);
}

// Expires, one at a time and in (due, start) order, every timer due at or before `target`, then
// leaves the clock at `target`. The lock is never held while a callback runs: callbacks start,
// stop and destroy timers, and the next timer is looked up afresh after each one.
void expire_until(unsigned long long target) {
  clock_state& s = state();
  std::uint64_t pass;
  std::uint64_t outer;
  {
    std::lock_guard<std::mutex> guard(s.lock);
    pass = s.next_pass++;
    outer = s.active_pass;
    s.active_pass = pass;
  }
  for (;;) {
    OSW_Timer_Control* control = nullptr;
    OSW_Timer_Control::callback cb = nullptr;
    int a[4];
    {
      std::lock_guard<std::mutex> guard(s.lock);
      timer_entry* next = nullptr;
      for (auto& [when, e] : s.pending) {
        if (when.first > target)
          break;
        if (e->held_by_pass != pass) {
          next = e;
          break;
        }
      }
      if (next == nullptr) {
        if (s.now < target)
          s.now = target;
        s.active_pass = outer;
        return;
      }
      unschedule_locked(s, *next);
      if (s.now < next->due)
        s.now = next->due;
      control = next->control;
      cb = next->cb;
      std::copy(std::begin(next->args), std::end(next->args), a);
    }
    cb(*control, a[0], a[1], a[2], a[3]);
  }
}

}  // namespace

struct OSW_Timer_Control::impl {
  timer_entry entry;
};

OSW_Timer_Control::OSW_Timer_Control(int /*stack_size*/) : impl_(std::make_unique<impl>()) {
  impl_->entry.control = this;
}

OSW_Timer_Control::~OSW_Timer_Control() {
  unschedule(impl_->entry);
}

int OSW_Timer_Control::start(int ms, callback cb, int a1, int a2, int a3, int a4) {
  if (cb == nullptr)
    return 1;
  // Off the schedule first, so that no expiry pass reads the callback while it is rewritten.
  unschedule(impl_->entry);
  impl_->entry.cb = cb;
  impl_->entry.args[0] = a1;
  impl_->entry.args[1] = a2;
  impl_->entry.args[2] = a3;
  impl_->entry.args[3] = a4;
  schedule(impl_->entry, ms);
  return 0;
}

int OSW_Timer_Control::stop() {
  unschedule(impl_->entry);
  return 0;
}

bool OSW_Timer_Control::running() const {
  std::lock_guard<std::mutex> guard(state().lock);
  return impl_->entry.running;
}

namespace host {

host_clock& host_clock::instance() {
  static host_clock c;
  return c;
}

unsigned long host_clock::now_ms() const {
  std::lock_guard<std::mutex> guard(state().lock);
  return static_cast<unsigned long>(state().now);
}

void host_clock::advance(unsigned long ms) {
  unsigned long long target;
  {
    std::lock_guard<std::mutex> guard(state().lock);
    target = state().now + ms;
  }
  expire_until(target);
}

void host_clock::run_due() {
  unsigned long long target;
  {
    std::lock_guard<std::mutex> guard(state().lock);
    target = state().now;
  }
  expire_until(target);
}

std::size_t host_clock::pending() const {
  std::lock_guard<std::mutex> guard(state().lock);
  return state().pending.size();
}

std::optional<unsigned long> host_clock::next_due_ms() const {
  std::lock_guard<std::mutex> guard(state().lock);
  if (state().pending.empty())
    return std::nullopt;
  return static_cast<unsigned long>(state().pending.begin()->first.first);
}

void host_clock::reset() {
  clock_state& s = state();
  std::lock_guard<std::mutex> guard(s.lock);
  for (auto& [when, e] : s.pending)
    e->running = false;
  s.pending.clear();
  s.now = 0;
}

}  // namespace host
}  // namespace orvanta
