// Option list: the lists in which the user picks one option of a job setting, and the small menus
// that share their engine.
#pragma once

#include <map>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "contents/dvc_pnl_ceh_screen_table.h"
#include "screens/lists/dvc_pnl_ceh_option_list.h"

namespace orvanta {

// One class, one row of its table per contents id. What differs between the screens is data in
// the row; what cannot be data is a member the row points to.
//
// Ids the factory routes here without a row (refused at load: traced, nothing drawn, the page
// closes itself): CID_02_04_03_N6, CID_02_04_03_N9, CID_02_08_02_N2, CID_02_08_02_N3,
// CID_02_09_N6, CID_02_09_N7, CID_02_42_N6, CID_02_42_N7.
struct dvc_pnl_ceh_option_list_rows;

class dvc_pnl_ceh_contents_hdl_d_01_01_01 : public dvc_pnl_ceh_contents_hdl_base {
  // The row builders point the rows at the members.
  friend struct dvc_pnl_ceh_option_list_rows;

 public:
  using self = dvc_pnl_ceh_contents_hdl_d_01_01_01;
  using key_member = int (self::*)(dvc_pnl_evh_panel_event&);
  using notify_member = int (self::*)(DVU_PNL_GCP_NOTIFY*);

  // One screen row.
  struct CONTENTS_ELEMENT {
    int title_rid = -1;
    int icon_upper_rid = 101;
    int icon_lower_rid = 102;
    int flexible_left = -1;
    int flexible_right = -1;
    std::vector<LIST_ELEMENT> list;
    std::vector<unsigned long> key;  // the setting the list edits, from ROOT; empty for a menu
    void (self::*on_load_)() = nullptr;
    void (self::*on_timer_)(int) = nullptr;
    void (self::*on_close_)() = nullptr;
    void (self::*on_activate_)() = nullptr;
    void (self::*on_deactivate_)() = nullptr;
    key_member on_key_ = nullptr;
    notify_member on_gui_button_notify_ = nullptr;
    notify_member on_gui_list_notify_ = nullptr;
    dvc_pnl_ceh_key_map<self> on_key_map_;
    int start_transaction = 0;
    int reserved = 0;
  };

  dvc_pnl_ceh_contents_hdl_d_01_01_01(int contents_id, dvu_pnl_gcp_components* gui);
  ~dvc_pnl_ceh_contents_hdl_d_01_01_01() override;

  void dvc_pnl_ceh_on_load() override;
  void dvc_pnl_ceh_on_close() override;
  void dvc_pnl_ceh_on_timer(int timer_id) override;
  void dvc_pnl_ceh_on_activate() override;
  void dvc_pnl_ceh_on_deactivate() override;
  int dvc_pnl_ceh_on_key(dvc_pnl_evh_panel_event& event) override;
  int dvc_pnl_ceh_on_panel_event(dvc_pnl_evh_panel_event& event) override;
  int dvc_pnl_ceh_on_gui_button_notify(DVU_PNL_GCP_NOTIFY* notify) override;
  int dvc_pnl_ceh_on_gui_list_notify(DVU_PNL_GCP_NOTIFY* notify) override;

  // The rows of the class, the values behind the others row of a list, the row number icons.
  static dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT> s_map_;
  static std::map<int, std::vector<LIST_ELEMENT>> s_others_value_list_;
  static const int s_index_[99];

  // For tests: the row in use, and the state the engine keeps.
  const CONTENTS_ELEMENT* current_contents() const { return current_contents_; }
  int waiting_prohibition() const { return waiting_prohibition_; }
  long prohibit_value() const { return prohibit_value_; }

  // ---- helpers of the class ----
  long index_to_value(int index) const;
  int value_to_index(int value) const;
  int index_to_childwindow(int index) const;
  int open_window(int index);
  void open_window_by_destination(DVC_PNL_CEH_CONTENTS_ID japan,
                                  DVC_PNL_CEH_CONTENTS_ID europe_or_asia,
                                  DVC_PNL_CEH_CONTENTS_ID other);
  void add_row(int index, const LIST_ELEMENT& row);
  void add_list();
  void set_select_row(int index);
  void set_select_row_ex(long value);
  void get_index_from_cmm(const std::vector<unsigned long>& key, int& index);
  int set_index_to_cmm(const std::vector<unsigned long>& key, int index);
  void change_keyid_value_by_functionid(unsigned long& node);
  // change_keyid_value_by_functionid on element 2 of a job settings key; other keys stay.
  void adjust_key_branch(std::vector<unsigned long>& key);
  void update_form_common();
  static int on_activate_for_focus(int cid);
  static int is_startkey(const dvc_pnl_evh_panel_event& event);
  void buzzer_by_key(const dvc_pnl_evh_panel_event& event);
  void start_up();
  void commit();
  void cancel();
  int store_pdm_transaction_int_data_common(int index);
  int commit_pdm_transaction_data();

 private:
  // The row builders, split by id range.
  static void Init_T_02(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id);
  static void Init_T_03(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id);
  static void Init_T_07_01(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id);
  static void Init_T_07_02_0(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id);
  static void Init_T_07_02_1(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id);
  static void Init_T_08(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id);

 public:
  // Builds the row of `id` with the builder of its range, when the class has one.
  static void build_row(dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id);

 private:
  static void build_others();

  // ---- loads ----
  void on_load_02_01_N1();
  void on_load_common();
  void on_load_02_03_01_N1();
  void on_load_02_03_01_N3();
  void on_load_02_03_01_N5();
  // The plain load: rows, key, current value with its star, prohibition, own transaction level,
  // form.
  void load_plain();
  // The row of the current value for the lists whose row depends on two settings.
  bool current_row_of_scan_quality(int& index);
  bool read_prohibition();

  // ---- keys ----
  int on_key_enter_02_01_N1(dvc_pnl_evh_panel_event& event);
  int on_key_enter_common(dvc_pnl_evh_panel_event& event);
  int on_key_enter_02_03_01_N1(dvc_pnl_evh_panel_event& event);
  int on_key_enter_02_03_01_N3(dvc_pnl_evh_panel_event& event);
  int on_key_enter_02_03_01_N5(dvc_pnl_evh_panel_event& event);
  int on_key_enter_02_08_01_N13(dvc_pnl_evh_panel_event& event);
  int on_key_back_common(dvc_pnl_evh_panel_event& event);
  int on_key_stop_common(dvc_pnl_evh_panel_event& event);
  // Enter or Start on a row: guards, write, companions, then commit and stay, wait for the
  // verdict, or open the child. `full` is the form with prohibition data.
  int apply_selection(dvc_pnl_evh_panel_event& event, bool full);
  // Whether `index` may be chosen now; a barred row opens the notice.
  bool row_permitted(int index, dvc_pnl_evh_panel_event& event);
  // The guest's function login for the lists that need one; true when it opened.
  bool function_login_opened();
  bool expects_verdict() const;
  void companion_writes(int index);
  // Writes the ratio of a zoom list in the manual mode.
  int write_zoom_ratio(long ratio);
  // The row under the cursor; false (traced) when the list cannot tell.
  bool selected_row(int& index);
  // Enter of a list that expects the machine's verdict: every hard key held until it comes.
  int wait_for_verdict();
  // Start on a list: commit, the star on the chosen row, draw; the key is not consumed.
  int start_key(int index, bool reactivate);

  // ---- notifies ----
  int on_gui_list_notify_common(DVU_PNL_GCP_NOTIFY* notify);
  int on_gui_list_notify_02_36_01_N1(DVU_PNL_GCP_NOTIFY* notify);
  int on_gui_button_notify_02_10_N1(DVU_PNL_GCP_NOTIFY* notify);

  // ---- activation ----
  void on_activate_for_star();
  void on_activate_common();
  void on_deactivate_02_03_01();
  void on_activate_02_03_01_children();
  // The hard key words of the screens that hold keys while active.
  long lock_word_of_contents() const;

  // ---- the verdict ----
  int on_prohibition_event(dvc_pnl_evh_panel_event& event);
  // While a child lies on top: the notices of this verdict join those already queued.
  void merge_prohibition_queue(dvc_pnl_evh_panel_event& event);
  // Polling reception switched on: its notice goes in front of the queue.
  void queue_polling_notice();
  // The address book of the job end report's destination, and the external book's list kept
  // aside while it is shown.
  void open_address_book();
  void restore_address_book();
  void set_int_or_trace(const std::string& key, int value);
  // A list notify sounds on a fresh press and answers the selected row in `index`; false for
  // another notify.
  bool take_list_notify(const DVU_PNL_GCP_NOTIFY* notify, int& index);
  static int verdict_event_of(int view_function);

  CONTENTS_ELEMENT* current_contents_ = nullptr;
  int view_func_ = 0;
  int waiting_prohibition_ = 0;
  int verdicts_left_ = 0;
  int skip_verdict_open_ = 0;
  int active_ = 0;
  long prohibit_value_ = 255;
  long default_zoom_ = 1000;
  int star_row_ = 0;
  int select_row_ = 0;
  int scroll_pos_ = 0;
  std::vector<DVC_PNL_CEH_CONTENTS_ID> jumpid_;
  std::vector<long> shown_value_;
  // The row of the value in force when the list opened (Start on 02_08_01_N13 compares).
  int loaded_row_ = 0;
};

}  // namespace orvanta
