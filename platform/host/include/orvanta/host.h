// Umbrella header of the host platform: the stand-ins that run the panel library on a PC.
#pragma once

#include "orvanta/host/dm_key_registry.h"
#include "orvanta/host/error_table.h"
#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/page_lifecycle.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/host/trace_sink.h"
#include "orvanta/host/value_faults.h"
