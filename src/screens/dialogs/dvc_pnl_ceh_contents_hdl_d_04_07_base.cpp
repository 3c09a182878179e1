// Construction of dvc_pnl_ceh_contents_hdl_d_04_07: message and alert screens.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_04_07.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_07::dvc_pnl_ceh_contents_hdl_d_04_07(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_07::~dvc_pnl_ceh_contents_hdl_d_04_07() = default;

}  // namespace orvanta
