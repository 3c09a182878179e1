// Panel events the screens send: bare events, key events, error display control, hard key lock
// words with their counts, LED words, and the notices of the login screen and window.
#pragma once

#include "orvanta/platform/dvc_pnl_cmn_hardkey.h"
#include "orvanta/platform/dvu_pnl_dec_controllers.h"

namespace orvanta {

// Panel events sent from here. All go out with init kind 1 and priority 0.
inline constexpr unsigned long DVC_PNL_CEH_EVENT_HARDKEY_LOCK = 1044;
inline constexpr unsigned long DVC_PNL_CEH_EVENT_ERROR_DISPLAY_CONTROL = 1094;
inline constexpr unsigned long DVC_PNL_CEH_EVENT_LOGIN_SCREEN_OPENED = 1175;
inline constexpr unsigned long DVC_PNL_CEH_EVENT_LOGIN_SCREEN_CLOSED = 1176;
inline constexpr int DVC_PNL_CEH_EVENT_INIT_KIND = 1;

// Nodes of the lock event's source set: a set under (0, 2883) holding the word at 2884, or, for
// an LED, the word at 2898 and the function at 1035.
inline constexpr unsigned long DVC_PNL_CEH_NODE_HARDKEY_LOCK = 2883;
inline constexpr unsigned long DVC_PNL_CEH_NODE_HARDKEY_LOCK_WORD = 2884;
inline constexpr unsigned long DVC_PNL_CEH_NODE_HARDKEY_LED_WORD = 2898;
inline constexpr unsigned long DVC_PNL_CEH_NODE_HARDKEY_LED_FUNCTION = 1035;
// Nodes of the error display event: a set under (0, 3069) with the word at 843 and the value at
// 2776.
inline constexpr unsigned long DVC_PNL_CEH_NODE_ERROR_DISPLAY = 3069;
inline constexpr unsigned long DVC_PNL_CEH_NODE_ERROR_DISPLAY_WORD = 843;
inline constexpr unsigned long DVC_PNL_CEH_NODE_ERROR_DISPLAY_VALUE = 2776;

// The number of hard key types that keep a lock count, the "no key" type included.
inline constexpr int DVC_PNL_CEH_HARDKEY_TYPE_COUNT = 18;

// Posts a panel event with id `event`, init type `kind` and priority 0 and nothing attached. A
// failure is traced and the event is not posted.
void dvc_pnl_ceh_contents_hdl_throw_event_without_additional_information(unsigned long event,
                                                                         int kind);

// Hands the panel command `command` to the key controller, which lets the framework act on it.
void dvc_pnl_ceh_contents_hdl_throw_key_event(DVU_PNL_DEC_PANEL_COMMAND command);

// Event 1094: `show` 1 asks the platform to show its error display (word 0x40000004), anything
// else to clear it (0x20000004); `value` goes with it.
void dvc_pnl_ceh_contents_hdl_throw_event_error_display_control(int show, int value);

// ---- hard key locks ----

// The lock count of one key type; a type not counted yet enters with 0.
unsigned dvc_pnl_ceh_contents_hdl_get_hardkey_lock(DVC_PNL_CMN_ENUM_HARDKEY_TYPE type);
// Applies a lock word to the counts: a lock adds 1 for each key named, an unlock takes 1 from
// each key named that is locked, a clear sets them to 0.
void dvc_pnl_ceh_contents_hdl_set_hardkey_lock(unsigned long word);
// Counts a lock word and sends it to the platform (event 1044), without the keys released for the
// moment. 0x1ffff stands for "lock all", 0 for "unlock all". Nothing happens while a function
// login screen pre-loads.
void dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(long word);
// Sends a lock word for the colour LED of `function`; nothing is counted.
void dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status_led(long word,
                                                                              int function);
// `release` not 0 frees `keys` at the platform while their counts stay; `release` 0 locks them
// again as often as their counts say.
void dvc_pnl_ceh_contents_hdl_hardkey_lock_release_temporarily(long keys, int release);
// Forgets every count and the temporary release: the state of a fresh process. Tests and the
// runtime only.
void dvc_pnl_ceh_contents_hdl_reset_hardkey_locks();

// ---- login screen and window notices ----

// Notes that a login screen opened (1) or closed (0) in DVC_PNL_PDM_STATUS_PAGE_STATE of the
// shown function, unless `active` is -1, and sends event 1175 or 1176.
void login_screen_opened(long active);
void login_screen_closed(long active);
// Notes that the login window of `function` is shown or gone, and keeps
// DVC_PNL_PDM_OPEN_LOGIN_PAGE in step.
void login_window_display_on(int function);
void login_window_display_off(int function);

}  // namespace orvanta
