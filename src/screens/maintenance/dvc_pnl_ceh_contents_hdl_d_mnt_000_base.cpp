// Construction of dvc_pnl_ceh_contents_hdl_d_mnt_000: maintenance mode, main screen.
#include "screens/maintenance/dvc_pnl_ceh_contents_hdl_d_mnt_000.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_mnt_000::dvc_pnl_ceh_contents_hdl_d_mnt_000(int contents_id,
                                                                       dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_mnt_000::~dvc_pnl_ceh_contents_hdl_d_mnt_000() = default;

}  // namespace orvanta
