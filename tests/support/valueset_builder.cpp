// Test support: builds nested value sets from dotted paths and prints them for test failures.
#include "support/valueset_builder.h"

#include <charconv>
#include <cstdio>
#include <map>
#include <stdexcept>

namespace orvanta::test {

namespace {

// Sets up a value through the value layer; a failure here is a broken test set-up.
void must(int ret, const char* what) {
  if (ret != DVC_PNL_CMM_OK) {
    throw std::runtime_error(std::string("value layer refused ") + what + ", code " +
                             std::to_string(ret));
  }
}

std::vector<unsigned long> parse_path(std::string_view dotted) {
  if (dotted.empty())
    throw std::invalid_argument("empty path");
  std::vector<unsigned long> nodes;
  std::size_t start = 0;
  while (true) {
    std::size_t dot = dotted.find('.', start);
    std::string_view part = dotted.substr(start, dot == std::string_view::npos ? dot : dot - start);
    unsigned long node = 0;
    auto [end, ec] = std::from_chars(part.data(), part.data() + part.size(), node);
    if (part.empty() || ec != std::errc() || end != part.data() + part.size()) {
      throw std::invalid_argument("bad path \"" + std::string(dotted) + "\"");
    }
    nodes.push_back(node);
    if (dot == std::string_view::npos)
      break;
    start = dot + 1;
  }
  return nodes;
}

dvc_pnl_cmm_key key_from(const std::vector<unsigned long>& nodes, std::size_t len) {
  dvc_pnl_cmm_key key;
  for (std::size_t i = 0; i < len; ++i)
    must(key.dvc_pnl_cmm_add_key(nodes[i]), "add_key");
  return key;
}

struct parsed_entry {
  std::vector<unsigned long> nodes;
  const dvc_pnl_cmm_value* value;
  const std::string* path;
};

// Stores the entries, all of which share their first `len - 1` elements, as the entries of
// `out` with keys of `len` elements.
void build_level(const std::vector<const parsed_entry*>& entries, std::size_t len,
                 dvc_pnl_cmm_valueset& out) {
  std::map<std::vector<unsigned long>, std::vector<const parsed_entry*>> groups;
  for (const parsed_entry* e : entries) {
    groups[std::vector<unsigned long>(e->nodes.begin(), e->nodes.begin() + len)].push_back(e);
  }
  for (const auto& [prefix, members] : groups) {
    dvc_pnl_cmm_key key = key_from(prefix, len);
    const parsed_entry* leaf_here = nullptr;
    std::vector<const parsed_entry*> deeper;
    for (const parsed_entry* e : members) {
      if (e->nodes.size() == len) {
        if (leaf_here != nullptr)
          throw std::invalid_argument("path given twice: " + *e->path);
        leaf_here = e;
      } else {
        deeper.push_back(e);
      }
    }
    if (leaf_here != nullptr && !deeper.empty()) {
      throw std::invalid_argument("path " + *leaf_here->path + " is a leaf and the prefix of " +
                                  *deeper.front()->path);
    }
    if (leaf_here != nullptr) {
      must(out.dvc_pnl_cmm_set_value(key, *leaf_here->value), "set_value");
    } else {
      dvc_pnl_cmm_valueset nested;
      build_level(deeper, len + 1, nested);
      must(out.dvc_pnl_cmm_set_valueset(key, nested), "set_valueset");
    }
  }
}

std::string quoted(const char* s) {
  std::string out = "\"";
  for (const char* p = s; *p != '\0'; ++p) {
    unsigned char c = static_cast<unsigned char>(*p);
    if (c == '"' || c == '\\') {
      out += '\\';
      out += static_cast<char>(c);
    } else if (c < 0x20 || c >= 0x7f) {
      char buf[8];
      std::snprintf(buf, sizeof buf, "\\x%02x", c);
      out += buf;
    } else {
      out += static_cast<char>(c);
    }
  }
  return out + "\"";
}

void dump_value(const dvc_pnl_cmm_value& value, int indent, std::string& out);

void dump_entries(const dvc_pnl_cmm_valueset& set, int indent, std::string& out) {
  dvc_pnl_cmm_valueset_iterator it;
  set.dvc_pnl_cmm_iterator(it);
  while (it.dvc_pnl_cmm_next_one() != 0) {
    dvc_pnl_cmm_key key;
    dvc_pnl_cmm_value value;
    it.dvc_pnl_cmm_get_key(key);
    it.dvc_pnl_cmm_get_value(value);
    out.append(static_cast<std::size_t>(indent) * 2, ' ');
    out += key.to_dotted();
    out += " = ";
    dump_value(value, indent, out);
    out += '\n';
  }
}

// The value on the current line; a nested set continues on the lines below.
void dump_value(const dvc_pnl_cmm_value& value, int indent, std::string& out) {
  NAME_SPACE_NODE_TYPE type{};
  if (value.dvc_pnl_cmm_get_type(type) != DVC_PNL_CMM_OK) {
    out += "<nothing>";
    return;
  }
  switch (type) {
    case NODE_TYPE_INTEGER: {
      long v = 0;
      if (value.dvc_pnl_cmm_get_int(v) == DVC_PNL_CMM_OK) {
        out += std::to_string(v);
      } else {
        out += "<unreadable int>";
      }
      return;
    }
    case NODE_TYPE_STRING: {
      const char* v = nullptr;
      if (value.dvc_pnl_cmm_get_string(v) == DVC_PNL_CMM_OK && v != nullptr) {
        out += quoted(v);
      } else {
        out += "<unreadable string>";
      }
      return;
    }
    case NODE_TYPE_BINARY: {
      dvc_pnl_cmm_binary v;
      if (value.dvc_pnl_cmm_get_binary(v) != DVC_PNL_CMM_OK) {
        out += "<unreadable binary>";
        return;
      }
      out += "bytes[" + std::to_string(v.bytes().size()) + "]";
      for (unsigned char b : v.bytes()) {
        char buf[4];
        std::snprintf(buf, sizeof buf, " %02x", b);
        out += buf;
      }
      return;
    }
    case NODE_TYPE_VALUESET: {
      dvc_pnl_cmm_valueset v;
      if (value.dvc_pnl_cmm_get_valueset(v) != DVC_PNL_CMM_OK) {
        out += "<unreadable set>";
        return;
      }
      if (v.dvc_pnl_cmm_size() == 0) {
        out += "{}";
        return;
      }
      out += "{\n";
      dump_entries(v, indent + 1, out);
      out.append(static_cast<std::size_t>(indent) * 2, ' ');
      out += '}';
      return;
    }
  }
  out += "<kind " + std::to_string(static_cast<int>(type)) + ">";
}

}  // namespace

leaf::leaf(long v) {
  must(value_.dvc_pnl_cmm_set_int(v), "set_int");
}
leaf::leaf(int v) : leaf(static_cast<long>(v)) {}
leaf::leaf(const char* v) {
  if (v == nullptr)
    throw std::invalid_argument("NULL string leaf");
  must(value_.dvc_pnl_cmm_set_string(v), "set_string");
}
leaf::leaf(const std::string& v) : leaf(v.c_str()) {}
leaf::leaf(const bytes& v) {
  dvc_pnl_cmm_binary blob;
  const unsigned long length = v.size();
  must(blob.dvc_pnl_cmm_set_data(v.data(), length), "set_data");
  must(value_.dvc_pnl_cmm_set_binary(blob), "set_binary");
}
leaf::leaf(const dvc_pnl_cmm_valueset& v) {
  must(value_.dvc_pnl_cmm_set_valueset(v), "set_valueset");
}

dvc_pnl_cmm_key key_of(std::string_view dotted) {
  std::vector<unsigned long> nodes = parse_path(dotted);
  return key_from(nodes, nodes.size());
}

std::vector<unsigned long> nodes_of(std::string_view dotted) {
  return parse_path(dotted);
}

dvc_pnl_cmm_valueset make_valueset(const std::vector<entry>& entries, std::size_t top_len) {
  std::vector<parsed_entry> parsed;
  parsed.reserve(entries.size());
  std::size_t shortest = 0;
  for (const entry& e : entries) {
    parsed.push_back({parse_path(e.path), &e.value.value(), &e.path});
    std::size_t n = parsed.back().nodes.size();
    if (shortest == 0 || n < shortest)
      shortest = n;
  }
  const std::size_t len = top_len == 0 ? shortest : top_len;
  std::vector<const parsed_entry*> all;
  for (const parsed_entry& p : parsed) {
    if (p.nodes.size() < len) {
      throw std::invalid_argument("path " + *p.path + " is shorter than the top level of " +
                                  std::to_string(len) + " elements");
    }
    all.push_back(&p);
  }
  dvc_pnl_cmm_valueset out;
  build_level(all, len, out);
  return out;
}

std::string dump(const dvc_pnl_cmm_valueset& set) {
  if (set.dvc_pnl_cmm_size() == 0)
    return "{}\n";
  std::string out;
  dump_entries(set, 0, out);
  return out;
}

std::string dump(const dvc_pnl_cmm_value& value) {
  std::string out;
  dump_value(value, 0, out);
  return out;
}

::testing::AssertionResult sets_equal(const dvc_pnl_cmm_valueset& actual,
                                      const dvc_pnl_cmm_valueset& expected) {
  if (actual.equals(expected))
    return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "value sets differ\nactual:\n"
                                       << dump(actual) << "expected:\n"
                                       << dump(expected);
}

}  // namespace orvanta::test

namespace orvanta {

void PrintTo(const dvc_pnl_cmm_valueset& set, std::ostream* os) {
  *os << test::dump(set);
}

void PrintTo(const dvc_pnl_cmm_value& value, std::ostream* os) {
  *os << test::dump(value);
}

void PrintTo(const dvc_pnl_cmm_key& key, std::ostream* os) {
  *os << '(' << key.to_dotted() << ')';
}

}  // namespace orvanta
