// One command of the program and one touch key stores: key, request, invoke and answer reads.
#include "services/dvc_pnl_ceh_contents_hdl_store_command.h"

#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_store_command::dvc_pnl_ceh_contents_hdl_store_command(
    const std::vector<unsigned long>& nodes) {
  dvc_pnl_ceh_contents_hdl_build_key(key_, nodes.data(), static_cast<unsigned>(nodes.size()));
  add_int(DVC_PNL_CEH_NODE_REQUEST_KIND, 1);
}

void dvc_pnl_ceh_contents_hdl_store_command::add_int(unsigned long node, long value) {
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request_, key_, node, value);
}

void dvc_pnl_ceh_contents_hdl_store_command::add_string(unsigned long node, const char* value) {
  dvc_pnl_ceh_contents_hdl_set_string_to_request_node(request_, key_, node, value);
}

int dvc_pnl_ceh_contents_hdl_store_command::invoke() {
  const int ret = dvc_pnl_ceh_contents_hdl_invoke_cmm(key_, request_, response_);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("invoke failed : ret_code = %d", ret);
  return ret;
}

void dvc_pnl_ceh_contents_hdl_store_command::read_int(unsigned long node, long& value) {
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response_, key_, node, value);
}

long dvc_pnl_ceh_contents_hdl_store_command::result() {
  long result = -1;
  read_int(DVC_PNL_CEH_NODE_RESULT, result);
  return result;
}

}  // namespace orvanta
