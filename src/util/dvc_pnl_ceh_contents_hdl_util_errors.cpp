// Error occurrence: error screens with their buzzer and LED, and the destination size judgement.
#include "util/dvc_pnl_ceh_contents_hdl_util_errors.h"

#include "orvanta/platform/dvc_pnl_cmn_error_table.h"
#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "orvanta/platform/dvu_pnl_dec_controllers.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

// Error screens live in the alert layer of group 0.
constexpr int kErrorGroup = 0;
constexpr int kErrorState = 1;

// Where the machine puts the error id in its event.
constexpr unsigned long kErrorIdNode[] = {0, 1080, 1081};

// What an error id without a row of its own brings up.
constexpr DVC_PNL_CMN_ERROR_TABLE_ROW kUnknownError = {1, 0, 1, 0, 0, 0};

const DVC_PNL_CMN_ERROR_TABLE_ROW& error_row(long id) {
  for (int i = 0; i < DVC_PNL_CMN_ERROR_TABLE_SIZE; ++i) {
    if (dvc_pnl_cmn_error_table[i].error_code == id)
      return dvc_pnl_cmn_error_table[i];
  }
  return kUnknownError;
}

void sound(int pattern) {
  dvu_pnl_dec_buzzer_controller* buzzer = dvu_pnl_dec_buzzer_controller::dvu_pnl_dec_get_instance();
  if (buzzer == nullptr || buzzer->dvu_pnl_dec_set_buzzer_control(pattern) != 1)
    CEH_ERR("dvu_pnl_dec_set_buzzer_control failed.");
}

void error_led(int status) {
  dvu_pnl_dec_led_controller* led = dvu_pnl_dec_led_controller::dvu_pnl_dec_get_instance();
  if (led == nullptr || led->dvu_pnl_dec_set_led_status(DVC_PNL_CEH_LED_ERROR, status) != 1)
    CEH_ERR("dvu_pnl_dec_set_led_status failed.");
}

// Some function still has its error state set (the platform keeps it per function).
bool any_error_open() {
  for (int f = DVC_PNL_CEH_ERROR_FUNC_FIRST; f <= DVC_PNL_CEH_ERROR_FUNC_LAST; ++f) {
    int state = 0;
    if (dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_ERROR_STATE, state, f) ==
            DVC_PNL_CEH_RET_OK &&
        state == 1) {
      return true;
    }
  }
  return false;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_open_error_contents(const int& function,
                                                 const dvc_pnl_cmm_valueset& event) {
  CEH_TRC("dvc_pnl_ceh_contents_hdl_open_error_contents() func:%d .", function);
  const dvc_pnl_cmm_valueset copy = event;
  long id = 0;
  const int read = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(kErrorIdNode, 2, 3, copy, id);
  // Without an id no row can be its row: the screen of an unknown error comes up.
  const DVC_PNL_CMN_ERROR_TABLE_ROW& row =
      read == DVC_PNL_CEH_RET_OK ? error_row(id) : kUnknownError;
  if (read != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_valueset ret_code = %d", read);

  dvc_pnl_psm_page_stack_matrix* psm = dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
  int ret = psm == nullptr ? -1 : psm->dvc_pnl_psm_clear(kErrorGroup, function, kErrorState);
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_psm_clear");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  ret = psm->dvc_pnl_psm_open(kErrorGroup, function, kErrorState, row.contents_id,
                              static_cast<unsigned>(row.open_flag));
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_psm_open");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  sound(row.buzzer_pattern);
  error_led(row.led_status);
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_close_error_contents(const int& function,
                                                  const dvc_pnl_cmm_valueset& /*event*/) {
  dvc_pnl_psm_page_stack_matrix* psm = dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
  const int ret = psm == nullptr ? -1 : psm->dvc_pnl_psm_clear(kErrorGroup, function, kErrorState);
  if (ret != 0) {
    CEH_PLATFORM_FAIL(ret, "dvc_pnl_psm_clear");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  sound(0);
  // LED 8 is shared by all functions: it stays on while any of them shows an error.
  if (!any_error_open())
    error_led(0);
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_get_error_occurrence(long /*a*/, long b, long c, long d) {
  constexpr long kMaxDestinations = 100;
  constexpr long kMaxFaxLike = 5;
  const bool over_b = b > kMaxDestinations;
  if ((d == 1 || d == 2) && c > kMaxFaxLike)
    return over_b ? 3 : 1;
  return over_b ? 2 : 0;
}

int dvc_pnl_ceh_contents_hdl_judge_error_occurrence(long kind, long number, long sub,
                                                    int function) {
  if (kind != 1 && kind != 2)
    return 0;
  long x = 0;
  long y = 0;
  long z = 0;
  dvc_pnl_ceh_contents_hdl_get_send_destination_size_cmm(x, y, z, function);
  if (kind == 1)
    return dvc_pnl_ceh_contents_hdl_get_error_occurrence(z + 1, x + 1, y + 1, sub);
  long a2 = 0;
  long b2 = 0;
  long c2 = 0;
  long d2 = 0;
  long total = 0;
  dvc_pnl_ceh_contents_hdl_get_group_member_count_cmm(number, a2, b2, c2, d2, total);
  return dvc_pnl_ceh_contents_hdl_get_error_occurrence(z + d2, x + total, y + a2 + b2,
                                                       a2 + b2 > 0 ? 1 : 0);
}

}  // namespace orvanta
