// Host resource table: the texts of resource ids, set by the runtime and by tests.
#include <map>
#include <mutex>
#include <string>

#include "host_internal.h"
#include "orvanta/platform/dvu_pnl_gcp_resource.h"

namespace orvanta {
namespace host {
namespace {

struct resource_table {
  std::mutex lock;
  std::map<int, std::string> texts;
};

resource_table& table() {
  static resource_table t;
  return t;
}

}  // namespace

void set_text_resource(int rid, const std::string& text) {
  std::lock_guard<std::mutex> guard(table().lock);
  table().texts[rid] = text;
}

void clear_text_resources() {
  std::lock_guard<std::mutex> guard(table().lock);
  table().texts.clear();
}

}  // namespace host

std::string dvu_pnl_gcp_resource::get_text_resource(int rid) {
  std::lock_guard<std::mutex> guard(host::table().lock);
  auto it = host::table().texts.find(rid);
  return it == host::table().texts.end() ? std::to_string(rid) : it->second;
}

}  // namespace orvanta
