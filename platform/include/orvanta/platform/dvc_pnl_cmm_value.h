// Variant value of the command layer: integer, string, binary or value set, or nothing.
#pragma once

#include <memory>
#include <string>
#include <variant>

#include "orvanta/platform/dvc_pnl_cmm_binary.h"

namespace orvanta {

// The four kinds a value can hold.
enum NAME_SPACE_NODE_TYPE : int {
  NODE_TYPE_INTEGER = 0,
  NODE_TYPE_STRING = 1,
  NODE_TYPE_BINARY = 2,
  NODE_TYPE_VALUESET = 3,
};

class dvc_pnl_cmm_valueset;

class dvc_pnl_cmm_value {
 public:
  dvc_pnl_cmm_value();
  dvc_pnl_cmm_value(const dvc_pnl_cmm_value& other);
  dvc_pnl_cmm_value(dvc_pnl_cmm_value&& other) noexcept;
  dvc_pnl_cmm_value& operator=(const dvc_pnl_cmm_value& other);
  dvc_pnl_cmm_value& operator=(dvc_pnl_cmm_value&& other) noexcept;
  virtual ~dvc_pnl_cmm_value();

  // Replaces the content with a deep copy of `other`.
  int dvc_pnl_cmm_copy(const dvc_pnl_cmm_value& other);

  int dvc_pnl_cmm_get_int(long& out) const;
  // The pointer is owned by the value: valid while the value lives and is unchanged.
  int dvc_pnl_cmm_get_string(const char*& out) const;
  int dvc_pnl_cmm_get_binary(dvc_pnl_cmm_binary& out) const;
  int dvc_pnl_cmm_get_valueset(dvc_pnl_cmm_valueset& out) const;

  int dvc_pnl_cmm_set_int(const long& v);
  int dvc_pnl_cmm_set_string(const char* v);
  int dvc_pnl_cmm_set_binary(const dvc_pnl_cmm_binary& v);
  int dvc_pnl_cmm_set_valueset(const dvc_pnl_cmm_valueset& v);

  // Back to holding nothing.
  int dvc_pnl_cec_clear();

  // Host-side inspection: the kind held; non-zero when the value holds nothing.
  int dvc_pnl_cmm_get_type(NAME_SPACE_NODE_TYPE& out) const;
  bool empty() const { return data_.index() == 0; }
  // Deep comparison (same kind, same content).
  bool equals(const dvc_pnl_cmm_value& other) const;

 private:
  using set_ptr = std::unique_ptr<dvc_pnl_cmm_valueset>;
  std::variant<std::monostate, long, std::string, dvc_pnl_cmm_binary, set_ptr> data_;
};

}  // namespace orvanta
