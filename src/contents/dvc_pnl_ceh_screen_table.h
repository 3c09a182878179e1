// The screen table that screen classes share: a lazy map of rows per class, member slots that may
// be empty, and key maps from a key's event id to a member.
#pragma once

#include <map>
#include <utility>

#include "orvanta/platform/dvc_pnl_evh_panel_event.h"

namespace orvanta {

// The rows of one screen class, by contents id. Each class keeps one static instance (its
// `s_map_`), which lives as long as the program: rows are built once, one at a time, when the
// first page of an id is made, and stay so that screens may change them at run time.
template <class Row>
class dvc_pnl_ceh_screen_table {
 public:
  using row_type = Row;

  // The row of `id`. When the table has none yet, `build(table, id)` may add it (the builders add
  // only the row of the id they are asked for); nullptr when the class has no row for `id`.
  template <class Build>
  Row* row_of(int id, Build&& build) {
    auto found = rows_.find(id);
    if (found == rows_.end()) {
      std::forward<Build>(build)(*this, id);
      found = rows_.find(id);
    }
    return found == rows_.end() ? nullptr : &found->second;
  }

  // Adds the row of `id` unless it is there: a row, once built, keeps its changes.
  Row& add(int id, Row row) { return rows_.try_emplace(id, std::move(row)).first->second; }

  bool contains(int id) const { return rows_.count(id) != 0; }
  Row* find(int id) {
    auto found = rows_.find(id);
    return found == rows_.end() ? nullptr : &found->second;
  }
  std::size_t size() const { return rows_.size(); }

  // Drops every row; for tests and the runtime, never while a page of the class is open.
  void reset() { rows_.clear(); }

 private:
  std::map<int, Row> rows_;
};

// Calls a member slot of `self` that may be empty; an empty slot does nothing.
template <class C, class... P, class... A>
void dvc_pnl_ceh_call_slot(C* self, void (C::*slot)(P...), A&&... args) {
  if (slot != nullptr)
    (self->*slot)(std::forward<A>(args)...);
}

// Calls a member slot that answers whether it consumed the input; an empty slot consumes nothing.
template <class C, class... P, class... A>
int dvc_pnl_ceh_call_slot(C* self, int (C::*slot)(P...), A&&... args) {
  return slot != nullptr ? (self->*slot)(std::forward<A>(args)...) : 0;
}

// Key members of a class by the key's event id.
template <class C>
using dvc_pnl_ceh_key_map = std::map<dvc_pnl_evh_event_id, int (C::*)(dvc_pnl_evh_panel_event&)>;

// Calls the member that `keys` holds for the event's id; 0 (not consumed) when it holds none.
template <class C>
int dvc_pnl_ceh_call_key(C* self, const dvc_pnl_ceh_key_map<C>& keys,
                         dvc_pnl_evh_panel_event& event) {
  auto found = keys.find(event.dvc_pnl_evh_get_id());
  return found == keys.end() || found->second == nullptr ? 0 : (self->*found->second)(event);
}

}  // namespace orvanta
