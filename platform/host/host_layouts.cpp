// Host contents layouts: attribute words that tests and the runtime set per contents id.
#include <map>
#include <string>

#include "host_internal.h"
#include "orvanta/platform/dvc_pnl_cly_contents_layout.h"

namespace orvanta {
namespace host {
namespace {

std::map<int, unsigned long>& attribute_words() {
  static std::map<int, unsigned long> words;
  return words;
}

}  // namespace

void set_layout_attributes(int contents_id, unsigned long attributes) {
  attribute_words()[contents_id] = attributes;
}

void reset_layouts() {
  attribute_words().clear();
}

}  // namespace host

int dvc_pnl_cly_get_layout_name(int contents_id, std::string& name, unsigned long& attributes) {
  // Every contents has a layout; its name is the contents id until layouts are named.
  name = std::to_string(contents_id);
  auto it = host::attribute_words().find(contents_id);
  attributes = it == host::attribute_words().end() ? 0 : it->second;
  return 0;
}

}  // namespace orvanta
