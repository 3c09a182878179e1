// Construction of dvc_pnl_ceh_contents_hdl_d_07_05: login and authentication screens, local and
// remote variants.
#include "screens/auth/dvc_pnl_ceh_contents_hdl_d_07_05.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_07_05::dvc_pnl_ceh_contents_hdl_d_07_05(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_07_05::~dvc_pnl_ceh_contents_hdl_d_07_05() = default;

}  // namespace orvanta
