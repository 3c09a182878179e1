// Construction of dvc_pnl_ceh_contents_hdl_d_08_10: digit code entry.
#include "screens/entry/dvc_pnl_ceh_contents_hdl_d_08_10.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_08_10::dvc_pnl_ceh_contents_hdl_d_08_10(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_08_10::~dvc_pnl_ceh_contents_hdl_d_08_10() = default;

}  // namespace orvanta
