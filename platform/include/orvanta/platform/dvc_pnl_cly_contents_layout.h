// Contents layouts: the framework's description of the parts of each screen and their attributes.
#pragma once

#include <string>

namespace orvanta {

// Bits of a layout's attribute word that the screens act on.
enum : unsigned long {
  DVC_PNL_CLY_ATTR_RELOAD_ON_FUNCTION_LOGIN = 0x1,  // reload the page after a function login
  DVC_PNL_CLY_ATTR_REDRAW_ON_FUNCTION_LOGIN = 0x2,  // redraw it instead of activating it
};

// Looks up the layout of `contents_id`: its name and its attribute word. 0 on success; on
// failure `name` and `attributes` are left alone.
int dvc_pnl_cly_get_layout_name(int contents_id, std::string& name, unsigned long& attributes);

}  // namespace orvanta
