// Construction of dvc_pnl_ceh_contents_hdl_d_04_03_09: user and address detail pages.
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_03_09.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_03_09::dvc_pnl_ceh_contents_hdl_d_04_03_09(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_03_09::~dvc_pnl_ceh_contents_hdl_d_04_03_09() = default;

}  // namespace orvanta
