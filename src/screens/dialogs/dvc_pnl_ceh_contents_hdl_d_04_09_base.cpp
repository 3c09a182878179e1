// Construction of dvc_pnl_ceh_contents_hdl_d_04_09: progress screen that runs a command and waits
// for its result.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_04_09.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_09::dvc_pnl_ceh_contents_hdl_d_04_09(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_09::~dvc_pnl_ceh_contents_hdl_d_04_09() = default;

}  // namespace orvanta
