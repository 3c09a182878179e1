// Construction of dvc_pnl_ceh_contents_hdl_d_08_01: address entry of four number fields.
#include "screens/entry/dvc_pnl_ceh_contents_hdl_d_08_01.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_08_01::dvc_pnl_ceh_contents_hdl_d_08_01(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_08_01::~dvc_pnl_ceh_contents_hdl_d_08_01() = default;

}  // namespace orvanta
