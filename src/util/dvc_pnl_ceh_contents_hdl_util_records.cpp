// Full records read from the machine in one go: the job accounting record.
#include "util/dvc_pnl_ceh_contents_hdl_util_records.h"

#include <cstring>
#include <string>

#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"

namespace orvanta {
namespace {

using conditions::path;

const path kAccountDetail = {0, 679, 843, 584};

// Copies `text` into `field`, cut to the field less its terminator; the record was zeroed.
void copy_text(const std::string& text, char* field, std::size_t size) {
  std::memcpy(field, text.data(), text.size() < size ? text.size() : size - 1);
}

int read_int_field(const dvc_pnl_cmm_valueset& response, unsigned long node, std::int32_t& field) {
  long value = 0;
  const int ret = conditions::response_int(kAccountDetail, node, response, value);
  if (ret == DVC_PNL_CEH_RET_OK)
    field = static_cast<std::int32_t>(value);
  return ret;
}

int read_text_field(const dvc_pnl_cmm_valueset& response, unsigned long node, char* field,
                    std::size_t size) {
  std::string text;
  const int ret = conditions::response_string(kAccountDetail, node, response, text);
  if (ret == DVC_PNL_CEH_RET_OK)
    copy_text(text, field, size);
  return ret;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_get_job_accounting_detail_from_cmm(long id, ACCOUNT_DETAIL& account) {
  dvc_pnl_cmm_valueset response;
  int ret = conditions::run_command(kAccountDetail, {{1362, id}}, response);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;

  account = ACCOUNT_DETAIL{};
  // In the record's order; the first failed read ends the walk.
  if ((ret = read_int_field(response, 1362, account.account_id)) != DVC_PNL_CEH_RET_OK ||
      (ret = read_text_field(response, 1367, account.name, sizeof account.name)) !=
          DVC_PNL_CEH_RET_OK ||
      (ret = read_text_field(response, 1366, account.code, sizeof account.code)) !=
          DVC_PNL_CEH_RET_OK ||
      (ret = read_text_field(response, 1368, account.text_1368, sizeof account.text_1368)) !=
          DVC_PNL_CEH_RET_OK ||
      (ret = read_int_field(response, 1369, account.restriction_1369)) != DVC_PNL_CEH_RET_OK ||
      (ret = read_int_field(response, 1372, account.restriction_1372)) != DVC_PNL_CEH_RET_OK ||
      (ret = read_int_field(response, 1374, account.restriction_1374)) != DVC_PNL_CEH_RET_OK ||
      (ret = read_int_field(response, 1375, account.restriction_1375)) != DVC_PNL_CEH_RET_OK ||
      (ret = read_int_field(response, 1385, account.restriction_1385)) != DVC_PNL_CEH_RET_OK)
    return ret;
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_get_guest_user_job_accounting_detail_from_cmm(
    ACCOUNT_DETAIL& account) {
  dvc_pnl_cmm_valueset response;
  int ret = conditions::guest_user_record(response);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  long account_id = 0;
  ret = conditions::response_int(conditions::kUserRecord, 1362, response, account_id);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  return dvc_pnl_ceh_contents_hdl_get_job_accounting_detail_from_cmm(account_id, account);
}

}  // namespace orvanta
