// Construction of dvc_pnl_ceh_contents_hdl_d_01_05: job detail: destination list of a job.
#include "screens/status/dvc_pnl_ceh_contents_hdl_d_01_05.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_01_05::dvc_pnl_ceh_contents_hdl_d_01_05(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_01_05::~dvc_pnl_ceh_contents_hdl_d_01_05() = default;

}  // namespace orvanta
