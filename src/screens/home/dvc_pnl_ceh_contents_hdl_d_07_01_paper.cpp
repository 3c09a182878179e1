// Copy home screen and box print home screen: the original size, the paper in use with its
// quantity, the flexible keys and the paper events.
#include <bit>

#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "screens/home/dvc_pnl_ceh_contents_hdl_d_07_01.h"
#include "services/dvc_pnl_ceh_contents_hdl_gui.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

constexpr int kPartOriginalSize = 79;
constexpr int kPartPaperSize = 85;
constexpr int kPartQuantityIcon = 11;
constexpr int kNoIcon = 0;
// Mixed sized originals, and the paper source the machine chooses by itself.
constexpr int kMsgMixedSizes = 3462;
constexpr int kMsgPaperAuto = 1058;
// Cassettes from 4 up have no quantity icon.
constexpr long kFirstCassetteWithoutIcon = 4;
// The multipurpose tray.
constexpr long kManualTray = 0;

// Paper events.
constexpr int kEventPaperLevel = 148;
constexpr int kEventPaperState = 149;
constexpr int kEventManualTray = 150;
constexpr int kEventPaperSource = 152;
// The state of a cassette that event 149 acts on.
constexpr long kCassetteStateChanged = 2;
// The keys of the multipurpose tray that event 150 carries.
constexpr unsigned long kManualTrayEventKeys[] = {1113, 1114, 1115};

// PLACEHOLDER layouts the machine's data does not give: the node of the cassette and of its state
// in the source set of the paper events (148, 149, 152), the node of the detected original size
// in the original status (DVC_PNL_PDM_ORIGINAL_STATUS_UPDATE, group 1210), and the quantity icons
// by the sheets left (empty, low, half, full). An event whose cassette node is -1 tells that the
// machine chooses the paper itself. Replace them here, and only here.
struct quantity_icon {
  long from;  // sheets
  int icon;
};
constexpr unsigned long kEventNodeCassette = 129;
constexpr unsigned long kEventNodeState = 2039;
constexpr unsigned long kStatusNodeDetectedSize = 1213;
constexpr quantity_icon kQuantityIcons[] = {{250, 143}, {100, 142}, {1, 141}, {0, 140}};

const dvc_pnl_ceh_contents_hdl_gui* view_of(dvc_pnl_ceh_contents_base& screen) {
  return dvc_pnl_ceh_contents_hdl_gui::dvc_pnl_ceh_register_gui_operator(
      screen.dvc_pnl_ceh_get_gui_components());
}

// An integer right below the root of a panel event's source set.
int event_int(const dvc_pnl_evh_panel_event& event, unsigned long node, long& value) {
  dvc_pnl_cmm_valueset source;
  if (event.dvc_pnl_evh_get_event_source_valueset(source) != 0)
    return DVC_PNL_CEH_RET_PLATFORM;
  const unsigned long key[] = {0, node};
  return dvc_pnl_ceh_contents_hdl_get_int_from_valueset(key, 0, 2, source, value);
}

// The items whose prohibit value must leave a real choice in function 1, with the bits of their
// values.
struct choice_bits {
  long item;
  long bits;
  int count;  // how many bits are listed
};
constexpr choice_bits kChoices[] = {
    {DVC_PNL_CEH_ITEM_BLANK_SKIP, 1 | 2, 2},          {DVC_PNL_CEH_ITEM_ORIGINAL_SIZE, 1 | 8, 2},
    {DVC_PNL_CEH_ITEM_PAPER, 1 | 2 | 4 | 16 | 64, 5}, {DVC_PNL_CEH_ITEM_MIXED_SIZES, 4 | 16, 2},
    {DVC_PNL_CEH_ITEM_CONTINUOUS_SCAN, 1 | 16, 2},
};

}  // namespace

// ---- original size ----

void dvc_pnl_ceh_contents_hdl_d_07_01::get_origin_size_from_cmm_copy() {
  show_origin_size();
}

void dvc_pnl_ceh_contents_hdl_d_07_01::get_origin_size_from_cmm_box_print() {
  show_origin_size();
}

void dvc_pnl_ceh_contents_hdl_d_07_01::show_origin_size() {
  // Copy reads its own job, box print the box job: the tree of the view function.
  const unsigned long node[] = {0, 1, func_op_.get_function_node(), 160, 12, 18, 20};
  long size = 0;
  if (int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(node, 0, 7, size);
      ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get original size ret_code = %d", ret);
    return;
  }
  long resource = -1;
  ENV_MODE_10_VAL mixed = 0;
  if (func_op_.get_current_mixed_sized_originals(mixed) == DVC_PNL_CEH_RET_OK && mixed == 1)
    resource = kMsgMixedSizes;
  else
    dvc_pnl_ceh_contents_hdl_get_origin_size_resource_id(size, resource);
  int auto_detect = 0;
  if (dvc_pnl_ceh_contents_hdl_is_dp_auto_detect(auto_detect) == DVC_PNL_CEH_RET_OK &&
      auto_detect == 1) {
    if (const long detected = get_org_size_msg_by_dp_status(); detected >= 0)
      resource = detected;
  }
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  if (resource < 0)
    view->dvc_pnl_ceh_update_view_text(kPartOriginalSize, std::string(), 0);
  else
    view->dvc_pnl_ceh_update_view_text_res(kPartOriginalSize, static_cast<int>(resource), 0);
}

long dvc_pnl_ceh_contents_hdl_d_07_01::get_org_size_msg_by_dp_status() const {
  dvc_pnl_cmm_valueset status;
  if (int ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_application_scope(
          DVC_PNL_PDM_ORIGINAL_STATUS_UPDATE, status);
      ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get original status ret_code = %d", ret);
    return -1;
  }
  const unsigned long node[] = {0, 1210, kStatusNodeDetectedSize};
  long size = 0;
  if (dvc_pnl_ceh_contents_hdl_get_int_from_valueset(node, 2, 3, status, size) !=
      DVC_PNL_CEH_RET_OK)
    return -1;
  long resource = -1;
  dvc_pnl_ceh_contents_hdl_get_origin_size_resource_id(size, resource);
  return resource;
}

// ---- paper ----

void dvc_pnl_ceh_contents_hdl_d_07_01::show_current_paper() {
  long cassette = 0;
  dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, view_func_);
  current_cassette_ = cassette;
  get_specify_cassette_info_from_cmm(cassette);
}

void dvc_pnl_ceh_contents_hdl_d_07_01::get_specify_cassette_info_from_cmm(long cassette) {
  long size = 0;
  long kind = 0;
  long quantity = 0;
  if (int ret = dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm(
          cassette, size, kind, quantity, view_func_, -1);
      ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get cassette %ld ret_code = %d", cassette, ret);
    return;
  }
  long resource = -1;
  dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(size, resource);
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  if (resource < 0)
    view->dvc_pnl_ceh_update_view_text(kPartPaperSize, std::string(), 0);
  else
    view->dvc_pnl_ceh_update_view_text_res(kPartPaperSize, static_cast<int>(resource), 0);
  show_paper_quantity(cassette, quantity);
}

int dvc_pnl_ceh_contents_hdl_d_07_01::get_cassette_quantity_resource_id(long quantity) {
  for (const quantity_icon& level : kQuantityIcons) {
    if (quantity >= level.from)
      return level.icon;
  }
  return kNoIcon;
}

void dvc_pnl_ceh_contents_hdl_d_07_01::show_paper_quantity(long cassette, long quantity) {
  int icon =
      cassette >= kFirstCassetteWithoutIcon ? kNoIcon : get_cassette_quantity_resource_id(quantity);
  // A print from a box whose kind hides the function icon hides the quantity too.
  if (contents_id_ == CID_01_02_03_N1) {
    int shown = 0;
    if (view_of(*this)->dvc_pnl_ceh_get_view_icon(21, shown) == 0 && shown == kNoIcon)
      icon = kNoIcon;
  }
  view_of(*this)->dvc_pnl_ceh_update_view_icon(kPartQuantityIcon, icon);
}

int dvc_pnl_ceh_contents_hdl_d_07_01::on_paper_event(dvc_pnl_evh_panel_event& event) {
  const int id = event.dvc_pnl_evh_get_id();
  const dvc_pnl_ceh_contents_hdl_gui* view = view_of(*this);
  switch (id) {
    case kEventPaperLevel:
    case kEventPaperState: {
      long cassette = -1;
      if (int ret = event_int(event, kEventNodeCassette, cassette); ret != DVC_PNL_CEH_RET_OK) {
        CEH_ERR("can not get cassette of event %d ret_code = %d", id, ret);
        return 0;
      }
      if (id == kEventPaperState) {
        long state = 0;
        if (event_int(event, kEventNodeState, state) != DVC_PNL_CEH_RET_OK ||
            state != kCassetteStateChanged)
          return 0;
      }
      if (cassette != current_cassette_)
        return 0;
      get_specify_cassette_info_from_cmm(cassette);
      draw();
      return 1;
    }
    case kEventManualTray: {
      long values[std::size(kManualTrayEventKeys)] = {-1, -1, -1};
      for (std::size_t i = 0; i < std::size(kManualTrayEventKeys); ++i)
        event_int(event, kManualTrayEventKeys[i], values[i]);
      CEH_TRC("mp tray changed: %ld %ld %ld", values[0], values[1], values[2]);
      if (current_cassette_ != kManualTray)
        return 0;
      const unsigned long tree = func_op_.get_function_node();
      const unsigned long size_node[] = {0, 1, tree, 160, 46, 49, 53};
      const unsigned long kind_node[] = {0, 1, tree, 160, 46, 49, 51};
      long size = 0;
      long kind = 0;
      long resource = -1;
      if (dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(size_node, 0, 7, size) ==
              DVC_PNL_CEH_RET_OK &&
          dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kind_node, 0, 7, kind) ==
              DVC_PNL_CEH_RET_OK)
        dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(size, resource);
      if (resource >= 0)
        view->dvc_pnl_ceh_update_view_text_res(kPartPaperSize, static_cast<int>(resource), 0);
      else
        get_specify_cassette_info_from_cmm(kManualTray);
      draw();
      return 1;
    }
    case kEventPaperSource: {
      long cassette = 0;
      if (event_int(event, kEventNodeCassette, cassette) != DVC_PNL_CEH_RET_OK) {
        // Nothing to tell: the paper stays unnamed.
        view->dvc_pnl_ceh_update_view_icon(kPartQuantityIcon, kNoIcon);
        view->dvc_pnl_ceh_update_view_text(kPartPaperSize, std::string(), 0);
      } else if (cassette < 0) {
        // The machine chooses the paper when the job starts.
        view->dvc_pnl_ceh_update_view_icon(kPartQuantityIcon, kNoIcon);
        view->dvc_pnl_ceh_update_view_text_res(kPartPaperSize, kMsgPaperAuto, 0);
      } else {
        current_cassette_ = cassette;
        get_specify_cassette_info_from_cmm(cassette);
      }
      draw();
      return 1;
    }
    default:
      return 0;
  }
}

// ---- flexible keys ----

void dvc_pnl_ceh_contents_hdl_d_07_01::get_flexible_key_info_from_cmm() {
  update_flexible_key();
  update_setting_flexiblekey_value_area();
}

void dvc_pnl_ceh_contents_hdl_d_07_01::update_flexible_key() {
  int box_kind = 0;
  if (contents_id_ == CID_01_02_03_N1) {
    if (read_box_kind(box_kind) != DVC_PNL_CEH_RET_OK)
      box_kind = 0;
    int change_set = 0;
    if (box_kind == 1 && (read_change_set(change_set) != DVC_PNL_CEH_RET_OK || change_set != 1)) {
      // A print of a box of kind 1 without a change set offers no settings.
      flexible_.clear();
      flexible_.show();
      return;
    }
  }
  flexible_.read(view_func_ == 6 ? 207 : 2);
  for (long item : {flexible_.left(), flexible_.right()}) {
    if (item != DVC_PNL_CEH_FLEXIBLE_NO_ITEM && !item_allowed(item, box_kind))
      flexible_.blank(item);
  }
  flexible_.show();
}

bool dvc_pnl_ceh_contents_hdl_d_07_01::item_allowed(long item, int box_kind) const {
  // A failed prohibit read bars nothing.
  auto allowed_values = [this](long of) {
    long value = -1;
    dvc_pnl_ceh_contents_hdl_get_prohibit_value(view_func_, of, value);
    return value;
  };
  if (item == DVC_PNL_CEH_ITEM_QUIET_MODE && dvc_pnl_ceh_contents_hdl_quiet_mode_is_permit() != 1)
    return false;
  if (item == DVC_PNL_CEH_ITEM_COMBINE && (allowed_values(item) & 2) == 0)
    return false;
  if (contents_id_ == CID_01_02_03_N1) {
    const bool print_from_special = box_kind == 2 || box_kind == 3;
    if (print_from_special &&
        (item == DVC_PNL_CEH_ITEM_PAPER || item == DVC_PNL_CEH_ITEM_DUPLEX ||
         item == DVC_PNL_CEH_ITEM_COLLATE || item == DVC_PNL_CEH_ITEM_ENCRYPTED_PDF))
      return false;
    if (box_kind != 8 && (item == DVC_PNL_CEH_ITEM_JPEG_PRINT || item == DVC_PNL_CEH_ITEM_XPS_FIT))
      return false;
    if (box_kind != 1 && box_kind != 2 && item == DVC_PNL_CEH_ITEM_AUTO_FILE_DELETE)
      return false;
    if (box_kind != 1 && box_kind != 8 && item == DVC_PNL_CEH_ITEM_ECOPRINT)
      return false;
    if (box_kind == 1 && item == DVC_PNL_CEH_ITEM_ENCRYPTED_PDF)
      return false;
  }
  if (view_func_ == 1) {
    for (const choice_bits& choice : kChoices) {
      if (choice.item != item)
        continue;
      const int left =
          std::popcount(static_cast<unsigned long>(allowed_values(item) & choice.bits));
      // No value left, or a single one of several: the key would offer no choice.
      if (left == 0 || (choice.count >= 2 && left == 1))
        return false;
    }
  }
  if (item == DVC_PNL_CEH_ITEM_MIXED_SIZES && dvc_pnl_ceh_contents_hdl_dp_is_exist() != 1)
    return false;
  if (item == DVC_PNL_CEH_ITEM_ORIGINAL_SIZE) {
    ENV_MODE_10_VAL mixed = 0;
    if (func_op_.get_current_mixed_sized_originals(mixed) == DVC_PNL_CEH_RET_OK && mixed == 1)
      return false;
  }
  return true;
}

void dvc_pnl_ceh_contents_hdl_d_07_01::update_setting_flexiblekey_value_area() {
  flexible_.show_values(func_op_);
}

}  // namespace orvanta
