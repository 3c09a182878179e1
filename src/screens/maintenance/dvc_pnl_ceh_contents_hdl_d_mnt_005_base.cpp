// Construction of dvc_pnl_ceh_contents_hdl_d_mnt_005: maintenance mode, unique list screen.
#include "screens/maintenance/dvc_pnl_ceh_contents_hdl_d_mnt_005.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_mnt_005::dvc_pnl_ceh_contents_hdl_d_mnt_005(int contents_id,
                                                                       dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_mnt_005::~dvc_pnl_ceh_contents_hdl_d_mnt_005() = default;

}  // namespace orvanta
