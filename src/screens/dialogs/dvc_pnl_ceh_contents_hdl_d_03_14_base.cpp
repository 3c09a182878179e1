// Construction of dvc_pnl_ceh_contents_hdl_d_03_14: notification message that goes back after a
// time.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_14.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_03_14::dvc_pnl_ceh_contents_hdl_d_03_14(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_14::~dvc_pnl_ceh_contents_hdl_d_03_14() = default;

}  // namespace orvanta
