// Construction of dvc_pnl_ceh_contents_hdl_d_04_08: size and use of the external media.
#include "screens/status/dvc_pnl_ceh_contents_hdl_d_04_08.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_08::dvc_pnl_ceh_contents_hdl_d_04_08(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_08::~dvc_pnl_ceh_contents_hdl_d_04_08() = default;

}  // namespace orvanta
