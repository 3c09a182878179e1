// Construction of dvc_pnl_ceh_contents_hdl_d_03_06: alert with a job operation.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_06.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_03_06::dvc_pnl_ceh_contents_hdl_d_03_06(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_06::~dvc_pnl_ceh_contents_hdl_d_03_06() = default;

}  // namespace orvanta
