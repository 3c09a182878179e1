// Error occurrence: opening and closing the error screens of a function, and the judgement of
// whether one more destination still fits a job.
#pragma once

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta {

// LED that shows an error.
inline constexpr int DVC_PNL_CEH_LED_ERROR = 8;
// Functions whose error state close_error_contents looks at.
inline constexpr int DVC_PNL_CEH_ERROR_FUNC_FIRST = 1;
inline constexpr int DVC_PNL_CEH_ERROR_FUNC_LAST = 35;

// Opens the error screen that the error table names for the error id in `event` (0.1080.1081) on
// the alert layer of `function`, replacing what stood there, with the row's buzzer and LED 8
// status. An id without a row opens contents 1, silent, with LED status 1. 0, or 3 when the page
// stack refuses.
int dvc_pnl_ceh_contents_hdl_open_error_contents(const int& function,
                                                 const dvc_pnl_cmm_valueset& event);
// Clears the alert layer of `function` and silences the buzzer; LED 8 goes off unless some
// function still has its error state set. 0, or 3 when the page stack refuses.
int dvc_pnl_ceh_contents_hdl_close_error_contents(const int& function,
                                                  const dvc_pnl_cmm_valueset& event);

// Judges destination sizes with the new destination counted in: `b` against 100 and, when `d` is
// 1 or 2, `c` against 5. 0 both fit, 1 only `c` is over, 2 only `b` is over, 3 both.
int dvc_pnl_ceh_contents_hdl_get_error_occurrence(long a, long b, long c, long d);
// Reads the destination sizes of `function` and judges them with one contact (`kind` 1, `sub`
// its kind) or the group `number` (`kind` 2) added. Any other kind answers 0 without reading.
int dvc_pnl_ceh_contents_hdl_judge_error_occurrence(long kind, long number, long sub, int function);

}  // namespace orvanta
