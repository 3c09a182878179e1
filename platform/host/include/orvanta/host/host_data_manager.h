// Host data manager: the four scopes in memory, with page scope tied to the page stack.
#pragma once

#include <map>
#include <string>
#include <tuple>
#include <vector>

#include "orvanta/host/page_lifecycle.h"
#include "orvanta/platform/dvc_pnl_pdm_data_manager.h"

namespace orvanta::host {

// Manager calls that tests can make fail once.
enum class dm_op { get, set, remove };

class host_data_manager final : public dvc_pnl_pdm_data_manager, public page_listener {
 public:
  // Function ids the manager accepts.
  static constexpr int kFunctionMin = 0;
  static constexpr int kFunctionMax = 36;

  static host_data_manager& instance();

  int dvc_pnl_pdm_get_by_page_scope(const std::string& key, int function, int contents_id,
                                    dvc_pnl_cmm_value& value) const override;
  int dvc_pnl_pdm_set_by_page_scope(const std::string& key, int function, int contents_id,
                                    const dvc_pnl_cmm_value& value) override;
  int dvc_pnl_pdm_remove_by_page_scope(const std::string& key, int function,
                                       int contents_id) override;
  int dvc_pnl_pdm_get_by_function_scope(const std::string& key, int function,
                                        dvc_pnl_cmm_value& value) const override;
  int dvc_pnl_pdm_set_by_function_scope(const std::string& key, int function,
                                        const dvc_pnl_cmm_value& value) override;
  int dvc_pnl_pdm_remove_by_function_scope(const std::string& key, int function) override;
  int dvc_pnl_pdm_get_by_application_scope(const std::string& key,
                                           dvc_pnl_cmm_value& value) const override;
  int dvc_pnl_pdm_set_by_application_scope(const std::string& key,
                                           const dvc_pnl_cmm_value& value) override;
  int dvc_pnl_pdm_remove_by_application_scope(const std::string& key) override;
  int dvc_pnl_pdm_get_by_cross_function_scope(const std::string& key, int contents_id,
                                              dvc_pnl_cmm_value& value) const override;
  int dvc_pnl_pdm_set_by_cross_function_scope(const std::string& key, int contents_id,
                                              const dvc_pnl_cmm_value& value) override;
  int dvc_pnl_pdm_remove_by_cross_function_scope(const std::string& key, int contents_id) override;

  // A page that opens gets its PAGE_SCOPE_DATA_LABEL entry; a page that closes loses every page
  // scope entry it had.
  void page_opened(int function, int contents_id) override;
  void page_closed(int function, int contents_id) override;

  // Empties every scope and disarms injected failures (a fresh panel run).
  void reset();
  // The next call of `op` (any scope) fails once with a non-zero code.
  void fail_next(dm_op op);
  // The call of `op` numbered `index` (from 0, counted since the last reset) fails once; a fault
  // sweep arms the reads of a run one by one this way.
  void fail_call(dm_op op, std::size_t index);
  // Calls of `op` since the last reset, and, while log_reads is on (off until asked; a reset keeps
  // the setting), the keys of the first kReadKeysKept reads, in order.
  static constexpr std::size_t kReadKeysKept = 100000;
  void log_reads(bool on) { log_reads_ = on; }
  std::size_t call_count(dm_op op) const { return calls_[static_cast<int>(op)]; }
  const std::vector<std::string>& read_keys() const { return read_keys_; }

  // Inspection for tests and the simulator.
  std::size_t page_entry_count(int function, int contents_id) const;
  std::size_t function_entry_count(int function) const;
  std::size_t application_entry_count() const { return application_.size(); }

 private:
  host_data_manager();
  // Counts the call; true when it is the one armed to fail. Reads also log their key.
  bool fault(dm_op op, const std::string& key) const;

  using page_addr = std::tuple<int, int, std::string>;  // function, contents id, key
  using function_addr = std::tuple<int, std::string>;   // function, key
  using cross_addr = std::tuple<int, std::string>;      // contents id, key
  std::map<page_addr, dvc_pnl_cmm_value> page_;
  std::map<function_addr, dvc_pnl_cmm_value> function_;
  std::map<std::string, dvc_pnl_cmm_value> application_;
  std::map<cross_addr, dvc_pnl_cmm_value> cross_;
  mutable int armed_[3] = {0, 0, 0};
  // Index of the call to fail per operation; kNoCall when none is armed.
  static constexpr std::size_t kNoCall = static_cast<std::size_t>(-1);
  std::size_t fail_at_[3] = {kNoCall, kNoCall, kNoCall};
  mutable std::size_t calls_[3] = {0, 0, 0};
  mutable std::vector<std::string> read_keys_;
  bool log_reads_ = false;
};

}  // namespace orvanta::host
