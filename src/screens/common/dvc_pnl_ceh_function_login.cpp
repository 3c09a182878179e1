// The login that a guest is sent to when a function needs a logged-in user.
#include "screens/common/dvc_pnl_ceh_function_login.h"

#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_records.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

int open_function_login_contents(dvc_pnl_ceh_contents_hdl_base& screen, long mask) {
  if ((mask & DVC_PNL_CEH_FUNCTION_LOGIN_MASK) == 0 ||
      dvc_pnl_ceh_contents_hdl_is_guest_user() != 1 ||
      dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(mask) != 1) {
    return 0;
  }
  DVC_PNL_CEH_AUTHENTICATION_INFO info{};
  info.kind = DVC_PNL_CEH_AUTHENTICATION_KIND_FUNCTION;
  info.target = screen.get_contents_id();
  info.refused = screen.get_contents_id();
  const int ret = dvc_pnl_ceh_contents_hdl_set_binary_to_dm(
      DVC_PNL_PDM_CEH_AUTHENTICATION_INFO, &info, sizeof info, screen.get_view_function_id());
  if (ret != 0) {
    CEH_ERR("set DVC_PNL_PDM_CEH_AUTHENTICATION_INFO ret_code = %d", ret);
    return 0;
  }
  screen.open_child_contents(dvc_pnl_ceh_contents_hdl_get_job_info_login_page());
  return 1;
}

}  // namespace orvanta
