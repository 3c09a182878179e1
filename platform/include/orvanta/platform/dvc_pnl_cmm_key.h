// Command node key: the path of node ids from ROOT that addresses one node of the machine.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace orvanta {

class dvc_pnl_cmm_key {
 public:
  dvc_pnl_cmm_key() = default;

  // Appends one node id.
  int dvc_pnl_cmm_add_key(const unsigned long& node);
  // Empties the sequence.
  int dvc_pnl_cmm_clear();
  // Replaces the sequence with that of `other`.
  int dvc_pnl_cmm_copy(const dvc_pnl_cmm_key& other);

  // Read access for the host side (simulated machine, tests, logs).
  std::size_t size() const { return nodes_.size(); }
  bool empty() const { return nodes_.empty(); }
  unsigned long operator[](std::size_t i) const { return nodes_[i]; }
  const std::vector<unsigned long>& nodes() const { return nodes_; }
  // Dotted form, "0.938.959"; empty for an empty key.
  std::string to_dotted() const;

  friend bool operator==(const dvc_pnl_cmm_key& a, const dvc_pnl_cmm_key& b) {
    return a.nodes_ == b.nodes_;
  }
  friend bool operator<(const dvc_pnl_cmm_key& a, const dvc_pnl_cmm_key& b) {
    return a.nodes_ < b.nodes_;
  }

 private:
  std::vector<unsigned long> nodes_;
};

}  // namespace orvanta
