// Fuzz target: the scenario parser, line by line: tokens, numbers, ids, keys, values, paths and
// the event source sets built from path=value entries.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "orvanta/sim/names.h"
#include "orvanta/sim/scenario_syntax.h"

#ifndef ORVANTA_FUZZ_ENTRY
#define ORVANTA_FUZZ_ENTRY LLVMFuzzerTestOneInput
#endif

namespace {

using namespace orvanta;
using namespace orvanta::sim;

void check(bool ok, const char* what) {
  if (!ok) {
    std::fprintf(stderr, "fuzz_scenario: %s\n", what);
    std::abort();
  }
}

using entry = std::pair<std::vector<unsigned long>, scenario_value>;

// One token as every reader of the language may meet it. Errors are the parser's answer to bad
// input; what must hold is what a read that succeeds promises.
void read_token(const std::string& token, std::vector<entry>& entries) {
  (void)parse_number(token);
  (void)parse_contents_id(token);
  (void)parse_key(token);
  try {
    const scenario_value v = parse_value(token);
    check(parse_value(v.written()) == v, "a value does not read back as it is written");
  } catch (const scenario_error&) {
  }
  try {
    const std::vector<unsigned long> path = parse_path(token);
    check(parse_path(dotted(path)) == path, "a path does not read back from its dotted form");
  } catch (const scenario_error&) {
  }
  try {
    auto [left, right] = split_entry(token);
    entries.emplace_back(parse_path(left), parse_value(right));
  } catch (const scenario_error&) {
  }
}

// The entries of one line as an event source set, the way `event` builds it; every entry must
// then be found under its path.
void build(const std::vector<entry>& entries) {
  if (entries.empty())
    return;
  dvc_pnl_cmm_valueset set;
  try {
    set = build_valueset(entries, 2);
  } catch (const scenario_error&) {
    return;
  }
  for (const entry& e : entries) {
    // The command layer keeps strings as C strings: a NUL ends them.
    if (e.second.is_string && e.second.text.find('\0') != std::string::npos)
      continue;
    dvc_pnl_cmm_value found;
    check(find_in_valueset(set, e.first, found), "a built entry is not found under its path");
    check(value_matches(found, e.second), "a built entry holds another value");
    (void)describe(found);
  }
}

}  // namespace

extern "C" int ORVANTA_FUZZ_ENTRY(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::size_t start = 0;
  while (start <= text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string::npos)
      end = text.size();
    const std::string_view line(text.data() + start, end - start);
    try {
      std::vector<entry> entries;
      for (const std::string& token : tokenize(line))
        read_token(token, entries);
      build(entries);
    } catch (const scenario_error&) {
    }
    start = end + 1;
  }
  return 0;
}
