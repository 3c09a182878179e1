// Main messages: the machine's numbered messages of a function turned into the list of text
// resources a home screen shows in turn, with the remote panel and guest messages added.
#pragma once

#include <vector>

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"

namespace orvanta {

// Text resources that only the panel adds to the list.
inline constexpr long DVC_PNL_CEH_MSG_RES_REMOTE_PANEL = 4039;  // a remote panel is connected
inline constexpr long DVC_PNL_CEH_MSG_RES_GUEST = 3513;         // after a message a guest sees
// The resource whose number is msg_number_value_.
inline constexpr long DVC_PNL_CEH_MSG_RES_NUMBER = 2920;

// One object per screen that shows main messages; the screen drives the rotation over the list.
class dvc_pnl_ceh_contents_hdl_fd_msg {
 public:
  dvc_pnl_ceh_contents_hdl_fd_msg() = default;
  virtual ~dvc_pnl_ceh_contents_hdl_fd_msg();

  // Rebuilds the list from the machine's acquire command of `function`; a failure leaves the
  // entries converted so far (none when the command itself failed).
  void get_main_msg_list_from_cmm(int function);
  // Rebuilds the list from the source value set of the refresh event of `function`. 0, or the
  // code of the read that failed.
  int on_panel_event_refresh_msg(int function, dvc_pnl_cmm_valueset event);

  int get_curr_msg_cnt();
  // -1 on an empty list, else the entry at `index` modulo the list's size.
  long get_msg_res_by_index(int index);
  // 0 when the entry at `index` is a raw message id to be shown as digits, else 1.
  int check_msg_index_status(int index);
  // 0 when the entry at `index` is a paper size followed by its paper kind, else 1.
  int check_additional_msg_index_status(int index);

  // Puts 4039 at the front unless the list holds it already.
  void add_remote_panel_message();
  // Removes every 4039; the index lists are left as they are until the next read.
  void remove_remote_panel_message();

  // Size and kind of the paper in `feeder` (0 to 5). 1 when both were read, else 0; each keeps
  // its value when its read fails.
  int get_paper_information(long& kind, long& size, WSC_VAL_FEEDER feeder);
  // Appends what message `id` shows; `kind` and `size` serve the paper messages.
  void convert_main_msg_from_cm_to_res(long id, long kind, long size);
  // 1 when polling reception is set in the job settings of `function` (fax for 4, else send).
  int get_polling_rx_status(int function);

  // The number shown in resource 2920; screens read it directly.
  long msg_number_value_ = -1;

 private:
  // Starts a read for `function`: notes it and empties the lists.
  void start_read(int function);
  // Appends the paper resources of message `id` (129, 132, 133 or 190).
  void append_paper_message(long id, long kind, long size);

  std::vector<long> msg_res_list_;
  int polling_rx_status_ = 0;
  std::vector<int> msg_index_list_;             // positions of raw message ids
  std::vector<int> additional_msg_index_list_;  // positions of a paper size before its kind
  int function_ = 0;                            // the function of the last list read
};

}  // namespace orvanta
