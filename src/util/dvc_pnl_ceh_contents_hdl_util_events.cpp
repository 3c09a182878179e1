// Throwing events: bare panel events and panel commands.
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"

#include "orvanta/platform/dvc_pnl_evh_panel_event.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

void dvc_pnl_ceh_contents_hdl_throw_event_without_additional_information(unsigned long event,
                                                                         int kind) {
  dvc_pnl_evh_panel_event panel_event;
  int ret = panel_event.dvc_pnl_evh_set_id(dvc_pnl_evh_event_id(static_cast<int>(event)));
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_evh_set_id");
    return;
  }
  ret = panel_event.dvc_pnl_evh_set_init_type(kind);
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_evh_set_init_type");
    return;
  }
  ret = panel_event.dvc_pnl_evh_set_priority(0);
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_evh_set_priority");
    return;
  }
  dvc_pnl_evh_event_handler* handler = dvc_pnl_evh_event_handler::dvc_pnl_evh_instance();
  if (handler == nullptr) {
    CEH_ERR("dvc_pnl_evh_event_handler is NULL");
    return;
  }
  ret = handler->dvc_pnl_evm_notify_panel_event(panel_event);
  if (ret != 0)
    CEH_ERR("dvc_pnl_evm_notify_panel_event ret_code = %d", ret);
}

void dvc_pnl_ceh_contents_hdl_throw_key_event(DVU_PNL_DEC_PANEL_COMMAND command) {
  CEH_TRC("throw key event = %d", command);
  dvu_pnl_dec_key_controller* kc = dvu_pnl_dec_key_controller::dvu_pnl_dec_get_instance();
  if (kc == nullptr) {
    CEH_ERR("dvu_pnl_dec_key_controller::dvu_pnl_dec_get_instance() kc is NULL");
    return;
  }
  // The controller's answer says nothing the caller could act on: the command is thrown once.
  kc->dvu_pnl_dec_throw_key_event(command);
  CEH_TRC("throw key event = %d success.", command);
}

}  // namespace orvanta
