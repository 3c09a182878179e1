// Device controllers of the panel: LCD, LEDs, buzzer and the key controller's panel commands.
#pragma once

#include <vector>

namespace orvanta {

using BUZZER_PATTERN = int;  // 1 accept, 2 refuse, 3 reset, 7 alert; 11 and 12 keyboard forms
using BUZZER_PATTERN_ID = int;
using LED_ID = int;
using LED_STATUS_ID = int;
using DVU_PNL_DEC_PANEL_COMMAND = int;

struct DVU_PNL_DEC_LED_STATUS {
  LED_ID id;
  LED_STATUS_ID status;
};

// Controllers answer 1 when they took the call, 0 when they refused it.
class dvu_pnl_dec_lcd_controller {
 public:
  static dvu_pnl_dec_lcd_controller* dvu_pnl_dec_get_instance();
  virtual ~dvu_pnl_dec_lcd_controller() = default;
  virtual int dvu_pnl_dec_set_lcd_bitmap_data(const unsigned char* img) = 0;
  // A frame while a remote lock screen exists: `source` says which side it is for.
  virtual int dvu_pnl_dec_set_lcd_bitmap_data_lock_screen(const unsigned char* img, int source,
                                                          int exist) = 0;
  virtual int dvu_pnl_dec_set_lcd_reverse_blink_data(int x, int width, int y, int height,
                                                     int mode) = 0;
  virtual int dvu_pnl_dec_set_lcd_reverse_blink_end() = 0;
};

class dvu_pnl_dec_led_controller {
 public:
  static dvu_pnl_dec_led_controller* dvu_pnl_dec_get_instance();
  virtual ~dvu_pnl_dec_led_controller() = default;
  virtual int dvu_pnl_dec_set_led_status(LED_ID id, LED_STATUS_ID status) = 0;
  virtual int dvu_pnl_dec_get_led_status(std::vector<DVU_PNL_DEC_LED_STATUS>& list) = 0;
};

class dvu_pnl_dec_buzzer_controller {
 public:
  static dvu_pnl_dec_buzzer_controller* dvu_pnl_dec_get_instance();
  virtual ~dvu_pnl_dec_buzzer_controller() = default;
  virtual int dvu_pnl_dec_set_buzzer_control(BUZZER_PATTERN pattern) = 0;
};

class dvu_pnl_dec_key_controller {
 public:
  static dvu_pnl_dec_key_controller* dvu_pnl_dec_get_instance();
  virtual ~dvu_pnl_dec_key_controller() = default;
  // Hands a panel command to the framework, which acts on it (key repeat ticks, back to the
  // default screen and so on).
  virtual int dvu_pnl_dec_throw_key_event(DVU_PNL_DEC_PANEL_COMMAND command) = 0;
};

}  // namespace orvanta
