// Throwing events: bare panel events to the framework's event handler, and panel commands to the
// key controller.
#pragma once

#include "orvanta/platform/dvu_pnl_dec_controllers.h"

namespace orvanta {

// Posts a panel event with id `event`, init type `kind` and priority 0 and nothing attached. A
// failure is traced and the event is not posted.
void dvc_pnl_ceh_contents_hdl_throw_event_without_additional_information(unsigned long event,
                                                                         int kind);

// Hands the panel command `command` to the key controller, which lets the framework act on it.
void dvc_pnl_ceh_contents_hdl_throw_key_event(DVU_PNL_DEC_PANEL_COMMAND command);

}  // namespace orvanta
