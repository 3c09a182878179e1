// The uniform free functions of the platform access layer, one header for screens to include.
#pragma once

#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_transaction.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
