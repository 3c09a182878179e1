// Host layouts: the parts of each screen family's layout, the layout a contents id gets, and the
// attribute words that tests and the runtime set per contents id.
#include "host_layouts.h"

#include <algorithm>
#include <cstring>
#include <map>
#include <memory>
#include <string>

#include "host_internal.h"
#include "orvanta/platform/dvc_pnl_cly_contents_layout.h"

namespace orvanta::host {
namespace {

using K = dvu_pnl_gcp_part_kind;

// Rows of the frame: a title line, three lines of content, the flexible key line.
constexpr int kLine = 12;
constexpr int kBody = 13;  // first content line
constexpr int kKeys = 52;  // flexible key line
constexpr int kWide = 128;

// The flexible keys and their bar, which every layout ends with. The bar is drawn first so the
// key texts stand on it.
#define FLEXIBLE_KEYS                                                                 \
  {32, K::icon, 0, kKeys, kWide, kLine}, {30, K::flexiblekey, 0, kKeys, 64, kLine}, { \
    31, K::flexiblekey, 64, kKeys, 64, kLine                                          \
  }

// Lists of choices, settings, jobs and files: a title, three list rows, the keys.
constexpr layout_part kList[] = {
    {123, K::text, 0, 0, 104, kLine},
    {19, K::icon, 104, 0, 12, kLine},
    {6, K::icon, 116, 0, 12, kLine},
    {64, K::list, 0, kBody, kWide, 3 * kLine},
    FLEXIBLE_KEYS,
};

// Dialogs and messages: a title and a wrapped message; jam guidance and error numbers share the
// body lines.
constexpr layout_part kMessage[] = {
    {123, K::text, 0, 0, 92, kLine},
    {29, K::text, 92, 0, 36, kLine},
    {35, K::icon, 0, kBody, 12, kLine},
    {36, K::icon, 12, kBody, 12, kLine},
    {67, K::text, 0, kBody, kWide, 3 * kLine},
    {44, K::text, 0, kBody, kWide, kLine},
    {98, K::text, 0, kBody + kLine, kWide, kLine},
    {120, K::text, 26, kBody, 102, 2 * kLine},
    {121, K::text, 0, kBody + 2 * kLine, kWide, kLine},
    FLEXIBLE_KEYS,
};

// Pages of status and detail: a title with its icons, then a message or a list.
constexpr layout_part kPage[] = {
    {123, K::text, 0, 0, 104, kLine},          {19, K::icon, 104, 0, 12, kLine},
    {6, K::icon, 116, 0, 12, kLine},           {67, K::text, 0, kBody, kWide, 3 * kLine},
    {64, K::list, 0, kBody, kWide, 3 * kLine}, FLEXIBLE_KEYS,
};

// Text entry: a title, a prompt line and the edit box.
constexpr layout_part kEntryText[] = {
    {123, K::text, 0, 0, kWide, kLine},
    {44, K::text, 0, kBody, kWide, kLine},
    {78, K::edit_box, 0, kBody + kLine, kWide, kLine},
    FLEXIBLE_KEYS,
};

// Number entry: a title, a prompt line and the number.
constexpr layout_part kEntryNumber[] = {
    {123, K::text, 0, 0, kWide, kLine},
    {44, K::text, 0, kBody, kWide, kLine},
    {78, K::number, 0, kBody + kLine, kWide, kLine},
    FLEXIBLE_KEYS,
};

// Time of day: a title and the time.
constexpr layout_part kEntryTime[] = {
    {123, K::text, 0, 0, kWide, kLine},
    {53, K::time, 0, kBody + kLine, kWide, kLine},
    FLEXIBLE_KEYS,
};

// A timer of days, hours and minutes.
constexpr layout_part kEntryTimer[] = {
    {123, K::text, 0, 0, kWide, kLine},
    {159, K::timer, 0, kBody + kLine, kWide, kLine},
    FLEXIBLE_KEYS,
};

// An address of four number fields.
constexpr layout_part kEntryAddress[] = {
    {123, K::text, 0, 0, kWide, kLine},
    {44, K::text, 0, kBody, kWide, kLine},
    {49, K::ipv4, 0, kBody + kLine, kWide, kLine},
    FLEXIBLE_KEYS,
};

// Home screens: the main message (one line, or paper size and kind side by side), the fixed
// texts and the count, original and paper with its quantity, the state icons and the values of the
// two flexible key settings. The send screens' texts 14 and 15 share the places of the values,
// which the copy screens show; a screen fills only one of each pair.
constexpr layout_part kHome[] = {
    {67, K::text, 0, 0, kWide, kLine},
    {117, K::text, 0, 0, 64, kLine},
    {118, K::text, 64, 0, 64, kLine},
    {116, K::text, 0, kBody, 40, kLine},
    {18, K::text, 40, kBody, 52, kLine},
    {12, K::number, 92, kBody, 36, kLine},
    {79, K::text, 0, kBody + kLine, 58, kLine},
    {85, K::text, 58, kBody + kLine, 58, kLine},
    {83, K::text, 58, kBody + kLine, 58, kLine},
    {11, K::icon, 116, kBody + kLine, 12, kLine},
    {21, K::icon, 0, kBody + 2 * kLine, 12, kLine},
    {43, K::icon, 12, kBody + 2 * kLine, 12, kLine},
    {103, K::text, 24, kBody + 2 * kLine, 52, kLine},
    {107, K::text, 76, kBody + 2 * kLine, 52, kLine},
    {14, K::text, 24, kBody + 2 * kLine, 52, kLine},
    {15, K::text, 76, kBody + 2 * kLine, 52, kLine},
    FLEXIBLE_KEYS,
};

// Maintenance: the title, the current item number and the list.
constexpr layout_part kMaintenance[] = {
    {123, K::text, 0, 0, 92, kLine},
    {130, K::text, 92, 0, 36, kLine},
    {64, K::list, 0, kBody, kWide, 3 * kLine},
    FLEXIBLE_KEYS,
};

#undef FLEXIBLE_KEYS

constexpr layout kLayouts[] = {
    {"list", kList},
    {"message", kMessage},
    {"page", kPage},
    {"entry_text", kEntryText},
    {"entry_number", kEntryNumber},
    {"entry_time", kEntryTime},
    {"entry_timer", kEntryTimer},
    {"entry_address", kEntryAddress},
    {"home", kHome},
    {"maintenance", kMaintenance},
};

// The layout of each family.
struct family_layout {
  const char* family;
  const char* layout;
};

constexpr family_layout kFamilyLayouts[] = {
    // clang-format off
    {"d_01_01_01", "list"}, {"d_01_01_02", "list"}, {"d_01_01_03", "list"},
    {"d_01_01_04_01", "list"}, {"d_01_01_04_02", "list"}, {"d_01_01_05", "list"},
    {"d_01_01_06", "list"}, {"d_01_01_07", "list"}, {"d_01_01_08", "list"},
    {"sys_menu_d_01_01_01", "list"}, {"sys_menu_d_01_01_03", "list"},
    {"d_01_05", "list"}, {"d_01_06", "list"}, {"d_01_08", "list"},
    {"d_02_01", "message"}, {"d_02_02", "message"}, {"d_02_03", "message"},
    {"d_02_04", "message"}, {"d_02_05", "message"}, {"d_02_06", "message"},
    {"d_03_01", "message"}, {"d_03_03", "message"}, {"d_03_05", "message"},
    {"d_03_06", "message"}, {"d_03_08", "message"}, {"d_03_10", "message"},
    {"d_03_12", "message"}, {"d_03_13", "message"}, {"d_03_14", "message"},
    {"d_03_15", "message"}, {"d_03_16", "message"}, {"d_03_17", "message"},
    {"d_04_07", "message"}, {"d_04_09", "message"},
    {"d_06_03", "entry_number"}, {"d_06_06", "entry_number"}, {"d_06_07", "entry_timer"},
    {"d_06_04", "entry_time"}, {"d_08_01", "entry_address"},
    {"d_08_02_01", "entry_text"}, {"d_08_02_03", "entry_text"}, {"d_08_02_04", "entry_text"},
    {"d_08_05", "entry_text"}, {"d_08_10", "entry_text"}, {"d_08_12", "entry_text"},
    {"d_07_05", "entry_text"}, {"d_08_11", "entry_text"},
    {"d_04_01_01", "page"}, {"d_04_01_02", "page"}, {"d_04_03_02", "page"},
    {"d_04_03_03", "page"}, {"d_04_03_06", "page"}, {"d_04_03_07", "page"},
    {"d_04_03_09", "page"}, {"d_04_03_15", "page"}, {"d_04_03_16", "page"},
    {"d_05_01", "page"}, {"d_01_10", "page"}, {"d_04_03_05", "page"},
    {"d_04_04_01", "page"}, {"d_04_05", "page"}, {"d_04_06", "page"},
    {"d_04_08", "page"}, {"d_04_10", "page"}, {"d_04_12", "page"},
    {"d_07_01", "home"}, {"d_07_02", "home"}, {"d_07_03", "home"}, {"d_07_04", "home"},
    {"d_07_06", "home"},
    {"d_mnt_000", "maintenance"}, {"d_mnt_001", "maintenance"}, {"d_mnt_002", "maintenance"},
    {"d_mnt_003", "maintenance"}, {"d_mnt_004", "maintenance"}, {"d_mnt_005", "maintenance"},
    {"d_mnt_006", "maintenance"},
    // clang-format on
};

std::unique_ptr<dvu_pnl_gcp_parts> make_part(dvu_pnl_gcp_part_kind kind) {
  switch (kind) {
    case K::icon:
      return std::make_unique<dvu_pnl_gcp_icon>();
    case K::text:
      return std::make_unique<dvu_pnl_gcp_text>();
    case K::list:
      return std::make_unique<dvu_pnl_gcp_list>();
    case K::label:
      return std::make_unique<dvu_pnl_gcp_label>();
    case K::flexiblekey:
      return std::make_unique<dvu_pnl_gcp_flexiblekey>();
    case K::edit_box:
      return std::make_unique<dvu_pnl_gcp_input_edit_box>();
    case K::number:
      return std::make_unique<dvu_pnl_gcp_input_number>();
    case K::date:
      return std::make_unique<dvu_pnl_gcp_input_date>();
    case K::time:
      return std::make_unique<dvu_pnl_gcp_input_time>();
    case K::timer:
      return std::make_unique<dvu_pnl_gcp_input_timer>();
    case K::ipv4:
      return std::make_unique<dvu_pnl_gcp_input_ip>(false);
    case K::ipv6:
      return std::make_unique<dvu_pnl_gcp_input_ip>(true);
    case K::select_mark:
      return std::make_unique<dvu_pnl_gcp_input_select_mark>();
    case K::animation:
      return std::make_unique<dvu_pnl_gcp_processing_animation>();
    case K::other:
      break;
  }
  return std::make_unique<dvu_pnl_gcp_parts>(kind);
}

bool takes_keys(dvu_pnl_gcp_part_kind kind) {
  return kind != K::icon && kind != K::text && kind != K::label && kind != K::flexiblekey &&
         kind != K::animation && kind != K::other;
}

std::map<int, unsigned long>& attribute_words() {
  static std::map<int, unsigned long> words;
  return words;
}

}  // namespace

const char* family_of(int contents_id) {
  const layout_id_range* end = kLayoutIdRanges + kLayoutIdRangeCount;
  const layout_id_range* it =
      std::upper_bound(kLayoutIdRanges, end, contents_id,
                       [](int id, const layout_id_range& range) { return id < range.first; });
  if (it == kLayoutIdRanges)
    return nullptr;
  --it;
  return contents_id <= it->last ? it->family : nullptr;
}

const layout* layout_of_family(const char* family) {
  if (family == nullptr)
    return nullptr;
  for (const family_layout& row : kFamilyLayouts) {
    if (std::strcmp(row.family, family) != 0)
      continue;
    for (const layout& l : kLayouts) {
      if (std::strcmp(l.name, row.layout) == 0)
        return &l;
    }
  }
  return nullptr;
}

void build_layout(dvu_pnl_gcp_components& gui) {
  const layout* l = layout_of_family(family_of(gui.contents_id()));
  if (l == nullptr)
    return;
  for (const layout_part& entry : l->parts) {
    auto part = make_part(entry.kind);
    part->dvu_pnl_gcp_set_position(entry.x, entry.y);
    part->dvu_pnl_gcp_set_size(entry.width, entry.height);
    gui.add(entry.id, std::move(part));
    if (gui.focus() < 0 && takes_keys(entry.kind))
      gui.set_focus(entry.id);
  }
}

void set_layout_attributes(int contents_id, unsigned long attributes) {
  attribute_words()[contents_id] = attributes;
}

void reset_layouts() {
  attribute_words().clear();
}

}  // namespace orvanta::host

namespace orvanta {

int dvc_pnl_cly_get_layout_name(int contents_id, std::string& name, unsigned long& attributes) {
  // The layout of a contents is named after the family of screens that shares it.
  const char* family = host::family_of(contents_id);
  if (family == nullptr)
    return 1;
  name = family;
  auto it = host::attribute_words().find(contents_id);
  attributes = it == host::attribute_words().end() ? 0 : it->second;
  return 0;
}

}  // namespace orvanta

namespace orvanta::host {

std::string layout_of(int contents_id) {
  const layout* l = layout_of_family(family_of(contents_id));
  return l == nullptr ? std::string() : std::string(l->name);
}

}  // namespace orvanta::host
