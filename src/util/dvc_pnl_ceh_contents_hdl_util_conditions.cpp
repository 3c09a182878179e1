// Machine and user condition queries. They never fail outward: a failed read gives the fallback.
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"

#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

int dvc_pnl_ceh_contents_hdl_get_management() {
  // Preset 0: the read keeps it on failure and has traced the failure itself.
  int management = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_MODE,
                                                          management);
  CEH_TRC("management = %d", management);
  return management;
}

// ---------------------------------------------------------------- remote panel

int is_remote_connected(long& status) {
  status = 0;
  dvc_pnl_cmm_valueset remote;
  if (dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_application_scope(
          DVC_PNL_PDM_REMOTE_PANEL_STATUS, remote) != 0)
    return 0;
  const unsigned long path[] = {0, 2096};
  long value = 0;
  if (dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path, 0, 2, remote, value) != 0)
    return 0;
  status = value;
  return value == 2 || value == 3 ? 1 : 0;
}

int is_remote_connected() {
  long status = 0;
  return is_remote_connected(status);
}

}  // namespace orvanta
