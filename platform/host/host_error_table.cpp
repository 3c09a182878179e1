// Host error table: the rows behind dvc_pnl_cmn_error_table, sample data unless replaced.
#include "orvanta/host/error_table.h"

namespace orvanta {
namespace host {
namespace {

// SAMPLE DATA, not the codes of any real machine: a few error codes on the error screens the
// panel has, so that the simulator shows something when the machine reports them.
// contents id, buzzer, LED 8 status, open flag, error code, platform word.
const std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW>& sample_rows() {
  static const std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW> rows = {
      {1765, 7, 2, 0, 1001, 0},  // CID_09_01_N1
      {1766, 7, 2, 0, 1002, 0},  // CID_09_01_N2
      {1814, 7, 1, 0, 2001, 0},  // CID_09_02_N2
      {1832, 2, 1, 0, 3001, 0},  // CID_09_04_N1
  };
  return rows;
}

std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW>& rows_in_force() {
  static std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW> rows = sample_rows();
  return rows;
}

}  // namespace

void set_error_table(std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW> rows) {
  rows_in_force() = std::move(rows);
  dvc_pnl_cmn_error_table = rows_in_force().data();
  DVC_PNL_CMN_ERROR_TABLE_SIZE = static_cast<int>(rows_in_force().size());
}

void reset_error_table() {
  set_error_table(sample_rows());
}

const std::vector<DVC_PNL_CMN_ERROR_TABLE_ROW>& error_table_rows() {
  return rows_in_force();
}

}  // namespace host

const DVC_PNL_CMN_ERROR_TABLE_ROW* dvc_pnl_cmn_error_table = host::rows_in_force().data();
int DVC_PNL_CMN_ERROR_TABLE_SIZE = static_cast<int>(host::rows_in_force().size());

}  // namespace orvanta
