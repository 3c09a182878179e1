// Contents base: identity, relatives, page operations, timers, devices, drawing, keys and repeat.
#include "contents/dvc_pnl_ceh_contents_base.h"

#include <cstring>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "services/dvc_pnl_ceh_contents_hdl_validator.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

// Panel commands thrown on each key repeat tick, for the local and the remote panel.
constexpr DVU_PNL_DEC_PANEL_COMMAND kCommandKeyRepeat = 75;
constexpr DVU_PNL_DEC_PANEL_COMMAND kRemoteCommandOffset = 84;

// Buzzer patterns and their USB keyboard forms.
constexpr BUZZER_PATTERN kBuzzerAccept = 1;
constexpr BUZZER_PATTERN kBuzzerRefuse = 2;
constexpr BUZZER_PATTERN kBuzzerKeyboardAccept = 11;
constexpr BUZZER_PATTERN kBuzzerKeyboardRefuse = 12;

// The release of a repeated key; a keyboard key that stands for it is always consumed.
constexpr int kEventKeyRelease = 87;

// Cursor blink: the delay after the last frame and the controller's blink mode.
constexpr int kCursorBlinkDelayMs = 800;
constexpr int kCursorBlinkMode = 9;

// Where a key event carries its operation source.
constexpr unsigned long kNodeOperationSource = 4165;

// Event factors in the application scope, by factor number.
const char* const kEventFactorKeys[] = {
    "/application/state_box_detail",
    "/application/state_box_regist",
    "/application/state_address",
    "/application/state_stop",
};

// Notify kinds of the GUI components.
enum : int {
  kNotifyNone = 0,
  kNotifyRefused = 1,
};

const dvc_pnl_ceh_contents_base::repeat_step kRepeatKind1[] = {
    {0, 750}, {5, 300}, {15, 200}, {30, 125}, {-1, 75}};
const dvc_pnl_ceh_contents_base::repeat_step kRepeatKind2[] = {{5, 300}, {-1, 200}};
const dvc_pnl_ceh_contents_base::repeat_step kRepeatKind3[] = {{5, 300}, {-1, 200}};
const dvc_pnl_ceh_contents_base::repeat_step kRepeatKind4[] = {{0, 750}, {-1, 80}};

dvc_pnl_ceh_event_proxy* proxy() {
  return dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance();
}

dvc_pnl_ceh_contents_proc_factory* factory() {
  return dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
}

// Event ids that are keys: their operation source travels with them.
bool is_key_event(int id) {
  return (id >= 21 && id <= 85) || id == 87 || id == 88 || id == 931 || id == 932 || id == 1233 ||
         id == 1387 || id == 1388;
}

// The one-element key (0) under which the repeat count lives in a key event's custom set.
dvc_pnl_cmm_key repeat_count_key() {
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_add_key(key, 0);
  return key;
}

// The delay before the next repeat tick after `count` ticks, from the row of `kind` (1 to 4).
int repeat_delay(int kind, int count) {
  const dvc_pnl_ceh_contents_base::repeat_step* step =
      dvc_pnl_ceh_contents_base::s_repeat_key_timer_tbl_[kind - 1];
  if (step->limit != -1 && step->limit <= count) {
    ++step;
    while (step->limit != -1 && step->limit <= count)
      ++step;
  }
  return step->delay_ms;
}

// Reads an integer of the application scope; the result of the read, `value` kept on failure.
int application_int(const std::string& key, int& value) {
  return dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(key, value);
}

dvu_pnl_dec_lcd_controller* lcd() {
  dvu_pnl_dec_lcd_controller* c = dvu_pnl_dec_lcd_controller::dvu_pnl_dec_get_instance();
  if (c == nullptr)
    CEH_ERR("dvu_pnl_dec_lcd_controller is NULL");
  return c;
}

}  // namespace

unsigned char dvc_pnl_ceh_contents_base::lcd_img_[DVC_PNL_CEH_LCD_IMAGE_SIZE] = {};
int dvc_pnl_ceh_contents_base::lcd_update_ = 0;
int dvc_pnl_ceh_contents_base::cursor_rect_[4] = {0, 0, 0, 0};
int dvc_pnl_ceh_contents_base::cursor_blink_ = 0;
const dvc_pnl_ceh_contents_base::repeat_step* const
    dvc_pnl_ceh_contents_base::s_repeat_key_timer_tbl_[4] = {kRepeatKind1, kRepeatKind2,
                                                             kRepeatKind3, kRepeatKind4};
int usb_keybord_event_ = 0;

void dvc_pnl_ceh_contents_base::reset_statics() {
  std::memset(lcd_img_, 0, sizeof(lcd_img_));
  lcd_update_ = 0;
  std::memset(cursor_rect_, 0, sizeof(cursor_rect_));
  cursor_blink_ = 0;
  usb_keybord_event_ = 0;
}

// ---------------------------------------------------------------- life cycle

dvc_pnl_ceh_contents_base::dvc_pnl_ceh_contents_base(int contents_id, dvu_pnl_gcp_components* gui)
    : contents_id_(contents_id), func_id_(0), gui_(gui) {
  dvc_pnl_psm_page_stack_matrix* stack = dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
  if (stack != nullptr) {
    func_id_ = stack->dvc_pnl_psm_get_function();
  } else {
    CEH_ERR("dvc_pnl_psm_page_stack_matrix is NULL");
  }
  // Locked until the framework has the page ready and releases it.
  dvc_pnl_ceh_lock();
}

dvc_pnl_ceh_contents_base::~dvc_pnl_ceh_contents_base() {
  proxy()->dvc_pnl_ceh_set_timer(-1, -1, this);
  delete repeat_event_;
  repeat_event_ = nullptr;
}

void dvc_pnl_ceh_contents_base::dvc_pnl_ceh_lock() {
  state_.mutex().request(-1);
}

void dvc_pnl_ceh_contents_base::dvc_pnl_ceh_unlock() {
  state_.mutex().release();
}

// ---------------------------------------------------------------- identity and relatives

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_active_func() {
  return proxy()->dvc_pnl_ceh_get_active_func();
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_group_id(int id) {
  return factory()->dvc_pnl_ceh_get_contents_class_group(id == -1 ? contents_id_ : id);
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_state_id(int id) {
  return factory()->dvc_pnl_ceh_get_contents_class_state(id == -1 ? contents_id_ : id);
}

dvc_pnl_ceh_contents_base* dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_parent_contents() {
  return dynamic_cast<dvc_pnl_ceh_contents_base*>(
      proxy()->dvc_pnl_ceh_get_contents(DVC_PNL_CEH_GET_CONTENTS_PARENT, contents_id_, func_id_));
}

dvc_pnl_ceh_contents_base* dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_child_contents() {
  return dynamic_cast<dvc_pnl_ceh_contents_base*>(
      proxy()->dvc_pnl_ceh_get_contents(DVC_PNL_CEH_GET_CONTENTS_CHILD, contents_id_, func_id_));
}

dvc_pnl_ceh_contents_base* dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_active_contents() {
  return dynamic_cast<dvc_pnl_ceh_contents_base*>(
      proxy()->dvc_pnl_ceh_get_contents(DVC_PNL_CEH_GET_CONTENTS_ACTIVE, contents_id_, func_id_));
}

dvc_pnl_ceh_contents_base* dvc_pnl_ceh_contents_base::dvc_pnl_ceh_search_contents(int id) {
  return dynamic_cast<dvc_pnl_ceh_contents_base*>(
      proxy()->dvc_pnl_ceh_get_contents(DVC_PNL_CEH_GET_CONTENTS_SEARCH, id, func_id_));
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_activate() {
  return dvc_pnl_ceh_get_active_contents() == this ? 1 : 0;
}

// ---------------------------------------------------------------- opening and closing

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_open_child_contents(int id, int func) {
  CONTENTS_OPEN_INFO open{dvc_pnl_ceh_get_group_id(id), func == -1 ? func_id_ : func,
                          dvc_pnl_ceh_get_state_id(id), id};
  CONTENTS_OPEN_INFO opener{dvc_pnl_ceh_get_group_id(-1), func_id_, dvc_pnl_ceh_get_state_id(-1),
                            contents_id_};
  return proxy()->dvc_pnl_ceh_open_contents(open, opener);
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_open_remote_contents(int id, int func) {
  CONTENTS_OPEN_INFO open{dvc_pnl_ceh_get_group_id(id), func == -1 ? func_id_ : func,
                          dvc_pnl_ceh_get_state_id(id), id};
  CONTENTS_OPEN_INFO opener{dvc_pnl_ceh_get_group_id(-1), func_id_, dvc_pnl_ceh_get_state_id(-1),
                            contents_id_};
  return proxy()->dvc_pnl_ceh_open_contents_remote(open, opener);
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_close_contents(int id) {
  CONTENTS_OPEN_INFO info{dvc_pnl_ceh_get_group_id(id), func_id_, dvc_pnl_ceh_get_state_id(id), id};
  return proxy()->dvc_pnl_ceh_close_contents(info);
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_back_to_contents(int id) {
  if (dvc_pnl_ceh_search_contents(id) == nullptr) {
    CEH_ERR("dvc_pnl_ceh_back_to_contents contents %d is not open", id);
    return -1;
  }
  // The pages from this one down to, not including, the target.
  std::vector<int> ids;
  dvc_pnl_ceh_contents_base* page = this;
  while (page != nullptr && page->dvc_pnl_ceh_get_contents_id() != id) {
    ids.push_back(page->dvc_pnl_ceh_get_contents_id());
    page = page->dvc_pnl_ceh_get_parent_contents();
  }
  if (page == nullptr) {
    // The target is open, but not below this page: going back would close pages it never meant.
    CEH_ERR("dvc_pnl_ceh_back_to_contents contents %d is not below %d", id, contents_id_);
    return -1;
  }
  // The page directly above the target first, this page last.
  for (auto it = ids.rbegin(); it != ids.rend(); ++it)
    dvc_pnl_ceh_close_contents(*it);
  return 0;
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_open_rop_lock_screen(int id) {
  return proxy()->dvc_pnl_ceh_open_rop_lock_screen(id);
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_close_rop_lock_screen() {
  proxy()->dvc_pnl_ceh_close_rop_lock_screen();
  return 0;
}

// ---------------------------------------------------------------- timers

void dvc_pnl_ceh_contents_base::dvc_pnl_ceh_set_timer(int id, int ms) {
  proxy()->dvc_pnl_ceh_set_timer(id, ms, this);
}

void dvc_pnl_ceh_contents_base::dvc_pnl_ceh_kill_timer(int id) {
  proxy()->dvc_pnl_ceh_set_timer(id, -1, this);
}

void dvc_pnl_ceh_contents_base::dvc_pnl_ceh_on_timer_base(int timer_id, int period_ms) {
  switch (timer_id) {
    case DVC_PNL_CEH_TIMER_KEY_REPEAT:
      on_key_repeat_tick();
      return;
    case DVC_PNL_CEH_TIMER_CURSOR_BLINK:
      dvc_pnl_ceh_kill_timer(DVC_PNL_CEH_TIMER_CURSOR_BLINK);
      if (cursor_blink_ == 2) {
        if (dvu_pnl_dec_lcd_controller* c = lcd()) {
          c->dvu_pnl_dec_set_lcd_reverse_blink_data(
              cursor_rect_[0], cursor_rect_[2], cursor_rect_[1], cursor_rect_[3], kCursorBlinkMode);
        }
        cursor_blink_ = 1;
      }
      return;
    default:
      // Every screen timer is periodic: it runs again until the screen kills it in its handler.
      dvc_pnl_ceh_set_timer(timer_id, period_ms);
      dvc_pnl_ceh_on_timer(timer_id);
      return;
  }
}

// ---------------------------------------------------------------- keys

int dvc_pnl_ceh_contents_base::dispatch_gui_notify(DVU_PNL_GCP_NOTIFY* notify, bool press) {
  switch (notify->type) {
    case kNotifyRefused:
      if (!press)
        return 0;
      dvc_pnl_ceh_buzzer(kBuzzerRefuse);
      return 1;
    case 2:
    case 5:
    case 7:
    case 8:
      return dvc_pnl_ceh_on_gui_edit_notify(notify);
    case 3:
    case 4:
      return dvc_pnl_ceh_on_gui_button_notify(notify);
    case 6:
    case 9:
      return dvc_pnl_ceh_on_gui_list_notify(notify);
    default:
      return 0;
  }
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_on_key_base(dvc_pnl_evh_panel_event& event) {
  // A new key ends any repeat before anything else happens.
  if (repeat_event_ != nullptr) {
    delete repeat_event_;
    repeat_event_ = nullptr;
    dvc_pnl_ceh_kill_timer(DVC_PNL_CEH_TIMER_KEY_REPEAT);
  }
  repeat_event_ = new dvc_pnl_evh_panel_event(event);
  dvc_pnl_cmm_valueset custom;
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(custom, repeat_count_key(), 0);
  repeat_event_->dvc_pnl_evh_set_custom_valueset(custom);

  dvc_pnl_ceh_set_operation_source(event);

  int result = dvc_pnl_ceh_on_key(*repeat_event_);
  if (result != 0)
    return result;

  DVU_PNL_GCP_NOTIFY notify{};
  dvu_pnl_gcp_on_key(gui_, *repeat_event_, notify);
  if (notify.type == kNotifyNone)
    return 0;
  notify.repeat_count = 0;
  result = dispatch_gui_notify(&notify, true);
  dvc_pnl_ceh_draw(nullptr);
  if (notify.repeat_kind >= 1 && notify.repeat_kind <= 4) {
    dvc_pnl_ceh_set_timer(DVC_PNL_CEH_TIMER_KEY_REPEAT,
                          s_repeat_key_timer_tbl_[notify.repeat_kind - 1][0].delay_ms);
  } else if (notify.repeat_kind != 0) {
    CEH_ERR("unknown repeat kind %d", notify.repeat_kind);
  }
  return result;
}

void dvc_pnl_ceh_contents_base::on_key_repeat_tick() {
  const unsigned long t0 = emwOSWGetSysTimer();
  dvc_pnl_ceh_kill_timer(DVC_PNL_CEH_TIMER_KEY_REPEAT);

  dvu_pnl_dec_key_controller* kc = dvu_pnl_dec_key_controller::dvu_pnl_dec_get_instance();
  if (kc != nullptr) {
    const int source = dvc_pnl_ceh_get_operation_source();
    kc->dvu_pnl_dec_throw_key_event(source == DVC_PNL_CEH_OPERATION_SOURCE_REMOTE
                                        ? kCommandKeyRepeat + kRemoteCommandOffset
                                        : kCommandKeyRepeat);
  } else {
    CEH_ERR("kc is NULL");
  }
  if (repeat_event_ == nullptr)
    return;

  if (dvc_pnl_ceh_get_activate() == 1 && dvc_pnl_ceh_on_key(*repeat_event_) == 0) {
    DVU_PNL_GCP_NOTIFY notify{};
    dvu_pnl_gcp_on_key(gui_, *repeat_event_, notify);
    if (notify.type != kNotifyNone) {
      dvc_pnl_cmm_valueset custom;
      repeat_event_->dvc_pnl_evh_get_custom_valueset(custom);
      const unsigned long count_path[] = {0};
      long count = 0;
      dvc_pnl_ceh_contents_hdl_get_int_from_valueset(count_path, 0, 1, custom, count);
      ++count;
      custom.dvc_pnl_cmm_clear();
      dvc_pnl_ceh_contents_hdl_set_int_to_valueset(custom, repeat_count_key(), count);
      repeat_event_->dvc_pnl_evh_set_custom_valueset(custom);
      notify.repeat_count = static_cast<int>(count);

      dispatch_gui_notify(&notify, false);
      dvc_pnl_ceh_draw(nullptr);

      if (notify.repeat_kind >= 1 && notify.repeat_kind <= 4) {
        // Keep the rate steady: the time this tick took comes off the next delay. Only the
        // milliseconds within one second count.
        const unsigned long now = emwOSWGetSysTimer();
        const int spent = static_cast<int>((1000 - t0 % 1000 + now % 1000) % 1000);
        int delay = repeat_delay(notify.repeat_kind, static_cast<int>(count)) - spent;
        if (delay < 1)
          delay = 1;
        dvc_pnl_ceh_set_timer(DVC_PNL_CEH_TIMER_KEY_REPEAT, delay);
        return;
      }
    }
  }
  // Not on top any more, consumed by the screen, or nothing left to repeat: the repeat is over.
  delete repeat_event_;
  repeat_event_ = nullptr;
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_on_usb_keyboard_base(dvc_pnl_evh_panel_event& event) {
  usb_keybord_event_ = 1;
  int result = dvc_pnl_ceh_on_key_base(event);
  if (result == 0) {
    const int hkey = dvu_pnl_gcp_keyboard_convertor::key_to_hkey(event);
    if (hkey != -1) {
      dvc_pnl_evh_panel_event hard_key(hkey);
      result = dvc_pnl_ceh_on_key_base(hard_key);
      if (hkey == kEventKeyRelease)
        result = 1;
    }
  }
  if (result == 0)
    dvc_pnl_ceh_buzzer(kBuzzerRefuse);
  usb_keybord_event_ = 0;
  return result;
}

// ---------------------------------------------------------------- devices

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_buzzer(BUZZER_PATTERN pattern) {
  if (usb_keybord_event_ != 0) {
    if (pattern == kBuzzerAccept)
      pattern = kBuzzerKeyboardAccept;
    else if (pattern == kBuzzerRefuse)
      pattern = kBuzzerKeyboardRefuse;
  }
  dvu_pnl_dec_buzzer_controller* bc = dvu_pnl_dec_buzzer_controller::dvu_pnl_dec_get_instance();
  if (bc == nullptr) {
    CEH_ERR("dvu_pnl_dec_buzzer_controller is NULL");
    return -1;
  }
  return bc->dvu_pnl_dec_set_buzzer_control(pattern) == 1 ? 0 : -1;
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_set_led(LED_STATUS_ID status, LED_ID id) {
  dvu_pnl_dec_led_controller* led = dvu_pnl_dec_led_controller::dvu_pnl_dec_get_instance();
  if (led == nullptr) {
    CEH_ERR("dvu_pnl_dec_led_controller is NULL");
    return -1;
  }
  return led->dvu_pnl_dec_set_led_status(id, status) == 1 ? 0 : -1;
}

LED_STATUS_ID dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_led(LED_ID id) {
  dvu_pnl_dec_led_controller* led = dvu_pnl_dec_led_controller::dvu_pnl_dec_get_instance();
  if (led == nullptr) {
    CEH_ERR("dvu_pnl_dec_led_controller is NULL");
    return 0;
  }
  std::vector<DVU_PNL_DEC_LED_STATUS> list;
  led->dvu_pnl_dec_get_led_status(list);
  for (const DVU_PNL_DEC_LED_STATUS& entry : list) {
    if (entry.id == id)
      return entry.status;
  }
  return 0;
}

void dvc_pnl_ceh_contents_base::dvc_pnl_ceh_draw(unsigned char* img) {
  unsigned char* target = img != nullptr ? img : lcd_img_;
  dvc_pnl_ceh_event_proxy* p = proxy();
  // Only the top page draws; a dying page and one whose page scope is gone draw nothing.
  if (p->dvc_pnl_ceh_get_contents(DVC_PNL_CEH_GET_CONTENTS_CHILD, contents_id_, func_id_) !=
      nullptr)
    return;
  if (p->check_delete_list(contents_id_) == 1)
    return;
  if (p->is_survive_screen(this) != 1)
    return;
  if (dvu_pnl_gcp_draw(gui_, target) == 0)
    return;
  lcd_update_ = 1;
  if (dvc_pnl_ceh_event_proxy::redraw_pausing_ != 0)
    return;  // the frame waits in the buffer for the next output
  dvc_pnl_ceh_lcd_out(target);
}

// Every output ends a blinking cursor first; a new one is armed only after the frame.
void dvc_pnl_ceh_contents_base::end_cursor_blink(dvu_pnl_dec_lcd_controller* c) {
  if (cursor_blink_ == 1 && c != nullptr)
    c->dvu_pnl_dec_set_lcd_reverse_blink_end();
  cursor_blink_ = 0;
  dvc_pnl_ceh_kill_timer(DVC_PNL_CEH_TIMER_CURSOR_BLINK);
}

void dvc_pnl_ceh_contents_base::arm_cursor_blink() {
  dvc_pnl_ceh_set_timer(DVC_PNL_CEH_TIMER_CURSOR_BLINK, kCursorBlinkDelayMs);
  cursor_blink_ = 2;
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_lcd_out(unsigned char* img) {
  unsigned char* target = img != nullptr ? img : lcd_img_;
  dvu_pnl_dec_lcd_controller* c = lcd();
  end_cursor_blink(c);

  int exist = 0;
  int display = 0;
  (void)application_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST, exist);
  const int display_read = application_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_DISPLAY, display);

  int result = 0;
  if (lcd_update_ != 0) {
    int answer = 0;
    if (c != nullptr) {
      // While the lock screen is on display the controller learns which side this frame is for.
      answer = display_read == 0 && display == 1
                   ? c->dvu_pnl_dec_set_lcd_bitmap_data_lock_screen(target, 0, exist)
                   : c->dvu_pnl_dec_set_lcd_bitmap_data(target);
    }
    result = answer == 1 ? 0 : -1;
    lcd_update_ = 0;
  }
  if (dvu_pnl_gcp_get_cursor_info(gui_, cursor_rect_) == 1 && display == 0)
    arm_cursor_blink();
  return result;
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_lcd_out_lock_screen(unsigned char* img) {
  unsigned char* target = img != nullptr ? img : lcd_img_;
  dvu_pnl_dec_lcd_controller* c = lcd();
  end_cursor_blink(c);

  int result = 0;
  if (lcd_update_ != 0) {
    int source = 0;
    int ret = application_int(DVC_PNL_PDM_REMOTE_PANEL_PASSWORD_OPE_SRC, source);
    if (ret != 0) {
      CEH_ERR("get int from pdm error ret_code = %d", ret);
      return 0;
    }
    const int answer =
        c != nullptr ? c->dvu_pnl_dec_set_lcd_bitmap_data_lock_screen(target, source, 0) : 0;
    result = answer == 1 ? 0 : -1;
    lcd_update_ = 0;
  }
  int exist = 0;
  int ret = application_int(DVC_PNL_PDM_REMOTE_PANEL_LOCK_SCRN_EXIST, exist);
  if (ret != 0)
    CEH_ERR("get int from pdm error ret_code = %d", ret);
  if (dvu_pnl_gcp_get_cursor_info(gui_, cursor_rect_) == 1 && ret == 0 && exist == 0)
    arm_cursor_blink();
  return result;
}

void dvc_pnl_ceh_contents_base::dvc_pnl_ceh_draw_lock_screen(unsigned char* img) {
  if (contents_id_ != CID_11_13_N3)  // the lock screen is the one contents drawn as the lock image
    return;
  unsigned char* target = img != nullptr ? img : lcd_img_;
  if (dvu_pnl_gcp_draw(gui_, target) != 0) {
    lcd_update_ = 1;
    dvc_pnl_ceh_lcd_out_lock_screen(target);
  }
}

// ---------------------------------------------------------------- operation source, factors

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_operation_source() {
  int source = DVC_PNL_CEH_OPERATION_SOURCE_LOCAL;
  if (application_int(DVC_PNL_PDM_CEH_OPERATION_SOURCE, source) != 0)
    return 0;
  return source;
}

void dvc_pnl_ceh_contents_base::dvc_pnl_ceh_set_operation_source(
    const dvc_pnl_evh_panel_event& event) {
  int source = DVC_PNL_CEH_OPERATION_SOURCE_LOCAL;
  if (is_key_event(event.dvc_pnl_evh_get_id())) {
    dvc_pnl_cmm_valueset vs;
    event.dvc_pnl_evh_get_event_source_valueset(vs);
    const unsigned long path[] = {0, kNodeOperationSource};
    long value = 0;
    if (dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path, 0, 2, vs, value) != 0)
      return;  // a key without its source leaves the stored one
    source = static_cast<int>(value);
  }
  dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_CEH_OPERATION_SOURCE, source);
}

void dvc_pnl_ceh_contents_base::dvc_pnl_ceh_set_enable_event_factor(int factor, int value) {
  if (factor < 0 || factor > 3)
    return;
  dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(kEventFactorKeys[factor], value);
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_get_enable_event_factor(int factor) {
  if (factor < 0 || factor > 3)
    return 0;
  int value = 0;
  if (application_int(kEventFactorKeys[factor], value) != 0)
    return 0;
  return value != 0 ? 1 : 0;
}

int dvc_pnl_ceh_contents_base::dvc_pnl_ceh_valid_check(std::string& text, int id) {
  dvc_pnl_ceh_input_validator validator;
  return validator.dvc_pnl_ceh_valid_check(text, id);
}

}  // namespace orvanta
