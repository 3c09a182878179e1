// Language attributes of the panel: what the language in use asks of some screens.
#pragma once

namespace orvanta {

class dvc_pnl_rmg_lang_attribute_manager {
 public:
  // The manager, or nullptr while the platform has none to offer.
  static dvc_pnl_rmg_lang_attribute_manager* dvc_pnl_rmg_get_instance();

  virtual ~dvc_pnl_rmg_lang_attribute_manager() = default;
  // 1 when names are also entered with their reading (a phonetic spelling), else 0.
  virtual int dvc_pnl_rmg_is_furigana() = 0;
  // 1 when the report menu map applies to the language in use, else 0.
  virtual int dvc_pnl_rmg_is_report_menu_map() = 0;
};

}  // namespace orvanta
