// Host event dispatcher (counted subscriptions, after-event handlers) and the posted-event pump.
#include <algorithm>
#include <deque>
#include <mutex>
#include <vector>

#include "host_internal.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"

namespace orvanta {
namespace host {
namespace {

// One (event id, handler) pair with how often it was added. Entries stay in creation order, so
// handlers hear an event in the order they first subscribed to it.
struct subscription {
  int event_id;
  dvu_pnl_evd_event_handler* handler;
  int count;
};

class host_dispatcher final : public dvu_pnl_evd_event_dispatcher {
 public:
  int dvu_pnl_evd_add_handler(const dvc_pnl_evh_event_id& id,
                              dvu_pnl_evd_event_handler* handler) override {
    if (handler == nullptr)
      return 1;
    std::lock_guard<std::mutex> guard(lock_);
    if (subscription* s = find(id.dvc_pnl_evh_get_id(), handler)) {
      ++s->count;
    } else {
      subs_.push_back({id.dvc_pnl_evh_get_id(), handler, 1});
    }
    return 0;
  }

  int dvu_pnl_evd_remove_handler(const dvc_pnl_evh_event_id& id,
                                 dvu_pnl_evd_event_handler* handler) override {
    std::lock_guard<std::mutex> guard(lock_);
    subscription* s = find(id.dvc_pnl_evh_get_id(), handler);
    if (s == nullptr)
      return 1;
    if (--s->count == 0) {
      subs_.erase(subs_.begin() + (s - subs_.data()));
    }
    return 0;
  }

  int dvu_pnl_evd_add_after_event_handler(dvu_pnl_evd_event_handler* handler) override {
    if (handler == nullptr)
      return 1;
    std::lock_guard<std::mutex> guard(lock_);
    // Kept once: an after-event handler hears each event once however often it was added.
    if (std::find(after_.begin(), after_.end(), handler) == after_.end())
      after_.push_back(handler);
    return 0;
  }

  int count(int event_id, const dvu_pnl_evd_event_handler* handler) {
    std::lock_guard<std::mutex> guard(lock_);
    const subscription* s = find(event_id, handler);
    return s == nullptr ? 0 : s->count;
  }

  std::vector<int> ids_of(const dvu_pnl_evd_event_handler* handler) {
    std::lock_guard<std::mutex> guard(lock_);
    std::vector<int> ids;
    for (const subscription& s : subs_) {
      if (s.handler == handler)
        ids.push_back(s.event_id);
    }
    return ids;
  }

  // Handlers are called with no lock held and from a snapshot, because a handler may subscribe
  // or unsubscribe anything. One that was unsubscribed by an earlier handler of the same event is
  // skipped: it may be gone by then.
  void deliver(const dvc_pnl_evh_panel_event& event) {
    const int id = event.dvc_pnl_evh_get_id();
    std::vector<dvu_pnl_evd_event_handler*> targets;
    std::vector<dvu_pnl_evd_event_handler*> after;
    {
      std::lock_guard<std::mutex> guard(lock_);
      for (const subscription& s : subs_) {
        if (s.event_id == id)
          targets.push_back(s.handler);
      }
      after = after_;
    }
    for (dvu_pnl_evd_event_handler* h : targets) {
      if (count(id, h) > 0)
        h->dvu_pnl_evd_notify(event);
    }
    for (dvu_pnl_evd_event_handler* h : after) {
      if (still_after(h))
        h->dvu_pnl_evd_notify(event);
    }
  }

  void reset() {
    std::lock_guard<std::mutex> guard(lock_);
    subs_.clear();
    after_.clear();
  }

 private:
  subscription* find(int event_id, const dvu_pnl_evd_event_handler* handler) {
    auto it = std::find_if(subs_.begin(), subs_.end(), [&](const subscription& s) {
      return s.event_id == event_id && s.handler == handler;
    });
    return it == subs_.end() ? nullptr : &*it;
  }

  bool still_after(const dvu_pnl_evd_event_handler* handler) {
    std::lock_guard<std::mutex> guard(lock_);
    return std::find(after_.begin(), after_.end(), handler) != after_.end();
  }

  std::mutex lock_;
  std::vector<subscription> subs_;
  std::vector<dvu_pnl_evd_event_handler*> after_;
};

// Posted events wait here. Timer threads of a real clock post from other threads, so the queue
// has its own lock; delivery happens on the thread that pumps.
class host_event_handler final : public dvc_pnl_evh_event_handler {
 public:
  int dvc_pnl_evm_notify_panel_event(const dvc_pnl_evh_panel_event& event) override {
    std::lock_guard<std::mutex> guard(lock_);
    queue_.push_back(event);
    if (keep_log_)
      log_.push_back(event);
    return 0;
  }

  std::vector<dvc_pnl_evh_panel_event> take_log() {
    std::lock_guard<std::mutex> guard(lock_);
    std::vector<dvc_pnl_evh_panel_event> out;
    out.swap(log_);
    return out;
  }

  void set_keep_log(bool on) {
    std::lock_guard<std::mutex> guard(lock_);
    keep_log_ = on;
    if (!on)
      log_.clear();
  }

  // Takes the oldest posted event; false when none is waiting.
  bool take(dvc_pnl_evh_panel_event& out) {
    std::lock_guard<std::mutex> guard(lock_);
    if (queue_.empty())
      return false;
    out = std::move(queue_.front());
    queue_.pop_front();
    return true;
  }

  std::size_t size() {
    std::lock_guard<std::mutex> guard(lock_);
    return queue_.size();
  }

  void clear() {
    std::lock_guard<std::mutex> guard(lock_);
    queue_.clear();
    log_.clear();
  }

 private:
  std::mutex lock_;
  std::deque<dvc_pnl_evh_panel_event> queue_;
  bool keep_log_ = false;
  std::vector<dvc_pnl_evh_panel_event> log_;  // every post since the last take, when kept
};

// Deliberately never destroyed: objects with static lifetime may still post or unsubscribe while
// the process ends.
host_dispatcher& dispatcher() {
  static auto* d = new host_dispatcher;
  return *d;
}

host_event_handler& event_handler() {
  static auto* h = new host_event_handler;
  return *h;
}

}  // namespace

std::size_t pump() {
  std::size_t delivered = 0;
  dvc_pnl_evh_panel_event event;
  // The queue is read anew after each delivery: events posted meanwhile come in this pump too.
  while (event_handler().take(event)) {
    dispatch_scope scope;
    dispatcher().deliver(event);
    ++delivered;
  }
  return delivered;
}

std::size_t posted_count() {
  return event_handler().size();
}

void keep_posted_log(bool on) {
  event_handler().set_keep_log(on);
}

std::vector<dvc_pnl_evh_panel_event> take_posted_log() {
  return event_handler().take_log();
}

void deliver(const dvc_pnl_evh_panel_event& event) {
  dispatch_scope scope;
  dispatcher().deliver(event);
}

int subscription_count(int event_id, const dvu_pnl_evd_event_handler* handler) {
  return dispatcher().count(event_id, handler);
}

std::vector<int> subscriptions_of(const dvu_pnl_evd_event_handler* handler) {
  return dispatcher().ids_of(handler);
}

void reset_events() {
  event_handler().clear();
  dispatcher().reset();
}

}  // namespace host

dvu_pnl_evd_event_dispatcher* dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance() {
  return &host::dispatcher();
}

dvc_pnl_evh_event_handler* dvc_pnl_evh_event_handler::dvc_pnl_evh_instance() {
  return &host::event_handler();
}

}  // namespace orvanta
