// Panel event setters and getters; the value sets are copied deeply in both directions.
#include "orvanta/platform/dvc_pnl_evh_panel_event.h"

namespace orvanta {

int dvc_pnl_evh_panel_event::dvc_pnl_evh_set_id(const dvc_pnl_evh_event_id& id) {
  id_ = id;
  return 0;
}

int dvc_pnl_evh_panel_event::dvc_pnl_evh_set_init_type(int kind) {
  init_type_ = kind;
  return 0;
}

int dvc_pnl_evh_panel_event::dvc_pnl_evh_set_priority(int priority) {
  priority_ = priority;
  return 0;
}

// Plain deep copies: the value layer's injected faults are meant for the value operations that
// screens call, not for the event's own storage.
int dvc_pnl_evh_panel_event::dvc_pnl_evh_set_event_source_valueset(const dvc_pnl_cmm_valueset& vs) {
  source_ = vs;
  return 0;
}

int dvc_pnl_evh_panel_event::dvc_pnl_evh_get_event_source_valueset(
    dvc_pnl_cmm_valueset& out) const {
  out = source_;
  return 0;
}

int dvc_pnl_evh_panel_event::dvc_pnl_evh_set_custom_valueset(const dvc_pnl_cmm_valueset& vs) {
  custom_ = vs;
  return 0;
}

int dvc_pnl_evh_panel_event::dvc_pnl_evh_get_custom_valueset(dvc_pnl_cmm_valueset& out) const {
  out = custom_;
  return 0;
}

}  // namespace orvanta
