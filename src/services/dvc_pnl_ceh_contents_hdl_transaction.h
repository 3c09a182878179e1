// Setting transactions: detail settings opened, committed and cancelled on the machine, with
// their nesting count per function in the data manager.
#pragma once

namespace orvanta {

// Commands under ROOT.JOB.DETAIL_SETTING (0.821.822) and the RESULT each answers on success.
inline constexpr unsigned long DVC_PNL_CEH_DETAIL_SETTING_STARTUP = 823;
inline constexpr unsigned long DVC_PNL_CEH_DETAIL_SETTING_OK = 824;
inline constexpr unsigned long DVC_PNL_CEH_DETAIL_SETTING_CANCEL = 825;
inline constexpr long DVC_PNL_CEH_DETAIL_SETTING_STARTUP_DONE = 0;
inline constexpr long DVC_PNL_CEH_DETAIL_SETTING_OK_DONE = 1;
inline constexpr long DVC_PNL_CEH_DETAIL_SETTING_CANCEL_DONE = 3;
// The request node that names the function to the machine.
inline constexpr unsigned long DVC_PNL_CEH_NODE_COMMON_FUNCTION = 1035;

// Holds no state: screens make one on the stack for one call. Every operation takes the view
// function id, counts under it in DVC_PNL_PDM_CEH_TRANSACTION_TIMES, and answers 0; 2 when the
// machine answered with a RESULT other than the command's success value; 3 when a key, a value
// set or the mediator call failed; any other code is that of the data manager or of the RESULT
// read.
class dvc_pnl_ceh_contents_hdl_transaction {
 public:
  dvc_pnl_ceh_contents_hdl_transaction() = default;
  virtual ~dvc_pnl_ceh_contents_hdl_transaction();

  // Opens one detail setting: count + 1.
  int transaction_startup(int function);
  // Commits every open detail setting, one command per level: count 0. A refused commit stops
  // there and leaves the count as it was.
  int transaction_ok(int function);
  // Cancels the innermost open detail setting: count - 1.
  int transaction_cancel(int function);
  // Cancels every open detail setting: count 0.
  int transaction_reset(int function);
  // Writes the count 0 without telling the machine.
  int transaction_times_init(int function);
  // The function by which the machine knows the view function's job settings.
  int get_cmn_function_id_from_view_function_id(int function);
};

}  // namespace orvanta
