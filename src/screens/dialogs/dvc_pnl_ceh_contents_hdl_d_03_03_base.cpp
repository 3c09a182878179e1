// Construction of dvc_pnl_ceh_contents_hdl_d_03_03: paper jam guidance.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_03.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_03_03::dvc_pnl_ceh_contents_hdl_d_03_03(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_03::~dvc_pnl_ceh_contents_hdl_d_03_03() = default;

}  // namespace orvanta
