// Construction of dvc_pnl_ceh_contents_hdl_d_01_01_03: list filled from a service: destinations,
// address book, boxes.
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_03.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_01_01_03::dvc_pnl_ceh_contents_hdl_d_01_01_03(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_01_01_03::~dvc_pnl_ceh_contents_hdl_d_01_01_03() = default;

}  // namespace orvanta
