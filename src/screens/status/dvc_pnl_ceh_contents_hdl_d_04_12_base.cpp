// Construction of dvc_pnl_ceh_contents_hdl_d_04_12: text pages of a setup flow, with a scroll icon.
#include "screens/status/dvc_pnl_ceh_contents_hdl_d_04_12.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_12::dvc_pnl_ceh_contents_hdl_d_04_12(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_12::~dvc_pnl_ceh_contents_hdl_d_04_12() = default;

}  // namespace orvanta
