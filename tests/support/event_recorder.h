// Test support: catches the panel events the library posts, in the order posted.
#pragma once

#include <initializer_list>
#include <vector>

#include "orvanta/host/panel_host.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"

namespace orvanta::test {

// Subscribes itself to `ids` (host::reset() drops the subscriptions; make the recorder after
// it). take() delivers what was posted and answers the events heard since the last take().
class event_recorder final : public dvu_pnl_evd_event_handler {
 public:
  explicit event_recorder(std::initializer_list<int> ids) : ids_(ids) {
    for (int id : ids_)
      dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance()->dvu_pnl_evd_add_handler(id, this);
  }
  ~event_recorder() override {
    for (int id : ids_)
      dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance()->dvu_pnl_evd_remove_handler(id,
                                                                                           this);
  }
  event_recorder(const event_recorder&) = delete;
  event_recorder& operator=(const event_recorder&) = delete;

  int dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) override {
    heard_.push_back(event);
    return 1;
  }

  std::vector<dvc_pnl_evh_panel_event> take() {
    host::pump();
    std::vector<dvc_pnl_evh_panel_event> out = std::move(heard_);
    heard_.clear();
    return out;
  }

 private:
  std::vector<int> ids_;
  std::vector<dvc_pnl_evh_panel_event> heard_;
};

}  // namespace orvanta::test
