// Construction of dvc_pnl_ceh_contents_hdl_d_01_01_07: file and user lists.
#include "screens/box/dvc_pnl_ceh_contents_hdl_d_01_01_07.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_01_01_07::dvc_pnl_ceh_contents_hdl_d_01_01_07(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_01_01_07::~dvc_pnl_ceh_contents_hdl_d_01_01_07() = default;

}  // namespace orvanta
