// The host's error table: sample rows by default, replaceable by tests and model files.
#pragma once

#include <vector>

#include "orvanta/platform/dvc_pnl_cmn_error_table.h"

namespace orvanta::host {

// Makes `rows` the table the panel reads (dvc_pnl_cmn_error_table and its size).
void set_error_table(std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW> rows);
// Back to the sample rows; host::reset() does this too.
void reset_error_table();
// The rows in force.
const std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW>& error_table_rows();

}  // namespace orvanta::host
