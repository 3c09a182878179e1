// Sending events: bare panel events, panel commands, error display control, and the notices of
// the login screen and window.
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"

#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "orvanta/platform/dvc_pnl_evh_panel_event.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace events {

void post(unsigned long id, int kind, const dvc_pnl_cmm_valueset* source) {
  dvc_pnl_evh_panel_event panel_event;
  int ret = panel_event.dvc_pnl_evh_set_id(dvc_pnl_evh_event_id(static_cast<int>(id)));
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
  if (source != nullptr) {
    ret = panel_event.dvc_pnl_evh_set_event_source_valueset(*source);
    if (ret != 0) {
      CEH_PLATFORM_FAIL(ret, "dvc_pnl_evh_set_event_source_valueset");
      return;
    }
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

dvc_pnl_cmm_valueset group_of(unsigned long group,
                              std::initializer_list<std::pair<unsigned long, long>> words) {
  dvc_pnl_cmm_key group_key;
  dvc_pnl_ceh_contents_hdl_add_key(group_key, 0);
  dvc_pnl_ceh_contents_hdl_add_key(group_key, group);
  dvc_pnl_cmm_valueset inner;
  for (const auto& [node, value] : words) {
    dvc_pnl_cmm_key key;
    dvc_pnl_ceh_contents_hdl_copy_key(group_key, key);
    dvc_pnl_ceh_contents_hdl_add_key(key, node);
    // Words travel as their 32-bit pattern, never sign-extended.
    dvc_pnl_ceh_contents_hdl_set_int_to_valueset(inner, key,
                                                 static_cast<long>(value & 0xffffffffL));
  }
  dvc_pnl_cmm_valueset outer;
  dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(outer, group_key, inner);
  return outer;
}

}  // namespace events

void dvc_pnl_ceh_contents_hdl_throw_event_without_additional_information(unsigned long event,
                                                                         int kind) {
  events::post(event, kind, nullptr);
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

void dvc_pnl_ceh_contents_hdl_throw_event_error_display_control(int show, int value) {
  const long word = show == 1 ? 0x40000004L : 0x20000004L;
  const dvc_pnl_cmm_valueset source = events::group_of(
      DVC_PNL_CEH_NODE_ERROR_DISPLAY,
      {{DVC_PNL_CEH_NODE_ERROR_DISPLAY_WORD, word}, {DVC_PNL_CEH_NODE_ERROR_DISPLAY_VALUE, value}});
  events::post(DVC_PNL_CEH_EVENT_ERROR_DISPLAY_CONTROL, DVC_PNL_CEH_EVENT_INIT_KIND, &source);
}

// ---------------------------------------------------------------- login screen and window

namespace {

void note_login_screen(long active, int state, unsigned long event) {
  if (active != -1) {
    const int function =
        dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance()->dvc_pnl_ceh_get_active_func();
    const int ret =
        dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_STATUS_PAGE_STATE, state, function);
    if (ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("set_int_to_dm DVC_PNL_PDM_STATUS_PAGE_STATE ret_code = %d", ret);
  }
  dvc_pnl_ceh_contents_hdl_throw_event_without_additional_information(event,
                                                                      DVC_PNL_CEH_EVENT_INIT_KIND);
}

// Stores `state` in the window flag of `function`; the application-wide flag follows when it
// stands at `from`.
void note_login_window(int function, int state, int from) {
  int ret =
      dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY, state, function);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set_int_to_dm DVC_PNL_PDM_LOGIN_WINDOW_DISPLAY ret_code = %d", ret);
  int open = -1;
  ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_OPEN_LOGIN_PAGE, open);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("get_int_from_dm_by_application DVC_PNL_PDM_OPEN_LOGIN_PAGE ret_code = %d", ret);
    return;
  }
  if (open != from)
    return;
  ret = dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_OPEN_LOGIN_PAGE, state);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set_int_to_dm_by_application DVC_PNL_PDM_OPEN_LOGIN_PAGE ret_code = %d", ret);
}

}  // namespace

void login_screen_opened(long active) {
  note_login_screen(active, 1, DVC_PNL_CEH_EVENT_LOGIN_SCREEN_OPENED);
}

void login_screen_closed(long active) {
  note_login_screen(active, 0, DVC_PNL_CEH_EVENT_LOGIN_SCREEN_CLOSED);
}

void login_window_display_on(int function) {
  note_login_window(function, 1, 0);
}

void login_window_display_off(int function) {
  note_login_window(function, 0, 1);
}

}  // namespace orvanta
