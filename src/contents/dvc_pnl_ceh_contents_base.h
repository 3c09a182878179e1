// Contents base: identity, relatives, opening and closing, timers, devices, drawing and keys.
#pragma once

#include <string>

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "orvanta/platform/dvc_pnl_ceh_contents_interface.h"
#include "orvanta/platform/dvu_pnl_dec_controllers.h"
#include "orvanta/platform/osw.h"

namespace orvanta {

// Empty root under the framework's value types.
class dvc_pnl_cec_base {
 public:
  virtual ~dvc_pnl_cec_base() = default;
};

// The contents' own lock.
class dvc_pnl_ceh_state_contoroller {
 public:
  dvc_pnl_ceh_state_contoroller() : mutex_(1) {}
  virtual ~dvc_pnl_ceh_state_contoroller() = default;
  OSW_Mutex_Semaphore& mutex() { return mutex_; }

 private:
  OSW_Mutex_Semaphore mutex_;
};

// Reserved timer ids.
inline constexpr int DVC_PNL_CEH_TIMER_KEY_REPEAT = 10000;
inline constexpr int DVC_PNL_CEH_TIMER_CURSOR_BLINK = 10001;

// Operation sources.
inline constexpr int DVC_PNL_CEH_OPERATION_SOURCE_LOCAL = 1;
inline constexpr int DVC_PNL_CEH_OPERATION_SOURCE_REMOTE = 2;

// Size of the LCD frame: 128x64 pixels, one bit a pixel.
inline constexpr int DVC_PNL_CEH_LCD_IMAGE_SIZE = 1024;

class dvc_pnl_ceh_contents_base : public dvc_pnl_ceh_contents_interface {
 public:
  // Takes the active function from the page stack and takes the contents' lock: the new object
  // stays locked until the framework releases it.
  dvc_pnl_ceh_contents_base(int contents_id, dvu_pnl_gcp_components* gui);
  ~dvc_pnl_ceh_contents_base() override;

  // Slots the base implements.
  void dvc_pnl_ceh_on_timer_base(int timer_id, int period_ms) override;
  int dvc_pnl_ceh_on_key_base(dvc_pnl_evh_panel_event& event) override;
  int dvc_pnl_ceh_on_usb_keyboard_base(dvc_pnl_evh_panel_event& event) override;
  void dvc_pnl_ceh_lock() override;
  void dvc_pnl_ceh_unlock() override;

  // Identity and relatives.
  int dvc_pnl_ceh_get_contents_id() const { return contents_id_; }
  int dvc_pnl_ceh_get_func_id() const { return func_id_; }
  dvu_pnl_gcp_components* dvc_pnl_ceh_get_gui_components() const { return gui_; }
  int dvc_pnl_ceh_get_active_func();
  int dvc_pnl_ceh_get_group_id(int id);
  int dvc_pnl_ceh_get_state_id(int id);
  dvc_pnl_ceh_contents_base* dvc_pnl_ceh_get_parent_contents();
  dvc_pnl_ceh_contents_base* dvc_pnl_ceh_get_child_contents();
  dvc_pnl_ceh_contents_base* dvc_pnl_ceh_get_active_contents();
  dvc_pnl_ceh_contents_base* dvc_pnl_ceh_search_contents(int id);
  int dvc_pnl_ceh_get_activate();

  // Opening and closing.
  int dvc_pnl_ceh_open_child_contents(int id, int func);
  int dvc_pnl_ceh_open_remote_contents(int id, int func);
  int dvc_pnl_ceh_close_contents(int id);
  int dvc_pnl_ceh_back_to_contents(int id);
  int dvc_pnl_ceh_open_rop_lock_screen(int id);
  int dvc_pnl_ceh_close_rop_lock_screen();

  // Timers.
  void dvc_pnl_ceh_set_timer(int id, int ms);
  void dvc_pnl_ceh_kill_timer(int id);

  // Devices.
  int dvc_pnl_ceh_buzzer(BUZZER_PATTERN pattern);
  int dvc_pnl_ceh_set_led(LED_STATUS_ID status, LED_ID id);
  LED_STATUS_ID dvc_pnl_ceh_get_led(LED_ID id);
  void dvc_pnl_ceh_draw(unsigned char* img);
  int dvc_pnl_ceh_lcd_out(unsigned char* img);
  int dvc_pnl_ceh_lcd_out_lock_screen(unsigned char* img);
  void dvc_pnl_ceh_draw_lock_screen(unsigned char* img);

  // Who operates the panel.
  int dvc_pnl_ceh_get_operation_source();
  void dvc_pnl_ceh_set_operation_source(const dvc_pnl_evh_panel_event& event);

  // Event factors 0 to 3, kept in the data manager.
  void dvc_pnl_ceh_set_enable_event_factor(int factor, int value);
  int dvc_pnl_ceh_get_enable_event_factor(int factor);

  // Hands typed text to the input validator.
  int dvc_pnl_ceh_valid_check(std::string& text, int id);

  // Statics shared by all contents: there is one LCD. Tests and the runtime reset them.
  static unsigned char lcd_img_[DVC_PNL_CEH_LCD_IMAGE_SIZE];
  static int lcd_update_;
  static int cursor_rect_[4];
  static int cursor_blink_;
  static void reset_statics();

  // One step of a key repeat row: up to which repeat count `delay_ms` applies. A limit of -1
  // ends the row.
  struct repeat_step {
    int limit;
    int delay_ms;
  };
  // Key repeat table, one row per repeat kind 1 to 4.
  static const repeat_step* const s_repeat_key_timer_tbl_[4];

 protected:
  int contents_id_;
  int func_id_;
  dvu_pnl_gcp_components* gui_;
  dvc_pnl_ceh_state_contoroller state_;
  dvc_pnl_evh_panel_event* repeat_event_ = nullptr;

 private:
  // Hands what the GUI components reported to the notify handler of its type. A refusal (type
  // 1) beeps and counts as consumed on a press; a repeat tick passes it by.
  int dispatch_gui_notify(DVU_PNL_GCP_NOTIFY* notify, bool press);
  // A tick of the key repeat timer.
  void on_key_repeat_tick();
  // Starts the cursor blink 800 ms after the last frame.
  void arm_cursor_blink();
  void end_cursor_blink(dvu_pnl_dec_lcd_controller* c);
};

// 1 while a USB keyboard event is being handled.
extern int usb_keybord_event_;

}  // namespace orvanta
