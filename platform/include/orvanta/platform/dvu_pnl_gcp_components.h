// GUI components of a screen: the parts on its layout, key handling by the parts, and drawing.
#pragma once

#include "orvanta/platform/dvc_pnl_evh_panel_event.h"

namespace orvanta {

// What the components report for a key.
struct DVU_PNL_GCP_NOTIFY {
  int type;          // 0 nothing happened; 1 refused; 2, 5, 7, 8 edit; 3, 4 button; 6, 9 list
  int repeat_count;  // how often the key repeated
  int repeat_kind;   // 0 no repeat; 1 to 4 the key repeat table row
  int part_id;       // the part that answered
  int value;         // the part's value after the key (selected row, number, ...)
};

// Numbered attributes of a part that screens read and write.
enum : int {
  DVU_PNL_GCP_ATTR_ICON = 1,  // the icon resource shown by an icon part
};

// One part of a layout: a text, an icon, a list, an entry field and so on.
class dvu_pnl_gcp_parts {
 public:
  virtual ~dvu_pnl_gcp_parts() = default;
  virtual int dvu_pnl_gcp_get_int_val(int attribute, int& value) const = 0;
  virtual int dvu_pnl_gcp_set_int_val(int attribute, int value) = 0;
};

// The set of parts of one screen, owned by the framework.
class dvu_pnl_gcp_components;

// The part `part_id` of the screen, or nullptr when its layout has none.
dvu_pnl_gcp_parts* dvu_pnl_gcp_get_gui_parts_by_id(dvu_pnl_gcp_components* gui, int part_id);
// Renders the screen into `img` (1024 bytes, 128x64, one bit a pixel); 1 when the image changed.
int dvu_pnl_gcp_draw(dvu_pnl_gcp_components* gui, unsigned char* img);
// Lets the parts handle a key; fills `notify` (type 0 when nothing happened).
int dvu_pnl_gcp_on_key(dvu_pnl_gcp_components* gui, const dvc_pnl_evh_panel_event& event,
                       DVU_PNL_GCP_NOTIFY& notify);
// 1 when a cursor is shown, with its rectangle in `rect` (x, y, width, height); else 0.
int dvu_pnl_gcp_get_cursor_info(dvu_pnl_gcp_components* gui, int rect[4]);

// Converts a USB keyboard event into the hard key event it stands for.
class dvu_pnl_gcp_keyboard_convertor {
 public:
  // The hard key event id, or -1 when the key has none.
  static int key_to_hkey(const dvc_pnl_evh_panel_event& event);
};

}  // namespace orvanta
