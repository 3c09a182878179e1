// Construction of dvc_pnl_ceh_contents_hdl_d_01_10: destination confirmation.
#include "screens/records/dvc_pnl_ceh_contents_hdl_d_01_10.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_01_10::dvc_pnl_ceh_contents_hdl_d_01_10(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_01_10::~dvc_pnl_ceh_contents_hdl_d_01_10() = default;

}  // namespace orvanta
