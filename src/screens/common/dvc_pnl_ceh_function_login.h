// The login that a guest is sent to when a function needs a logged-in user.
#pragma once

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"

namespace orvanta {

// The functions a guest may be refused, as bits of the guest login restrictions.
inline constexpr long DVC_PNL_CEH_FUNCTION_LOGIN_MASK = 0x1f70;

// When `mask` names a function of DVC_PNL_CEH_FUNCTION_LOGIN_MASK, the user is the guest and the
// guest may not use it: stores a record of kind 3 that brings the user back to `screen` either
// way, opens the login page and answers 1. Otherwise, or when the record cannot be stored,
// nothing opens and the answer is 0.
int open_function_login_contents(dvc_pnl_ceh_contents_hdl_base& screen, long mask);

}  // namespace orvanta
