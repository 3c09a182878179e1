// Machine actions that screens start: the maintenance mode login flag.
#include "util/dvc_pnl_ceh_contents_hdl_util_actions.h"

#include "orvanta/platform/dvc_pnl_pdm_data_manager.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

int dvc_pnl_ceh_contents_hdl_set_maintenance_mode_login_flag(
    DVC_PNL_CMN_ENUM_MAINTENANCE_MODE_LOGIN_VALUE flag) {
  CEH_TRC("set_maintenance_mode_login_flag() flag:%d.", flag);
  dvc_pnl_cmm_value value;
  int ret = value.dvc_pnl_cmm_set_int(flag);
  dvc_pnl_pdm_data_manager* dm = dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_instance();
  if (ret == 0)
    ret = dm == nullptr ? -1
                        : dm->dvc_pnl_pdm_set_by_application_scope(
                              DVC_PNL_PDM_CEH_MAINTENANCE_MODE_LOGIN_PERMIT_FLAG, value);
  if (ret != 0)
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_pdm_data_manager::dvc_pnl_pdm_set_by_application_scope");
  return 0;
}

}  // namespace orvanta
