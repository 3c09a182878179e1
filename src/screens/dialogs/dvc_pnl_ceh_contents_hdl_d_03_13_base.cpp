// Construction of dvc_pnl_ceh_contents_hdl_d_03_13: progress or result message with a setting item.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_13.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_03_13::dvc_pnl_ceh_contents_hdl_d_03_13(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_13::~dvc_pnl_ceh_contents_hdl_d_03_13() = default;

}  // namespace orvanta
