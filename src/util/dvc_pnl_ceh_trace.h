// Trace macros of the panel: one line per event, prefixed with thread, file, line and function.
#pragma once

#include <functional>
#include <thread>

#include "orvanta/platform/emw_trace.h"

namespace orvanta {

// Module and sub-module under which the panel's screen logic traces.
inline constexpr unsigned long DVC_PNL_CEH_TRC_MODULE = 8706;
inline constexpr unsigned long DVC_PNL_CEH_TRC_SUB_MODULE = 258;

// The file name without its directories, for the trace prefix.
constexpr const char* ceh_trace_file(const char* path) {
  const char* base = path;
  for (const char* p = path; *p != '\0'; ++p) {
    if (*p == '/' || *p == '\\')
      base = p + 1;
  }
  return base;
}

inline unsigned long ceh_trace_thread() {
  return static_cast<unsigned long>(std::hash<std::thread::id>{}(std::this_thread::get_id())) &
         0xffffffffUL;
}

}  // namespace orvanta

#define DVC_PNL_CEH_TRACE_AT(level, fmt, ...)                                            \
  ::orvanta::emwGENTrcPrintf(                                                            \
      ::orvanta::DVC_PNL_CEH_TRC_MODULE, ::orvanta::DVC_PNL_CEH_TRC_SUB_MODULE, (level), \
      "%08lx:%s[%d]: <<%s()>> " fmt, ::orvanta::ceh_trace_thread(),                      \
      ::orvanta::ceh_trace_file(__FILE__), __LINE__, __func__ __VA_OPT__(, ) __VA_ARGS__)

// An error: a failed call, a bad argument.
#define CEH_ERR(fmt, ...) \
  DVC_PNL_CEH_TRACE_AT(::orvanta::EMW_TRC_LEVEL_ERROR, fmt __VA_OPT__(, ) __VA_ARGS__)
// An ordinary trace: entry, exit, what was decided.
#define CEH_TRC(fmt, ...) \
  DVC_PNL_CEH_TRACE_AT(::orvanta::EMW_TRC_LEVEL_TRACE, fmt __VA_OPT__(, ) __VA_ARGS__)

// A platform call answered `ret`: trace its own code, then the call's name with the code 3 that
// replaces it for the caller.
#define CEH_PLATFORM_FAIL(ret, call)             \
  do {                                           \
    CEH_ERR("ret = %d.", static_cast<int>(ret)); \
    CEH_ERR("%s ret_code = %d", call, 3);        \
  } while (0)
