// Pieces the host stand-ins share among themselves: the components of a page and reset hooks.
#pragma once

#include <map>
#include <memory>

#include "orvanta/host/panel_host.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta {

// The host's GUI components of one page: what tests script, and the parts added to it. One such
// object exists per open page; the page stack owns it.
class dvu_pnl_gcp_components {
 public:
  dvu_pnl_gcp_components(int contents_id, int function)
      : contents_id_(contents_id), function_(function) {}

  int contents_id() const { return contents_id_; }
  int function() const { return function_; }
  host::gui_script& script() { return script_; }
  std::map<int, std::unique_ptr<dvu_pnl_gcp_parts>>& parts() { return parts_; }

 private:
  int contents_id_;
  int function_;
  host::gui_script script_;
  std::map<int, std::unique_ptr<dvu_pnl_gcp_parts>> parts_;  // by part id
};

namespace host {

// Draws the frame that a host draw of `gui` produces into `img` (kFrameBytes bytes).
void render_frame(dvu_pnl_gcp_components& gui, unsigned char* img);

// Per-module parts of host::reset(), in the order reset() calls them.
void reset_pages();
void reset_events();
void reset_devices();
void reset_layouts();
void reset_language();

}  // namespace host
}  // namespace orvanta
