// Copy home screen and box print home screen: the colour keys, Back on box print, the function
// menu, the program keys and the flexible keys.
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "screens/common/dvc_pnl_ceh_function_login.h"
#include "screens/home/dvc_pnl_ceh_contents_hdl_d_07_01.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_notices.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

constexpr int kKeyBack = 61;
constexpr int kKeyFunctionMenu = 81;
// The function with no program keys.
constexpr int kFunctionWithoutPrograms = 24;
// Box kinds that matter here: a print from kind 8 has colour keys and its own menu.
constexpr int kBoxKindColour = 8;
constexpr int kBoxFunction = 5;
// The guest login restriction of the colour mode, by view function.
constexpr long kColourLoginCopy = 256;
constexpr long kColourLoginBoxPrint = 32;
// Flexible key notifies.
constexpr int kNotifyLeftKey = 3;
constexpr int kNotifyRightKey = 4;

// The setting screen each flexible key item opens; original size and duplex choose theirs.
struct item_child {
  long item;
  DVC_PNL_CEH_CONTENTS_ID child;
};
constexpr item_child kItemChildren[] = {
    {1, CID_02_22_N1},   {2, CID_02_29_N1},     {3, CID_02_03_01_N1}, {5, CID_02_14_N1},
    {6, CID_02_64_N1},   {8, CID_02_01_N1},     {9, CID_02_02_N1},    {10, CID_02_17_N1},
    {13, CID_02_25_N1},  {14, CID_02_08_01_N1}, {16, CID_02_10_N1},   {33, CID_02_54_N1},
    {34, CID_02_53_N1},  {35, CID_02_11_N1},    {55, CID_02_51_N1},   {56, CID_02_19_N1},
    {60, CID_02_47_N1},  {73, CID_02_49_N1},    {74, CID_02_50_N1},   {81, CID_02_57_N1},
    {107, CID_02_63_N1}, {111, CID_02_61_N1},   {113, CID_02_65_N1},
};

void send_lock_word(long word) {
  dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(word);
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_d_07_01::on_key_common(dvc_pnl_evh_panel_event& event) {
  const int key = event.dvc_pnl_evh_get_id();
  switch (key) {
    case DVC_PNL_CEH_KEY_MONO_COLOR:
    case DVC_PNL_CEH_KEY_FULL_COLOR:
    case DVC_PNL_CEH_KEY_AUTO_COLOR:
      return on_key_color(key);
    case kKeyBack:
      if (contents_id_ != CID_01_02_03_N1)
        return 0;
      change_function(kBoxFunction);
      if (int ret =
              dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_COPY_PRESET, 1, original_func_);
          ret != DVC_PNL_CEH_RET_OK)
        CEH_ERR("set copy preset ret_code = %d", ret);
      buzzer(1);
      return 1;
    case kKeyFunctionMenu:
      return on_key_function_menu();
    case DVC_PNL_CEH_KEY_RELEASE:
      if (original_func_ == kFunctionWithoutPrograms)
        return 1;
      if (!program_.release())
        return 0;
      return program_key_short_press();
    default:
      if (!dvc_pnl_ceh_home_program_keys::is_program_key(key) ||
          original_func_ == kFunctionWithoutPrograms)
        return 0;
      return program_.press(key);
  }
}

int dvc_pnl_ceh_contents_hdl_d_07_01::on_key_color(int key) {
  if (contents_id_ == CID_01_02_03_N1) {
    int kind = 0;
    if (read_box_kind(kind) != DVC_PNL_CEH_RET_OK)
      return 0;
    if (kind != kBoxKindColour || key == static_cast<int>(DVC_PNL_CEH_KEY_AUTO_COLOR))
      return 0;
  }
  if (key != static_cast<int>(DVC_PNL_CEH_KEY_MONO_COLOR)) {
    const long restriction = view_func_ == 6 ? kColourLoginBoxPrint : kColourLoginCopy;
    if (open_function_login_contents(*this, restriction) == 1) {
      // Back from a successful login, activation presses the key again.
      if (int ret = dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_CEH_COPY_COLOR_MODE, key,
                                                           view_func_);
          ret != DVC_PNL_CEH_RET_OK)
        CEH_ERR("set DVC_PNL_PDM_CEH_COPY_COLOR_MODE ret_code = %d", ret);
      if (int ret = dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(
              DVC_PNL_PDM_CEH_FUNCTION_LOGIN_BUTTON_INFO, view_func_,
              static_cast<DVC_PNL_CEH_CONTENTS_ID>(contents_id_), contents_id_);
          ret != DVC_PNL_CEH_RET_OK)
        CEH_ERR("set DVC_PNL_PDM_CEH_FUNCTION_LOGIN_BUTTON_INFO ret_code = %d", ret);
      buzzer(1);
      return 1;
    }
  }
  int prohibited = 0;
  if (int ret = dvc_pnl_ceh_contents_hdl_color_key_press(static_cast<unsigned long>(key),
                                                         view_func_, prohibited);
      ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_color_key_press ret_code = %d", ret);
    return 0;
  }
  if (prohibited != 0) {
    open_child_contents(CID_10_01_N1);
    buzzer(2);
    return 1;
  }
  if (silent_repeat_ == 0)
    buzzer(1);
  // The machine answers the new colour with a verdict event; until then the keys stay locked.
  waiting_refusal_ = 1;
  send_lock_word(DVC_PNL_CEH_HOME_KEYS_LOCKED);
  update_setting_flexiblekey_value_area();
  draw();
  return 1;
}

int dvc_pnl_ceh_contents_hdl_d_07_01::on_key_function_menu() {
  DVC_PNL_CEH_CONTENTS_ID menu = CID_02_07_01_N1;
  if (contents_id_ == CID_01_02_03_N1) {
    int kind = 0;
    if (read_box_kind(kind) != DVC_PNL_CEH_RET_OK)
      return 0;
    if (kind == kBoxKindColour) {
      menu = CID_02_07_04_N2;
    } else if (kind == 1) {
      int change_set = 0;
      if (read_change_set(change_set) != DVC_PNL_CEH_RET_OK || change_set == 0)
        return 0;
      menu = CID_02_07_04_N3;
    } else {
      menu = CID_02_07_04_N1;
    }
  }
  open_child_contents(menu);
  buzzer(1);
  return 1;
}

int dvc_pnl_ceh_contents_hdl_d_07_01::program_key_short_press() {
  return program_.short_press(view_func_, original_func_);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::program_key_long_press() {
  program_.long_press(view_func_, original_func_);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::on_timer_program_key() {
  if (program_.down() == 0)
    return;
  const int key = program_.key();
  // Held long enough: the release that follows does nothing.
  program_.stop_hold();
  if (contents_id_ == CID_01_02_03_N1) {
    // Programs are not registered from box print.
    buzzer(2);
    if (dvc_pnl_ceh_home_program_keys::is_program_key(key))
      send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
    return;
  }
  const int management = dvc_pnl_ceh_contents_hdl_get_management();
  if ((management == 1 || management == 3) && dvc_pnl_ceh_contents_hdl_is_admin_user() != 1) {
    buzzer(2);
    send_lock_word(DVC_PNL_CEH_HOME_KEYS_RELEASED);
    return;
  }
  buzzer(1);
  program_key_long_press();
}

int dvc_pnl_ceh_contents_hdl_d_07_01::on_gui_button_notify_common(DVU_PNL_GCP_NOTIFY* notify) {
  if (notify == nullptr)
    return 0;
  if (notify->type == kNotifyLeftKey)
    return press_flexible_key(flexible_.left());
  if (notify->type == kNotifyRightKey)
    return press_flexible_key(flexible_.right());
  return 0;
}

int dvc_pnl_ceh_contents_hdl_d_07_01::press_flexible_key(long item) {
  DVC_PNL_CEH_CONTENTS_ID child = CID_NONE;
  if (item == DVC_PNL_CEH_ITEM_ORIGINAL_SIZE) {
    if (dvc_pnl_ceh_contents_hdl_destination_is_japan() == 1)
      child = CID_02_04_03_N1;
    else if (dvc_pnl_ceh_contents_hdl_destination_is_europe_or_asia() == 1)
      child = CID_02_04_03_N4;
    else
      child = CID_02_04_03_N7;
  } else if (item == DVC_PNL_CEH_ITEM_DUPLEX) {
    child = contents_id_ == CID_01_02_03_N1 ? CID_02_46_N1 : CID_02_36_01_N1;
  } else {
    for (const item_child& row : kItemChildren) {
      if (row.item == item)
        child = row.child;
    }
  }
  if (child == CID_NONE)
    return 0;
  if (int ret =
          dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_JOB_SETTING, view_func_, view_func_);
      ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set job setting ret_code = %d", ret);
  if (item == DVC_PNL_CEH_ITEM_ORIGINAL_SIZE)
    set_application_scope_pdm(DVC_PNL_PDM_CEH_ORIGINAL_SIZE_MENU_MODE, 1);
  open_child_contents(child);
  buzzer(1);
  return 1;
}

}  // namespace orvanta
