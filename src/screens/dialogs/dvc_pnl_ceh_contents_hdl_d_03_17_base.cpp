// Construction of dvc_pnl_ceh_contents_hdl_d_03_17: single message screen.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_17.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_03_17::dvc_pnl_ceh_contents_hdl_d_03_17(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_17::~dvc_pnl_ceh_contents_hdl_d_03_17() = default;

}  // namespace orvanta
