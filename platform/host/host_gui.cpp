// Host GUI components: scripted key answers, icon parts, a deterministic frame, keyboard keys.
#include <cstring>

#include "host_internal.h"
#include "orvanta/platform/dvc_pnl_cmm_key.h"
#include "orvanta/platform/dvc_pnl_cmm_valueset.h"
#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta {
namespace host {

bool frame_pixel(const unsigned char* img, int x, int y) {
  if (img == nullptr || x < 0 || x >= kFrameWidth || y < 0 || y >= kFrameHeight)
    return false;
  return (img[y * kFrameStride + x / 8] & (0x80 >> (x % 8))) != 0;
}

namespace {

void set_pixel(unsigned char* img, int x, int y) {
  img[y * kFrameStride + x / 8] |= static_cast<unsigned char>(0x80 >> (x % 8));
}

// Writes the 32 bits of `value`, most significant first, as a row of 2x4 blocks starting at
// (kBandLeft, y): a set bit is a dark block, a clear bit a blank one.
void draw_band(unsigned char* img, int y, unsigned value) {
  for (int bit = 0; bit < 32; ++bit) {
    if (((value >> (31 - bit)) & 1u) == 0)
      continue;
    const int x = kBandLeft + bit * kBandBitPitch;
    for (int dy = 0; dy < kBandHeight; ++dy) {
      for (int dx = 0; dx < kBandBitWidth; ++dx)
        set_pixel(img, x + dx, y + dy);
    }
  }
}

}  // namespace

void render_frame(dvu_pnl_gcp_components& gui, unsigned char* img) {
  std::memset(img, 0, kFrameBytes);
  for (int x = 0; x < kFrameWidth; ++x) {
    set_pixel(img, x, 0);
    set_pixel(img, x, kFrameHeight - 1);
  }
  for (int y = 0; y < kFrameHeight; ++y) {
    set_pixel(img, 0, y);
    set_pixel(img, kFrameWidth - 1, y);
  }
  draw_band(img, kIdBandTop, static_cast<unsigned>(gui.contents_id()));
  int y = kIconBandTop;
  for (const auto& [part_id, part] : gui.parts()) {
    int icon = 0;
    if (part->kind() != dvu_pnl_gcp_part_kind::icon ||
        part->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_ICON, icon) != 0)
      continue;
    // Bands that would run into the bottom border are left out.
    if (y + kBandHeight > kFrameHeight - 1)
      break;
    draw_band(img, y, static_cast<unsigned>(icon));
    y += kBandHeight + 1;
  }
}

}  // namespace host

// ---- parts ----

int dvu_pnl_gcp_parts::dvu_pnl_gcp_get_int_val(int attribute, int& value) const {
  auto it = ints_.find(attribute);
  if (it == ints_.end())
    return 1;
  value = it->second;
  return 0;
}

int dvu_pnl_gcp_parts::dvu_pnl_gcp_set_int_val(int attribute, int value) {
  ints_[attribute] = value;
  return 0;
}

int dvu_pnl_gcp_parts::dvu_pnl_gcp_get_str_val(int attribute, std::string& value) const {
  auto it = strings_.find(attribute);
  if (it == strings_.end())
    return 1;
  value = it->second;
  return 0;
}

int dvu_pnl_gcp_parts::dvu_pnl_gcp_set_str_val(int attribute, const std::string& value) {
  strings_[attribute] = value;
  return 0;
}

namespace {

bool fits(int cell, int width) {
  return cell >= 0 && width > 0 && cell + width <= dvu_pnl_gcp_label::kCells;
}

}  // namespace

int dvu_pnl_gcp_label::dvu_pnl_gcp_add_icon(int cell, int width, int resource) {
  if (!fits(cell, width))
    return 1;
  items_.push_back({true, cell, width, resource, {}, 0});
  return 0;
}

int dvu_pnl_gcp_label::dvu_pnl_gcp_add_text(int cell, int width, int resource,
                                            unsigned long state) {
  if (!fits(cell, width))
    return 1;
  items_.push_back({false, cell, width, resource, {}, state});
  return 0;
}

int dvu_pnl_gcp_label::dvu_pnl_gcp_add_text(int cell, int width, const std::string& text,
                                            unsigned long state) {
  if (!fits(cell, width))
    return 1;
  items_.push_back({false, cell, width, -1, text, state});
  return 0;
}

int dvu_pnl_gcp_list_row::dvu_pnl_gcp_set_int_val(int attribute, int value) {
  if (attribute == DVU_PNL_GCP_ATTR_ROW_STAR)
    dvu_pnl_gcp_parts::dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ROW_STAR_SHOWN, value);
  return dvu_pnl_gcp_parts::dvu_pnl_gcp_set_int_val(attribute, value);
}

dvu_pnl_gcp_list::dvu_pnl_gcp_list() : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::list) {
  dvu_pnl_gcp_clear_all_row();
}

int dvu_pnl_gcp_list::dvu_pnl_gcp_add_row(const dvu_pnl_gcp_list_row& row) {
  rows_.push_back(row);
  return 0;
}

int dvu_pnl_gcp_list::dvu_pnl_gcp_get_row(int index, dvu_pnl_gcp_list_row*& row) {
  if (index < 0 || index > dvu_pnl_gcp_get_max_row()) {
    row = nullptr;
    return 1;
  }
  row = &rows_[static_cast<std::size_t>(index)];
  return 0;
}

int dvu_pnl_gcp_list::dvu_pnl_gcp_clear_all_row() {
  rows_.clear();
  dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, 0);
  dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SCROLL_POS, 0);
  return 0;
}

int dvu_pnl_gcp_list::set_scroll_amount(int amount) {
  if (amount < 1)
    return 1;
  scroll_amount_ = amount;
  return 0;
}

// ---- components ----

dvu_pnl_gcp_parts* dvu_pnl_gcp_get_gui_parts_by_id(dvu_pnl_gcp_components* gui, int part_id) {
  if (gui == nullptr)
    return nullptr;
  auto it = gui->parts().find(part_id);
  return it == gui->parts().end() ? nullptr : it->second.get();
}

int dvu_pnl_gcp_draw(dvu_pnl_gcp_components* gui, unsigned char* img) {
  if (gui == nullptr || img == nullptr)
    return 0;
  host::gui_script& script = gui->script();
  ++script.draws;
  if (!script.draw_changes)
    return 0;
  host::render_frame(*gui, img);
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
  // The flexible keys belong to every layout, so the stand-in answers them itself.
  if (id == host::kKeyFlexLeft || id == host::kKeyFlexRight) {
    notify = DVU_PNL_GCP_NOTIFY{};
    notify.type = id == host::kKeyFlexLeft ? host::kNotifyFlexLeft : host::kNotifyFlexRight;
    return 0;
  }
  notify = script.next_notify;
  return 0;
}

int dvu_pnl_gcp_get_cursor_info(dvu_pnl_gcp_components* gui, int rect[4]) {
  if (gui == nullptr || rect == nullptr || !gui->script().has_cursor)
    return 0;
  for (int i = 0; i < 4; ++i)
    rect[i] = gui->script().cursor_rect[i];
  return 1;
}

namespace {

// Reads an integer under (0, node) of the event's source value set; false when there is none.
bool source_int(const dvc_pnl_evh_panel_event& event, unsigned long node, long& out) {
  dvc_pnl_cmm_key key;
  if (key.dvc_pnl_cmm_add_key(0) != 0 || key.dvc_pnl_cmm_add_key(node) != 0)
    return false;
  return event.source().dvc_pnl_cmm_get_int(key, out) == 0;
}

}  // namespace

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
