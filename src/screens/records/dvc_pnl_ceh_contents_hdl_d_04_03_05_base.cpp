// Construction of dvc_pnl_ceh_contents_hdl_d_04_03_05: record detail pages: contact, user, box,
// file, job accounting.
#include "screens/records/dvc_pnl_ceh_contents_hdl_d_04_03_05.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_03_05::dvc_pnl_ceh_contents_hdl_d_04_03_05(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_03_05::~dvc_pnl_ceh_contents_hdl_d_04_03_05() = default;

}  // namespace orvanta
