// Construction of dvc_pnl_ceh_contents_hdl_d_07_01: copy home screen and box print home screen.
#include "screens/home/dvc_pnl_ceh_contents_hdl_d_07_01.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_07_01::dvc_pnl_ceh_contents_hdl_d_07_01(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_07_01::~dvc_pnl_ceh_contents_hdl_d_07_01() = default;

}  // namespace orvanta
