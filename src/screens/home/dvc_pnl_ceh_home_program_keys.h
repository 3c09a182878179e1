// The program keys of the home screens: press and hold, the short press that calls a program and
// the long press that registers one.
#pragma once

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "services/dvc_pnl_ceh_contents_hdl_pg.h"

namespace orvanta {

// Keys 82 to 85 are the program keys 1 to 4; 87 releases a held key.
inline constexpr int DVC_PNL_CEH_KEY_PROGRAM_FIRST = 82;
inline constexpr int DVC_PNL_CEH_KEY_PROGRAM_LAST = 85;
inline constexpr int DVC_PNL_CEH_KEY_RELEASE = 87;
// Timer of the long press and its time.
inline constexpr int DVC_PNL_CEH_HOME_TIMER_PROGRAM = 1;
inline constexpr int DVC_PNL_CEH_HOME_PROGRAM_HOLD_MS = 2000;
// The hard key lock word while a program key is held, and the word that releases it.
inline constexpr long DVC_PNL_CEH_HOME_KEYS_LOCKED = 0x1ffff;
inline constexpr long DVC_PNL_CEH_HOME_KEYS_RELEASED = 0;

// Held by a home screen next to its program client. The screen decides which key reaches here
// and when; this part carries out the press, the release and both kinds of press.
class dvc_pnl_ceh_home_program_keys {
 public:
  explicit dvc_pnl_ceh_home_program_keys(dvc_pnl_ceh_contents_hdl_base& screen) : screen_(screen) {}

  static bool is_program_key(int key) {
    return key >= DVC_PNL_CEH_KEY_PROGRAM_FIRST && key <= DVC_PNL_CEH_KEY_PROGRAM_LAST;
  }

  // A program key goes down: the hard keys lock and the long press timer starts. Answers 1.
  int press(int key);
  // The release key: true when a program key was down, which is then up again and its timer
  // stopped.
  bool release();
  // Stops waiting for the long press without acting on it.
  void stop_hold();

  // The short press of the key that was down: the program is checked and called. `view_function`
  // keeps the pressed program; `count_function` keeps the copy count a copy program may reset.
  // Answers whether the key was consumed.
  int short_press(int view_function, int count_function);
  // The long press: the slot is read and, when free, the job settings are registered in it; the
  // register screens open either way. A copy program keeps the count of `count_function`.
  void long_press(int view_function, int count_function);

  // The held program key 82 to 85, and 1 while it is down.
  int key() const { return program_key_; }
  int down() const { return program_key_down_; }
  // 1 once a program was called or registered from this screen.
  int pressed() const { return program_pressed_; }
  dvc_pnl_ceh_contents_hdl_pg& pg() { return pg_; }

 private:
  // The hard keys are free again, the dialog `id` opens and `pattern` sounds.
  void refuse(DVC_PNL_CEH_CONTENTS_ID id, int pattern);
  // Keeps the pressed program for the screens that follow.
  void keep_pressed(const PROGRAM_ELEMENT& element, int view_function);

  dvc_pnl_ceh_contents_hdl_base& screen_;
  dvc_pnl_ceh_contents_hdl_pg pg_;
  int program_key_ = 0;
  int program_key_down_ = 0;
  int program_pressed_ = 0;
};

}  // namespace orvanta
