// Handler base of every screen family: function ids, navigation, redraw and device helpers.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_base.h"

namespace orvanta {

// Result codes of the handler base.
inline constexpr int DVC_PNL_CEH_ERR_NONE = 0;
inline constexpr int DVC_PNL_CEH_ERR_FAILED = 3;
inline constexpr int DVC_PNL_CEH_ERR_BAD_ARGUMENT = 10;

// GUI parts the redraw looks at: the function icon and the remote panel icon.
inline constexpr int DVC_PNL_CEH_PART_FUNCTION_ICON = 19;
inline constexpr int DVC_PNL_CEH_PART_REMOTE_ICON = 78;

class dvc_pnl_ceh_contents_hdl_base : public dvc_pnl_ceh_contents_base {
 public:
  dvc_pnl_ceh_contents_hdl_base(int contents_id, dvu_pnl_gcp_components* gui);
  ~dvc_pnl_ceh_contents_hdl_base() override;

  // Slots the handler base adds.
  virtual int open_child_forced_remote(DVC_PNL_CEH_CONTENTS_ID id);
  virtual int open_child_contents(DVC_PNL_CEH_CONTENTS_ID id);

  void dvc_pnl_ceh_on_load() override {}
  void dvc_pnl_ceh_on_close() override {}
  void dvc_pnl_ceh_on_timer(int /*timer_id*/) override {}
  void dvc_pnl_ceh_on_activate() override {}
  void dvc_pnl_ceh_on_deactivate() override {}
  void dvc_pnl_ceh_on_activate_pre() override;
  int dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& /*event*/) override { return 0; }
  int dvc_pnl_ceh_on_panel_event(dvc_pnl_evh_panel_event& /*event*/) override { return 0; }
  int dvc_pnl_ceh_on_gui_button_notify(DVU_PNL_GCP_NOTIFY* /*notify*/) override { return 0; }
  int dvc_pnl_ceh_on_gui_list_notify(DVU_PNL_GCP_NOTIFY* /*notify*/) override { return 0; }
  int dvc_pnl_ceh_on_gui_edit_notify(DVU_PNL_GCP_NOTIFY* /*notify*/) override { return 0; }

  // Function ids.
  int get_original_function_id() const;
  int get_view_function_id() const;
  int get_function_id() const;
  int get_contents_id() const { return contents_id_; }

  // Redraw: keeps the remote panel icons right, then draws.
  void draw();
  // The same for the remote-operation lock screen, which draws into the lock screen image.
  void draw_lock_screen();
  int set_timer(int id, int ms);
  int kill_timer(int id);
  int buzzer(BUZZER_PATTERN_ID pattern);
  // Opening.
  int open_rop_lock_screen(DVC_PNL_CEH_CONTENTS_ID id);
  // Holds LCD output; once this page is gone `id` opens as a child.
  void dvc_pnl_ceh_set_open_after_close(DVC_PNL_CEH_CONTENTS_ID id);
  // The page that opened this one as its child, or CID_NONE.
  DVC_PNL_CEH_CONTENTS_ID dvc_pnl_ceh_get_opener();

  // Going back.
  int back_to_parent();
  int close_contents(DVC_PNL_CEH_CONTENTS_ID id);
  int back_to_contents(DVC_PNL_CEH_CONTENTS_ID id);
  int back_to_grandfather();
  int back_to_top();
  int back_to_panel_default_screen();
  int back_to_contents_from_dm();
  int set_back_cid_to_dm();
  int get_base_content_id(DVC_PNL_CEH_CONTENTS_ID& out);
  int change_function(const int& id);

  // Queries.
  int get_n_level_parent_contents_id(int n);
  dvc_pnl_ceh_contents_base* dvc_pnl_ceh_search_parent_contents(int id);
  int dvc_pnl_ceh_get_activate_on_close();

  // Keys and the data manager.
  void dvc_pnl_ceh_buzzer_start_key_and_reset_key_in_maintenance_mode();
  int dvc_pnl_ceh_set_pdm_key_fail_buzzer_flag_value_to_on(dvc_pnl_evh_panel_event& event);
  int set_application_scope_pdm(std::string key, long value);

  // Sleep and automatic reset: a nonzero `disable` takes this page's hold, 0 releases it. The
  // automatic reset timer stops with the first hold and starts again with the last release.
  void dvc_pnl_ceh_disable_sleep_and_reset(int disable);
  // The reset key on a login screen: clears the entered user and goes back past the login flow.
  // 1 when it acted, else 0.
  int dvc_pnl_ceh_login_reset_key_process(dvc_pnl_evh_panel_event& event);

  // Clears the handler base's statics; for tests and the runtime.
  static void reset_statics();

 protected:
  int saved_icon_ = 0;
  DVC_PNL_CEH_CONTENTS_ID open_after_close_ = CID_NONE;

  static std::map<int, int> child_opener_;
  static std::vector<dvc_pnl_ceh_contents_hdl_base*> disable_sleep_and_reset_instance_;

 private:
  // Shows the remote panel icon on the function icon's part while a remote panel is connected.
  void swap_remote_icons();
  // Loads the page again after a function login, keeping the list's place where it can.
  void reload_for_function_login();
};

}  // namespace orvanta
