// Event subscription and delivery of the panel framework, and the post queue of its event handler.
#pragma once

#include "orvanta/platform/dvc_pnl_evh_panel_event.h"

namespace orvanta {

// Whatever receives subscribed panel events.
class dvu_pnl_evd_event_handler {
 public:
  virtual ~dvu_pnl_evd_event_handler() = default;
  // Answers 0 when the event was consumed, non-zero otherwise.
  virtual int dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) = 0;
};

// Keeps which handlers receive which event ids. Adding the same pair twice counts twice; each
// remove takes one count away. All operations answer 0 on success.
class dvu_pnl_evd_event_dispatcher {
 public:
  static dvu_pnl_evd_event_dispatcher* dvu_pnl_evd_get_instance();
  virtual ~dvu_pnl_evd_event_dispatcher() = default;

  virtual int dvu_pnl_evd_add_handler(const dvc_pnl_evh_event_id& id,
                                      dvu_pnl_evd_event_handler* handler) = 0;
  virtual int dvu_pnl_evd_remove_handler(const dvc_pnl_evh_event_id& id,
                                         dvu_pnl_evd_event_handler* handler) = 0;
  // A handler that hears every event after its ordinary delivery.
  virtual int dvu_pnl_evd_add_after_event_handler(dvu_pnl_evd_event_handler* handler) = 0;
};

// The framework's event handler: posting an event queues it for delivery after the current one.
class dvc_pnl_evh_event_handler {
 public:
  static dvc_pnl_evh_event_handler* dvc_pnl_evh_instance();
  virtual ~dvc_pnl_evh_event_handler() = default;
  // Queues `event`; it reaches the subscribed handlers through their dvu_pnl_evd_notify later.
  virtual int dvc_pnl_evm_notify_panel_event(const dvc_pnl_evh_panel_event& event) = 0;
};

}  // namespace orvanta
