// Construction of dvc_pnl_ceh_contents_hdl_d_02_06: confirmation dialog with a command to a
// service.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_02_06.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_02_06::dvc_pnl_ceh_contents_hdl_d_02_06(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_02_06::~dvc_pnl_ceh_contents_hdl_d_02_06() = default;

}  // namespace orvanta
