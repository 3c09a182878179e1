// Construction of dvc_pnl_ceh_contents_hdl_d_05_01: status of a running update or operation.
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_05_01.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_05_01::dvc_pnl_ceh_contents_hdl_d_05_01(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_05_01::~dvc_pnl_ceh_contents_hdl_d_05_01() = default;

}  // namespace orvanta
