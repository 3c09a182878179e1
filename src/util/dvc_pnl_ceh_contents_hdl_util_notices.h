// Colour keys and LED, and what the panel tells the machine: use of a function, an
// administrator's logout, the USB keyboard.
#pragma once

#include <cstdint>

namespace orvanta {

// Key events of the colour keys.
inline constexpr unsigned long DVC_PNL_CEH_KEY_MONO_COLOR = 35;
inline constexpr unsigned long DVC_PNL_CEH_KEY_FULL_COLOR = 36;
inline constexpr unsigned long DVC_PNL_CEH_KEY_AUTO_COLOR = 37;

// The 12-byte record of page 3 of function 3 (DVC_PNL_PDM_DVC_CEH_SEND_BINARY) that keeps the
// colour LED of polling reception in step with the setting.
struct DVC_PNL_CEH_POLLING_LED_RECORD {
  std::int32_t polling;  // the polling setting last seen
  std::int32_t flag_1;   // flags of the screens that light the LED themselves; with flag_2
  std::int32_t flag_2;   // set, the next look turns the LED off when flag_1 is set too
};
static_assert(sizeof(DVC_PNL_CEH_POLLING_LED_RECORD) == 12);

// Keeps the colour LED of function 3 in step with its polling reception setting; other
// functions have nothing to do.
void dvc_pnl_ceh_contents_hdl_color_led_on_off_except_pattern(int function);
// Nothing to do: the LEDs follow the lock words.
void dvc_pnl_ceh_contents_hdl_update_color_led_on_off(int function);
// Applies colour key `key` (35, 36, 37) to the colour setting of `function` (1, 3, 6, 7).
// 0 done, or barred with `prohibited` 1; 1 for a function or key without a setting; else the
// failed write's code.
int dvc_pnl_ceh_contents_hdl_color_key_press(unsigned long key, int function, int& prohibited);

// Tells the machine that `function` is in use. 0, or 1 when the command fails.
int dvc_pnl_ceh_contents_hdl_use_function_notify(long function);
// Logs a logged-in administrator out, in a machine whose users do not log in.
void dvc_pnl_ceh_contents_hdl_login_out();

// `status` = the USB keyboard status (0 after a failed read), `connected` = whether it is not 0,
// left as it was after a failed read. Answers the read.
int usb_keyboard_check(int& connected, long& status);

}  // namespace orvanta
