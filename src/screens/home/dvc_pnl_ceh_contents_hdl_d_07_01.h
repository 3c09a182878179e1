// Copy home screen and box print home screen.
#pragma once

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "screens/home/dvc_pnl_ceh_home_messages.h"

namespace orvanta {

// The base page of copy (CID_01_01_N1, functions 1, 11 and 24) and of box print
// (CID_01_02_03_N1, function 6): the main message, the copy count and its entry.
class dvc_pnl_ceh_contents_hdl_d_07_01 : public dvc_pnl_ceh_contents_hdl_base {
 public:
  dvc_pnl_ceh_contents_hdl_d_07_01(int contents_id, dvu_pnl_gcp_components* gui);
  ~dvc_pnl_ceh_contents_hdl_d_07_01() override;

  void dvc_pnl_ceh_on_load() override;
  void dvc_pnl_ceh_on_close() override { on_close_common(); }
  void dvc_pnl_ceh_on_timer(int timer_id) override { on_timer_common(timer_id); }
  void dvc_pnl_ceh_on_activate() override { on_active_common(); }
  void dvc_pnl_ceh_on_deactivate() override { on_deactive_common(); }
  int dvc_pnl_ceh_on_panel_event(dvc_pnl_evh_panel_event& event) override {
    return on_panel_event_common(event);
  }
  int dvc_pnl_ceh_on_gui_edit_notify(DVU_PNL_GCP_NOTIFY* notify) override {
    return on_gui_edit_notify_common(notify);
  }

  int copy_limit() const { return copy_limit_; }
  const dvc_pnl_ceh_home_messages& messages() const { return messages_; }

 private:
  void on_load_01_01_n1();
  void on_load_01_02_03_n1();
  void on_close_common();
  void on_timer_common(int timer_id);
  void on_active_common();
  void on_deactive_common();
  int on_panel_event_common(dvc_pnl_evh_panel_event& event);
  int on_gui_edit_notify_common(DVU_PNL_GCP_NOTIFY* notify);

  // The parts both loads fill the same way, before their own.
  void load_fixed_parts();
  // The function icon: box print shows none for a print from some boxes.
  void update_function_icon();
  // Reads the highest copy count and sets the limits of the count entry.
  void get_copy_limit_from_cmm();
  // Shows the stored count, or the machine's when none is stored.
  void get_copy_count();
  void get_copy_count_from_dm(int stored);
  void get_copy_count_from_cmm();
  // A count as the entry may show it: at least 1, at most the limit.
  int limited_count(long count) const;
  void show_copy_count(int count);
  // The count that the entry shows, into DVC_PNL_PDM_COPY_PRESET.
  void store_copy_count();

  dvc_pnl_ceh_home_messages messages_;
  int copy_limit_ = 1;
  int view_func_;
  int original_func_;
  int active_ = 0;
};

}  // namespace orvanta
