// Umbrella header of the panel library: every public name of the screen logic.
#pragma once

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "services/dvc_pnl_ceh_contents_hdl_validator.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
