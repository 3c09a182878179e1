// The two flexible keys of the home screens.
#include "screens/home/dvc_pnl_ceh_home_flexible_keys.h"

#include <array>

#include "services/dvc_pnl_ceh_contents_hdl_gui.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

// Nodes of a key description: the setting item and the kind of the description.
constexpr unsigned long kNodeItem = 229;
constexpr unsigned long kNodeKind = 2039;

// The file name item shows whether the name is the default one.
constexpr int kFileNameDefault = 91;
constexpr int kFileNameChanged = 1170;

// PLACEHOLDER labels and value texts. The resource numbers of the item labels and of the setting
// values are not known; every number below stands in for them and is kept here alone. A label
// is 2000 + the item. A value's text is its item's base + the value; for the items with two
// values, base + 10 * the first + the second. Zoom and density compose their number into the
// base message.
constexpr int kLabelBase = 2000;
struct value_texts {
  long item;
  int base;
};
constexpr value_texts kValueTexts[] = {
    {2, 2200},  {3, 2210},  {5, 2220},   {6, 2230},   {8, 2240},   {9, 2250},
    {10, 2260}, {13, 2270}, {14, 2280},  {16, 2290},  {17, 2300},  {33, 2320},
    {34, 2340}, {35, 2350}, {55, 2360},  {56, 2370},  {60, 2380},  {73, 2390},
    {74, 2400}, {81, 2410}, {107, 2420}, {111, 2430}, {113, 2440},
};
// The items that have a label of their own.
constexpr long kLabelledItems[] = {1,  2,  3,  4,  5,  6,  8,  9,  10, 13,  14,  16, 17,
                                   33, 34, 35, 55, 56, 60, 73, 74, 81, 107, 111, 113};

int base_of(long item) {
  for (const value_texts& t : kValueTexts) {
    if (t.item == item)
      return t.base;
  }
  return -1;
}

const dvc_pnl_ceh_contents_hdl_gui* view_of(dvc_pnl_ceh_contents_base& screen) {
  return dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_register_gui_operator(
      screen.dvc_pnl_ceh_get_gui_components());
}

// The date word of the file name under 0.1.F.S.1.4.5 (S the default or the current scope).
int file_name_date(const dvc_pnl_ceh_contents_hdl_func& func, unsigned long scope, long& word) {
  const unsigned long node[] = {0, 1, func.get_function_node(), scope, 1, 4, 5};
  return dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(node, 0, 7, word);
}

dvc_pnl_ceh_setting_text file_name_text(const dvc_pnl_ceh_contents_hdl_func& func) {
  std::string current;
  std::string preset;
  long current_date = 0;
  long preset_date = 0;
  if (func.get_current_file_name_entry_setting(current) != DVC_PNL_CEH_RET_OK ||
      func.get_default_file_name_entry_setting(preset) != DVC_PNL_CEH_RET_OK ||
      file_name_date(func, DVC_PNL_CEH_FUNC_SCOPE_DEFAULT, preset_date) != DVC_PNL_CEH_RET_OK ||
      file_name_date(func, DVC_PNL_CEH_FUNC_SCOPE_CURRENT, current_date) != DVC_PNL_CEH_RET_OK)
    return {};
  const bool same = current == preset && current_date == preset_date;
  return {same ? kFileNameDefault : kFileNameChanged, false, 0};
}

// Reads one value through a getter of the door: the getter's result, the value in `out`.
template <class Getter>
int read_value(const dvc_pnl_ceh_contents_hdl_func& func, Getter getter, int& out) {
  int value = 0;
  const int ret = (func.*getter)(value);
  out = value;
  return ret;
}

}  // namespace

int dvc_pnl_ceh_home_flexible_keys::read(unsigned long tree) {
  const unsigned long table[] = {0, 228, tree};
  std::array<long, 2> items = {DVC_PNL_CEH_FLEXIBLE_NO_ITEM, DVC_PNL_CEH_FLEXIBLE_NO_ITEM};
  int result = DVC_PNL_CEH_RET_OK;
  for (unsigned index = 0; index < items.size(); ++index) {
    dvc_pnl_cmm_valueset description;
    int ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(table, 0, 3, index,
                                                                          description);
    long item = DVC_PNL_CEH_FLEXIBLE_NO_ITEM;
    long kind = 0;
    if (ret == DVC_PNL_CEH_RET_OK) {
      const unsigned long item_node[] = {0, 228, tree, index, kNodeItem};
      const unsigned long kind_node[] = {0, 228, tree, index, kNodeKind};
      ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(item_node, 0, 5, description, item);
      if (ret == DVC_PNL_CEH_RET_OK)
        ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(kind_node, 0, 5, description, kind);
    }
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("can not get flexible key %u ret_code = %d", index, ret);
      if (result == DVC_PNL_CEH_RET_OK)
        result = ret;
      continue;
    }
    // Only a description of a setting item makes a key.
    if (kind == DVC_PNL_CEH_FLEXIBLE_KIND_ITEM)
      items[index] = item;
  }
  left_item_ = items[0];
  right_item_ = items[1];
  return result;
}

void dvc_pnl_ceh_home_flexible_keys::clear() {
  left_item_ = DVC_PNL_CEH_FLEXIBLE_NO_ITEM;
  right_item_ = DVC_PNL_CEH_FLEXIBLE_NO_ITEM;
}

void dvc_pnl_ceh_home_flexible_keys::blank(long item) {
  if (left_item_ == item)
    left_item_ = DVC_PNL_CEH_FLEXIBLE_NO_ITEM;
  if (right_item_ == item)
    right_item_ = DVC_PNL_CEH_FLEXIBLE_NO_ITEM;
}

void dvc_pnl_ceh_home_flexible_keys::show() const {
  if (int ret = view_of(screen_)->dvc_pnl_ceh_update_view_flexiblekey(
          translate_item_enum_value_to_resource_id(left_item_),
          translate_item_enum_value_to_resource_id(right_item_));
      ret != 0)
    CEH_ERR("update_view_flexiblekey ret_code = %d", ret);
}

void dvc_pnl_ceh_home_flexible_keys::show_values(const dvc_pnl_ceh_contents_hdl_func& func) const {
  show_value(DVC_PNL_CEH_PART_LEFT_VALUE, left_item_, func);
  show_value(DVC_PNL_CEH_PART_RIGHT_VALUE, right_item_, func);
}

void dvc_pnl_ceh_home_flexible_keys::show_value(int part, long item,
                                                const dvc_pnl_ceh_contents_hdl_func& func) const {
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(screen_);
  const dvc_pnl_ceh_setting_text text = item == DVC_PNL_CEH_FLEXIBLE_NO_ITEM
                                            ? dvc_pnl_ceh_setting_text{}
                                            : load_setting_res(item, func);
  if (text.resource < 0)
    view->dvc_pnl_ceh_update_view_text(part, std::string(), 0);
  else if (text.composed)
    view->dvc_pnl_ceh_update_view_text_res_int(part, text.resource, 0, text.number);
  else
    view->dvc_pnl_ceh_update_view_text_res(part, text.resource, 0);
}

int dvc_pnl_ceh_home_flexible_keys::translate_item_enum_value_to_resource_id(long item) {
  for (long labelled : kLabelledItems) {
    if (labelled == item)
      return kLabelBase + static_cast<int>(item);
  }
  return -1;
}

dvc_pnl_ceh_setting_text dvc_pnl_ceh_home_flexible_keys::load_setting_res(
    long item, const dvc_pnl_ceh_contents_hdl_func& func) {
  using F = dvc_pnl_ceh_contents_hdl_func;
  const int base = base_of(item);
  int first = 0;
  int second = 0;
  int ret = DVC_PNL_CEH_RET_OK;
  switch (item) {
    case DVC_PNL_CEH_ITEM_FILE_NAME:
      return file_name_text(func);
    case DVC_PNL_CEH_ITEM_ORIGINAL_SIZE: {
      int size = 0;
      int original = 0;
      if (func.get_current_original_size_setting(size, original) != DVC_PNL_CEH_RET_OK)
        return {};
      long resource = -1;
      dvc_pnl_ceh_contents_hdl_get_origin_size_resource_id_for_flexiblekey(size, resource);
      return {static_cast<int>(resource), false, 0};
    }
    case DVC_PNL_CEH_ITEM_ZOOM: {
      int mode = 0;
      int ratio = 0;
      if (func.get_current_zoom_setting(mode, ratio) != DVC_PNL_CEH_RET_OK)
        return {};
      // The ratio is kept in tenths of a percent.
      return {base, true, ratio / 10};
    }
    case DVC_PNL_CEH_ITEM_DENSITY:
      if (read_value(func, &F::get_current_density_setting, first) != DVC_PNL_CEH_RET_OK)
        return {};
      return {base, true, first};
    case DVC_PNL_CEH_ITEM_DUPLEX:
      ret = read_value(func, &F::get_current_scan_duplex_setting, first);
      if (ret == DVC_PNL_CEH_RET_OK)
        ret = read_value(func, &F::get_current_print_duplex_setting, second);
      break;
    case 33:
      ret = read_value(func, &F::get_current_background_dens_mode, first);
      if (ret == DVC_PNL_CEH_RET_OK)
        ret = read_value(func, &F::get_current_background_dens, second);
      break;
    case 2:
      ret = read_value(func, &F::get_current_job_end_report_setting, second);
      break;
    case 5:
      ret = read_value(func, &F::get_current_original_orientation_setting, second);
      break;
    case DVC_PNL_CEH_ITEM_MIXED_SIZES:
      ret = read_value(func, &F::get_current_mixed_sized_originals, second);
      break;
    case 9:
      ret = read_value(func, &F::get_current_original_image_setting, second);
      break;
    case DVC_PNL_CEH_ITEM_CONTINUOUS_SCAN:
      ret = read_value(func, &F::get_current_continuous_scan_setting, second);
      break;
    case DVC_PNL_CEH_ITEM_ECOPRINT:
      ret = read_value(func, &F::get_current_ecoprint_setting, second);
      break;
    case DVC_PNL_CEH_ITEM_PAPER:
      ret = read_value(func, &F::get_current_paper_source_setting, second);
      break;
    case DVC_PNL_CEH_ITEM_COMBINE:
      ret = read_value(func, &F::get_current_combine_setting, second);
      break;
    case 34:
      ret = read_value(func, &F::get_current_sharpness, second);
      break;
    case DVC_PNL_CEH_ITEM_COLLATE:
      ret = read_value(func, &F::get_current_collate_setting, second);
      break;
    case DVC_PNL_CEH_ITEM_AUTO_FILE_DELETE:
      ret = read_value(func, &F::get_current_auto_file_del, second);
      break;
    case 56:
      ret = read_value(func, &F::get_current_print_override_setting, second);
      break;
    case DVC_PNL_CEH_ITEM_ENCRYPTED_PDF: {
      // Shown as set or not set.
      std::string password;
      ret = func.get_current_encrypted_pdf_setting(password);
      second = password.empty() ? 0 : 1;
      break;
    }
    case DVC_PNL_CEH_ITEM_JPEG_PRINT:
      ret = read_value(func, &F::get_current_jpeg_print_mode, second);
      break;
    case DVC_PNL_CEH_ITEM_XPS_FIT:
      ret = read_value(func, &F::get_current_xps_fit_to_page, second);
      break;
    case 81:
      ret = read_value(func, &F::get_current_prevent_bleed_through_setting, second);
      break;
    case DVC_PNL_CEH_ITEM_BLANK_SKIP:
      ret = read_value(func, &F::get_current_blank_skip_setting, second);
      break;
    case DVC_PNL_CEH_ITEM_QUIET_MODE:
      ret = read_value(func, &F::get_current_quiet_mode_setting, second);
      break;
    case 113:
      ret = read_value(func, &F::get_current_contrast, second);
      break;
    default:
      return {};
  }
  if (ret != DVC_PNL_CEH_RET_OK || base < 0)
    return {};
  return {base + 10 * first + second, false, 0};
}

}  // namespace orvanta
