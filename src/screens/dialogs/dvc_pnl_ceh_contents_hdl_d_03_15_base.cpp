// Construction of dvc_pnl_ceh_contents_hdl_d_03_15: paper alert with a job operation.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_15.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_03_15::dvc_pnl_ceh_contents_hdl_d_03_15(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_15::~dvc_pnl_ceh_contents_hdl_d_03_15() = default;

}  // namespace orvanta
