// The contract between the framework and a screen: what the framework and the event proxy call.
#pragma once

#include "orvanta/platform/dvc_pnl_evh_panel_event.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta {

// A screen as the framework knows it. The int handlers answer 1 when they consumed the event,
// 0 to pass it on. The slot order is part of the contract.
class dvc_pnl_ceh_contents_interface {
 public:
  virtual ~dvc_pnl_ceh_contents_interface() = default;

  virtual void dvc_pnl_ceh_on_load() {}
  virtual void dvc_pnl_ceh_on_close() {}
  virtual int dvc_pnl_ceh_on_panel_event(dvc_pnl_evh_panel_event& /*event*/) { return 0; }
  virtual void dvc_pnl_ceh_on_timer_base(int timer_id, int period_ms) = 0;
  virtual void dvc_pnl_ceh_on_timer(int /*timer_id*/) {}
  virtual void dvc_pnl_ceh_on_activate() {}
  virtual void dvc_pnl_ceh_on_activate_pre() {}
  virtual void dvc_pnl_ceh_on_deactivate() {}
  virtual int dvc_pnl_ceh_on_key_base(dvc_pnl_evh_panel_event& event) = 0;
  virtual int dvc_pnl_ceh_on_usb_keyboard_base(dvc_pnl_evh_panel_event& event) = 0;
  virtual int dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& /*event*/) { return 0; }
  virtual int dvc_pnl_ceh_on_gui_button_notify(DVU_PNL_GCP_NOTIFY* /*notify*/) { return 0; }
  virtual int dvc_pnl_ceh_on_gui_list_notify(DVU_PNL_GCP_NOTIFY* /*notify*/) { return 0; }
  virtual int dvc_pnl_ceh_on_gui_edit_notify(DVU_PNL_GCP_NOTIFY* /*notify*/) { return 0; }
  virtual void dvc_pnl_ceh_lock() = 0;
  virtual void dvc_pnl_ceh_unlock() = 0;
};

}  // namespace orvanta
