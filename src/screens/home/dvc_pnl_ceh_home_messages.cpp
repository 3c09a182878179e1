// The main message line of the home screens.
#include "screens/home/dvc_pnl_ceh_home_messages.h"

#include "orvanta/platform/dvu_pnl_gcp_components.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

void set_visible(dvu_pnl_gcp_components* gui, int part_id, bool visible) {
  if (dvu_pnl_gcp_parts* part = dvu_pnl_gcp_get_gui_parts_by_id(gui, part_id))
    part->dvu_pnl_gcp_set_visible(visible);
}

}  // namespace

void dvc_pnl_ceh_home_messages::load(int function) {
  messages_.get_main_msg_list_from_cmm(function);
  start();
}

void dvc_pnl_ceh_home_messages::refresh(int function, const dvc_pnl_cmm_valueset& event) {
  stop();
  messages_.on_panel_event_refresh_msg(function, event);
  start();
}

void dvc_pnl_ceh_home_messages::remote_changed() {
  stop();
  if (is_remote_connected() == 1)
    messages_.add_remote_panel_message();
  else
    messages_.remove_remote_panel_message();
  start();
}

void dvc_pnl_ceh_home_messages::tick() {
  if (count_ == 0)
    return;
  index_ = (index_ + 1) % count_;
  show();
}

void dvc_pnl_ceh_home_messages::stop() {
  if (count_ > 1)
    screen_.kill_timer(DVC_PNL_CEH_HOME_TIMER_MESSAGES);
}

void dvc_pnl_ceh_home_messages::start() {
  index_ = 0;
  count_ = messages_.get_curr_msg_cnt();
  if (count_ > 1)
    screen_.set_timer(DVC_PNL_CEH_HOME_TIMER_MESSAGES, DVC_PNL_CEH_HOME_MESSAGE_MS);
  show();
}

void dvc_pnl_ceh_home_messages::show() {
  dvu_pnl_gcp_components* gui = screen_.dvc_pnl_ceh_get_gui_components();
  const dvc_pnl_ceh_contents_hdl_gui* view =
      dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_register_gui_operator(gui);
  if (count_ == 0) {
    view->dvc_pnl_ceh_update_view_text(DVC_PNL_CEH_PART_MAIN_MSG, std::string(), 0);
    return;
  }
  const bool two_lines = dvu_pnl_gcp_get_gui_parts_by_id(gui, DVC_PNL_CEH_PART_ADDITIONAL_SIZE) &&
                         dvu_pnl_gcp_get_gui_parts_by_id(gui, DVC_PNL_CEH_PART_ADDITIONAL_KIND);
  if (two_lines && messages_.check_additional_msg_index_status(index_) == 0) {
    // A paper size and its kind, one on each line; the kind is not shown a second time.
    set_visible(gui, DVC_PNL_CEH_PART_MAIN_MSG, false);
    set_visible(gui, DVC_PNL_CEH_PART_ADDITIONAL_SIZE, true);
    set_visible(gui, DVC_PNL_CEH_PART_ADDITIONAL_KIND, true);
    view->dvc_pnl_ceh_update_view_text_res(DVC_PNL_CEH_PART_ADDITIONAL_SIZE,
                                           static_cast<int>(messages_.get_msg_res_by_index(index_)),
                                           0);
    view->dvc_pnl_ceh_update_view_text_res(
        DVC_PNL_CEH_PART_ADDITIONAL_KIND,
        static_cast<int>(messages_.get_msg_res_by_index(index_ + 1)), 0);
    index_ = (index_ + 1) % count_;
    return;
  }
  if (two_lines) {
    set_visible(gui, DVC_PNL_CEH_PART_ADDITIONAL_SIZE, false);
    set_visible(gui, DVC_PNL_CEH_PART_ADDITIONAL_KIND, false);
  }
  set_visible(gui, DVC_PNL_CEH_PART_MAIN_MSG, true);
  const long entry = messages_.get_msg_res_by_index(index_);
  if (messages_.check_msg_index_status(index_) == 0)
    view->dvc_pnl_ceh_update_view_text(DVC_PNL_CEH_PART_MAIN_MSG, static_cast<int>(entry), 0);
  else if (entry == DVC_PNL_CEH_MSG_RES_NUMBER)
    view->dvc_pnl_ceh_update_view_text_res_int(DVC_PNL_CEH_PART_MAIN_MSG, static_cast<int>(entry),
                                               0, static_cast<int>(messages_.msg_number_value_));
  else
    view->dvc_pnl_ceh_update_view_text_res(DVC_PNL_CEH_PART_MAIN_MSG, static_cast<int>(entry), 0);
}

}  // namespace orvanta
