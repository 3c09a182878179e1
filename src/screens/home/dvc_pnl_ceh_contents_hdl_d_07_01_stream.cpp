// The rows of dvc_pnl_ceh_contents_hdl_d_07_01: the copy home page and the box print home page.
#include "screens/home/dvc_pnl_ceh_contents_hdl_d_07_01.h"

namespace orvanta {

dvc_pnl_ceh_screen_table<dvc_pnl_ceh_contents_hdl_d_07_01::CONTENTS_ELEMENT>
    dvc_pnl_ceh_contents_hdl_d_07_01::s_map_;

void dvc_pnl_ceh_contents_hdl_d_07_01::Init_T_07_01(
    dvc_pnl_ceh_screen_table<CONTENTS_ELEMENT>& table, int id) {
  void (self::*load)() = nullptr;
  switch (id) {
    case CID_01_01_N1:
      load = &self::on_load_01_01_n1;
      break;
    case CID_01_02_03_N1:
      load = &self::on_load_01_02_03_n1;
      break;
    default:
      return;
  }
  table.add(id, {load, &self::on_close_common, &self::on_deactive_common, &self::on_timer_common,
                 &self::on_panel_event_common, &self::on_key_common,
                 &self::on_gui_button_notify_common, &self::on_gui_edit_notify_common});
}

}  // namespace orvanta
