// Construction of dvc_pnl_ceh_contents_hdl_d_08_02_04: fax number entry.
#include "screens/entry/dvc_pnl_ceh_contents_hdl_d_08_02_04.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_08_02_04::dvc_pnl_ceh_contents_hdl_d_08_02_04(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_08_02_04::~dvc_pnl_ceh_contents_hdl_d_08_02_04() = default;

}  // namespace orvanta
