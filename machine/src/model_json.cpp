// Reads a model file (JSON) into nodes, lists and fixed answers, checking everything before any
// of it is used.
#include <limits>
#include <stdexcept>

#include <nlohmann/json.hpp>

#include "machine_internal.h"

namespace orvanta::machine::detail {
namespace {

using nlohmann::json;

[[noreturn]] void fail(const std::string& what) {
  throw std::runtime_error(what);
}

path node_path(const std::string& text, const std::string& where) {
  std::optional<path> p = parse_path(text);
  if (!p || p->empty() || (*p)[0] != 0)
    fail(where + ": \"" + text + "\" is not a node path from ROOT (0.x.y...)");
  return *p;
}

int hex_digit(char c) {
  if (c >= '0' && c <= '9')
    return c - '0';
  if (c >= 'a' && c <= 'f')
    return c - 'a' + 10;
  if (c >= 'A' && c <= 'F')
    return c - 'A' + 10;
  return -1;
}

dvc_pnl_cmm_binary binary_of(const std::string& hex, const std::string& where) {
  if (hex.size() % 2 != 0)
    fail(where + ": binary \"" + hex + "\" has an odd number of hex digits");
  std::vector<unsigned char> bytes;
  for (std::size_t i = 0; i < hex.size(); i += 2) {
    const int hi = hex_digit(hex[i]);
    const int lo = hex_digit(hex[i + 1]);
    if (hi < 0 || lo < 0)
      fail(where + ": binary \"" + hex + "\" holds a character that is not a hex digit");
    bytes.push_back(static_cast<unsigned char>(hi * 16 + lo));
  }
  dvc_pnl_cmm_binary b;
  if (b.dvc_pnl_cmm_set_data(bytes.data(), bytes.size()) != 0)
    fail(where + ": value layer refused a binary");
  return b;
}

// A leaf: an integer, a string, or {"binary": "<hex>"}.
dvc_pnl_cmm_value leaf_of(const json& j, const std::string& where) {
  dvc_pnl_cmm_value v;
  int ret = 0;
  if (j.is_number_integer()) {
    if (j.is_number_unsigned() &&
        j.get<unsigned long long>() >
            static_cast<unsigned long long>(std::numeric_limits<long>::max())) {
      fail(where + ": integer out of range");
    }
    ret = v.dvc_pnl_cmm_set_int(j.get<long>());
  } else if (j.is_string()) {
    ret = v.dvc_pnl_cmm_set_string(j.get<std::string>().c_str());
  } else if (j.is_object() && j.size() == 1 && j.contains("binary") && j["binary"].is_string()) {
    ret = v.dvc_pnl_cmm_set_binary(binary_of(j["binary"].get<std::string>(), where));
  } else {
    fail(where + ": a value must be an integer, a string or {\"binary\": \"<hex>\"}");
  }
  if (ret != 0)
    fail(where + ": value layer refused the value");
  return v;
}

long header_value(const json& j, const std::string& where) {
  if (!j.is_number_integer())
    fail(where + ": header values must be integers");
  return j.get<long>();
}

list_data list_of(const json& j, const std::string& where) {
  if (!j.is_object())
    fail(where + ": a list must be an object with \"rows\" and an optional \"header\"");
  list_data list;
  for (const auto& [name, item] : j.items()) {
    if (name == "header") {
      if (!item.is_array() || item.size() != 2)
        fail(where + ": \"header\" must be two integers (nodes 1337 and 1524)");
      list.header_1337 = header_value(item[0], where);
      list.header_1524 = header_value(item[1], where);
    } else if (name == "rows") {
      if (!item.is_array())
        fail(where + ": \"rows\" must be an array");
      for (std::size_t i = 0; i < item.size(); ++i) {
        const std::string row_where = where + " row " + std::to_string(i);
        const json& row = item[i];
        if (!row.is_object())
          fail(row_where + ": a row must be an object of field node -> value");
        list_row r;
        for (const auto& [field, value] : row.items()) {
          std::optional<path> id = parse_path(field);
          if (!id || id->size() != 1)
            fail(row_where + ": field \"" + field + "\" is not a node number");
          r.fields[(*id)[0]] = leaf_of(value, row_where + " field " + field);
        }
        list.rows.push_back(std::move(r));
      }
    } else {
      fail(where + ": unknown member \"" + name + "\"");
    }
  }
  return list;
}

// The entries of one fixed answer: response path below the command -> leaf value.
answer_data answer_of(const json& j, const std::string& where) {
  if (!j.is_object())
    fail(where + ": an answer must be an object of response path -> value");
  answer_data entries;
  for (const auto& [rel, value] : j.items()) {
    std::optional<path> p = parse_path(rel);
    if (!p)
      fail(where + ": \"" + rel +
           "\" is not a response path below the command (1484, 1501.0.1365)");
    entries.emplace_back(*p, leaf_of(value, where + " entry " + rel));
  }
  if (std::string overlap = answer_overlap(entries); !overlap.empty())
    fail(where + ": " + overlap);
  return entries;
}

long integer_of(const json& j, const std::string& where) {
  if (!j.is_number_integer() ||
      (j.is_number_unsigned() &&
       j.get<unsigned long long>() >
           static_cast<unsigned long long>(std::numeric_limits<long>::max()))) {
    fail(where + ": must be an integer within long");
  }
  return j.get<long>();
}

// {"kind": 5, "first": 2, "second": 7}; "first" and "second" default to 0.
lock_record lock_of(const json& j, const std::string& where) {
  if (!j.is_object() || !j.contains("kind"))
    fail(where + ": a lock must be an object with \"kind\" and optional \"first\", \"second\"");
  lock_record r{0, 0, 0};
  for (const auto& [name, item] : j.items()) {
    if (name == "kind")
      r.kind = integer_of(item, where + " kind");
    else if (name == "first")
      r.first = integer_of(item, where + " first");
    else if (name == "second")
      r.second = integer_of(item, where + " second");
    else
      fail(where + ": unknown member \"" + name + "\"");
  }
  return r;
}

// Six integers: contents id, buzzer pattern, LED status, open flag, error code, platform word.
DVC_PNL_CMN_ERROR_TABLE_ROW error_row_of(const json& j, const std::string& where) {
  if (!j.is_array() || j.size() != 6)
    fail(where + ": an error table row must be six integers");
  int words[6];
  for (std::size_t i = 0; i < 6; ++i) {
    const long v = integer_of(j[i], where);
    if (v < std::numeric_limits<int>::min() || v > std::numeric_limits<int>::max())
      fail(where + ": error table values must fit an int");
    words[i] = static_cast<int>(v);
  }
  return {words[0], words[1], words[2], words[3], words[4], words[5]};
}

}  // namespace

model parse_model(const std::string& text) {
  json doc;
  try {
    doc = json::parse(text);
  } catch (const json::exception& e) {
    fail(std::string("model file is not valid JSON: ") + e.what());
  }
  if (!doc.is_object())
    fail("model file must be a JSON object");
  model m;
  for (const auto& [name, item] : doc.items()) {
    if (name == "nodes") {
      if (!item.is_object())
        fail("\"nodes\" must be an object of node path -> value");
      for (const auto& [p, value] : item.items()) {
        const std::string where = "node " + p;
        m.nodes.emplace_back(node_path(p, where), leaf_of(value, where));
      }
    } else if (name == "lists") {
      if (!item.is_object())
        fail("\"lists\" must be an object of command path -> list");
      for (const auto& [p, value] : item.items()) {
        const std::string where = "list " + p;
        m.lists[to_dotted(node_path(p, where))] = list_of(value, where);
      }
    } else if (name == "answers") {
      if (!item.is_object())
        fail("\"answers\" must be an object of command path -> answer");
      for (const auto& [p, value] : item.items()) {
        const std::string where = "answer " + p;
        m.answers[to_dotted(node_path(p, where))] = answer_of(value, where);
      }
    } else if (name == "locks") {
      if (!item.is_array())
        fail("\"locks\" must be an array of locks other panels hold");
      for (std::size_t i = 0; i < item.size(); ++i)
        m.locks.push_back(lock_of(item[i], "lock " + std::to_string(i)));
    } else if (name == "error_table") {
      if (!item.is_array())
        fail("\"error_table\" must be an array of rows");
      std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW> rows;
      for (std::size_t i = 0; i < item.size(); ++i)
        rows.push_back(error_row_of(item[i], "error table row " + std::to_string(i)));
      m.error_table = std::move(rows);
    } else if (name == "replace") {
      if (!item.is_boolean())
        fail("\"replace\" must be true or false");
      m.replace = item.get<bool>();
    } else {
      fail("unknown member \"" + name +
           "\" (expected nodes, lists, answers, locks, error_table, replace)");
    }
  }
  // A command has one handler.
  for (const auto& [command, entries] : m.answers) {
    if (m.lists.count(command) != 0)
      fail("answer " + command + ": the command is a list too");
  }
  return m;
}

}  // namespace orvanta::machine::detail
