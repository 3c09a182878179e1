// Host data manager: the four scopes in memory, with page scope tied to the page stack.
#pragma once

#include <map>
#include <string>
#include <tuple>

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

  // Inspection for tests and the simulator.
  std::size_t page_entry_count(int function, int contents_id) const;
  std::size_t function_entry_count(int function) const;
  std::size_t application_entry_count() const { return application_.size(); }

 private:
  host_data_manager();
  bool fault(dm_op op) const;

  using page_addr = std::tuple<int, int, std::string>;  // function, contents id, key
  using function_addr = std::tuple<int, std::string>;   // function, key
  using cross_addr = std::tuple<int, std::string>;      // contents id, key
  std::map<page_addr, dvc_pnl_cmm_value> page_;
  std::map<function_addr, dvc_pnl_cmm_value> function_;
  std::map<std::string, dvc_pnl_cmm_value> application_;
  std::map<cross_addr, dvc_pnl_cmm_value> cross_;
  mutable int armed_[3] = {0, 0, 0};
};

}  // namespace orvanta::host
