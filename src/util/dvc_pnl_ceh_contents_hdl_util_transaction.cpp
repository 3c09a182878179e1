// Setting transactions for screens that hold no transaction object.
#include "util/dvc_pnl_ceh_contents_hdl_util_transaction.h"

#include "services/dvc_pnl_ceh_contents_hdl_transaction.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

int dvc_pnl_ceh_contents_hdl_common_function_of(int view_function) {
  switch (view_function) {
    case 3:
      return 3;
    case 4:
      return 4;
    case 6:
      return 5;
    case 7:
      return 6;
    case 9:
      return 9;
    default:  // 5 and 8 too: their settings are those of copy
      return 1;
  }
}

int dvc_pnl_ceh_contents_hdl_init_transaction_times(int function) {
  dvc_pnl_ceh_contents_hdl_transaction transaction;
  return transaction.transaction_times_init(function);
}

void dvc_pnl_ceh_contents_hdl_reset_transaction_times(int function) {
  dvc_pnl_ceh_contents_hdl_transaction transaction;
  const int ret = transaction.transaction_reset(function);
  if (ret != 0)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_reset_transaction_times ret_code = %d", ret);
}

}  // namespace orvanta
