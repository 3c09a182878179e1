// Construction of dvc_pnl_ceh_contents_hdl_d_04_01_01: status message screens that show the main
// message.
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_01_01.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_01_01::dvc_pnl_ceh_contents_hdl_d_04_01_01(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_01_01::~dvc_pnl_ceh_contents_hdl_d_04_01_01() = default;

}  // namespace orvanta
