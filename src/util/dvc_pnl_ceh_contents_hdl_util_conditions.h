// Machine and user condition queries: small questions that screens ask, each answered in one int.
#pragma once

namespace orvanta {

// ---- users and authentication ----

// The authentication mode: 0 no user management, 1 and 3 users log in (3 with job accounting
// too), 2 job accounting only. A failed read answers 0.
int dvc_pnl_ceh_contents_hdl_get_management();

// ---- remote panel ----

// 1 while a remote panel is connected (status 2 or 3 at node 0.2096 of the remote panel status
// in the application scope), else 0; a failed read answers 0. `status` gets the status read, 0
// when the read failed.
int is_remote_connected(long& status);
int is_remote_connected();

}  // namespace orvanta
