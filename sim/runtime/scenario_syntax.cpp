// Tokens, numbers, values and value sets of scenario files.
#include "orvanta/sim/scenario_syntax.h"

#include <map>

#include "orvanta/platform/dvc_pnl_cmm_key.h"
#include "orvanta/sim/names.h"

namespace orvanta::sim {

std::vector<std::string> tokenize(std::string_view line) {
  std::vector<std::string> tokens;
  std::string current;
  bool in_token = false;
  bool in_quote = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (in_quote) {
      current += c;
      if (c == '\\' && i + 1 < line.size()) {
        current += line[++i];
      } else if (c == '"') {
        in_quote = false;
      }
      continue;
    }
    if (c == '#')
      break;
    if (c == ' ' || c == '\t' || c == '\r') {
      if (in_token)
        tokens.push_back(std::move(current));
      current.clear();
      in_token = false;
      continue;
    }
    in_token = true;
    current += c;
    if (c == '"')
      in_quote = true;
  }
  if (in_quote)
    throw scenario_error("unterminated quote");
  if (in_token)
    tokens.push_back(std::move(current));
  return tokens;
}

dvc_pnl_cmm_value scenario_value::to_cmm() const {
  dvc_pnl_cmm_value v;
  if (is_string) {
    v.dvc_pnl_cmm_set_string(text.c_str());
  } else {
    v.dvc_pnl_cmm_set_int(number);
  }
  return v;
}

std::string scenario_value::describe() const {
  return is_string ? "\"" + text + "\"" : std::to_string(number);
}

std::string scenario_value::written() const {
  if (!is_string)
    return std::to_string(number);
  std::string out = "\"";
  for (char c : text) {
    if (c == '"' || c == '\\')
      out += '\\';
    out += c;
  }
  return out + "\"";
}

bool is_quoted(std::string_view token) {
  return token.size() >= 2 && token.front() == '"' && token.back() == '"';
}

std::string unquote(std::string_view token) {
  if (!is_quoted(token))
    throw scenario_error("expected a quoted string, found " + std::string(token));
  std::string out;
  for (std::size_t i = 1; i + 1 < token.size(); ++i) {
    char c = token[i];
    if (c == '\\') {
      const char next = i + 2 < token.size() ? token[i + 1] : '\0';
      if (next != '"' && next != '\\')
        throw scenario_error("only \\\" and \\\\ may be escaped in " + std::string(token));
      out += next;
      ++i;
      continue;
    }
    if (c == '"')
      throw scenario_error("stray quote in " + std::string(token));
    out += c;
  }
  return out;
}

long parse_long(std::string_view token, const char* what) {
  if (auto n = parse_number(token))
    return *n;
  throw scenario_error(std::string("bad ") + what + " " + std::string(token));
}

scenario_value parse_value(std::string_view token) {
  scenario_value v;
  if (!token.empty() && token.front() == '"') {
    v.is_string = true;
    v.text = unquote(token);
    return v;
  }
  if (auto n = parse_number(token)) {
    v.number = *n;
    return v;
  }
  if (token.rfind("CID_", 0) == 0) {
    if (auto id = parse_contents_id(token)) {
      v.number = *id;
      return v;
    }
    throw scenario_error("unknown contents id " + std::string(token));
  }
  throw scenario_error("bad value " + std::string(token));
}

std::vector<unsigned long> parse_path(std::string_view token) {
  std::vector<unsigned long> nodes;
  std::size_t start = 0;
  for (;;) {
    const std::size_t dot = token.find('.', start);
    const std::string_view part =
        token.substr(start, dot == std::string_view::npos ? std::string_view::npos : dot - start);
    bool digits = !part.empty();
    for (char c : part)
      digits = digits && c >= '0' && c <= '9';
    if (!digits || part.size() > 10)
      throw scenario_error("bad path " + std::string(token));
    nodes.push_back(std::stoul(std::string(part)));
    if (dot == std::string_view::npos)
      break;
    start = dot + 1;
  }
  if (nodes.front() != 0)
    throw scenario_error("a path starts at 0: " + std::string(token));
  return nodes;
}

std::string dotted(const std::vector<unsigned long>& nodes) {
  std::string out;
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (i != 0)
      out += '.';
    out += std::to_string(nodes[i]);
  }
  return out;
}

std::pair<std::string, std::string> split_entry(std::string_view token) {
  const std::size_t eq = token.find('=');
  if (eq == std::string_view::npos || eq == 0 || eq + 1 == token.size())
    throw scenario_error("expected <node>=<value>, found " + std::string(token));
  return {std::string(token.substr(0, eq)), std::string(token.substr(eq + 1))};
}

namespace {

using entry = std::pair<std::vector<unsigned long>, scenario_value>;

dvc_pnl_cmm_key key_of(const std::vector<unsigned long>& nodes, std::size_t len) {
  dvc_pnl_cmm_key key;
  for (std::size_t i = 0; i < len; ++i)
    key.dvc_pnl_cmm_add_key(nodes[i]);
  return key;
}

// Stores entries that share their first `len - 1` nodes under keys of `len` nodes.
void build_level(const std::vector<const entry*>& entries, std::size_t len,
                 dvc_pnl_cmm_valueset& out) {
  std::map<std::vector<unsigned long>, std::vector<const entry*>> groups;
  for (const entry* e : entries)
    groups[std::vector<unsigned long>(e->first.begin(), e->first.begin() + len)].push_back(e);
  for (const auto& [prefix, members] : groups) {
    const entry* leaf = nullptr;
    std::vector<const entry*> deeper;
    for (const entry* e : members) {
      if (e->first.size() == len) {
        if (leaf != nullptr)
          throw scenario_error("path given twice: " + dotted(e->first));
        leaf = e;
      } else {
        deeper.push_back(e);
      }
    }
    if (leaf != nullptr && !deeper.empty())
      throw scenario_error("path " + dotted(leaf->first) + " is a leaf and the prefix of " +
                           dotted(deeper.front()->first));
    if (leaf != nullptr) {
      out.dvc_pnl_cmm_set_value(key_of(prefix, len), leaf->second.to_cmm());
      continue;
    }
    dvc_pnl_cmm_valueset nested;
    build_level(deeper, len + 1, nested);
    out.dvc_pnl_cmm_set_valueset(key_of(prefix, len), nested);
  }
}

bool is_prefix(const dvc_pnl_cmm_key& key, const std::vector<unsigned long>& nodes) {
  if (key.size() > nodes.size())
    return false;
  for (std::size_t i = 0; i < key.size(); ++i) {
    if (key[i] != nodes[i])
      return false;
  }
  return true;
}

}  // namespace

dvc_pnl_cmm_valueset build_valueset(const std::vector<entry>& entries, std::size_t top_len) {
  std::vector<const entry*> all;
  for (const entry& e : entries) {
    if (e.first.size() < top_len)
      throw scenario_error("path " + dotted(e.first) + " is too short here");
    all.push_back(&e);
  }
  dvc_pnl_cmm_valueset out;
  build_level(all, top_len, out);
  return out;
}

bool find_in_valueset(const dvc_pnl_cmm_valueset& set, const std::vector<unsigned long>& nodes,
                      dvc_pnl_cmm_value& out) {
  dvc_pnl_cmm_valueset_iterator it;
  if (set.dvc_pnl_cmm_iterator(it) != 0)
    return false;
  while (it.dvc_pnl_cmm_next_one() != 0) {
    dvc_pnl_cmm_key key;
    dvc_pnl_cmm_value value;
    if (it.dvc_pnl_cmm_get_key(key) != 0 || it.dvc_pnl_cmm_get_value(value) != 0)
      continue;
    if (!is_prefix(key, nodes))
      continue;
    if (key.size() == nodes.size()) {
      out = value;
      return true;
    }
    dvc_pnl_cmm_valueset nested;
    if (value.dvc_pnl_cmm_get_valueset(nested) == 0 && find_in_valueset(nested, nodes, out))
      return true;
  }
  return false;
}

bool value_matches(const dvc_pnl_cmm_value& actual, const scenario_value& expected) {
  if (expected.is_string) {
    const char* s = nullptr;
    return actual.dvc_pnl_cmm_get_string(s) == 0 && s != nullptr && expected.text == s;
  }
  long n = 0;
  return actual.dvc_pnl_cmm_get_int(n) == 0 && n == expected.number;
}

std::string describe(const dvc_pnl_cmm_value& value) {
  long n = 0;
  const char* s = nullptr;
  dvc_pnl_cmm_binary b;
  dvc_pnl_cmm_valueset set;
  if (value.dvc_pnl_cmm_get_int(n) == 0)
    return std::to_string(n);
  if (value.dvc_pnl_cmm_get_string(s) == 0 && s != nullptr)
    return "\"" + std::string(s) + "\"";
  if (value.dvc_pnl_cmm_get_binary(b) == 0) {
    unsigned char* data = nullptr;
    unsigned long length = 0;
    b.dvc_pnl_cmm_get_data(data, length);
    return "a binary of " + std::to_string(length) + " bytes";
  }
  if (value.dvc_pnl_cmm_get_valueset(set) == 0)
    return "a value set of " + std::to_string(set.dvc_pnl_cmm_size()) + " entries";
  return "nothing";
}

}  // namespace orvanta::sim
