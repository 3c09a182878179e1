// Panel data manager access: argument checks, traces and value conversion around the manager.
#include <cstring>
#include <utility>

#include "orvanta/platform/dvc_pnl_pdm_data_manager.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

dvc_pnl_pdm_data_manager* dm() {
  return dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_instance();
}

// Names of the manager calls as they appear in failure traces.
constexpr const char* kGetFunc =
    "dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_instance()->dvc_pnl_pdm_get_by_function_scope";
constexpr const char* kSetFunc =
    "dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_instance()->dvc_pnl_pdm_set_by_function_scope";
constexpr const char* kRemoveFunc =
    "dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_instance()->dvc_pnl_pdm_remove_by_function_scope";
constexpr const char* kGetPage = "dvc_pnl_pdm_get_instance()->dvc_pnl_pdm_get_by_page_scope";
constexpr const char* kSetPage = "dvc_pnl_pdm_get_instance()->dvc_pnl_pdm_set_by_page_scope";
constexpr const char* kGetApp = "dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_by_application_scope:";
constexpr const char* kSetApp = "dvc_pnl_pdm_data_manager::dvc_pnl_pdm_set_by_application_scope:";
constexpr const char* kRemoveApp =
    "dvc_pnl_pdm_data_manager::dvc_pnl_pdm_remove_by_application_scope:";
constexpr const char* kSetCross =
    "dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_instance()->dvc_pnl_pdm_set_by_cross_function_scope";

// A manager or value call answered `ret`: 0 stays 0, anything else is traced and becomes 3.
int checked(int ret, const char* call) {
  if (ret == 0)
    return DVC_PNL_CEH_RET_OK;
  CEH_PLATFORM_FAIL(ret, call);
  return DVC_PNL_CEH_RET_PLATFORM;
}

// Fill a local value for a write.
int to_value(long in, dvc_pnl_cmm_value& v) {
  return checked(v.dvc_pnl_cmm_set_int(in), "dvc_pnl_cmm_value::dvc_pnl_cmm_set_int");
}
int to_value(const std::string& in, dvc_pnl_cmm_value& v) {
  return checked(v.dvc_pnl_cmm_set_string(in.c_str()), "dvc_pnl_cmm_value::dvc_pnl_cmm_set_string");
}
int to_value(const dvc_pnl_cmm_valueset& in, dvc_pnl_cmm_value& v) {
  return checked(v.dvc_pnl_cmm_set_valueset(in), "dvc_pnl_cmm_value::dvc_pnl_cmm_set_valueset");
}

// Read a local value out after a read.
int from_value(const dvc_pnl_cmm_value& v, long& out) {
  return checked(v.dvc_pnl_cmm_get_int(out), "dvc_pnl_cmm_value::dvc_pnl_cmm_get_int");
}
int from_value(const dvc_pnl_cmm_value& v, std::string& out) {
  const char* s = nullptr;
  int ret = checked(v.dvc_pnl_cmm_get_string(s), "dvc_pnl_cmm_value::dvc_pnl_cmm_get_string");
  if (ret != 0)
    return ret;
  if (s == nullptr) {
    CEH_ERR("dvc_pnl_cmm_value::dvc_pnl_cmm_get_string value is NULL");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  out = s;
  return DVC_PNL_CEH_RET_OK;
}
int from_value(const dvc_pnl_cmm_value& v, dvc_pnl_cmm_valueset& out) {
  return checked(v.dvc_pnl_cmm_get_valueset(out), "dvc_pnl_cmm_value::dvc_pnl_cmm_get_valueset");
}
// The exact-size rule: the stored blob must be `size` bytes long, or nothing is copied.
int from_value(const dvc_pnl_cmm_value& v, void* buffer, unsigned size) {
  dvc_pnl_cmm_binary bin;
  int ret = checked(v.dvc_pnl_cmm_get_binary(bin), "dvc_pnl_cmm_value::dvc_pnl_cmm_get_binary");
  if (ret != 0)
    return ret;
  unsigned char* data = nullptr;
  unsigned long length = 0;
  ret = checked(bin.dvc_pnl_cmm_get_data(data, length), "dvc_pnl_cmm_binary::dvc_pnl_cmm_get_data");
  if (ret != 0)
    return ret;
  if (length != size)
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  if (size != 0)
    std::memcpy(buffer, data, size);
  return DVC_PNL_CEH_RET_OK;
}

// Wraps `size` bytes at `buffer` into a binary value.
int to_value(const void* buffer, unsigned size, dvc_pnl_cmm_value& v) {
  dvc_pnl_cmm_binary bin;
  unsigned long length = size;
  int ret = checked(bin.dvc_pnl_cmm_set_data(static_cast<const unsigned char*>(buffer), length),
                    "dvc_pnl_cmm_binary::dvc_pnl_cmm_set_data");
  if (ret != 0)
    return ret;
  return checked(v.dvc_pnl_cmm_set_binary(bin), "dvc_pnl_cmm_value::dvc_pnl_cmm_set_binary");
}

// Function scope reads and writes of one kind go through get_value_from_dm and set_value_to_dm;
// their failure is traced again here and passed on.
template <typename... Out>
int read_function_scope(const std::string& key, int func, Out&&... out) {
  dvc_pnl_cmm_value v;
  int ret = dvc_pnl_ceh_contents_hdl_get_value_from_dm(key, v, func);
  if (ret != 0) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_value_from_dm ret_code = %d", ret);
    return ret;
  }
  return from_value(v, std::forward<Out>(out)...);
}

template <typename... In>
int write_function_scope(const std::string& key, int func, In&&... in) {
  dvc_pnl_cmm_value v;
  int ret = to_value(std::forward<In>(in)..., v);
  if (ret != 0)
    return ret;
  ret = dvc_pnl_ceh_contents_hdl_set_value_to_dm(key, v, func);
  if (ret != 0) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_value_to_dm ret_code = %d", ret);
    return ret;
  }
  return DVC_PNL_CEH_RET_OK;
}

// Page scope writes go straight to the manager.
template <typename... In>
int write_page_scope(const std::string& key, int func, int cid, In&&... in) {
  dvc_pnl_cmm_value v;
  int ret = to_value(std::forward<In>(in)..., v);
  if (ret != 0)
    return ret;
  return checked(dm()->dvc_pnl_pdm_set_by_page_scope(key, func, cid, v), kSetPage);
}

// Most page scope reads go on to the value whatever the manager answered: a missing entry leaves
// the local value empty and its read is what fails.
template <typename... Out>
int read_page_scope_unchecked(const std::string& key, int func, int cid, Out&&... out) {
  dvc_pnl_cmm_value v;
  (void)dm()->dvc_pnl_pdm_get_by_page_scope(key, func, cid, v);
  return from_value(v, std::forward<Out>(out)...);
}

template <typename... Out>
int read_application_scope(const std::string& key, Out&&... out) {
  dvc_pnl_cmm_value v;
  int ret = checked(dm()->dvc_pnl_pdm_get_by_application_scope(key, v), kGetApp);
  if (ret != 0)
    return ret;
  return from_value(v, std::forward<Out>(out)...);
}

template <typename... In>
int write_application_scope(const std::string& key, In&&... in) {
  dvc_pnl_cmm_value v;
  int ret = to_value(std::forward<In>(in)..., v);
  if (ret != 0)
    return ret;
  return checked(dm()->dvc_pnl_pdm_set_by_application_scope(key, v), kSetApp);
}

template <typename... In>
int write_cross_function_scope(const std::string& key, int cid, In&&... in) {
  dvc_pnl_cmm_value v;
  int ret = to_value(std::forward<In>(in)..., v);
  if (ret != 0)
    return ret;
  return checked(dm()->dvc_pnl_pdm_set_by_cross_function_scope(key, cid, v), kSetCross);
}

}  // namespace

// The order of the checks is fixed: an empty key first (without a trace), then the entry trace,
// then the function id, then size and pointer.

#define DM_CHECK_KEY()                     \
  do {                                     \
    if (key.empty())                       \
      return DVC_PNL_CEH_RET_BAD_ARGUMENT; \
  } while (0)
#define DM_CHECK_FUNC()                    \
  do {                                     \
    if (func > DVC_PNL_CEH_FUNC_ID_MAX)    \
      return DVC_PNL_CEH_RET_BAD_ARGUMENT; \
  } while (0)
#define DM_CHECK_READ_BUFFER(name)         \
  do {                                     \
    if (size == 0)                         \
      return DVC_PNL_CEH_RET_BAD_ARGUMENT; \
    if (buffer == nullptr) {               \
      CEH_ERR(name " p is NULL");          \
      return DVC_PNL_CEH_RET_BAD_ARGUMENT; \
    }                                      \
  } while (0)
#define DM_CHECK_WRITE_BUFFER(name)        \
  do {                                     \
    if (buffer == nullptr) {               \
      CEH_ERR(name " p is NULL");          \
      return DVC_PNL_CEH_RET_BAD_ARGUMENT; \
    }                                      \
  } while (0)

// ---------------------------------------------------------------- function scope

int dvc_pnl_ceh_contents_hdl_get_value_from_dm(const std::string& key, dvc_pnl_cmm_value& value,
                                               int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_value_from_dm() key:%s, func:%d.", key.c_str(), func);
  DM_CHECK_FUNC();
  return checked(dm()->dvc_pnl_pdm_get_by_function_scope(key, func, value), kGetFunc);
}

int dvc_pnl_ceh_contents_hdl_set_value_to_dm(const std::string& key, const dvc_pnl_cmm_value& value,
                                             int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_set_value_to_dm() key:%s, func:%d.", key.c_str(), func);
  DM_CHECK_FUNC();
  return checked(dm()->dvc_pnl_pdm_set_by_function_scope(key, func, value), kSetFunc);
}

int dvc_pnl_ceh_contents_hdl_get_int_from_dm(const std::string& key, int& value, int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_int_from_dm() key:%s, func:%d.", key.c_str(), func);
  DM_CHECK_FUNC();
  long l = 0;
  int ret = read_function_scope(key, func, l);
  // Stored words are 32-bit patterns: the low 32 bits are the value.
  if (ret == 0)
    value = static_cast<int>(l);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_set_int_to_dm(const std::string& key, const long& value, int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_set_int_to_dm() key:%s, func:%d, value:%ld.", key.c_str(), func,
          value);
  DM_CHECK_FUNC();
  return write_function_scope(key, func, value);
}

int dvc_pnl_ceh_contents_hdl_get_string_from_dm(const std::string& key, std::string& value,
                                                int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_string_from_dm() key:%s, func:%d.", key.c_str(), func);
  DM_CHECK_FUNC();
  return read_function_scope(key, func, value);
}

int dvc_pnl_ceh_contents_hdl_set_string_to_dm(const std::string& key, std::string value, int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_set_string_to_dm() key:%s, func:%d, value:%s.", key.c_str(),
          func, value.c_str());
  DM_CHECK_FUNC();
  return write_function_scope(key, func, value);
}

int dvc_pnl_ceh_contents_hdl_get_binary_from_dm(const std::string& key, void* buffer, unsigned size,
                                                int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_binary_from_dm() key:%s, func:%d, size:%u.", key.c_str(),
          func, size);
  DM_CHECK_FUNC();
  DM_CHECK_READ_BUFFER("dvc_pnl_ceh_contents_hdl_get_binary_from_dm");
  return read_function_scope(key, func, buffer, size);
}

int dvc_pnl_ceh_contents_hdl_set_binary_to_dm(const std::string& key, const void* buffer,
                                              unsigned size, int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_set_binary_to_dm() key:%s, func:%d, size:%u.", key.c_str(),
          func, size);
  DM_CHECK_FUNC();
  DM_CHECK_WRITE_BUFFER("dvc_pnl_ceh_contents_hdl_set_binary_to_dm");
  return write_function_scope(key, func, buffer, size);
}

int dvc_pnl_ceh_contents_hdl_get_valueset_from_dm(const std::string& key,
                                                  dvc_pnl_cmm_valueset& value, int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_valueset_from_dm() key:%s, func:%d.", key.c_str(), func);
  DM_CHECK_FUNC();
  return read_function_scope(key, func, value);
}

// No function id test of its own, unlike its siblings; set_value_to_dm still refuses one above 36.
int dvc_pnl_ceh_contents_hdl_set_valueset_to_dm(const std::string& key, int func,
                                                dvc_pnl_cmm_valueset& value) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_set_valueset_to_dm() key:%s, func:%d.", key.c_str(), func);
  return write_function_scope(key, func, static_cast<const dvc_pnl_cmm_valueset&>(value));
}

int dvc_pnl_ceh_contents_hdl_dm_remove(const std::string& key, int func) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_dm_remove() key:%s, func:%d.", key.c_str(), func);
  DM_CHECK_FUNC();
  return checked(dm()->dvc_pnl_pdm_remove_by_function_scope(key, func), kRemoveFunc);
}

// ---------------------------------------------------------------- page scope

// No function id test. A missing entry answers the value layer's own code, not 3.
int dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(const std::string& key, int func,
                                                           DVC_PNL_CEH_CONTENTS_ID cid,
                                                           long& value) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope() key:%s, func:%d, cid:%d.",
          key.c_str(), func, static_cast<int>(cid));
  dvc_pnl_cmm_value v;
  (void)dm()->dvc_pnl_pdm_get_by_page_scope(key, func, cid, v);
  long l = 0;
  int ret = v.dvc_pnl_cmm_get_int(l);
  if (ret != 0) {
    CEH_ERR("ret = %d.", ret);
    CEH_ERR("dvc_pnl_cmm_value::dvc_pnl_cmm_get_int ret_code = %d", ret);
    return ret;
  }
  value = l;
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(const std::string& key, int func,
                                                         DVC_PNL_CEH_CONTENTS_ID cid, long value) {
  DM_CHECK_KEY();
  CEH_TRC(
      "dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope() key:%s, func:%d, cid:%d, "
      "value:%ld.",
      key.c_str(), func, static_cast<int>(cid), value);
  DM_CHECK_FUNC();
  return write_page_scope(key, func, cid, value);
}

int dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_page_scope(const std::string& key, int func,
                                                              DVC_PNL_CEH_CONTENTS_ID cid,
                                                              std::string& value) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_page_scope() key:%s, func:%d, cid:%d.",
          key.c_str(), func, static_cast<int>(cid));
  DM_CHECK_FUNC();
  return read_page_scope_unchecked(key, func, cid, value);
}

int dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_page_scope(const std::string& key, int func,
                                                            DVC_PNL_CEH_CONTENTS_ID cid,
                                                            std::string value) {
  DM_CHECK_KEY();
  CEH_TRC(
      "dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_page_scope() key:%s, func:%d, cid:%d, "
      "value:%s.",
      key.c_str(), func, static_cast<int>(cid), value.c_str());
  DM_CHECK_FUNC();
  return write_page_scope(key, func, cid, value);
}

int dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope(const std::string& key, void* buffer,
                                                              unsigned size, int func,
                                                              DVC_PNL_CEH_CONTENTS_ID cid) {
  DM_CHECK_KEY();
  CEH_TRC(
      "dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope() key:%s, func:%d, "
      "cid:%d, size:%u.",
      key.c_str(), func, static_cast<int>(cid), size);
  DM_CHECK_FUNC();
  DM_CHECK_READ_BUFFER("dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope");
  return read_page_scope_unchecked(key, func, cid, buffer, size);
}

int dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_page_scope(const std::string& key,
                                                            const void* buffer, unsigned size,
                                                            int func, DVC_PNL_CEH_CONTENTS_ID cid) {
  DM_CHECK_KEY();
  CEH_TRC(
      "dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_page_scope() key:%s, func:%d, cid:%d, "
      "size:%u.",
      key.c_str(), func, static_cast<int>(cid), size);
  DM_CHECK_FUNC();
  DM_CHECK_WRITE_BUFFER("dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_page_scope");
  return write_page_scope(key, func, cid, buffer, size);
}

// No function id test; unlike the other page reads this one looks at the manager's answer.
int dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_page_scope(const std::string& key, int func,
                                                                DVC_PNL_CEH_CONTENTS_ID cid,
                                                                dvc_pnl_cmm_valueset& value) {
  DM_CHECK_KEY();
  CEH_TRC(
      "dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_page_scope() key:%s, func:%d, "
      "cid:%d.",
      key.c_str(), func, static_cast<int>(cid));
  dvc_pnl_cmm_value v;
  int ret = checked(dm()->dvc_pnl_pdm_get_by_page_scope(key, func, cid, v), kGetPage);
  if (ret != 0)
    return ret;
  return from_value(v, value);
}

// No function id test.
int dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_page_scope(const std::string& key, int func,
                                                              DVC_PNL_CEH_CONTENTS_ID cid,
                                                              dvc_pnl_cmm_valueset& value) {
  DM_CHECK_KEY();
  CEH_TRC(
      "dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_page_scope() key:%s, func:%d, "
      "cid:%d.",
      key.c_str(), func, static_cast<int>(cid));
  return write_page_scope(key, func, cid, static_cast<const dvc_pnl_cmm_valueset&>(value));
}

// ---------------------------------------------------------------- application scope

int dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(const std::string& key, int& value) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application() key:%s.", key.c_str());
  long l = 0;
  int ret = read_application_scope(key, l);
  if (ret == 0)
    value = static_cast<int>(l);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(const std::string& key, int value) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application() key:%s, value:%d.", key.c_str(),
          value);
  return write_application_scope(key, static_cast<long>(value));
}

int dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_application(const std::string& key,
                                                               std::string& value) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_application() key:%s.", key.c_str());
  return read_application_scope(key, value);
}

int dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_application(const std::string& key,
                                                             std::string value) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_application() key:%s, value:%s.",
          key.c_str(), value.c_str());
  return write_application_scope(key, value);
}

int dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_application(const std::string& key, void* buffer,
                                                               unsigned size) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_application() key:%s, size:%u.",
          key.c_str(), size);
  DM_CHECK_READ_BUFFER("dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_application");
  return read_application_scope(key, buffer, size);
}

int dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_application(const std::string& key,
                                                             const void* buffer, unsigned size) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_application() key:%s, size:%u.",
          key.c_str(), size);
  DM_CHECK_WRITE_BUFFER("dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_application");
  return write_application_scope(key, buffer, size);
}

int dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_application_scope(
    const std::string& key, dvc_pnl_cmm_valueset& value) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_application_scope() key:%s.",
          key.c_str());
  return read_application_scope(key, value);
}

int dvc_pnl_ceh_contents_hdl_dm_remove_by_application(const std::string& key) {
  DM_CHECK_KEY();
  CEH_TRC("dvc_pnl_ceh_contents_hdl_dm_remove_by_application() key:%s.", key.c_str());
  return checked(dm()->dvc_pnl_pdm_remove_by_application_scope(key), kRemoveApp);
}

// ---------------------------------------------------------------- cross-function scope

// Like most page reads, this goes on to the value whatever the manager answered.
int dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_cross_function_scope(
    const std::string& key, DVC_PNL_CEH_CONTENTS_ID cid, dvc_pnl_cmm_valueset& value) {
  DM_CHECK_KEY();
  CEH_TRC(
      "dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_cross_function_scope() key:%s, "
      "cid:%d.",
      key.c_str(), static_cast<int>(cid));
  dvc_pnl_cmm_value v;
  (void)dm()->dvc_pnl_pdm_get_by_cross_function_scope(key, cid, v);
  return from_value(v, value);
}

int dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_cross_function_scope(
    const std::string& key, DVC_PNL_CEH_CONTENTS_ID cid, dvc_pnl_cmm_valueset& value) {
  DM_CHECK_KEY();
  CEH_TRC(
      "dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_cross_function_scope() key:%s, "
      "cid:%d.",
      key.c_str(), static_cast<int>(cid));
  return write_cross_function_scope(key, cid, static_cast<const dvc_pnl_cmm_valueset&>(value));
}

int dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_cross_function_scope(const std::string& key,
                                                                   DVC_PNL_CEH_CONTENTS_ID cid,
                                                                   long value) {
  DM_CHECK_KEY();
  CEH_TRC(
      "dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_cross_function_scope() key:%s, cid:%d, "
      "value:%ld.",
      key.c_str(), static_cast<int>(cid), value);
  return write_cross_function_scope(key, cid, value);
}

}  // namespace orvanta
