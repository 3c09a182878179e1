// Command mediator access: argument checks, traces and the group read-modify-write around the
// mediator's get, set and invoke, event subscriptions, and the user list read.
#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"

#include <climits>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "contents/dvc_pnl_ceh_event_proxy.h"
#include "orvanta/platform/dvc_pnl_cmm_command_mediator.h"
#include "orvanta/platform/dvu_pnl_evd_event_dispatcher.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

// Names of the mediator calls as failure traces give them.
constexpr const char* kGetValue =
    "dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance().dvc_pnl_cmm_get_value";
constexpr const char* kSetValue =
    "dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance().dvc_pnl_cmm_set_value";
constexpr const char* kInvoke = "dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_invoke";

dvc_pnl_cmm_command_mediator& mediator() {
  return dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance();
}

// A value layer or mediator call answered `ret`: 0 stays 0, anything else is traced and becomes 3.
int checked(int ret, const char* call) {
  if (ret == 0)
    return DVC_PNL_CEH_RET_OK;
  CEH_PLATFORM_FAIL(ret, call);
  return DVC_PNL_CEH_RET_PLATFORM;
}

// An element count as a descent position; counts beyond int are refused there as out of range.
int to_position(unsigned count) {
  return count > static_cast<unsigned>(INT_MAX) ? INT_MAX : static_cast<int>(count);
}

// The key of the first `size` elements; a failure is traced and passed on.
int build(dvc_pnl_cmm_key& key, const unsigned long* node_name, unsigned size) {
  int ret = dvc_pnl_ceh_contents_hdl_build_key(key, node_name, size);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_build_key ret_code = %d", ret);
  return ret;
}

// The checks every node access starts with. A negative start position is refused silently.
int check_arguments(const char* op, const unsigned long* node_name, int vs_start_pos,
                    unsigned nsize) {
  if (node_name == nullptr) {
    CEH_ERR("%s node_name is NULL", op);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (vs_start_pos < 0)
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  if (static_cast<unsigned>(vs_start_pos) > nsize) {
    CEH_ERR("%s vs_start_pos > nsize", op);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  return DVC_PNL_CEH_RET_OK;
}

// The entry trace of the typed reads and writes: key, start position and size.
void trace_entry(const char* op, const unsigned long* node_name, int vs_start_pos, unsigned nsize) {
  std::string key;
  dvc_pnl_ceh_contents_hdl_key2str(node_name, nsize, key);
  CEH_TRC("%s() key:%s, start_pos:%d, size:%d .", op, key.c_str(), vs_start_pos,
          static_cast<int>(nsize));
}

// Reads the entry under `key` out of `set` in the kind `type` names and puts it into `value`.
int read_entry(const dvc_pnl_cmm_valueset& set, const dvc_pnl_cmm_key& key,
               NAME_SPACE_NODE_TYPE type, dvc_pnl_cmm_value& value) {
  switch (type) {
    case NODE_TYPE_INTEGER: {
      long v = 0;
      int ret =
          checked(set.dvc_pnl_cmm_get_int(key, v), "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_int");
      if (ret != DVC_PNL_CEH_RET_OK)
        return ret;
      return checked(value.dvc_pnl_cmm_set_int(v), "dvc_pnl_cmm_value::dvc_pnl_cmm_set_int");
    }
    case NODE_TYPE_STRING: {
      const char* v = nullptr;
      int ret = checked(set.dvc_pnl_cmm_get_string(key, v),
                        "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_string");
      if (ret != DVC_PNL_CEH_RET_OK)
        return ret;
      // A value cannot carry a NULL text; it travels on as the empty string it reads as.
      return checked(value.dvc_pnl_cmm_set_string(v == nullptr ? "" : v),
                     "dvc_pnl_cmm_value::dvc_pnl_cmm_set_string");
    }
    case NODE_TYPE_BINARY: {
      dvc_pnl_cmm_binary v;
      int ret = checked(set.dvc_pnl_cmm_get_binary(key, v),
                        "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_binary");
      if (ret != DVC_PNL_CEH_RET_OK)
        return ret;
      return checked(value.dvc_pnl_cmm_set_binary(v), "dvc_pnl_cmm_value::dvc_pnl_cmm_set_binary");
    }
    case NODE_TYPE_VALUESET: {
      dvc_pnl_cmm_valueset v;
      int ret = checked(set.dvc_pnl_cmm_get_valueset(key, v),
                        "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_valueset");
      if (ret != DVC_PNL_CEH_RET_OK)
        return ret;
      return checked(value.dvc_pnl_cmm_set_valueset(v),
                     "dvc_pnl_cmm_value::dvc_pnl_cmm_set_valueset");
    }
    default:
      CEH_ERR("Unknown type");
      return DVC_PNL_CEH_RET_UNKNOWN_TYPE;
  }
}

// Runs the common read with kind `type`; the inner failure is traced here and passed on.
int read_node(const unsigned long* node_name, int vs_start_pos, unsigned nsize,
              NAME_SPACE_NODE_TYPE type, dvc_pnl_cmm_value& value) {
  int ret =
      dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm(node_name, vs_start_pos, nsize, value, type);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm ret_code = %d", ret);
  return ret;
}

// Runs the common write with kind `type`; the inner failure is traced here and passed on.
int write_node(const unsigned long* node_name, int vs_start_pos, unsigned nsize,
               NAME_SPACE_NODE_TYPE type, const dvc_pnl_cmm_value& value) {
  int ret =
      dvc_pnl_ceh_contents_hdl_set_data_to_pnl_cmm(node_name, vs_start_pos, nsize, value, type);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_data_to_pnl_cmm ret_code = %d", ret);
  return ret;
}

// The checks of the by-index pair; `done` is set when there is nothing to do (a start position
// other than 0), which is a success.
int check_index_arguments(const unsigned long* node_name, int vs_start_pos, unsigned nsize,
                          bool& done) {
  done = false;
  if (node_name == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm node_name_ is NULL");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (vs_start_pos < 0) {
    CEH_ERR("vs_start_pos_ : %d", vs_start_pos);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (static_cast<unsigned>(vs_start_pos) > nsize) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm vs_start_pos_ > nsize_");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  // Position-keyed tables are always addressed as a whole node.
  done = vs_start_pos != 0;
  return DVC_PNL_CEH_RET_OK;
}

// Reads the table at the key of all `nsize` elements: `key` receives that key, `table` its set.
int read_table(const unsigned long* node_name, unsigned nsize, dvc_pnl_cmm_key& key,
               dvc_pnl_cmm_valueset& table) {
  int ret = build(key, node_name, nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  dvc_pnl_cmm_value value;
  ret = checked(mediator().dvc_pnl_cmm_get_value(key, value, DVC_PNL_CEH_CMM_MODE), kGetValue);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  return checked(value.dvc_pnl_cmm_get_valueset(table),
                 "dvc_pnl_cmm_value::dvc_pnl_cmm_get_valueset");
}

// The dispatcher and the event proxy, for a subscription change; NULL when either is missing.
int subscription_parties(dvu_pnl_evd_event_dispatcher*& dispatcher,
                         dvc_pnl_ceh_event_proxy*& proxy) {
  dispatcher = dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance();
  if (dispatcher == nullptr) {
    CEH_ERR("get instance of dvu_pnl_evd_event_dispatcher failed is NULL");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  proxy = dvc_pnl_ceh_event_proxy::dvc_pnl_ceh_get_instance();
  if (proxy == nullptr) {
    CEH_ERR("get instance of dvc_pnl_ceh_event_proxy failed is NULL");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  return DVC_PNL_CEH_RET_OK;
}

}  // namespace

// ---- invoke ----

int dvc_pnl_ceh_contents_hdl_invoke_cmm(dvc_pnl_cmm_key command, dvc_pnl_cmm_valueset request,
                                        dvc_pnl_cmm_valueset& response) {
  std::string key;
  dvc_pnl_ceh_contents_hdl_key2str(command.nodes().data(), static_cast<unsigned>(command.size()),
                                   key);
  CEH_TRC("dvc_pnl_ceh_contents_hdl_invoke_cmm() key:%s .", key.c_str());
  // Blocks until the machine has answered.
  return checked(mediator().dvc_pnl_cmm_invoke(command, request, response), kInvoke);
}

// ---- reads ----

int dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                   unsigned nsize, dvc_pnl_cmm_value& value,
                                                   const NAME_SPACE_NODE_TYPE& type) {
  int ret = check_arguments("dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm", node_name,
                            vs_start_pos, nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;

  // Start position n asks the mediator for the group at the first n elements.
  dvc_pnl_cmm_key key;
  ret = build(key, node_name, vs_start_pos == 0 ? nsize : static_cast<unsigned>(vs_start_pos));
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  ret = checked(mediator().dvc_pnl_cmm_get_value(key, value, DVC_PNL_CEH_CMM_MODE), kGetValue);
  if (ret != DVC_PNL_CEH_RET_OK || vs_start_pos == 0)
    return ret;

  // Pick the entry out of the group: descend to the set one level above it, then read it.
  dvc_pnl_cmm_valueset group;
  ret =
      checked(value.dvc_pnl_cmm_get_valueset(group), "dvc_pnl_cmm_value::dvc_pnl_cmm_get_valueset");
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  dvc_pnl_cmm_valueset child;
  ret = dvc_pnl_ceh_contents_hdl_get_child_valueset(node_name, vs_start_pos, to_position(nsize - 1),
                                                    group, child);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_child_valueset ret_code = %d", ret);
    return ret;
  }
  dvc_pnl_ceh_contents_hdl_clear_key(key);
  ret = build(key, node_name, nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  return read_entry(child, key, type, value);
}

int dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                  unsigned nsize, long& value) {
  const char* op = "dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm";
  int ret = check_arguments(op, node_name, vs_start_pos, nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  trace_entry(op, node_name, vs_start_pos, nsize);
  value = 0;
  dvc_pnl_cmm_value read;
  ret = read_node(node_name, vs_start_pos, nsize, NODE_TYPE_INTEGER, read);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  long v = 0;
  ret = checked(read.dvc_pnl_cmm_get_int(v), "dvc_pnl_cmm_value::dvc_pnl_cmm_get_int");
  if (ret == DVC_PNL_CEH_RET_OK)
    value = v;
  return ret;
}

int dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(const unsigned long* node_name,
                                                     int vs_start_pos, unsigned nsize,
                                                     std::string& value) {
  const char* op = "dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm";
  int ret = check_arguments(op, node_name, vs_start_pos, nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  trace_entry(op, node_name, vs_start_pos, nsize);
  dvc_pnl_cmm_value read;
  ret = read_node(node_name, vs_start_pos, nsize, NODE_TYPE_STRING, read);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  const char* s = nullptr;
  ret = checked(read.dvc_pnl_cmm_get_string(s), "dvc_pnl_cmm_value::dvc_pnl_cmm_get_string");
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  // The text belongs to the local value: copy it before that goes.
  value = s == nullptr ? "" : s;
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm(const unsigned long* node_name,
                                                       int vs_start_pos, unsigned nsize,
                                                       dvc_pnl_cmm_valueset& value) {
  const char* op = "dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm";
  int ret = check_arguments(op, node_name, vs_start_pos, nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  trace_entry(op, node_name, vs_start_pos, nsize);
  dvc_pnl_cmm_value read;
  ret = read_node(node_name, vs_start_pos, nsize, NODE_TYPE_VALUESET, read);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  return checked(read.dvc_pnl_cmm_get_valueset(value),
                 "dvc_pnl_cmm_value::dvc_pnl_cmm_get_valueset");
}

// ---- writes ----

int dvc_pnl_ceh_contents_hdl_set_data_to_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                 unsigned nsize, const dvc_pnl_cmm_value& value,
                                                 const NAME_SPACE_NODE_TYPE& type) {
  int ret = check_arguments("dvc_pnl_ceh_contents_hdl_set_data_to_pnl_cmm", node_name, vs_start_pos,
                            nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;

  dvc_pnl_cmm_key key;
  if (vs_start_pos == 0) {
    ret = build(key, node_name, nsize);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
    return checked(mediator().dvc_pnl_cmm_set_value(key, value, DVC_PNL_CEH_CMM_MODE), kSetValue);
  }

  // The mediator serves the entry only as part of its group: read the whole group, replace the
  // entry inside it and send the whole group back. Nothing is sent when any step before fails.
  ret = build(key, node_name, static_cast<unsigned>(vs_start_pos));
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  dvc_pnl_cmm_value group;
  ret = checked(mediator().dvc_pnl_cmm_get_value(key, group, DVC_PNL_CEH_CMM_MODE), kGetValue);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  dvc_pnl_cmm_valueset set;
  ret = checked(group.dvc_pnl_cmm_get_valueset(set), "dvc_pnl_cmm_value::dvc_pnl_cmm_get_valueset");
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  ret = dvc_pnl_ceh_contents_hdl_set_child_valueset(node_name, vs_start_pos, to_position(nsize),
                                                    set, value, type);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_child_valueset ret_code = %d", ret);
    return ret;
  }
  ret = checked(group.dvc_pnl_cmm_set_valueset(set), "dvc_pnl_cmm_value::dvc_pnl_cmm_set_valueset");
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  return checked(mediator().dvc_pnl_cmm_set_value(key, group, DVC_PNL_CEH_CMM_MODE), kSetValue);
}

namespace {

// The typed writes: argument checks, a NULL `value` refused, the entry trace, the value made by
// `make` (traced as `maker` on failure) and the write of the node or of the entry in its group.
template <typename Make>
int write_typed(const char* op, const unsigned long* node_name, int vs_start_pos, unsigned nsize,
                const void* value, const NAME_SPACE_NODE_TYPE& type, const char* maker, Make make) {
  int ret = check_arguments(op, node_name, vs_start_pos, nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  if (value == nullptr) {
    CEH_ERR("%s value is NULL", op);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  trace_entry(op, node_name, vs_start_pos, nsize);
  dvc_pnl_cmm_value v;
  ret = checked(make(v), maker);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  return write_node(node_name, vs_start_pos, nsize, type, v);
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                unsigned nsize, const long& value) {
  return write_typed("dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm", node_name, vs_start_pos, nsize,
                     &value, NODE_TYPE_INTEGER, "dvc_pnl_cmm_value::dvc_pnl_cmm_set_int",
                     [&value](dvc_pnl_cmm_value& v) { return v.dvc_pnl_cmm_set_int(value); });
}

int dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                   unsigned nsize, const char* value) {
  return write_typed("dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm", node_name, vs_start_pos,
                     nsize, value, NODE_TYPE_STRING, "dvc_pnl_cmm_value::dvc_pnl_cmm_set_string",
                     [value](dvc_pnl_cmm_value& v) { return v.dvc_pnl_cmm_set_string(value); });
}

int dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm(const unsigned long* node_name,
                                                     int vs_start_pos, unsigned nsize,
                                                     const dvc_pnl_cmm_valueset& value) {
  return write_typed("dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm", node_name, vs_start_pos,
                     nsize, &value, NODE_TYPE_VALUESET,
                     "dvc_pnl_cmm_value::dvc_pnl_cmm_set_valueset",
                     [&value](dvc_pnl_cmm_value& v) { return v.dvc_pnl_cmm_set_valueset(value); });
}

// ---- position-keyed tables ----

int dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(const unsigned long* node_name,
                                                                int vs_start_pos, unsigned nsize,
                                                                unsigned index,
                                                                dvc_pnl_cmm_valueset& value) {
  bool done = false;
  int ret = check_index_arguments(node_name, vs_start_pos, nsize, done);
  if (ret != DVC_PNL_CEH_RET_OK || done)
    return ret;
  dvc_pnl_cmm_key key;
  dvc_pnl_cmm_valueset table;
  ret = read_table(node_name, nsize, key, table);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  const unsigned long row = index;
  ret = checked(key.dvc_pnl_cmm_add_key(row), "dvc_pnl_cmm_key::dvc_pnl_cmm_add_key");
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  dvc_pnl_cmm_valueset entry;
  ret = checked(table.dvc_pnl_cmm_get_valueset(key, entry),
                "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_valueset");
  if (ret == DVC_PNL_CEH_RET_OK)
    value = std::move(entry);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm_by_index(const unsigned long* node_name,
                                                              int vs_start_pos, unsigned nsize,
                                                              unsigned index,
                                                              const dvc_pnl_cmm_valueset& value) {
  bool done = false;
  int ret = check_index_arguments(node_name, vs_start_pos, nsize, done);
  if (ret != DVC_PNL_CEH_RET_OK || done)
    return ret;
  dvc_pnl_cmm_key key;
  dvc_pnl_cmm_valueset table;
  ret = read_table(node_name, nsize, key, table);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;

  // The entry's key: the table's key plus the index, made in one step.
  dvc_pnl_cmm_key entry_key;
  const unsigned long row = index;
  ret = checked(entry_key.dvc_pnl_cmm_clear(), "dvc_pnl_cmm_key::dvc_pnl_cmm_clear");
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = checked(entry_key.dvc_pnl_cmm_copy(key), "dvc_pnl_cmm_key::dvc_pnl_cmm_copy");
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = checked(entry_key.dvc_pnl_cmm_add_key(row), "dvc_pnl_cmm_key::dvc_pnl_cmm_add_key");
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  // A new index adds the entry; an existing one is replaced, never merged.
  if (table.dvc_pnl_cmm_is_contain(entry_key) != 0) {
    ret = checked(table.dvc_pnl_cmm_remove_value(entry_key),
                  "dvc_pnl_cmm_valueset::dvc_pnl_cmm_remove_value");
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
  }
  ret = checked(table.dvc_pnl_cmm_set_valueset(entry_key, value),
                "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_valueset");
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  dvc_pnl_cmm_value whole;
  ret =
      checked(whole.dvc_pnl_cmm_set_valueset(table), "dvc_pnl_cmm_value::dvc_pnl_cmm_set_valueset");
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  return checked(mediator().dvc_pnl_cmm_set_value(key, whole, DVC_PNL_CEH_CMM_MODE), kSetValue);
}

// ---- event subscriptions ----

int dvc_pnl_ceh_contents_hdl_register_event(unsigned long event_id) {
  dvu_pnl_evd_event_dispatcher* dispatcher = nullptr;
  dvc_pnl_ceh_event_proxy* proxy = nullptr;
  int ret = subscription_parties(dispatcher, proxy);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  const dvc_pnl_evh_event_id id(static_cast<int>(event_id));
  return checked(dispatcher->dvu_pnl_evd_add_handler(id, proxy),
                 "dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_add_handler");
}

int dvc_pnl_ceh_contents_hdl_remove_event(unsigned long event_id) {
  dvu_pnl_evd_event_dispatcher* dispatcher = nullptr;
  dvc_pnl_ceh_event_proxy* proxy = nullptr;
  int ret = subscription_parties(dispatcher, proxy);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  const dvc_pnl_evh_event_id id(static_cast<int>(event_id));
  return checked(dispatcher->dvu_pnl_evd_remove_handler(id, proxy),
                 "dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_remove_handler");
}

// ---- the user list ----

namespace {

constexpr unsigned long END = DVC_PNL_CEH_KEY_END;

// Field nodes of a user row.
constexpr unsigned long kNodeUserId = 1365;
constexpr unsigned long kNodeUserName = 1037;
constexpr unsigned long kNodeUserRole = 1561;

// Path reads of the list walk; each failure is traced with the call and passed on.
int read_int(const unsigned long* path, unsigned nsize, const dvc_pnl_cmm_valueset& set,
             long& out) {
  int ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(path, 0, nsize, set, out);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_valueset ret_code = %d", ret);
  return ret;
}

int read_set(const unsigned long* path, unsigned nsize, const dvc_pnl_cmm_valueset& set,
             dvc_pnl_cmm_valueset& out) {
  int ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(path, 0, nsize, set, out);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset ret_code = %d", ret);
  return ret;
}

// Copies the text at most `size - 1` bytes long into a zeroed buffer, always terminated.
int read_text(const unsigned long* path, unsigned nsize, const dvc_pnl_cmm_valueset& set,
              char* buffer, std::size_t size) {
  const char* text = nullptr;
  int ret = dvc_pnl_ceh_contents_hdl_get_string_from_valueset(path, 0, nsize, set, text);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_string_from_valueset ret_code = %d", ret);
    return ret;
  }
  std::memset(buffer, 0, size);
  const std::string_view kept = std::string_view(text).substr(0, size - 1);
  std::memcpy(buffer, kept.data(), kept.size());
  return DVC_PNL_CEH_RET_OK;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_get_user_list_from_cmm(
    const DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_REQUEST& request,
    DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_RESPONSE& response) {
  unsigned long command[] = {0, DVC_PNL_CEH_NODE_LIST_REQUEST, DVC_PNL_CEH_NODE_USER_LIST, END};
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_set_key(key, command);

  dvc_pnl_cmm_valueset req;
  dvc_pnl_cmm_valueset res;
  const std::pair<unsigned long, long> words[] = {
      {DVC_PNL_CEH_NODE_REQUEST_KIND, request.request_kind},
      {DVC_PNL_CEH_NODE_LIST_SORT_KEY, request.sort_key},
      {DVC_PNL_CEH_NODE_LIST_COUNT, request.count},
      {DVC_PNL_CEH_NODE_LIST_METHOD, request.method},
      {DVC_PNL_CEH_NODE_LIST_START, request.start},
      {2054, request.filter_2054},
      {3620, request.filter_3620},
  };
  for (const auto& [node, word] : words)
    dvc_pnl_ceh_contents_hdl_set_int_to_request_node(req, key, node, word);

  int ret = dvc_pnl_ceh_contents_hdl_invoke_cmm(key, req, res);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_invoke_cmm ret_code = %d", ret);
    return ret;
  }

  // One path array for the whole walk: element 3 names the head field or the body, element 4
  // the row, element 5 the row's field.
  unsigned long path[] = {0,  DVC_PNL_CEH_NODE_LIST_REQUEST, DVC_PNL_CEH_NODE_USER_LIST, END, END,
                          END};
  // The head is read whatever RESULT holds; the caller decides what it means.
  const std::pair<unsigned long, long*> head[] = {
      {DVC_PNL_CEH_NODE_RESULT, &response.result},
      {DVC_PNL_CEH_NODE_LIST_TOTAL_SIZE, &response.list_total_size},
      {DVC_PNL_CEH_NODE_LIST_HEAD_1337, &response.value_1337},
      {DVC_PNL_CEH_NODE_LIST_HEAD_1524, &response.value_1524},
  };
  for (const auto& [node, field] : head) {
    path[3] = node;
    ret = read_int(path, 4, res, *field);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
  }

  response.list_status.clear();
  path[3] = DVC_PNL_CEH_NODE_LIST_BODY;
  dvc_pnl_cmm_valueset body;
  ret = read_set(path, 4, res, body);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  // Every row is copied into its plain record at once, before the response goes.
  const unsigned long rows = body.dvc_pnl_cmm_size();
  for (unsigned long i = 0; i < rows; ++i) {
    path[4] = i;
    dvc_pnl_cmm_valueset element;
    ret = read_set(path, 5, body, element);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
    DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_LIST_STATUS row{};
    path[5] = kNodeUserId;
    ret = read_int(path, 6, element, row.id);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
    path[5] = kNodeUserName;
    ret = read_text(path, 6, element, row.name, sizeof row.name);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
    path[5] = kNodeUserRole;
    ret = read_int(path, 6, element, row.role);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
    response.list_status.push_back(row);
  }
  return DVC_PNL_CEH_RET_OK;
}

}  // namespace orvanta
