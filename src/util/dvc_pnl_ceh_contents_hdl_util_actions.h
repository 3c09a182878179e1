// Machine actions that screens start: the maintenance mode login flag.
#pragma once

namespace orvanta {

// Whether the maintenance mode may be logged into from the screen on top: 1 on the copy home
// screen, 0 elsewhere.
using DVC_PNL_CMN_ENUM_MAINTENANCE_MODE_LOGIN_VALUE = int;

// Stores `flag` in DVC_PNL_PDM_CEH_MAINTENANCE_MODE_LOGIN_PERMIT_FLAG (application scope) through
// the data manager itself. Always 0: a failure is traced and nothing else happens.
int dvc_pnl_ceh_contents_hdl_set_maintenance_mode_login_flag(
    DVC_PNL_CMN_ENUM_MAINTENANCE_MODE_LOGIN_VALUE flag);

}  // namespace orvanta
