// Host trace sink: keeps the panel's trace lines so tests and the simulator can read them.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orvanta::host {

struct trace_line {
  unsigned long module = 0;
  unsigned long sub_module = 0;
  unsigned long level = 0;
  std::string text;     // the whole formatted line
  std::string message;  // the text after the "<<function()>>" prefix, or the whole line
};

class trace_sink {
 public:
  static trace_sink& instance();

  // Lines kept, oldest first. At most `capacity()` lines are kept; older ones are dropped.
  std::vector<trace_line> lines() const;
  std::vector<std::string> messages() const;
  // True when some kept line's message equals `message` exactly.
  bool has_message(const std::string& message) const;
  // Number of kept lines whose message equals `message`.
  std::size_t count_message(const std::string& message) const;
  void clear();

  // Keeps only lines whose level is at most `max_level` (0 errors only, 2 everything the panel
  // traces); lines above it are dropped as they arrive.
  void set_level_limit(unsigned long max_level);
  unsigned long level_limit() const;

  // Echo every line to stderr as it arrives (interactive use).
  void set_echo(bool on);
  std::size_t capacity() const { return capacity_; }
  void set_capacity(std::size_t n);

  void add(unsigned long module, unsigned long sub_module, unsigned long level, std::string text);

 private:
  trace_sink() = default;
  std::size_t capacity_ = 20000;
};

// Splits a traced line "<thread>:<file>[<line>]: <<func()>> message" into its message.
std::string trace_message_of(const std::string& line);

}  // namespace orvanta::host
