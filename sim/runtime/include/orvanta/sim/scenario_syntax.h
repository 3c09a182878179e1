// The lexical layer of scenario files: tokens, numbers, values and value sets.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "orvanta/platform/dvc_pnl_cmm_value.h"
#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta::sim {

// A line that cannot be carried out: malformed, naming something unknown, or refused.
class scenario_error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Splits a line into blank-separated tokens. `#` outside quotes ends the line. A quoted part
// may hold blanks and stays in its token as written (quotes and escapes included), so that
// `0.1.2="a b"` is one token. Throws scenario_error for an unterminated quote.
std::vector<std::string> tokenize(std::string_view line);

// A value of the language: an integer (numbers and `CID_` names) or a string.
struct scenario_value {
  bool is_string = false;
  long number = 0;
  std::string text;

  dvc_pnl_cmm_value to_cmm() const;
  // As written in messages: 5 or "text".
  std::string describe() const;
  // As a scenario line writes it, which parse_value reads back: 5, or "text" with `"` and `\`
  // escaped.
  std::string written() const;
  bool operator==(const scenario_value& other) const = default;
};

// True for a token that is a double-quoted string.
bool is_quoted(std::string_view token);
// The text of a quoted token: `\"` and `\\` are the only escapes. Throws scenario_error.
std::string unquote(std::string_view token);
// An integer, a `CID_` name (its number) or a quoted string. Throws scenario_error.
scenario_value parse_value(std::string_view token);
// A number as parse_number reads it. Throws scenario_error naming `what`.
long parse_long(std::string_view token, const char* what);
// A dotted full path from ROOT ("0.938.959"). Throws scenario_error.
std::vector<unsigned long> parse_path(std::string_view token);
std::string dotted(const std::vector<unsigned long>& nodes);
// Splits "<left>=<value>" at its first '='. Throws scenario_error.
std::pair<std::string, std::string> split_entry(std::string_view token);

// A value set built the way the machine answers reads: keys of `top_len` nodes at the top, every
// longer path in a nested set under each of its prefixes, every entry under its full path.
// Throws scenario_error for a path shorter than `top_len`, a path given twice, or a path that
// is both a leaf and the prefix of another.
dvc_pnl_cmm_valueset build_valueset(
    const std::vector<std::pair<std::vector<unsigned long>, scenario_value>>& entries,
    std::size_t top_len);

// The value under the full key `nodes` in a set nested as above; false when there is none.
bool find_in_valueset(const dvc_pnl_cmm_valueset& set, const std::vector<unsigned long>& nodes,
                      dvc_pnl_cmm_value& out);
// Whether a value of the command layer holds what a scenario value says.
bool value_matches(const dvc_pnl_cmm_value& actual, const scenario_value& expected);
// A command layer value as messages show it: 5, "text", a binary of N bytes, a set of N entries.
std::string describe(const dvc_pnl_cmm_value& value);

}  // namespace orvanta::sim
