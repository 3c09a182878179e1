// Construction of dvc_pnl_ceh_contents_hdl_d_03_12: alert and error message screens.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_12.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_03_12::dvc_pnl_ceh_contents_hdl_d_03_12(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_12::~dvc_pnl_ceh_contents_hdl_d_03_12() = default;

}  // namespace orvanta
