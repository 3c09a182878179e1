// Construction of dvc_pnl_ceh_contents_hdl_d_mnt_004: maintenance mode, unique list screen.
#include "screens/maintenance/dvc_pnl_ceh_contents_hdl_d_mnt_004.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_mnt_004::dvc_pnl_ceh_contents_hdl_d_mnt_004(int contents_id,
                                                                       dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_mnt_004::~dvc_pnl_ceh_contents_hdl_d_mnt_004() = default;

}  // namespace orvanta
