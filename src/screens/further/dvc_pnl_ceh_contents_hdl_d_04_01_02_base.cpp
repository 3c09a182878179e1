// Construction of dvc_pnl_ceh_contents_hdl_d_04_01_02: print job status detail message screens.
#include "screens/further/dvc_pnl_ceh_contents_hdl_d_04_01_02.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_d_04_01_02::dvc_pnl_ceh_contents_hdl_d_04_01_02(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_04_01_02::~dvc_pnl_ceh_contents_hdl_d_04_01_02() = default;

}  // namespace orvanta
