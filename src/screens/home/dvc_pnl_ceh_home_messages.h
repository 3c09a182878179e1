// The main message line of the home screens: the list of one function, shown one message after
// the other on a timer, with the two-line form for paper messages where the layout has it.
#pragma once

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "services/dvc_pnl_ceh_contents_hdl_fd_msg.h"

namespace orvanta {

// Timer of the rotation and its period; it runs only while the list has more than one entry.
inline constexpr int DVC_PNL_CEH_HOME_TIMER_MESSAGES = 0;
inline constexpr int DVC_PNL_CEH_HOME_MESSAGE_MS = 1500;
// Parts of the message line: one line, or paper size and kind on two.
inline constexpr int DVC_PNL_CEH_PART_MAIN_MSG = 67;
inline constexpr int DVC_PNL_CEH_PART_ADDITIONAL_SIZE = 117;
inline constexpr int DVC_PNL_CEH_PART_ADDITIONAL_KIND = 118;

// Held by a home screen; the screen draws after each call that changes the view.
class dvc_pnl_ceh_home_messages {
 public:
  explicit dvc_pnl_ceh_home_messages(dvc_pnl_ceh_contents_hdl_base& screen) : screen_(screen) {}

  // Reads the list of `function` and starts over at the first message.
  void load(int function);
  // A refresh event of the machine: the list from the event's source set, from the start.
  void refresh(int function, const dvc_pnl_cmm_valueset& event);
  // A remote panel came or went: its message is added or removed, from the start.
  void remote_changed();
  // A tick of the rotation timer: the next message.
  void tick();
  // Stops the rotation (the screen leaves the top or closes).
  void stop();

  int count() const { return count_; }
  int index() const { return index_; }
  dvc_pnl_ceh_contents_hdl_fd_msg& engine() { return messages_; }

 private:
  // Index 0, the timer when there is more than one message, and the first message shown.
  void start();
  // Shows the entry at index_, moving index_ past the kind of a paper size and kind pair.
  void show();

  dvc_pnl_ceh_contents_hdl_base& screen_;
  dvc_pnl_ceh_contents_hdl_fd_msg messages_;
  int count_ = 0;
  int index_ = 0;
};

}  // namespace orvanta
