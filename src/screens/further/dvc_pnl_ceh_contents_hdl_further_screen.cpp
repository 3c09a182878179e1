// The common behaviour of the further status and record screens.
#include "screens/further/dvc_pnl_ceh_contents_hdl_further_screen.h"

#include "contents/dvc_pnl_ceh_logger.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta::further_screen {
namespace {

constexpr int kKeyBack = 61;
constexpr int kKeyStop = 42;

// Placeholder title, the one place for all screens of this family: their title texts are not
// known, so each shows its contents name as a literal text.
std::string placeholder_title(int contents_id) {
  return dvc_pnl_ceh_logger::get_cid(contents_id);
}

}  // namespace

void load(dvc_pnl_ceh_contents_hdl_base& screen) {
  const dvc_pnl_ceh_contents_hdl_gui* gui =
      dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_register_gui_operator(
          screen.dvc_pnl_ceh_get_gui_components());
  // A title that cannot be shown is no reason to leave the screen undrawn.
  if (int ret = gui->dvc_pnl_ceh_update_view_text(GUI_ID_TITLE,
                                                  placeholder_title(screen.get_contents_id()), 0);
      ret != 0)
    CEH_ERR("update_view_text ret_code = %d", ret);
  screen.draw();
}

int on_key(dvc_pnl_ceh_contents_hdl_base& screen, const dvc_pnl_evh_panel_event& event) {
  switch (event.dvc_pnl_evh_get_id()) {
    case kKeyBack:
      screen.back_to_parent();
      return 1;
    case kKeyStop:
      screen.back_to_top();
      return 1;
    default:
      return 0;
  }
}

}  // namespace orvanta::further_screen
