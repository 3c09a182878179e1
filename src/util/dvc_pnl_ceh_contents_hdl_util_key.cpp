// Key operations: building command node keys from arrays and writing them for trace lines.
#include <string>

#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

int dvc_pnl_ceh_contents_hdl_build_key(dvc_pnl_cmm_key& key, const unsigned long* node_name,
                                       unsigned size) {
  if (node_name == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_build_key node_name is NULL");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  // Appends to what the key holds already: callers extend a parent key this way.
  for (unsigned i = 0; i < size; ++i) {
    int ret = key.dvc_pnl_cmm_add_key(node_name[i]);
    if (ret != DVC_PNL_CMM_OK) {
      CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_key::dvc_pnl_cmm_add_key");
      return DVC_PNL_CEH_RET_PLATFORM;
    }
  }
  return DVC_PNL_CEH_RET_OK;
}

void dvc_pnl_ceh_contents_hdl_set_key(dvc_pnl_cmm_key& key, unsigned long* node_name) {
  if (node_name == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_key node_name is NULL");
    return;
  }
  for (const unsigned long* p = node_name; !dvc_pnl_ceh_is_key_end(*p); ++p) {
    int ret = key.dvc_pnl_cmm_add_key(*p);
    if (ret != DVC_PNL_CMM_OK) {
      CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_key::dvc_pnl_cmm_add_key");
      return;
    }
  }
}

void dvc_pnl_ceh_contents_hdl_add_key(dvc_pnl_cmm_key& key, unsigned long node) {
  int ret = key.dvc_pnl_cmm_add_key(node);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_key::dvc_pnl_cmm_add_key");
  }
}

void dvc_pnl_ceh_contents_hdl_clear_key(dvc_pnl_cmm_key& key) {
  int ret = key.dvc_pnl_cmm_clear();
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_key::dvc_pnl_cmm_clear");
  }
}

void dvc_pnl_ceh_contents_hdl_copy_key(dvc_pnl_cmm_key source, dvc_pnl_cmm_key& target) {
  int ret = target.dvc_pnl_cmm_copy(source);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_key::dvc_pnl_cmm_copy");
  }
}

void dvc_pnl_ceh_contents_hdl_key2str(const unsigned long* node_name, unsigned size,
                                      std::string& out) {
  if (node_name == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_key2str node_name is NULL");
    return;
  }
  // Appends, so a caller can put a label in front of the path.
  out += '(';
  for (unsigned i = 0; i < size; ++i) {
    if (i != 0)
      out += '.';
    out += std::to_string(node_name[i]);
  }
  out += ')';
}

}  // namespace orvanta
