// Construction of dvc_pnl_ceh_contents_hdl_d_06_06: numeric entry, the common form.
#include "screens/entry/dvc_pnl_ceh_contents_hdl_d_06_06.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_06_06::dvc_pnl_ceh_contents_hdl_d_06_06(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_06_06::~dvc_pnl_ceh_contents_hdl_d_06_06() = default;

}  // namespace orvanta
