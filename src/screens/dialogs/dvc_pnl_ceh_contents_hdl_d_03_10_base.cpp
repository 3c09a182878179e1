// Construction of dvc_pnl_ceh_contents_hdl_d_03_10: information message updated by a timer.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_10.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_03_10::dvc_pnl_ceh_contents_hdl_d_03_10(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_10::~dvc_pnl_ceh_contents_hdl_d_03_10() = default;

}  // namespace orvanta
