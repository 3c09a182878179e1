// Path forms: reads and writes of entries nested in value sets, addressed by a node array.
#include <array>
#include <climits>
#include <cstddef>
#include <string>
#include <utility>

#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

// Highest position the descent accepts: a nested path has at most 16 levels.
constexpr int kMaxChildPosition = 15;

// An element count as a position; counts beyond int are refused later as out of range.
int to_position(unsigned count) {
  return count > static_cast<unsigned>(INT_MAX) ? INT_MAX : static_cast<int>(count);
}

// A string read out of a nested set lives in a local copy of that set, which ends with the call.
// The text is kept here instead, so the pointer handed out stays valid until this many further
// nested string reads on the same thread. Callers copy the text at once, as with any string read.
constexpr std::size_t kKeptStrings = 16;

const char* keep_string(const char* text) {
  thread_local std::array<std::string, kKeptStrings> slots;
  thread_local std::size_t next = 0;
  std::string& slot = slots[next];
  next = (next + 1) % kKeptStrings;
  slot.assign(text);
  return slot.c_str();
}

// ---- the four kinds of path read ----

struct int_read {
  using type = long;
  static constexpr const char* call = "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_int";
  static void clear(long& v) { v = 0; }
  static int read(const dvc_pnl_cmm_valueset& s, const dvc_pnl_cmm_key& k, long& v) {
    return s.dvc_pnl_cmm_get_int(k, v);
  }
  static int finish(long& tmp, bool /*from_copy*/, long& out) {
    out = tmp;
    return DVC_PNL_CEH_RET_OK;
  }
};

struct string_read {
  using type = const char*;
  static constexpr const char* call = "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_string";
  static void clear(const char*& v) { v = nullptr; }
  static int read(const dvc_pnl_cmm_valueset& s, const dvc_pnl_cmm_key& k, const char*& v) {
    return s.dvc_pnl_cmm_get_string(k, v);
  }
  static int finish(const char*& tmp, bool from_copy, const char*& out) {
    if (tmp == nullptr) {
      CEH_ERR("get_string_from_valueset value is NULL");
      return DVC_PNL_CEH_RET_BAD_ARGUMENT;
    }
    out = from_copy ? keep_string(tmp) : tmp;
    return DVC_PNL_CEH_RET_OK;
  }
};

struct binary_read {
  using type = dvc_pnl_cmm_binary;
  static constexpr const char* call = "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_binary";
  static void clear(dvc_pnl_cmm_binary& v) { v = dvc_pnl_cmm_binary(); }
  static int read(const dvc_pnl_cmm_valueset& s, const dvc_pnl_cmm_key& k, dvc_pnl_cmm_binary& v) {
    return s.dvc_pnl_cmm_get_binary(k, v);
  }
  static int finish(dvc_pnl_cmm_binary& tmp, bool /*from_copy*/, dvc_pnl_cmm_binary& out) {
    out = std::move(tmp);
    return DVC_PNL_CEH_RET_OK;
  }
};

struct valueset_read {
  using type = dvc_pnl_cmm_valueset;
  static constexpr const char* call = "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_valueset";
  static void clear(dvc_pnl_cmm_valueset& v) { v.dvc_pnl_cmm_clear(); }
  static int read(const dvc_pnl_cmm_valueset& s, const dvc_pnl_cmm_key& k,
                  dvc_pnl_cmm_valueset& v) {
    return s.dvc_pnl_cmm_get_valueset(k, v);
  }
  static int finish(dvc_pnl_cmm_valueset& tmp, bool /*from_copy*/, dvc_pnl_cmm_valueset& out) {
    out = std::move(tmp);
    return DVC_PNL_CEH_RET_OK;
  }
};

// Step 1 of every path read: the node array and the start position.
int check_read_arguments(const char* op, const unsigned long* node_name, int vs_start_pos,
                         unsigned nsize) {
  if (node_name == nullptr) {
    CEH_ERR("%s node_name is NULL", op);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (vs_start_pos < 0 || static_cast<unsigned>(vs_start_pos) > nsize) {
    CEH_ERR("%s vs_start_pos = %d nsize = %u is out of range", op, vs_start_pos, nsize);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  return DVC_PNL_CEH_RET_OK;
}

// Last steps of a path read: clear the out-argument, then read the entry under all `nsize`
// elements from `src`. `from_copy` tells that `src` is a local copy that ends with the call.
template <typename Read>
int read_entry(const unsigned long* node_name, unsigned nsize, const dvc_pnl_cmm_valueset& src,
               bool from_copy, typename Read::type& value) {
  dvc_pnl_cmm_key key;
  int ret = dvc_pnl_ceh_contents_hdl_build_key(key, node_name, nsize);
  if (ret != DVC_PNL_CEH_RET_OK) {
    Read::clear(value);
    CEH_ERR("dvc_pnl_ceh_contents_hdl_build_key ret_code = %d", ret);
    return ret;
  }
  // Read before clearing: the out-argument may be the very set read from.
  typename Read::type tmp{};
  ret = Read::read(src, key, tmp);
  Read::clear(value);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, Read::call);
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  return Read::finish(tmp, from_copy, value);
}

// The path reads of single entries: from `set` itself for start positions 0 and 1, otherwise
// from the set one level above the entry, reached by the descent.
template <typename Read>
int read_path(const char* op, const unsigned long* node_name, int vs_start_pos, unsigned nsize,
              const dvc_pnl_cmm_valueset& set, typename Read::type& value) {
  int ret = check_read_arguments(op, node_name, vs_start_pos, nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  if (vs_start_pos < 2)
    return read_entry<Read>(node_name, nsize, set, false, value);

  // Here 2 <= vs_start_pos <= nsize, so nsize - 1 does not wrap.
  dvc_pnl_cmm_valueset child;
  ret = dvc_pnl_ceh_contents_hdl_get_child_valueset(node_name, vs_start_pos - 1,
                                                    to_position(nsize - 1), set, child);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_child_valueset ret_code = %d", ret);
    return ret;
  }
  return read_entry<Read>(node_name, nsize, child, true, value);
}

// ---- writes ----

// Stores `value`, read as the kind `type` names, under `key` in place of the old entry.
int replace_leaf(dvc_pnl_cmm_valueset& set, const dvc_pnl_cmm_key& key,
                 const dvc_pnl_cmm_value& value, NAME_SPACE_NODE_TYPE type) {
  int ret = set.dvc_pnl_cmm_remove_value(key);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_remove_value");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  switch (type) {
    case NODE_TYPE_INTEGER: {
      long v = 0;
      ret = value.dvc_pnl_cmm_get_int(v);
      if (ret != DVC_PNL_CMM_OK) {
        CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_get_int");
        return DVC_PNL_CEH_RET_PLATFORM;
      }
      ret = set.dvc_pnl_cmm_set_int(key, v);
      if (ret != DVC_PNL_CMM_OK) {
        CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_int");
        return DVC_PNL_CEH_RET_PLATFORM;
      }
      return DVC_PNL_CEH_RET_OK;
    }
    case NODE_TYPE_STRING: {
      const char* v = nullptr;
      ret = value.dvc_pnl_cmm_get_string(v);
      if (ret != DVC_PNL_CMM_OK) {
        CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_get_string");
        return DVC_PNL_CEH_RET_PLATFORM;
      }
      ret = set.dvc_pnl_cmm_set_string(key, v);
      if (ret != DVC_PNL_CMM_OK) {
        CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_string");
        return DVC_PNL_CEH_RET_PLATFORM;
      }
      return DVC_PNL_CEH_RET_OK;
    }
    case NODE_TYPE_BINARY: {
      dvc_pnl_cmm_binary v;
      ret = value.dvc_pnl_cmm_get_binary(v);
      if (ret != DVC_PNL_CMM_OK) {
        CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_get_binary");
        return DVC_PNL_CEH_RET_PLATFORM;
      }
      ret = set.dvc_pnl_cmm_set_binary(key, v);
      if (ret != DVC_PNL_CMM_OK) {
        CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_binary");
        return DVC_PNL_CEH_RET_PLATFORM;
      }
      return DVC_PNL_CEH_RET_OK;
    }
    case NODE_TYPE_VALUESET: {
      dvc_pnl_cmm_valueset v;
      ret = value.dvc_pnl_cmm_get_valueset(v);
      if (ret != DVC_PNL_CMM_OK) {
        CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_value::dvc_pnl_cmm_get_valueset");
        return DVC_PNL_CEH_RET_PLATFORM;
      }
      ret = set.dvc_pnl_cmm_set_valueset(key, v);
      if (ret != DVC_PNL_CMM_OK) {
        CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_valueset");
        return DVC_PNL_CEH_RET_PLATFORM;
      }
      return DVC_PNL_CEH_RET_OK;
    }
    default:
      // The old entry is gone already; callers learn of it by the result.
      CEH_ERR("Unknow type");
      return DVC_PNL_CEH_RET_UNKNOWN_TYPE;
  }
}

// Path writes other than start position 0: the datum goes in a value and down the write-back
// walk, which needs every level on the way to exist.
int write_nested(const unsigned long* node_name, int vs_start_pos, unsigned nsize,
                 dvc_pnl_cmm_valueset& set, const dvc_pnl_cmm_value& value,
                 NAME_SPACE_NODE_TYPE type) {
  int ret = dvc_pnl_ceh_contents_hdl_set_child_valueset(node_name, vs_start_pos - 1,
                                                        to_position(nsize), set, value, type);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_child_valueset ret_code = %d", ret);
  }
  return ret;
}

// Step 1 of every path write. A negative start position would give a negative walk position.
int check_write_arguments(const char* op, const unsigned long* node_name, int vs_start_pos) {
  if (node_name == nullptr) {
    CEH_ERR("%s node_name is NULL", op);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (vs_start_pos < 0) {
    CEH_ERR("%s vs_start_pos = %d is out of range", op, vs_start_pos);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  return DVC_PNL_CEH_RET_OK;
}

// The key of all `nsize` elements for a direct write.
int direct_key(const unsigned long* node_name, unsigned nsize, dvc_pnl_cmm_key& key) {
  int ret = dvc_pnl_ceh_contents_hdl_build_key(key, node_name, nsize);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_build_key ret_code = %d", ret);
  }
  return ret;
}

}  // namespace

// ---- descent and write-back walk ----

int dvc_pnl_ceh_contents_hdl_get_child_valueset(const unsigned long* node_name, int pos, int last,
                                                const dvc_pnl_cmm_valueset& set,
                                                dvc_pnl_cmm_valueset& child) {
  if (node_name == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_child_valueset node is NULL");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (pos < 0 || pos > kMaxChildPosition || last < 0 || last > kMaxChildPosition) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_child_valueset pos = %d last = %d is out of range", pos,
            last);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (pos >= last) {
    int ret = child.dvc_pnl_cmm_copy(set);
    if (ret != DVC_PNL_CMM_OK) {
      CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_copy");
      return DVC_PNL_CEH_RET_PLATFORM;
    }
    return DVC_PNL_CEH_RET_OK;
  }

  // One level per step; `child` is written only at the end, so a failure leaves it as it was.
  dvc_pnl_cmm_valueset reached;
  const dvc_pnl_cmm_valueset* from = &set;
  while (pos < last) {
    dvc_pnl_cmm_key key;
    int ret = dvc_pnl_ceh_contents_hdl_build_key(key, node_name, static_cast<unsigned>(pos) + 1);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("dvc_pnl_ceh_contents_hdl_build_key ret_code = %d", ret);
      return ret;
    }
    dvc_pnl_cmm_valueset next;
    ret = from->dvc_pnl_cmm_get_valueset(key, next);
    if (ret != DVC_PNL_CMM_OK) {
      CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_valueset");
      return DVC_PNL_CEH_RET_PLATFORM;
    }
    reached = std::move(next);
    from = &reached;
    ++pos;
  }
  // `reached` is a private copy already: hand it over instead of copying it again.
  child = std::move(reached);
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_set_child_valueset(const unsigned long* node_name, int pos, int last,
                                                dvc_pnl_cmm_valueset& set,
                                                const dvc_pnl_cmm_value& value,
                                                const NAME_SPACE_NODE_TYPE& type) {
  if (node_name == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_child_valueset node is NULL");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (pos < 0 || last < 0) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_child_valueset pos = %d last = %d is out of range", pos,
            last);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (pos >= last)
    return DVC_PNL_CEH_RET_OK;

  dvc_pnl_cmm_key key;
  int ret = dvc_pnl_ceh_contents_hdl_build_key(key, node_name, static_cast<unsigned>(pos) + 1);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_build_key ret_code = %d", ret);
    return ret;
  }
  if (pos + 1 == last)
    return replace_leaf(set, key, value, type);

  // Nested sets come out as copies, so each changed level is written back, deepest first. A
  // failure below leaves this level untouched: the changed copy is simply dropped.
  dvc_pnl_cmm_valueset child;
  ret = set.dvc_pnl_cmm_get_valueset(key, child);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_valueset");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  ret = dvc_pnl_ceh_contents_hdl_set_child_valueset(node_name, pos + 1, last, child, value, type);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  ret = set.dvc_pnl_cmm_remove_value(key);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_remove_value");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  ret = set.dvc_pnl_cmm_set_valueset(key, child);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_valueset");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  return DVC_PNL_CEH_RET_OK;
}

// ---- path reads ----

int dvc_pnl_ceh_contents_hdl_get_int_from_valueset(const unsigned long* node_name, int vs_start_pos,
                                                   unsigned nsize, const dvc_pnl_cmm_valueset& set,
                                                   long& value) {
  return read_path<int_read>("dvc_pnl_ceh_contents_hdl_get_int_from_valueset", node_name,
                             vs_start_pos, nsize, set, value);
}

int dvc_pnl_ceh_contents_hdl_get_string_from_valueset(const unsigned long* node_name,
                                                      int vs_start_pos, unsigned nsize,
                                                      const dvc_pnl_cmm_valueset& set,
                                                      const char*& value) {
  return read_path<string_read>("dvc_pnl_ceh_contents_hdl_get_string_from_valueset", node_name,
                                vs_start_pos, nsize, set, value);
}

int dvc_pnl_ceh_contents_hdl_get_binary_from_valueset(const unsigned long* node_name,
                                                      int vs_start_pos, unsigned nsize,
                                                      const dvc_pnl_cmm_valueset& set,
                                                      dvc_pnl_cmm_binary& value) {
  return read_path<binary_read>("dvc_pnl_ceh_contents_hdl_get_binary_from_valueset", node_name,
                                vs_start_pos, nsize, set, value);
}

int dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(const unsigned long* node_name,
                                                        int vs_start_pos, unsigned nsize,
                                                        const dvc_pnl_cmm_valueset& set,
                                                        dvc_pnl_cmm_valueset& value) {
  int ret = check_read_arguments("dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset", node_name,
                                 vs_start_pos, nsize);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  if (vs_start_pos < 2)
    return read_entry<valueset_read>(node_name, nsize, set, false, value);

  // The descent down to all `nsize` elements reaches the wanted set itself.
  ret = dvc_pnl_ceh_contents_hdl_get_child_valueset(node_name, vs_start_pos - 1, to_position(nsize),
                                                    set, value);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_child_valueset ret_code = %d", ret);
  }
  return ret;
}

// ---- path writes ----

namespace {

// Writes `value` under the path: directly for `vs_start_pos` 0, otherwise wrapped in a value and
// stored through the write-back walk, so every level on the way must exist already.
template <typename In, typename SetEntry, typename SetValue>
int write_path(const char* op, const unsigned long* node_name, int vs_start_pos, unsigned nsize,
               dvc_pnl_cmm_valueset& set, const In& value, NAME_SPACE_NODE_TYPE type,
               SetEntry set_entry, const char* set_entry_name, SetValue set_value,
               const char* set_value_name) {
  int ret = check_write_arguments(op, node_name, vs_start_pos);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  if (vs_start_pos == 0) {
    dvc_pnl_cmm_key key;
    ret = direct_key(node_name, nsize, key);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
    ret = set_entry(set, key, value);
    if (ret != DVC_PNL_CMM_OK) {
      CEH_PLATFORM_FAIL(ret, set_entry_name);
      return DVC_PNL_CEH_RET_PLATFORM;
    }
    return DVC_PNL_CEH_RET_OK;
  }
  // The wrapped value holds its own copy, so `value` may even be `set` itself.
  dvc_pnl_cmm_value wrapped;
  ret = set_value(wrapped, value);
  if (ret != DVC_PNL_CMM_OK) {
    CEH_PLATFORM_FAIL(ret, set_value_name);
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  return write_nested(node_name, vs_start_pos, nsize, set, wrapped, type);
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_set_int_to_valueset(const unsigned long* node_name, int vs_start_pos,
                                                 unsigned nsize, dvc_pnl_cmm_valueset& set,
                                                 const long& value) {
  return write_path(
      "dvc_pnl_ceh_contents_hdl_set_int_to_valueset", node_name, vs_start_pos, nsize, set, value,
      NODE_TYPE_INTEGER,
      [](dvc_pnl_cmm_valueset& s, const dvc_pnl_cmm_key& k, long v) {
        return s.dvc_pnl_cmm_set_int(k, v);
      },
      "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_int",
      [](dvc_pnl_cmm_value& w, long v) { return w.dvc_pnl_cmm_set_int(v); },
      "dvc_pnl_cmm_value::dvc_pnl_cmm_set_int");
}

int dvc_pnl_ceh_contents_hdl_set_string_to_valueset(const unsigned long* node_name,
                                                    int vs_start_pos, unsigned nsize,
                                                    dvc_pnl_cmm_valueset& set, const char* value) {
  const char* op = "dvc_pnl_ceh_contents_hdl_set_string_to_valueset";
  if (node_name != nullptr && vs_start_pos >= 0 && value == nullptr) {
    CEH_ERR("%s value is NULL", op);
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  return write_path(
      op, node_name, vs_start_pos, nsize, set, value, NODE_TYPE_STRING,
      [](dvc_pnl_cmm_valueset& s, const dvc_pnl_cmm_key& k, const char* v) {
        return s.dvc_pnl_cmm_set_string(k, v);
      },
      "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_string",
      [](dvc_pnl_cmm_value& w, const char* v) { return w.dvc_pnl_cmm_set_string(v); },
      "dvc_pnl_cmm_value::dvc_pnl_cmm_set_string");
}

int dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(const unsigned long* node_name,
                                                      int vs_start_pos, unsigned nsize,
                                                      dvc_pnl_cmm_valueset& set,
                                                      const dvc_pnl_cmm_valueset& value) {
  return write_path(
      "dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset", node_name, vs_start_pos, nsize, set,
      value, NODE_TYPE_VALUESET,
      [](dvc_pnl_cmm_valueset& s, const dvc_pnl_cmm_key& k, const dvc_pnl_cmm_valueset& v) {
        return s.dvc_pnl_cmm_set_valueset(k, v);
      },
      "dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_valueset",
      [](dvc_pnl_cmm_value& w, const dvc_pnl_cmm_valueset& v) {
        return w.dvc_pnl_cmm_set_valueset(v);
      },
      "dvc_pnl_cmm_value::dvc_pnl_cmm_set_valueset");
}

}  // namespace orvanta
