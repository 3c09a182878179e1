// Reading the host trace sink in tests: whether a message was traced, and all of them for failures.
#pragma once

#include <string>

#include "orvanta/host/trace_sink.h"

namespace orvanta::test {

inline bool traced(const std::string& message) {
  return host::trace_sink::instance().has_message(message);
}

// Every kept message, one per line, for a failure message.
inline std::string trace_dump() {
  std::string out;
  for (const auto& m : host::trace_sink::instance().messages())
    out += m + "\n";
  return out;
}

}  // namespace orvanta::test
