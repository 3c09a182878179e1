// Construction of dvc_pnl_ceh_contents_hdl_d_03_01: timed message: a message that closes itself
// after a time.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_01.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_03_01::dvc_pnl_ceh_contents_hdl_d_03_01(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_01::~dvc_pnl_ceh_contents_hdl_d_03_01() = default;

}  // namespace orvanta
