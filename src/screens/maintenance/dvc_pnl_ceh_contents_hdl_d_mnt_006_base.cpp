// Construction of dvc_pnl_ceh_contents_hdl_d_mnt_006: maintenance mode, unique list screen that
// throws key events.
#include "screens/maintenance/dvc_pnl_ceh_contents_hdl_d_mnt_006.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_mnt_006::dvc_pnl_ceh_contents_hdl_d_mnt_006(int contents_id,
                                                                       dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_mnt_006::~dvc_pnl_ceh_contents_hdl_d_mnt_006() = default;

}  // namespace orvanta
