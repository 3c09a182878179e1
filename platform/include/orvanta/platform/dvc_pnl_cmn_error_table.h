// The machine's error table: which screen, buzzer and LED an error code brings up.
#pragma once

namespace orvanta {

// One row. The last word belongs to the platform; the panel does not read it.
struct DVC_PNL_CMN_ERROR_TABLE_ROW {
  int contents_id;     // the error screen to open
  int buzzer_pattern;  // sounded when the screen opens
  int led_status;      // status of LED 8 while the screen is up
  int open_flag;       // handed to the page stack with the open
  int error_code;      // the error id the machine reports
  int reserved;
};
static_assert(sizeof(DVC_PNL_CMN_ERROR_TABLE_ROW) == 24);

// Platform data: DVC_PNL_CMN_ERROR_TABLE_SIZE rows starting at dvc_pnl_cmn_error_table. The
// panel searches them from the top; it never writes them.
extern const DVC_PNL_CMN_ERROR_TABLE_ROW* dvc_pnl_cmn_error_table;
extern int DVC_PNL_CMN_ERROR_TABLE_SIZE;

}  // namespace orvanta
