// Construction of dvc_pnl_ceh_contents_hdl_d_08_11: login entry, local and remote variants.
#include "screens/auth/dvc_pnl_ceh_contents_hdl_d_08_11.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_08_11::dvc_pnl_ceh_contents_hdl_d_08_11(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_08_11::~dvc_pnl_ceh_contents_hdl_d_08_11() = default;

}  // namespace orvanta
