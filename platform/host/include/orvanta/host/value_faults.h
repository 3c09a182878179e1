// Failure injection for the host value types, so tests can drive the panel's error paths.
#pragma once

namespace orvanta::host {

// Operations of the value layer that can be made to fail.
enum class value_op : int {
  key_add,       // dvc_pnl_cmm_key::dvc_pnl_cmm_add_key
  key_copy,      // dvc_pnl_cmm_key::dvc_pnl_cmm_copy
  value_read,    // dvc_pnl_cmm_value::dvc_pnl_cmm_get_*
  value_write,   // dvc_pnl_cmm_value::dvc_pnl_cmm_set_* and dvc_pnl_cmm_copy
  set_read,      // dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_*
  set_write,     // dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_* and dvc_pnl_cmm_copy
  set_remove,    // dvc_pnl_cmm_valueset::dvc_pnl_cmm_remove_value
  binary_write,  // dvc_pnl_cmm_binary::dvc_pnl_cmm_set_data
  count_
};

// After `skip` successful calls of `op`, the next call fails once with DVC_PNL_CMM_FAULT.
void fail_value_op(value_op op, int skip = 0);
// Disarms every injected failure.
void clear_value_faults();
// True when the call of `op` that is happening now must fail; counts the call otherwise.
bool value_fault_hit(value_op op);

// While one of these lives, value-layer calls neither fail nor count: the simulated machine holds
// one around its own work, so a failure armed for the panel's code is not used up by the machine.
class value_fault_pause {
 public:
  value_fault_pause();
  ~value_fault_pause();
  value_fault_pause(const value_fault_pause&) = delete;
  value_fault_pause& operator=(const value_fault_pause&) = delete;
};

}  // namespace orvanta::host
