// Panel event: an event id with a custom value set and a source value set, and the event id type.
#pragma once

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta {

// The number of a panel event (keys, GUI notices, machine notices, timer expiries).
class dvc_pnl_evh_event_id {
 public:
  dvc_pnl_evh_event_id(int id = 0) : id_(id) {}  // implicit: ids are written as numbers
  int dvc_pnl_evh_get_id() const { return id_; }
  friend bool operator==(const dvc_pnl_evh_event_id& a, const dvc_pnl_evh_event_id& b) {
    return a.id_ == b.id_;
  }
  friend bool operator<(const dvc_pnl_evh_event_id& a, const dvc_pnl_evh_event_id& b) {
    return a.id_ < b.id_;
  }

 private:
  int id_;
};

// Every setter and getter answers 0 on success. Copies are deep.
class dvc_pnl_evh_panel_event {
 public:
  dvc_pnl_evh_panel_event() = default;
  explicit dvc_pnl_evh_panel_event(int id) : id_(id) {}
  virtual ~dvc_pnl_evh_panel_event() = default;

  int dvc_pnl_evh_set_id(const dvc_pnl_evh_event_id& id);
  int dvc_pnl_evh_get_id() const { return id_.dvc_pnl_evh_get_id(); }
  int dvc_pnl_evh_set_init_type(int kind);
  int dvc_pnl_evh_get_init_type() const { return init_type_; }
  int dvc_pnl_evh_set_priority(int priority);
  int dvc_pnl_evh_get_priority() const { return priority_; }

  // The data the sender attached (machine notices, the operation source of keys, timer data).
  int dvc_pnl_evh_set_event_source_valueset(const dvc_pnl_cmm_valueset& vs);
  int dvc_pnl_evh_get_event_source_valueset(dvc_pnl_cmm_valueset& out) const;
  // Data the receiving side keeps with the event (the key repeat count).
  int dvc_pnl_evh_set_custom_valueset(const dvc_pnl_cmm_valueset& vs);
  int dvc_pnl_evh_get_custom_valueset(dvc_pnl_cmm_valueset& out) const;

  // Direct read access for the host side.
  const dvc_pnl_cmm_valueset& source() const { return source_; }
  const dvc_pnl_cmm_valueset& custom() const { return custom_; }

 private:
  dvc_pnl_evh_event_id id_;
  int init_type_ = 0;
  int priority_ = 0;
  dvc_pnl_cmm_valueset source_;
  dvc_pnl_cmm_valueset custom_;
};

}  // namespace orvanta
