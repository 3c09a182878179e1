// Construction of dvc_pnl_ceh_contents_hdl_d_08_12: address entry of the long form.
#include "screens/entry/dvc_pnl_ceh_contents_hdl_d_08_12.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_08_12::dvc_pnl_ceh_contents_hdl_d_08_12(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_08_12::~dvc_pnl_ceh_contents_hdl_d_08_12() = default;

}  // namespace orvanta
