// Umbrella header of the panel library: every public name of the screen logic.
#pragma once

#include "contents/dvc_pnl_ceh_contents_base.h"
#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_contents_id.h"
#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "contents/dvc_pnl_ceh_logger.h"
#include "screens/dvc_pnl_ceh_screens.h"
#include "services/dvc_pnl_ceh_contents_hdl_validator.h"
#include "services/dvc_pnl_ceh_exclusive_lock_manager.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_errors.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_notices.h"
