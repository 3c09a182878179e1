// Construction of dvc_pnl_ceh_contents_hdl_d_mnt_002: maintenance mode, unique list screen.
#include "screens/maintenance/dvc_pnl_ceh_contents_hdl_d_mnt_002.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_mnt_002::dvc_pnl_ceh_contents_hdl_d_mnt_002(int contents_id,
                                                                       dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_mnt_002::~dvc_pnl_ceh_contents_hdl_d_mnt_002() = default;

}  // namespace orvanta
