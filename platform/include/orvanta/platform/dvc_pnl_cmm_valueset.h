// Value set: a map from full command key to value, and its forward iterator.
#pragma once

#include <map>

#include "orvanta/platform/dvc_pnl_cmm_binary.h"
#include "orvanta/platform/dvc_pnl_cmm_key.h"
#include "orvanta/platform/dvc_pnl_cmm_value.h"

namespace orvanta {

class dvc_pnl_cmm_valueset_iterator;

class dvc_pnl_cmm_valueset {
 public:
  dvc_pnl_cmm_valueset() = default;
  dvc_pnl_cmm_valueset(const dvc_pnl_cmm_valueset&) = default;
  dvc_pnl_cmm_valueset(dvc_pnl_cmm_valueset&&) noexcept = default;
  dvc_pnl_cmm_valueset& operator=(const dvc_pnl_cmm_valueset& other);
  dvc_pnl_cmm_valueset& operator=(dvc_pnl_cmm_valueset&&) noexcept = default;
  virtual ~dvc_pnl_cmm_valueset() = default;

  int dvc_pnl_cmm_copy(const dvc_pnl_cmm_valueset& other);
  int dvc_pnl_cmm_clear();
  // Number of direct entries.
  unsigned long dvc_pnl_cmm_size() const;
  // Non-zero when `key` has an entry.
  int dvc_pnl_cmm_is_contain(const dvc_pnl_cmm_key& key) const;
  // Fails when there is no entry under `key`.
  int dvc_pnl_cmm_remove_value(const dvc_pnl_cmm_key& key);

  int dvc_pnl_cmm_get_value(const dvc_pnl_cmm_key& key, dvc_pnl_cmm_value& out) const;
  int dvc_pnl_cmm_set_value(const dvc_pnl_cmm_key& key, const dvc_pnl_cmm_value& v);
  int dvc_pnl_cmm_get_int(const dvc_pnl_cmm_key& key, long& out) const;
  int dvc_pnl_cmm_set_int(const dvc_pnl_cmm_key& key, const long& v);
  // The pointer is owned by the set: valid while the set lives and is unchanged.
  int dvc_pnl_cmm_get_string(const dvc_pnl_cmm_key& key, const char*& out) const;
  int dvc_pnl_cmm_set_string(const dvc_pnl_cmm_key& key, const char* v);
  int dvc_pnl_cmm_get_binary(const dvc_pnl_cmm_key& key, dvc_pnl_cmm_binary& out) const;
  int dvc_pnl_cmm_set_binary(const dvc_pnl_cmm_key& key, const dvc_pnl_cmm_binary& v);
  int dvc_pnl_cmm_get_valueset(const dvc_pnl_cmm_key& key, dvc_pnl_cmm_valueset& out) const;
  int dvc_pnl_cmm_set_valueset(const dvc_pnl_cmm_key& key, const dvc_pnl_cmm_valueset& v);

  // Puts `it` before the first entry of this set.
  int dvc_pnl_cmm_iterator(dvc_pnl_cmm_valueset_iterator& it) const;

  // Deep comparison of two sets.
  bool equals(const dvc_pnl_cmm_valueset& other) const;

 private:
  friend class dvc_pnl_cmm_valueset_iterator;
  int store(const dvc_pnl_cmm_key& key, dvc_pnl_cmm_value&& v);
  const dvc_pnl_cmm_value* find(const dvc_pnl_cmm_key& key) const;

  std::map<dvc_pnl_cmm_key, dvc_pnl_cmm_value> entries_;
};

// Forward cursor over the direct entries of a set. The set must outlive the cursor and stay
// unchanged while it is used.
class dvc_pnl_cmm_valueset_iterator {
 public:
  dvc_pnl_cmm_valueset_iterator() = default;
  virtual ~dvc_pnl_cmm_valueset_iterator() = default;

  // Moves to the next entry; non-zero while an entry is there.
  int dvc_pnl_cmm_next_one();
  int dvc_pnl_cmm_get_value(dvc_pnl_cmm_value& out) const;
  // The full key of the current entry.
  int dvc_pnl_cmm_get_key(dvc_pnl_cmm_key& out) const;

 private:
  friend class dvc_pnl_cmm_valueset;
  using map_type = std::map<dvc_pnl_cmm_key, dvc_pnl_cmm_value>;
  const map_type* entries_ = nullptr;
  map_type::const_iterator pos_{};
  bool started_ = false;
};

}  // namespace orvanta
