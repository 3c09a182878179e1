// Construction of dvc_pnl_ceh_contents_hdl_d_07_06: send destination home screens.
#include "screens/home/dvc_pnl_ceh_contents_hdl_d_07_06.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_07_06::dvc_pnl_ceh_contents_hdl_d_07_06(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_07_06::~dvc_pnl_ceh_contents_hdl_d_07_06() = default;

}  // namespace orvanta
