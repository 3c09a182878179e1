// Copy home screen and box print home screen.
#pragma once

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_screen_table.h"
#include "screens/home/dvc_pnl_ceh_home_flexible_keys.h"
#include "screens/home/dvc_pnl_ceh_home_messages.h"
#include "screens/home/dvc_pnl_ceh_home_program_keys.h"
#include "services/dvc_pnl_ceh_contents_hdl_func.h"

namespace orvanta {

// The base page of copy (CID_01_01_N1, functions 1, 11 and 24) and of box print
// (CID_01_02_03_N1, function 6): the main message, the copy count and its entry, the original
// size and the paper, two flexible keys with their settings, the colour keys with the machine's
// verdict, the program keys and the function menu.
class dvc_pnl_ceh_contents_hdl_d_07_01 : public dvc_pnl_ceh_contents_hdl_base {
 public:
  using self = dvc_pnl_ceh_contents_hdl_d_07_01;
  // One row a contents id: the load of the page and the members of every event.
  struct CONTENTS_ELEMENT {
    void (self::*on_load_)();
    void (self::*on_close_)();
    void (self::*on_deactive_)();
    void (self::*on_timer_)(int);
    int (self::*on_panel_event_)(dvc_pnl_evh_panel_event&);
    int (self::*on_key_)(dvc_pnl_evh_panel_event&);
    int (self::*on_gui_button_notify_)(DVU_PNL_GCP_NOTIFY*);
    int (self::*on_gui_edit_notify_)(DVU_PNL_GCP_NOTIFY*);
  };

  dvc_pnl_ceh_contents_hdl_d_07_01(int contents_id, dvu_pnl_gcp_components* gui);
  ~dvc_pnl_ceh_contents_hdl_d_07_01() override;

  void dvc_pnl_ceh_on_load() override;
  void dvc_pnl_ceh_on_close() override;
  void dvc_pnl_ceh_on_timer(int timer_id) override;
  void dvc_pnl_ceh_on_activate() override { on_active_common(); }
  void dvc_pnl_ceh_on_deactivate() override;
  int dvc_pnl_ceh_on_panel_event(dvc_pnl_evh_panel_event& event) override;
  int dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) override;
  int dvc_pnl_ceh_on_gui_button_notify(DVU_PNL_GCP_NOTIFY* notify) override;
  int dvc_pnl_ceh_on_gui_edit_notify(DVU_PNL_GCP_NOTIFY* notify) override;

  int copy_limit() const { return copy_limit_; }
  const dvc_pnl_ceh_home_messages& messages() const { return messages_; }
  long left_item() const { return flexible_.left(); }
  long right_item() const { return flexible_.right(); }
  int waiting_refusal() const { return waiting_refusal_; }
  int dp_update_pending() const { return dp_update_pending_; }
  const dvc_pnl_ceh_home_program_keys& program_keys() const { return program_; }

  // The rows of the class.
  static dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT> s_map_;

 private:
  // Builds the row of `id` (the class serves two ids).
  static void Init_T_07_01(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id);

  // ---- load, lifecycle (base) ----
  void on_load_01_01_n1();
  void on_load_01_02_03_n1();
  // What both loads do; the copy page also allows the maintenance mode login.
  void load_home();
  void on_close_common();
  void on_timer_common(int timer_id);
  void on_active_common();
  void on_deactive_common();
  int on_panel_event_common(dvc_pnl_evh_panel_event& event);
  int on_gui_edit_notify_common(DVU_PNL_GCP_NOTIFY* notify);
  // After a function login for a colour key: the key again, without a sound.
  void replay_function_login();

  void load_fixed_parts();
  void update_function_icon();
  void update_dp_icon();
  // The box kind a print started from (function scope of the box); answers the read.
  int read_box_kind(int& kind) const;
  // The change set value of box print; answers the read.
  int read_change_set(int& value) const;
  void get_copy_limit_from_cmm();
  void get_copy_count();
  void get_copy_count_from_dm(int stored);
  void get_copy_count_from_cmm();
  int limited_count(long count) const;
  void show_copy_count(int count);
  void store_copy_count();

  // ---- keys ----
  int on_key_common(dvc_pnl_evh_panel_event& event);
  int on_gui_button_notify_common(DVU_PNL_GCP_NOTIFY* notify);
  int on_key_color(int key);
  int on_key_function_menu();
  int program_key_short_press();
  void program_key_long_press();
  void on_timer_program_key();
  // Opens the setting of `item`; 0 for an item without one.
  int press_flexible_key(long item);

  // ---- original size, paper, flexible keys ----
  void get_origin_size_from_cmm_copy();
  void get_origin_size_from_cmm_box_print();
  void show_origin_size();
  // The text of the original size from the last status of the document processor; -1 without.
  long get_org_size_msg_by_dp_status() const;
  void get_specify_cassette_info_from_cmm(long cassette);
  void show_current_paper();
  void show_paper_quantity(long cassette, long quantity);
  static int get_cassette_quantity_resource_id(long quantity);
  void get_flexible_key_info_from_cmm();
  void update_flexible_key();
  void update_setting_flexiblekey_value_area();
  // Whether the rules of the screen let `item` stay on its key now.
  bool item_allowed(long item, int box_kind) const;
  int on_paper_event(dvc_pnl_evh_panel_event& event);
  // The verdict on a colour key: the page the machine names opens.
  int on_refusal_event(dvc_pnl_evh_panel_event& event);

  CONTENTS_ELEMENT* current_contents_ = nullptr;
  dvc_pnl_ceh_home_messages messages_;
  dvc_pnl_ceh_home_program_keys program_;
  dvc_pnl_ceh_home_flexible_keys flexible_;
  int view_func_;
  int original_func_;
  dvc_pnl_ceh_contents_hdl_func func_op_;
  int copy_limit_ = 1;
  long current_cassette_ = 0;
  int waiting_refusal_ = 0;
  int silent_repeat_ = 0;
  int active_ = 0;
  int dp_update_pending_ = 0;
};

}  // namespace orvanta
