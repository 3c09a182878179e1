// Construction of dvc_pnl_ceh_contents_hdl_d_02_04: confirmation dialog that deletes or updates
// many items.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_02_04.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_02_04::dvc_pnl_ceh_contents_hdl_d_02_04(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_02_04::~dvc_pnl_ceh_contents_hdl_d_02_04() = default;

}  // namespace orvanta
