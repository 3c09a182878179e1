// Construction of dvc_pnl_ceh_contents_hdl_sys_menu_d_01_01_01: system menu list: the same engine
// for the system menu tree.
#include "screens/lists/dvc_pnl_ceh_contents_hdl_sys_menu_d_01_01_01.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_sys_menu_d_01_01_01::dvc_pnl_ceh_contents_hdl_sys_menu_d_01_01_01(
    int contents_id, dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_sys_menu_d_01_01_01::~dvc_pnl_ceh_contents_hdl_sys_menu_d_01_01_01() =
    default;

}  // namespace orvanta
