// Host drawing of GUI parts into the 128x64 LCD frame with the panel font and the resource icons.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "host_internal.h"
#include "orvanta/host/font.h"
#include "orvanta/platform/dvu_pnl_gcp_resource.h"

namespace orvanta::host {

bool frame_pixel(const unsigned char* img, int x, int y) {
  if (img == nullptr || x < 0 || x >= kFrameWidth || y < 0 || y >= kFrameHeight)
    return false;
  return (img[y * kFrameStride + x / 8] & (0x80 >> (x % 8))) != 0;
}

namespace {

constexpr int kCell = kGlyphWidth;
constexpr int kRow = kGlyphHeight;

struct rect {
  int x, y, width, height;
};

void set_pixel(unsigned char* img, int x, int y) {
  if (x < 0 || x >= kFrameWidth || y < 0 || y >= kFrameHeight)
    return;
  img[y * kFrameStride + x / 8] |= static_cast<unsigned char>(0x80 >> (x % 8));
}

void invert(unsigned char* img, const rect& r) {
  for (int y = std::max(r.y, 0); y < std::min(r.y + r.height, kFrameHeight); ++y) {
    for (int x = std::max(r.x, 0); x < std::min(r.x + r.width, kFrameWidth); ++x)
      img[y * kFrameStride + x / 8] ^= static_cast<unsigned char>(0x80 >> (x % 8));
  }
}

int get_int(const dvu_pnl_gcp_parts& part, int attribute, int fallback = 0) {
  int value = fallback;
  part.dvu_pnl_gcp_get_int_val(attribute, value);
  return value;
}

// The characters of `text` that fit in `cells` cells: its start, or its end for a tail display.
std::string fit(const std::string& text, int cells, bool tail) {
  if (cells <= 0)
    return {};
  const auto n = static_cast<std::size_t>(cells);
  if (text.size() <= n)
    return text;
  return tail ? text.substr(text.size() - n) : text.substr(0, n);
}

void draw_line(unsigned char* img, const rect& r, const std::string& text, bool tail) {
  draw_text(img, r.x, r.y, fit(text, r.width / kCell, tail));
}

void draw_centered(unsigned char* img, const rect& r, const std::string& text) {
  const std::string shown = fit(text, r.width / kCell, false);
  const int x = r.x + (r.width - static_cast<int>(shown.size()) * kCell) / 2;
  draw_text(img, x, r.y, shown);
}

// Puts `argument` in place of the first printf conversion of `format`; "%%" stands for '%'.
std::string apply_format(const std::string& format, const std::string& argument) {
  std::string out;
  bool used = false;
  for (std::size_t i = 0; i < format.size(); ++i) {
    if (format[i] != '%' || i + 1 >= format.size()) {
      out += format[i];
      continue;
    }
    if (format[i + 1] == '%') {
      out += '%';
      ++i;
      continue;
    }
    std::size_t end = i + 1;
    while (end < format.size() && std::strchr("-+ #0123456789.lh", format[end]) != nullptr)
      ++end;
    if (used || end >= format.size() || std::strchr("diouxXsc", format[end]) == nullptr) {
      out += format[i];
      continue;
    }
    out += argument;
    used = true;
    i = end;
  }
  return out;
}

// What a text part shows: its text resource (with its format filled), or its literal.
std::string text_of(const dvu_pnl_gcp_parts& part) {
  int rid = -1;
  if (part.dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_TEXT_RESOURCE, rid) == 0 && rid != -1) {
    const std::string text = dvu_pnl_gcp_resource::get_text_resource(rid);
    return part.format_argument().empty() ? text : apply_format(text, part.format_argument());
  }
  std::string literal;
  part.dvu_pnl_gcp_get_str_val(DVU_PNL_GCP_ATTR_LITERAL, literal);
  return literal;
}

// Breaks `text` into lines of at most `cells` characters, at blanks where it can and at line
// ends always.
std::vector<std::string> wrap(const std::string& text, int cells) {
  std::vector<std::string> lines;
  if (cells <= 0)
    return lines;
  const auto n = static_cast<std::size_t>(cells);
  std::size_t start = 0;
  while (start <= text.size()) {
    const std::size_t newline = text.find('\n', start);
    std::string paragraph =
        text.substr(start, newline == std::string::npos ? std::string::npos : newline - start);
    do {
      if (paragraph.size() <= n) {
        lines.push_back(paragraph);
        break;
      }
      std::size_t cut = paragraph.rfind(' ', n);
      std::size_t next = cut + 1;
      if (cut == std::string::npos || cut == 0)
        cut = next = n;
      lines.push_back(paragraph.substr(0, cut));
      paragraph = paragraph.substr(next);
    } while (!paragraph.empty());
    if (newline == std::string::npos)
      break;
    start = newline + 1;
  }
  return lines;
}

void draw_icon(unsigned char* img, const rect& r, int rid) {
  if (rid <= 0)
    return;  // 0 is the blank icon
  icon_bitmap icon;
  if (!icon_of(rid, icon)) {
    // An icon without a bitmap shows its number, in the middle of its place.
    const std::string number = std::to_string(rid);
    draw_centered(img, r, number);
    return;
  }
  for (int y = 0; y < std::min(icon.height, r.height); ++y) {
    for (int x = 0; x < std::min(icon.width, r.width); ++x) {
      if (icon.rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] == '#')
        set_pixel(img, r.x + x, r.y + y);
    }
  }
}

void draw_text_part(unsigned char* img, const rect& r, const dvu_pnl_gcp_parts& part) {
  const std::string text = text_of(part);
  const bool tail = (part.dvu_pnl_gcp_get_state() & DVU_PNL_GCP_STATE_TAIL) != 0;
  const auto* wrapping = dynamic_cast<const dvu_pnl_gcp_text*>(&part);
  const int rows = std::max(r.height / kRow, 1);
  if (wrapping == nullptr || !wrapping->wraps() || rows == 1) {
    draw_line(img, r, text, tail);
    return;
  }
  std::vector<std::string> lines = wrap(text, r.width / kCell);
  const auto shown = static_cast<std::size_t>(rows);
  const std::size_t first = tail && lines.size() > shown ? lines.size() - shown : 0;
  for (std::size_t i = first; i < lines.size() && i - first < shown; ++i)
    draw_text(img, r.x, r.y + static_cast<int>(i - first) * kRow, lines[i]);
}

// The value of a number row: the integer part, and the decimal part after a point when the row's
// state gives decimal places.
std::string number_row_value(const dvu_pnl_gcp_list_row& row) {
  std::string out = std::to_string(get_int(row, DVU_PNL_GCP_ATTR_NUMBER));
  for (int places = 1; places <= 5; ++places) {
    if ((row.dvu_pnl_gcp_get_state() & (DVU_PNL_GCP_STATE_DECIMAL_0 << places)) == 0)
      continue;
    std::string decimal = std::to_string(get_int(row, DVU_PNL_GCP_ATTR_DECIMAL));
    if (static_cast<int>(decimal.size()) < places)
      decimal.insert(0, static_cast<std::size_t>(places) - decimal.size(), '0');
    out += "." + decimal;
  }
  return out;
}

void draw_label(unsigned char* img, int x0, int y0, const dvu_pnl_gcp_label& label) {
  for (const dvu_pnl_gcp_label_item& item : label.items()) {
    const rect r{x0 + item.cell * kCell, y0, item.width * kCell, kRow};
    if (item.is_icon) {
      draw_icon(img, r, item.resource);
      continue;
    }
    const std::string text =
        item.resource == -1 ? item.text : dvu_pnl_gcp_resource::get_text_resource(item.resource);
    draw_line(img, r, text, (item.state & DVU_PNL_GCP_STATE_TAIL) != 0);
  }
}

void draw_list(unsigned char* img, const rect& r, dvu_pnl_gcp_list& list) {
  const int scroll = get_int(list, DVU_PNL_GCP_ATTR_LIST_SCROLL_POS);
  const int selected = get_int(list, DVU_PNL_GCP_ATTR_LIST_SELECT_ROW);
  const bool stars = (list.dvu_pnl_gcp_get_state() & DVU_PNL_GCP_STATE_STARS) != 0;
  const int rows = std::min(r.height / kRow, dvu_pnl_gcp_list::kVisibleRows);
  for (int i = 0; i < rows; ++i) {
    dvu_pnl_gcp_list_row* row = nullptr;
    if (list.dvu_pnl_gcp_get_row(scroll + i, row) != 0)
      break;
    const int y = r.y + i * kRow;
    draw_label(img, r.x, y, *row);
    int lower = 0;
    if (row->dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_INT_MIN, lower) == 0) {
      const std::string value = number_row_value(*row);
      draw_text(img, r.x + r.width - static_cast<int>(value.size()) * kCell, y, value);
    }
    // The star marks the value in force; it stands in the last cell.
    if (stars && get_int(*row, DVU_PNL_GCP_ATTR_ROW_STAR) == 1)
      draw_text(img, r.x + (dvu_pnl_gcp_label::kCells - 1) * kCell, y, "*");
    if (list.select_enabled() && scroll + i == selected)
      invert(img, {r.x, y, r.width, kRow});
  }
}

// The text of a multi-field entry and where each field starts in it, in cells.
std::string fields_text(const dvu_pnl_gcp_input_fields& part, std::vector<int>& starts,
                        int& width) {
  char buffer[64];
  const int a = part.first_attribute();
  auto v = [&](int i) { return get_int(part, a + i); };
  switch (part.kind()) {
    case dvu_pnl_gcp_part_kind::date:
      std::snprintf(buffer, sizeof buffer, "%04d/%02d/%02d", v(0), v(1), v(2));
      starts = {0, 5, 8};
      width = 2;
      break;
    case dvu_pnl_gcp_part_kind::ipv4:
      std::snprintf(buffer, sizeof buffer, "%03d.%03d.%03d.%03d", v(0), v(1), v(2), v(3));
      starts = {0, 4, 8, 12};
      width = 3;
      break;
    default:
      if (part.field_count() == 3)
        std::snprintf(buffer, sizeof buffer, "%02d:%02d:%02d", v(0), v(1), v(2));
      else
        std::snprintf(buffer, sizeof buffer, "%02d:%02d", v(0), v(1));
      starts = {0, 3, 6};
      width = 2;
      break;
  }
  return buffer;
}

// Where a part stands. A part given no size (one a test adds by hand) takes its natural one: a
// cell pair for an icon, one line to the right edge for anything else.
rect rect_of(const dvu_pnl_gcp_parts& part) {
  rect r{};
  part.dvu_pnl_gcp_get_position(r.x, r.y);
  part.dvu_pnl_gcp_get_size(r.width, r.height);
  if (r.width <= 0 || r.height <= 0) {
    r.width = part.kind() == dvu_pnl_gcp_part_kind::icon ? 2 * kCell : kFrameWidth - r.x;
    r.height = kRow;
  }
  return r;
}

void draw_part(unsigned char* img, dvu_pnl_gcp_parts& part) {
  const rect r = rect_of(part);
  switch (part.kind()) {
    case dvu_pnl_gcp_part_kind::icon:
      draw_icon(img, r, get_int(part, DVU_PNL_GCP_ATTR_ICON));
      break;
    case dvu_pnl_gcp_part_kind::text:
    case dvu_pnl_gcp_part_kind::other:
      draw_text_part(img, r, part);
      break;
    case dvu_pnl_gcp_part_kind::flexiblekey: {
      int rid = -1;
      if (part.dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_KEY_TEXT, rid) == 0 && rid >= 0)
        draw_centered(img, r, dvu_pnl_gcp_resource::get_text_resource(rid));
      break;
    }
    case dvu_pnl_gcp_part_kind::list:
      draw_list(img, r, static_cast<dvu_pnl_gcp_list&>(part));
      break;
    case dvu_pnl_gcp_part_kind::label:
      draw_label(img, r.x, r.y, static_cast<dvu_pnl_gcp_label&>(part));
      break;
    case dvu_pnl_gcp_part_kind::edit_box: {
      const auto& box = static_cast<const dvu_pnl_gcp_input_edit_box&>(part);
      // The end of a long content stays in view, with a cell left for the cursor.
      draw_line(img, r, box.content(), box.cursor() >= r.width / kCell);
      for (int x = r.x; x < r.x + r.width; x += 2)
        set_pixel(img, x, r.y + r.height - 1);
      break;
    }
    case dvu_pnl_gcp_part_kind::number: {
      const std::string value = std::to_string(get_int(part, DVU_PNL_GCP_ATTR_NUMBER));
      draw_text(img, r.x + r.width - static_cast<int>(value.size()) * kCell, r.y, value);
      break;
    }
    case dvu_pnl_gcp_part_kind::date:
    case dvu_pnl_gcp_part_kind::time:
    case dvu_pnl_gcp_part_kind::timer:
    case dvu_pnl_gcp_part_kind::ipv4: {
      std::vector<int> starts;
      int width = 0;
      draw_line(img, r,
                fields_text(static_cast<const dvu_pnl_gcp_input_fields&>(part), starts, width),
                false);
      break;
    }
    case dvu_pnl_gcp_part_kind::ipv6: {
      std::string address;
      part.dvu_pnl_gcp_get_str_val(DVU_PNL_GCP_ATTR_IPV6, address);
      draw_line(img, r, address, true);
      break;
    }
    case dvu_pnl_gcp_part_kind::select_mark: {
      const auto& marks = static_cast<const dvu_pnl_gcp_input_select_mark&>(part);
      const int rows = std::max(r.height / kRow, 1);
      const int count = static_cast<int>(marks.words().size());
      const int first = std::clamp(marks.cursor() - rows / 2, 0, std::max(count - rows, 0));
      for (int i = 0; i < rows && first + i < count; ++i) {
        const rect line{r.x, r.y + i * kRow, r.width, kRow};
        draw_line(img, line, marks.words()[static_cast<std::size_t>(first + i)], false);
        if (first + i == marks.cursor())
          invert(img, line);
      }
      break;
    }
    case dvu_pnl_gcp_part_kind::animation: {
      auto& animation = static_cast<dvu_pnl_gcp_processing_animation&>(part);
      if (!animation.running())
        break;
      // A bar of eight blocks under the text; one block lights up in turn.
      // The icon stands at the start of the text line, the text centred on it.
      if (animation.icon_rid() >= 0)
        draw_icon(img, {r.x, r.y, 2 * kCell, kRow}, animation.icon_rid());
      if (animation.text_rid() >= 0)
        draw_centered(img, {r.x, r.y, r.width, kRow},
                      dvu_pnl_gcp_resource::get_text_resource(animation.text_rid()));
      const int block = r.width / 8;
      const int lit = animation.frame() % 8;
      invert(img, {r.x + lit * block + 1, r.y + r.height - 4, block - 2, 3});
      animation.advance();
      break;
    }
  }
}

}  // namespace

void render_frame(dvu_pnl_gcp_components& gui, unsigned char* img) {
  std::memset(img, 0, kFrameBytes);
  for (int id : gui.order()) {
    dvu_pnl_gcp_parts* part = gui.find(id);
    if (part != nullptr && part->dvu_pnl_gcp_is_visible())
      draw_part(img, *part);
  }
}

bool cursor_of(const dvu_pnl_gcp_parts& part, int out[4]) {
  const rect r = rect_of(part);
  const int cells = r.width / kCell;
  int x = 0;
  int width = 1;
  switch (part.kind()) {
    case dvu_pnl_gcp_part_kind::edit_box: {
      const auto& box = static_cast<const dvu_pnl_gcp_input_edit_box&>(part);
      x = std::min(box.cursor(), cells - 1);
      break;
    }
    case dvu_pnl_gcp_part_kind::number:
      x = cells - 1;
      break;
    case dvu_pnl_gcp_part_kind::date:
    case dvu_pnl_gcp_part_kind::time:
    case dvu_pnl_gcp_part_kind::timer:
    case dvu_pnl_gcp_part_kind::ipv4: {
      const auto& fields = static_cast<const dvu_pnl_gcp_input_fields&>(part);
      std::vector<int> starts;
      fields_text(fields, starts, width);
      x = starts[static_cast<std::size_t>(fields.current_field())];
      if (fields.kind() == dvu_pnl_gcp_part_kind::date && fields.current_field() == 0)
        width = 4;
      break;
    }
    default:
      return false;
  }
  out[0] = r.x + x * kCell;
  out[1] = r.y;
  out[2] = width * kCell;
  out[3] = kRow;
  return true;
}

}  // namespace orvanta::host
