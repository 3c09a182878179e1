// Construction of dvc_pnl_ceh_contents_hdl_d_04_03_03: job detail pages over data held in the data
// manager.
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_03.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_03_03::dvc_pnl_ceh_contents_hdl_d_04_03_03(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_03_03::~dvc_pnl_ceh_contents_hdl_d_04_03_03() = default;

}  // namespace orvanta
