// Pieces the host stand-ins share among themselves: the components of a page and reset hooks.
#pragma once

#include <map>
#include <memory>
#include <vector>

#include "orvanta/host/panel_host.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta {

// The host's GUI components of one page: the parts its layout gives it, in drawing order, the part
// that takes the keys, and what tests script. One such object exists per open page; the page
// stack owns it.
class dvu_pnl_gcp_components {
 public:
  dvu_pnl_gcp_components(int contents_id, int function)
      : contents_id_(contents_id), function_(function) {}

  int contents_id() const { return contents_id_; }
  int function() const { return function_; }
  host::gui_script& script() { return script_; }
  const std::map<int, std::unique_ptr<dvu_pnl_gcp_parts>>& parts() const { return parts_; }
  // Adds or replaces part `part_id`; a new part is drawn after those before it.
  dvu_pnl_gcp_parts* add(int part_id, std::unique_ptr<dvu_pnl_gcp_parts> part);
  dvu_pnl_gcp_parts* find(int part_id) const;
  // Part ids in drawing order.
  const std::vector<int>& order() const { return order_; }
  int focus() const { return focus_; }
  void set_focus(int part_id) { focus_ = part_id; }

 private:
  int contents_id_;
  int function_;
  host::gui_script script_;
  std::map<int, std::unique_ptr<dvu_pnl_gcp_parts>> parts_;  // by part id
  std::vector<int> order_;
  int focus_ = -1;
};

namespace host {

// Draws the frame that a host draw of `gui` produces into `img` (kFrameBytes bytes): its visible
// parts in drawing order. A running animation moves on by one frame.
void render_frame(dvu_pnl_gcp_components& gui, unsigned char* img);
// The cursor rectangle (x, y, width, height) of an entry part that shows one; false for parts
// without a cursor.
bool cursor_of(const dvu_pnl_gcp_parts& part, int rect[4]);

// Gives `gui` the parts of the layout of its contents id, and the focus to its first entry part
// or list. A contents id outside every layout gets no parts.
void build_layout(dvu_pnl_gcp_components& gui);

// Per-module parts of host::reset(), in the order reset() calls them.
void reset_pages();
void reset_events();
void reset_devices();
void reset_layouts();
void reset_language();

}  // namespace host
}  // namespace orvanta
