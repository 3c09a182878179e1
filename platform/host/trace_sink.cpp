// Host trace service: formats emwGENTrcPrintf lines and keeps them in a bounded sink.
#include "orvanta/host/trace_sink.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>
#include <deque>
#include <mutex>

#include "orvanta/platform/emw_trace.h"

namespace orvanta::host {
namespace {
// Trace lines may come from timer threads, so the store has its own lock.
std::mutex store_lock;
std::deque<trace_line> store;
bool echo = false;
unsigned long limit = ~0UL;
}  // namespace

trace_sink& trace_sink::instance() {
  static trace_sink sink;
  return sink;
}

std::string trace_message_of(const std::string& line) {
  const std::string marker = "()>>";
  auto pos = line.find(marker);
  if (pos == std::string::npos)
    return line;
  pos += marker.size();
  if (pos < line.size() && line[pos] == ' ')
    ++pos;
  return line.substr(pos);
}

void trace_sink::add(unsigned long module, unsigned long sub_module, unsigned long level,
                     std::string text) {
  std::lock_guard<std::mutex> guard(store_lock);
  if (level > limit)
    return;
  if (echo)
    std::fprintf(stderr, "[trace %lu] %s\n", level, text.c_str());
  trace_line l;
  l.module = module;
  l.sub_module = sub_module;
  l.level = level;
  l.message = trace_message_of(text);
  l.text = std::move(text);
  store.push_back(std::move(l));
  while (store.size() > capacity_)
    store.pop_front();
}

std::vector<trace_line> trace_sink::lines() const {
  std::lock_guard<std::mutex> guard(store_lock);
  return {store.begin(), store.end()};
}

std::vector<std::string> trace_sink::messages() const {
  std::lock_guard<std::mutex> guard(store_lock);
  std::vector<std::string> out;
  out.reserve(store.size());
  for (const auto& l : store)
    out.push_back(l.message);
  return out;
}

bool trace_sink::has_message(const std::string& message) const {
  return count_message(message) != 0;
}

std::size_t trace_sink::count_message(const std::string& message) const {
  std::lock_guard<std::mutex> guard(store_lock);
  return static_cast<std::size_t>(std::count_if(
      store.begin(), store.end(), [&](const trace_line& l) { return l.message == message; }));
}

void trace_sink::clear() {
  std::lock_guard<std::mutex> guard(store_lock);
  store.clear();
}

void trace_sink::set_level_limit(unsigned long max_level) {
  std::lock_guard<std::mutex> guard(store_lock);
  limit = max_level;
}

unsigned long trace_sink::level_limit() const {
  std::lock_guard<std::mutex> guard(store_lock);
  return limit;
}

void trace_sink::set_echo(bool on) {
  std::lock_guard<std::mutex> guard(store_lock);
  echo = on;
}

void trace_sink::set_capacity(std::size_t n) {
  std::lock_guard<std::mutex> guard(store_lock);
  capacity_ = n == 0 ? 1 : n;
  while (store.size() > capacity_)
    store.pop_front();
}

}  // namespace orvanta::host

namespace orvanta {

int emwGENTrcPrintf(unsigned long module, unsigned long sub_module, unsigned long level,
                    const char* format, ...) {
  if (format == nullptr)
    return -1;
  char buf[1024];
  va_list args;
  va_start(args, format);
  int n = std::vsnprintf(buf, sizeof buf, format, args);
  va_end(args);
  if (n < 0)
    return -1;
  host::trace_sink::instance().add(module, sub_module, level, buf);
  return 0;
}

}  // namespace orvanta
