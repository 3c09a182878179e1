// dvc_pnl_ceh_contents_hdl_d_04_03_07: contact and user entry pages.
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_07.h"

#include "screens/further/dvc_pnl_ceh_contents_hdl_further_screen.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_03_07::dvc_pnl_ceh_contents_hdl_d_04_03_07(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_03_07::~dvc_pnl_ceh_contents_hdl_d_04_03_07() = default;

// No behaviour of its own is defined for this family: it shows its title and goes back.
void dvc_pnl_ceh_contents_hdl_d_04_03_07::dvc_pnl_ceh_on_load() {
  further_screen::load(*this);
}

int dvc_pnl_ceh_contents_hdl_d_04_03_07::dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) {
  return further_screen::on_key(*this, event);
}

}  // namespace orvanta
