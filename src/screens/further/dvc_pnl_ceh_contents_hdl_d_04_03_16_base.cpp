// Construction of dvc_pnl_ceh_contents_hdl_d_04_03_16: record pages updated by a timer.
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_16.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_03_16::dvc_pnl_ceh_contents_hdl_d_04_03_16(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_03_16::~dvc_pnl_ceh_contents_hdl_d_04_03_16() = default;

}  // namespace orvanta
