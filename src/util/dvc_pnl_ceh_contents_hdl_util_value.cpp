// Value and value set operations with a key object, and the request/response node operations.
#include <utility>

#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

// The full key of a request or response node: `parent` followed by `node`. Callers see no
// result, so a failed step is only traced and the operation ends.
bool full_node_key(const dvc_pnl_cmm_key& parent, unsigned long node, dvc_pnl_cmm_key& key) {
  int ret = key.dvc_pnl_cmm_copy(parent);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_ERR("copy key error ret_code = %d", ret);
    return false;
  }
  ret = key.dvc_pnl_cmm_add_key(node);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_ERR("add key error ret_code = %d", ret);
    return false;
  }
  return true;
}

}  // namespace

// ---- copies ----

void dvc_pnl_ceh_contents_hdl_copy_value(dvc_pnl_cmm_value source, dvc_pnl_cmm_value& target) {
  int ret = target.dvc_pnl_cmm_copy(source);
  if (ret != DVC_PNL_CMM_OK)
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_copy");
}

void dvc_pnl_ceh_contents_hdl_copy_valueset(dvc_pnl_cmm_valueset source,
                                            dvc_pnl_cmm_valueset& target) {
  int ret = target.dvc_pnl_cmm_copy(source);
  if (ret != DVC_PNL_CMM_OK)
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_copy");
}

// ---- single values ----
// Reads go through a temporary so that a failed read leaves the caller's default in place.

void dvc_pnl_ceh_contents_hdl_get_int_from_value(dvc_pnl_cmm_value& value, long& out) {
  long tmp = 0;
  int ret = value.dvc_pnl_cmm_get_int(tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_get_int");
    return;
  }
  out = tmp;
}

void dvc_pnl_ceh_contents_hdl_set_int_to_value(dvc_pnl_cmm_value& value, long in) {
  int ret = value.dvc_pnl_cmm_set_int(in);
  if (ret != DVC_PNL_CMM_OK)
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_set_int");
}

void dvc_pnl_ceh_contents_hdl_get_string_from_value(dvc_pnl_cmm_value& value, const char*& out) {
  const char* tmp = nullptr;
  int ret = value.dvc_pnl_cmm_get_string(tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_get_string");
    return;
  }
  out = tmp;
}

void dvc_pnl_ceh_contents_hdl_set_string_to_value(dvc_pnl_cmm_value& value, const char* in) {
  if (in == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_string_to_value in is NULL");
    return;
  }
  int ret = value.dvc_pnl_cmm_set_string(in);
  if (ret != DVC_PNL_CMM_OK)
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_set_string");
}

void dvc_pnl_ceh_contents_hdl_get_valueset_from_value(dvc_pnl_cmm_value& value,
                                                      dvc_pnl_cmm_valueset& out) {
  dvc_pnl_cmm_valueset tmp;
  int ret = value.dvc_pnl_cmm_get_valueset(tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_get_valueset");
    return;
  }
  out = std::move(tmp);
}

void dvc_pnl_ceh_contents_hdl_set_valueset_to_value(dvc_pnl_cmm_value& value,
                                                    const dvc_pnl_cmm_valueset& in) {
  int ret = value.dvc_pnl_cmm_set_valueset(in);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_set_valueset");
  }
}

// ---- entries of a value set under a key object ----

void dvc_pnl_ceh_contents_hdl_get_int_from_valueset(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key key,
                                                    long& out) {
  long tmp = 0;
  int ret = set.dvc_pnl_cmm_get_int(key, tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_int");
    return;
  }
  out = tmp;
}

void dvc_pnl_ceh_contents_hdl_set_int_to_valueset(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key key,
                                                  long in) {
  int ret = set.dvc_pnl_cmm_set_int(key, in);
  if (ret != DVC_PNL_CMM_OK)
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_int");
}

void dvc_pnl_ceh_contents_hdl_get_string_from_valueset(dvc_pnl_cmm_valueset& set,
                                                       dvc_pnl_cmm_key key, const char*& out) {
  const char* tmp = nullptr;
  int ret = set.dvc_pnl_cmm_get_string(key, tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_string");
    return;
  }
  out = tmp;
}

void dvc_pnl_ceh_contents_hdl_set_string_to_valueset(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key key,
                                                     const char* in) {
  if (in == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_string_to_valueset in is NULL");
    return;
  }
  int ret = set.dvc_pnl_cmm_set_string(key, in);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_string");
  }
}

void dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(dvc_pnl_cmm_valueset& set,
                                                         dvc_pnl_cmm_key key,
                                                         dvc_pnl_cmm_valueset& out) {
  dvc_pnl_cmm_valueset tmp;
  int ret = set.dvc_pnl_cmm_get_valueset(key, tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_valueset");
    return;
  }
  out = std::move(tmp);
}

void dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(dvc_pnl_cmm_valueset& set,
                                                       dvc_pnl_cmm_key key,
                                                       const dvc_pnl_cmm_valueset& in) {
  int ret = set.dvc_pnl_cmm_set_valueset(key, in);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_valueset");
  }
}

void dvc_pnl_ceh_contents_hdl_set_binary_to_valueset(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key key,
                                                     dvc_pnl_cmm_binary in) {
  int ret = set.dvc_pnl_cmm_set_binary(key, in);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_binary");
  }
}

// ---- request nodes ----

void dvc_pnl_ceh_contents_hdl_set_int_to_request_node(dvc_pnl_cmm_valueset& request,
                                                      dvc_pnl_cmm_key parent, unsigned long node,
                                                      long value) {
  dvc_pnl_cmm_key key;
  if (!full_node_key(parent, node, key))
    return;
  int ret = request.dvc_pnl_cmm_set_int(key, value);
  if (ret != DVC_PNL_CMM_OK)
    CEH_ERR("set int to req valueset error ret_code = %d", ret);
}

void dvc_pnl_ceh_contents_hdl_set_string_to_request_node(dvc_pnl_cmm_valueset& request,
                                                         dvc_pnl_cmm_key parent, unsigned long node,
                                                         const char* value) {
  if (value == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_string_to_request_node value is NULL");
    return;
  }
  dvc_pnl_cmm_key key;
  if (!full_node_key(parent, node, key))
    return;
  int ret = request.dvc_pnl_cmm_set_string(key, value);
  if (ret != DVC_PNL_CMM_OK)
    CEH_ERR("set string to req valueset error ret_code = %d", ret);
}

void dvc_pnl_ceh_contents_hdl_set_binary_to_request_node(dvc_pnl_cmm_valueset& request,
                                                         dvc_pnl_cmm_key parent, unsigned long node,
                                                         dvc_pnl_cmm_binary value) {
  dvc_pnl_cmm_key key;
  if (!full_node_key(parent, node, key))
    return;
  int ret = request.dvc_pnl_cmm_set_binary(key, value);
  if (ret != DVC_PNL_CMM_OK)
    CEH_ERR("set binary to req valueset error ret_code = %d", ret);
}

void dvc_pnl_ceh_contents_hdl_set_valueset_to_request_node(dvc_pnl_cmm_valueset& request,
                                                           dvc_pnl_cmm_key parent,
                                                           unsigned long node,
                                                           const dvc_pnl_cmm_valueset& value) {
  dvc_pnl_cmm_key key;
  if (!full_node_key(parent, node, key))
    return;
  int ret = request.dvc_pnl_cmm_set_valueset(key, value);
  if (ret != DVC_PNL_CMM_OK)
    CEH_ERR("set valueset to req valueset error ret_code = %d", ret);
}

// ---- response nodes ----

void dvc_pnl_ceh_contents_hdl_get_int_from_response_node(dvc_pnl_cmm_valueset& response,
                                                         dvc_pnl_cmm_key parent, unsigned long node,
                                                         long& value) {
  dvc_pnl_cmm_key key;
  if (!full_node_key(parent, node, key))
    return;
  long tmp = 0;
  int ret = response.dvc_pnl_cmm_get_int(key, tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_ERR("get int from res valueset error ret_code = %d", ret);
    return;
  }
  value = tmp;
}

void dvc_pnl_ceh_contents_hdl_get_string_from_response_node(dvc_pnl_cmm_valueset& response,
                                                            dvc_pnl_cmm_key parent,
                                                            unsigned long node,
                                                            const char*& value) {
  dvc_pnl_cmm_key key;
  if (!full_node_key(parent, node, key))
    return;
  const char* tmp = nullptr;
  int ret = response.dvc_pnl_cmm_get_string(key, tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_ERR("get string from res valueset error ret_code = %d", ret);
    return;
  }
  value = tmp;
}

void dvc_pnl_ceh_contents_hdl_get_binary_from_response_node(dvc_pnl_cmm_valueset& response,
                                                            dvc_pnl_cmm_key parent,
                                                            unsigned long node,
                                                            dvc_pnl_cmm_binary& value) {
  dvc_pnl_cmm_key key;
  if (!full_node_key(parent, node, key))
    return;
  dvc_pnl_cmm_binary tmp;
  int ret = response.dvc_pnl_cmm_get_binary(key, tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_ERR("get binary from res valueset error ret_code = %d", ret);
    return;
  }
  value = std::move(tmp);
}

void dvc_pnl_ceh_contents_hdl_get_valueset_from_response_node(dvc_pnl_cmm_valueset& response,
                                                              dvc_pnl_cmm_key parent,
                                                              unsigned long node,
                                                              dvc_pnl_cmm_valueset& value) {
  dvc_pnl_cmm_key key;
  if (!full_node_key(parent, node, key))
    return;
  dvc_pnl_cmm_valueset tmp;
  int ret = response.dvc_pnl_cmm_get_valueset(key, tmp);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_ERR("get valueset from res valueset error ret_code = %d", ret);
    return;
  }
  value = std::move(tmp);
}

}  // namespace orvanta
