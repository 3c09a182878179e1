// Construction of dvc_pnl_ceh_contents_hdl_d_01_01_01: option list: a table-driven list of the
// choices of one setting.
#include "screens/lists/dvc_pnl_ceh_contents_hdl_d_01_01_01.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_01_01_01::dvc_pnl_ceh_contents_hdl_d_01_01_01(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_01_01_01::~dvc_pnl_ceh_contents_hdl_d_01_01_01() = default;

}  // namespace orvanta
