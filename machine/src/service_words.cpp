// Request and answer words of the machine's services: what lies right below the command key.
#include "machine_internal.h"

namespace orvanta::machine::detail {
namespace {

constexpr unsigned long kResultNode = 1484;

// The key of `node` right below the command.
int key_below(const service_call& call, unsigned long node, dvc_pnl_cmm_key& key) {
  path p = call.command.nodes();
  p.push_back(node);
  return make_key(p, key);
}

}  // namespace

bool request_int(const service_call& call, unsigned long node, long& out) {
  dvc_pnl_cmm_key key;
  return key_below(call, node, key) == 0 && call.request.dvc_pnl_cmm_get_int(key, out) == 0;
}

int answer_value(service_call& call, unsigned long node, const dvc_pnl_cmm_value& value) {
  dvc_pnl_cmm_key key;
  int ret = key_below(call, node, key);
  if (ret == 0)
    ret = call.response.dvc_pnl_cmm_set_value(key, value);
  return ret;
}

int answer_result(service_call& call, long result) {
  dvc_pnl_cmm_value value;
  int ret = value.dvc_pnl_cmm_set_int(result);
  if (ret == 0)
    ret = answer_value(call, kResultNode, value);
  return ret;
}

}  // namespace orvanta::machine::detail
