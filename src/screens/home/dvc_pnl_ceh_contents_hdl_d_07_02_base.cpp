// Construction of dvc_pnl_ceh_contents_hdl_d_07_02: send home screens.
#include "screens/home/dvc_pnl_ceh_contents_hdl_d_07_02.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_07_02::dvc_pnl_ceh_contents_hdl_d_07_02(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_07_02::~dvc_pnl_ceh_contents_hdl_d_07_02() = default;

}  // namespace orvanta
