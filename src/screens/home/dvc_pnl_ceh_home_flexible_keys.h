// The two flexible keys of the home screens: the setting item each key holds, its label, and the
// current value of the setting shown above the key.
#pragma once

#include <string>

#include "contents/dvc_pnl_ceh_contents_hdl_base.h"
#include "services/dvc_pnl_ceh_contents_hdl_func.h"

namespace orvanta {

// An empty key holds no item.
inline constexpr long DVC_PNL_CEH_FLEXIBLE_NO_ITEM = -1;
// The kind of key description that names a setting item.
inline constexpr long DVC_PNL_CEH_FLEXIBLE_KIND_ITEM = 2;
// Parts of the value texts above the left and the right key.
inline constexpr int DVC_PNL_CEH_PART_LEFT_VALUE = 103;
inline constexpr int DVC_PNL_CEH_PART_RIGHT_VALUE = 107;

// Setting items the home screens name (DVC_PNL_CMN_ENUM_SETTING_ITEM values).
inline constexpr long DVC_PNL_CEH_ITEM_FILE_NAME = 1;
inline constexpr long DVC_PNL_CEH_ITEM_ZOOM = 3;
inline constexpr long DVC_PNL_CEH_ITEM_ORIGINAL_SIZE = 4;
inline constexpr long DVC_PNL_CEH_ITEM_MIXED_SIZES = 6;
inline constexpr long DVC_PNL_CEH_ITEM_DENSITY = 8;
inline constexpr long DVC_PNL_CEH_ITEM_CONTINUOUS_SCAN = 10;
inline constexpr long DVC_PNL_CEH_ITEM_ECOPRINT = 13;
inline constexpr long DVC_PNL_CEH_ITEM_PAPER = 14;
inline constexpr long DVC_PNL_CEH_ITEM_COMBINE = 16;
inline constexpr long DVC_PNL_CEH_ITEM_DUPLEX = 17;
inline constexpr long DVC_PNL_CEH_ITEM_COLLATE = 35;
inline constexpr long DVC_PNL_CEH_ITEM_AUTO_FILE_DELETE = 55;
inline constexpr long DVC_PNL_CEH_ITEM_ENCRYPTED_PDF = 60;
inline constexpr long DVC_PNL_CEH_ITEM_JPEG_PRINT = 73;
inline constexpr long DVC_PNL_CEH_ITEM_XPS_FIT = 74;
inline constexpr long DVC_PNL_CEH_ITEM_BLANK_SKIP = 107;
inline constexpr long DVC_PNL_CEH_ITEM_QUIET_MODE = 111;

// The text of one setting value: a message number, or a message with a number composed in.
struct dvc_pnl_ceh_setting_text {
  int resource = -1;  // -1: no text
  bool composed = false;
  int number = 0;  // composed into the message when `composed`
};

// Held by a home screen. The screen decides which items it blanks and what a press opens.
class dvc_pnl_ceh_home_flexible_keys {
 public:
  explicit dvc_pnl_ceh_home_flexible_keys(dvc_pnl_ceh_contents_hdl_base& screen)
      : screen_(screen) {}

  // Reads the two key descriptions under 0.228.`tree` by index 0 and 1. A description that cannot
  // be read, or that names no setting item, leaves its key empty. Answers the first failed read,
  // or 0.
  int read(unsigned long tree);
  // Both keys empty.
  void clear();
  // Blanks whichever key holds `item`.
  void blank(long item);

  long left() const { return left_item_; }
  long right() const { return right_item_; }
  void set(long left, long right) {
    left_item_ = left;
    right_item_ = right;
  }

  // Shows the keys with the labels of their items.
  void show() const;
  // Writes the current value of each key's setting above it; an empty key's text is blank.
  void show_values(const dvc_pnl_ceh_contents_hdl_func& func) const;

  // The label of a setting item, -1 for an item without one.
  static int translate_item_enum_value_to_resource_id(long item);
  // The text of the current value of `item`, read through `func`. -1 as resource when the value
  // cannot be read or the item has no text.
  static dvc_pnl_ceh_setting_text load_setting_res(long item,
                                                   const dvc_pnl_ceh_contents_hdl_func& func);

 private:
  void show_value(int part, long item, const dvc_pnl_ceh_contents_hdl_func& func) const;

  dvc_pnl_ceh_contents_hdl_base& screen_;
  long left_item_ = DVC_PNL_CEH_FLEXIBLE_NO_ITEM;
  long right_item_ = DVC_PNL_CEH_FLEXIBLE_NO_ITEM;
};

}  // namespace orvanta
