// The common behaviour of the further status and record screens: title, draw, Back and Stop.
#pragma once

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"

namespace orvanta::further_screen {

// Shows the screen's title through the view helper and draws; a layout without a title part
// draws without it.
void load(dvc_pnl_ceh_contents_hdl_base& screen);
// Back (61) returns to the parent page, Stop (42) to the top of the function; both answer 1.
// Other keys are not taken (0).
int on_key(dvc_pnl_ceh_contents_hdl_base& screen, const dvc_pnl_evh_panel_event& event);

}  // namespace orvanta::further_screen
