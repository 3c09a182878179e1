// The common behaviour of the further status and record screens.
#include "screens/further/dvc_pnl_ceh_contents_hdl_further_screen.h"

#include "contents/dvc_pnl_ceh_logger.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"

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
  dvu_pnl_gcp_parts* title =
      dvu_pnl_gcp_get_gui_parts_by_id(screen.dvc_pnl_ceh_get_gui_components(), kPartTitle);
  if (title != nullptr) {
    // A text resource of -1 lets the literal text show.
    title->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, -1);
    title->dvu_pnl_gcp_set_str_val(0, placeholder_title(screen.get_contents_id()));
  }
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
