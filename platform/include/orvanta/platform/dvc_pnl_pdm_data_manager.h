// Panel data manager: string-keyed values in page, function, application and cross-function scope.
#pragma once

#include <string>

#include "orvanta/platform/dvc_pnl_cmm_value.h"

namespace orvanta {

// Every operation answers 0 on success; a read of an address with no entry answers non-zero.
// Reads are const and hand a deep copy to the caller; a set replaces what was there.
class dvc_pnl_pdm_data_manager {
 public:
  static dvc_pnl_pdm_data_manager* dvc_pnl_pdm_get_instance();

  virtual ~dvc_pnl_pdm_data_manager() = default;

  virtual int dvc_pnl_pdm_get_by_page_scope(const std::string& key, int function, int contents_id,
                                            dvc_pnl_cmm_value& value) const = 0;
  virtual int dvc_pnl_pdm_set_by_page_scope(const std::string& key, int function, int contents_id,
                                            const dvc_pnl_cmm_value& value) = 0;
  virtual int dvc_pnl_pdm_remove_by_page_scope(const std::string& key, int function,
                                               int contents_id) = 0;

  virtual int dvc_pnl_pdm_get_by_function_scope(const std::string& key, int function,
                                                dvc_pnl_cmm_value& value) const = 0;
  virtual int dvc_pnl_pdm_set_by_function_scope(const std::string& key, int function,
                                                const dvc_pnl_cmm_value& value) = 0;
  virtual int dvc_pnl_pdm_remove_by_function_scope(const std::string& key, int function) = 0;

  virtual int dvc_pnl_pdm_get_by_application_scope(const std::string& key,
                                                   dvc_pnl_cmm_value& value) const = 0;
  virtual int dvc_pnl_pdm_set_by_application_scope(const std::string& key,
                                                   const dvc_pnl_cmm_value& value) = 0;
  virtual int dvc_pnl_pdm_remove_by_application_scope(const std::string& key) = 0;

  virtual int dvc_pnl_pdm_get_by_cross_function_scope(const std::string& key, int contents_id,
                                                      dvc_pnl_cmm_value& value) const = 0;
  virtual int dvc_pnl_pdm_set_by_cross_function_scope(const std::string& key, int contents_id,
                                                      const dvc_pnl_cmm_value& value) = 0;
  virtual int dvc_pnl_pdm_remove_by_cross_function_scope(const std::string& key,
                                                         int contents_id) = 0;
};

}  // namespace orvanta
