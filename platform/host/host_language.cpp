// Host language attribute manager: answers that tests and the runtime set.
#include "host_internal.h"
#include "orvanta/platform/dvc_pnl_rmg_lang_attribute_manager.h"

namespace orvanta {
namespace host {
namespace {

class host_lang_attribute_manager final : public dvc_pnl_rmg_lang_attribute_manager {
 public:
  int dvc_pnl_rmg_is_furigana() override { return attributes.furigana; }
  int dvc_pnl_rmg_is_report_menu_map() override { return attributes.report_menu_map; }

  language_attributes attributes;
  bool available = true;
};

host_lang_attribute_manager& manager() {
  static host_lang_attribute_manager m;
  return m;
}

}  // namespace

void set_language_attributes(const language_attributes& attributes) {
  manager().attributes = attributes;
}

void set_language_manager_available(bool available) {
  manager().available = available;
}

void reset_language() {
  manager().attributes = language_attributes{};
  manager().available = true;
}

}  // namespace host

dvc_pnl_rmg_lang_attribute_manager* dvc_pnl_rmg_lang_attribute_manager::dvc_pnl_rmg_get_instance() {
  host::host_lang_attribute_manager& m = host::manager();
  return m.available ? &m : nullptr;
}

}  // namespace orvanta
