// Construction of dvc_pnl_ceh_contents_hdl_d_08_05: identification entry and job accounting entry.
#include "screens/entry/dvc_pnl_ceh_contents_hdl_d_08_05.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_08_05::dvc_pnl_ceh_contents_hdl_d_08_05(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_08_05::~dvc_pnl_ceh_contents_hdl_d_08_05() = default;

}  // namespace orvanta
