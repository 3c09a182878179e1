// Construction of dvc_pnl_ceh_contents_hdl_d_06_03: numeric entry.
#include "screens/entry/dvc_pnl_ceh_contents_hdl_d_06_03.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_06_03::dvc_pnl_ceh_contents_hdl_d_06_03(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_06_03::~dvc_pnl_ceh_contents_hdl_d_06_03() = default;

}  // namespace orvanta
