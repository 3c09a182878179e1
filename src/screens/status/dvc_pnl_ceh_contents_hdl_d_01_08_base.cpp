// Construction of dvc_pnl_ceh_contents_hdl_d_01_08: job status and job log lists.
#include "screens/status/dvc_pnl_ceh_contents_hdl_d_01_08.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_01_08::dvc_pnl_ceh_contents_hdl_d_01_08(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_01_08::~dvc_pnl_ceh_contents_hdl_d_01_08() = default;

}  // namespace orvanta
