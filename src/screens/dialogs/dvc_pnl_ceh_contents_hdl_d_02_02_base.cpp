// Construction of dvc_pnl_ceh_contents_hdl_d_02_02: confirmation dialog that registers or updates a
// record.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_02_02.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_02_02::dvc_pnl_ceh_contents_hdl_d_02_02(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_02_02::~dvc_pnl_ceh_contents_hdl_d_02_02() = default;

}  // namespace orvanta
