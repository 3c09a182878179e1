// Setting transactions for screens that hold no transaction object.
#pragma once

namespace orvanta {

// The number by which the machine knows the job settings of a view function: 3 -> 3, 4 -> 4,
// 5 -> 1, 6 -> 5, 7 -> 6, 8 -> 1, 9 -> 9, and 1 for every other function.
int dvc_pnl_ceh_contents_hdl_common_function_of(int view_function);

// The count of open detail settings of `function` back to 0, without telling the machine: no
// detail setting can be open on a home screen.
int dvc_pnl_ceh_contents_hdl_init_transaction_times(int function);
// Cancels every open detail setting of `function`; a failure is traced.
void dvc_pnl_ceh_contents_hdl_reset_transaction_times(int function);

}  // namespace orvanta
