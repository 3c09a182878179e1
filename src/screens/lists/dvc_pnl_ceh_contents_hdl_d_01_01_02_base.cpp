// Construction of dvc_pnl_ceh_contents_hdl_d_01_01_02: small list screens for system setting
// groups.
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_02.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_01_01_02::dvc_pnl_ceh_contents_hdl_d_01_01_02(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_01_01_02::~dvc_pnl_ceh_contents_hdl_d_01_01_02() = default;

}  // namespace orvanta
