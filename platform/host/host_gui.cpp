// Host GUI components: the parts of a page, key handling by the focused part, drawing, the cursor
// and the keyboard convertor.
#include <algorithm>
#include <array>
#include <cstring>

#include "host_internal.h"
#include "orvanta/platform/dvc_pnl_cmm_key.h"
#include "orvanta/platform/dvc_pnl_cmm_valueset.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta {

dvu_pnl_gcp_parts* dvu_pnl_gcp_components::add(int part_id,
                                               std::unique_ptr<dvu_pnl_gcp_parts> part) {
  auto& slot = parts_[part_id];
  if (slot == nullptr)
    order_.push_back(part_id);
  slot = std::move(part);
  return slot.get();
}

dvu_pnl_gcp_parts* dvu_pnl_gcp_components::find(int part_id) const {
  auto it = parts_.find(part_id);
  return it == parts_.end() ? nullptr : it->second.get();
}

namespace {

// Hard key events the parts act on.
constexpr int kKeyClear = 38;
constexpr int kKeyDigit0 = 45;
constexpr int kKeyDigit9 = 54;
constexpr int kKeyUp = 57;
constexpr int kKeyDown = 58;
constexpr int kKeyLeft = 59;
constexpr int kKeyRight = 60;
// The flexible key parts.
constexpr int kPartFlexLeft = 30;
constexpr int kPartFlexRight = 31;
// Row of the key repeat table that a held cursor key follows.
constexpr int kRepeatCursor = 1;

// Reads an integer under (0, node) of the event's source value set; false when there is none.
bool source_int(const dvc_pnl_evh_panel_event& event, unsigned long node, long& out) {
  dvc_pnl_cmm_key key;
  if (key.dvc_pnl_cmm_add_key(0) != 0 || key.dvc_pnl_cmm_add_key(node) != 0)
    return false;
  return event.source().dvc_pnl_cmm_get_int(key, out) == 0;
}

int get_int(const dvu_pnl_gcp_parts& part, int attribute) {
  int value = 0;
  part.dvu_pnl_gcp_get_int_val(attribute, value);
  return value;
}

// The character a key types into an edit box: a digit key its digit, a keyboard key its
// printable character; 0 for any other key.
char typed_char(const dvc_pnl_evh_panel_event& event) {
  const int id = event.dvc_pnl_evh_get_id();
  if (id >= kKeyDigit0 && id <= kKeyDigit9)
    return static_cast<char>('0' + id - kKeyDigit0);
  long code = 0;
  if (source_int(event, host::kKeyboardCodeNode, code) && code >= 0x20 && code < 0x7f)
    return static_cast<char>(code);
  return 0;
}

DVU_PNL_GCP_NOTIFY answer(int type, int part_id, int value, int repeat_kind = 0) {
  return DVU_PNL_GCP_NOTIFY{type, 0, repeat_kind, part_id, value};
}

// The type a key action gives: `done_type` when the part took the key, refusal otherwise.
int taken(int result, int done_type) {
  return result == 0 ? done_type : DVU_PNL_GCP_NOTIFY_REFUSED;
}

// Up and down move the list's selection by its scroll amount; the selected row stands in the
// middle of the three visible ones except at the ends.
DVU_PNL_GCP_NOTIFY list_key(dvu_pnl_gcp_list& list, int part_id, int key) {
  if ((key != kKeyUp && key != kKeyDown) || !list.select_enabled())
    return answer(DVU_PNL_GCP_NOTIFY_NONE, part_id, 0);
  const int max_row = list.dvu_pnl_gcp_get_max_row();
  const int selected = get_int(list, DVU_PNL_GCP_ATTR_LIST_SELECT_ROW);
  const int step = key == kKeyUp ? -list.scroll_amount() : list.scroll_amount();
  const int to = std::clamp(selected + step, 0, std::max(max_row, 0));
  if (max_row < 0 || to == selected)
    return answer(DVU_PNL_GCP_NOTIFY_REFUSED, part_id, selected);
  list.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, to);
  int scroll = to - 1;
  if (to == 0 || max_row <= 2)
    scroll = 0;
  else if (to == max_row)
    scroll = to - 2;
  list.dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SCROLL_POS, scroll);
  return answer(DVU_PNL_GCP_NOTIFY_LIST, part_id, to, kRepeatCursor);
}

DVU_PNL_GCP_NOTIFY part_key(dvu_pnl_gcp_parts& part, int part_id,
                            const dvc_pnl_evh_panel_event& event) {
  const int key = event.dvc_pnl_evh_get_id();
  const bool digit = key >= kKeyDigit0 && key <= kKeyDigit9;
  const bool sideways = key == kKeyLeft || key == kKeyRight;
  const int step = key == kKeyLeft || key == kKeyUp ? -1 : 1;
  switch (part.kind()) {
    case dvu_pnl_gcp_part_kind::list:
      return list_key(static_cast<dvu_pnl_gcp_list&>(part), part_id, key);
    case dvu_pnl_gcp_part_kind::select_mark: {
      auto& marks = static_cast<dvu_pnl_gcp_input_select_mark&>(part);
      if (key != kKeyUp && key != kKeyDown)
        break;
      const int type = taken(marks.move_cursor(step), DVU_PNL_GCP_NOTIFY_MARK_LIST);
      return answer(type, part_id, marks.cursor(), kRepeatCursor);
    }
    case dvu_pnl_gcp_part_kind::edit_box: {
      auto& box = static_cast<dvu_pnl_gcp_input_edit_box&>(part);
      if (const char c = typed_char(event); c != 0)
        return answer(taken(box.type_char(c), DVU_PNL_GCP_NOTIFY_EDIT), part_id, box.cursor());
      if (key == kKeyClear)
        return answer(taken(box.erase(), DVU_PNL_GCP_NOTIFY_CLEAR), part_id, box.cursor());
      if (sideways)
        return answer(taken(box.move_cursor(step), DVU_PNL_GCP_NOTIFY_CURSOR), part_id,
                      box.cursor());
      break;
    }
    case dvu_pnl_gcp_part_kind::number: {
      auto& number = static_cast<dvu_pnl_gcp_input_number&>(part);
      if (digit) {
        const int type = taken(number.type_digit(key - kKeyDigit0), DVU_PNL_GCP_NOTIFY_NUMBER);
        return answer(type, part_id, get_int(number, DVU_PNL_GCP_ATTR_NUMBER));
      }
      if (key == kKeyClear) {
        number.clear();
        return answer(DVU_PNL_GCP_NOTIFY_CLEAR, part_id, 0);
      }
      break;
    }
    case dvu_pnl_gcp_part_kind::date:
    case dvu_pnl_gcp_part_kind::time:
    case dvu_pnl_gcp_part_kind::timer:
    case dvu_pnl_gcp_part_kind::ipv4: {
      auto& fields = static_cast<dvu_pnl_gcp_input_fields&>(part);
      if (digit) {
        const int type = taken(fields.type_digit(key - kKeyDigit0), DVU_PNL_GCP_NOTIFY_EDIT);
        return answer(type, part_id, fields.current_field());
      }
      if (key == kKeyClear)
        return answer(taken(fields.clear(), DVU_PNL_GCP_NOTIFY_CLEAR), part_id,
                      fields.current_field());
      if (sideways)
        return answer(taken(fields.move_cursor(step), DVU_PNL_GCP_NOTIFY_CURSOR), part_id,
                      fields.current_field());
      break;
    }
    default:
      break;
  }
  return answer(DVU_PNL_GCP_NOTIFY_NONE, part_id, 0);
}

}  // namespace

dvu_pnl_gcp_parts* dvu_pnl_gcp_get_gui_parts_by_id(dvu_pnl_gcp_components* gui, int part_id) {
  return gui == nullptr ? nullptr : gui->find(part_id);
}

int dvu_pnl_gcp_draw(dvu_pnl_gcp_components* gui, unsigned char* img) {
  if (gui == nullptr || img == nullptr)
    return 0;
  host::gui_script& script = gui->script();
  ++script.draws;
  if (script.draw_changes.has_value()) {
    if (*script.draw_changes)
      host::render_frame(*gui, img);
    return *script.draw_changes ? 1 : 0;
  }
  std::array<unsigned char, host::kFrameBytes> next{};
  host::render_frame(*gui, next.data());
  if (std::memcmp(next.data(), img, next.size()) == 0)
    return 0;
  std::memcpy(img, next.data(), next.size());
  return 1;
}

int dvu_pnl_gcp_on_key(dvu_pnl_gcp_components* gui, const dvc_pnl_evh_panel_event& event,
                       DVU_PNL_GCP_NOTIFY& notify) {
  if (gui == nullptr) {
    notify = DVU_PNL_GCP_NOTIFY{};
    return 1;
  }
  host::gui_script& script = gui->script();
  const int id = event.dvc_pnl_evh_get_id();
  script.keys_seen.push_back(id);
  // The flexible keys answer for themselves, unless their part is hidden: then nothing is there.
  if (id == host::kKeyFlexLeft || id == host::kKeyFlexRight) {
    const int part_id = id == host::kKeyFlexLeft ? kPartFlexLeft : kPartFlexRight;
    const dvu_pnl_gcp_parts* key = gui->find(part_id);
    notify = answer(id == host::kKeyFlexLeft ? host::kNotifyFlexLeft : host::kNotifyFlexRight,
                    part_id, 0);
    if (key != nullptr && !key->dvu_pnl_gcp_is_visible())
      notify.type = DVU_PNL_GCP_NOTIFY_NONE;
    return 0;
  }
  if (script.next_notify.has_value()) {
    notify = *script.next_notify;
    return 0;
  }
  dvu_pnl_gcp_parts* focused = gui->find(gui->focus());
  notify = focused == nullptr || !focused->dvu_pnl_gcp_is_visible()
               ? answer(DVU_PNL_GCP_NOTIFY_NONE, -1, 0)
               : part_key(*focused, gui->focus(), event);
  return 0;
}

int dvu_pnl_gcp_get_focus(dvu_pnl_gcp_components* gui) {
  return gui == nullptr || gui->find(gui->focus()) == nullptr ? -1 : gui->focus();
}

int dvu_pnl_gcp_set_focus(dvu_pnl_gcp_components* gui, int part_id) {
  if (gui == nullptr || gui->find(part_id) == nullptr)
    return 1;
  gui->set_focus(part_id);
  return 0;
}

int dvu_pnl_gcp_get_cursor_info(dvu_pnl_gcp_components* gui, int rect[4]) {
  if (gui == nullptr || rect == nullptr)
    return 0;
  if (gui->script().has_cursor) {
    for (int i = 0; i < 4; ++i)
      rect[i] = gui->script().cursor_rect[static_cast<std::size_t>(i)];
    return 1;
  }
  const dvu_pnl_gcp_parts* focused = gui->find(gui->focus());
  return focused != nullptr && host::cursor_of(*focused, rect) ? 1 : 0;
}

int dvu_pnl_gcp_round_value_list_row(dvu_pnl_gcp_components* gui, int part_id, int row) {
  auto* list = dynamic_cast<dvu_pnl_gcp_list*>(dvu_pnl_gcp_get_gui_parts_by_id(gui, part_id));
  dvu_pnl_gcp_list_row* r = nullptr;
  if (list == nullptr || list->dvu_pnl_gcp_get_row(row, r) != 0)
    return 1;
  int low = 0, high = 0;
  if (r->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_INT_MIN, low) != 0 ||
      r->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_INT_MAX, high) != 0)
    return 1;
  int value = get_int(*r, DVU_PNL_GCP_ATTR_NUMBER);
  const int step = get_int(*r, DVU_PNL_GCP_ATTR_STEP);
  // The integer part moves in steps from its lower limit.
  if (step > 1 && value > low)
    value = low + (value - low) / step * step;
  r->dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_NUMBER, std::clamp(value, low, std::max(low, high)));
  int decimal_low = 0, decimal_high = 0;
  if (r->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_DECIMAL_MIN, decimal_low) == 0 &&
      r->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_DECIMAL_MAX, decimal_high) == 0) {
    const int decimal = get_int(*r, DVU_PNL_GCP_ATTR_DECIMAL);
    r->dvu_pnl_gcp_set_int_val(
        DVU_PNL_GCP_ATTR_DECIMAL,
        std::clamp(decimal, decimal_low, std::max(decimal_low, decimal_high)));
  }
  return 0;
}

int dvu_pnl_gcp_set_enable_select_listitem(dvu_pnl_gcp_components* gui, int part_id, bool enable) {
  auto* list = dynamic_cast<dvu_pnl_gcp_list*>(dvu_pnl_gcp_get_gui_parts_by_id(gui, part_id));
  if (list == nullptr)
    return 1;
  list->set_select_enabled(enable);
  return 0;
}

int dvu_pnl_gcp_keyboard_convertor::key_to_hkey(const dvc_pnl_evh_panel_event& event) {
  long released = 0;
  if (source_int(event, host::kKeyboardReleaseNode, released) && released == 1)
    return 87;
  long code = 0;
  if (!source_int(event, host::kKeyboardCodeNode, code))
    return -1;
  switch (code) {
    case 13:  // Enter
      return 40;
    case 27:  // Escape: back
      return 61;
    case 8:  // Backspace: clear
      return 38;
    default:
      break;
  }
  if (code >= '0' && code <= '9')
    return 45 + static_cast<int>(code - '0');
  return -1;
}

}  // namespace orvanta
