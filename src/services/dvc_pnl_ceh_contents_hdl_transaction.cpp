// Setting transactions: the three detail setting commands and the nesting count.
#include "services/dvc_pnl_ceh_contents_hdl_transaction.h"

#include "orvanta/platform/dvc_pnl_cmm_command_mediator.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

constexpr unsigned long kDetailSetting[] = {0, 821, 822};
constexpr int kNotSuccess = DVC_PNL_CEH_RET_UNKNOWN_TYPE;
constexpr int kFailed = DVC_PNL_CEH_RET_PLATFORM;

// One detail setting command: its key, request and response.
struct detail_command {
  dvc_pnl_cmm_key key;
  dvc_pnl_cmm_valueset request;
  dvc_pnl_cmm_valueset response;
};

// The request of every detail setting command: 1320 = 1 and the machine's function.
int fill_request(detail_command& command, long common_function) {
  dvc_pnl_cmm_key kind = command.key;
  dvc_pnl_cmm_key function = command.key;
  if (kind.dvc_pnl_cmm_add_key(DVC_PNL_CEH_NODE_REQUEST_KIND) != DVC_PNL_CMM_OK ||
      function.dvc_pnl_cmm_add_key(DVC_PNL_CEH_NODE_COMMON_FUNCTION) != DVC_PNL_CMM_OK ||
      command.request.dvc_pnl_cmm_set_int(kind, 1) != DVC_PNL_CMM_OK ||
      command.request.dvc_pnl_cmm_set_int(function, common_function) != DVC_PNL_CMM_OK) {
    return kFailed;
  }
  return DVC_PNL_CEH_RET_OK;
}

int build_key(detail_command& command, unsigned long leaf) {
  int ret = dvc_pnl_ceh_contents_hdl_build_key(command.key, kDetailSetting, 3);
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = dvc_pnl_ceh_contents_hdl_build_key(command.key, &leaf, 1);
  return ret;
}

int invoke(detail_command& command) {
  return dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance().dvc_pnl_cmm_invoke(
      command.key, command.request, command.response);
}

// RESULT of the command, read from its response at <command>.1484; `result` keeps its preset
// when the read fails.
int read_result(const detail_command& command, unsigned long leaf, long& result) {
  const unsigned long node[] = {kDetailSetting[0], kDetailSetting[1], kDetailSetting[2], leaf,
                                DVC_PNL_CEH_NODE_RESULT};
  long read = 0;
  const int ret =
      dvc_pnl_ceh_contents_hdl_get_int_from_valueset(node, 0, 5, command.response, read);
  if (ret == DVC_PNL_CEH_RET_OK)
    result = read;
  return ret;
}

// Key, request and invoke of the startup and cancel commands; a failure of any step is traced
// with the code it had and answers 3.
int send(detail_command& command, unsigned long leaf, long common_function) {
  int ret = build_key(command, leaf);
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = fill_request(command, common_function);
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = invoke(command);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("ret = %d.", ret);
    CEH_ERR(" ret_code = %d", kFailed);
    return kFailed;
  }
  return DVC_PNL_CEH_RET_OK;
}

int read_count(int function, int& count) {
  return dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_CEH_TRANSACTION_TIMES, count,
                                                  function);
}

int write_count(int function, long count) {
  return dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_CEH_TRANSACTION_TIMES, count, function);
}

}  // namespace

dvc_pnl_ceh_contents_hdl_transaction::~dvc_pnl_ceh_contents_hdl_transaction() = default;

int dvc_pnl_ceh_contents_hdl_transaction::transaction_startup(int function) {
  CEH_TRC("transaction_startup() function:%d.", function);
  detail_command command;
  int ret = send(command, DVC_PNL_CEH_DETAIL_SETTING_STARTUP,
                 get_cmn_function_id_from_view_function_id(function));
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  long result = 0;
  ret = read_result(command, DVC_PNL_CEH_DETAIL_SETTING_STARTUP, result);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("get RESULT ret_code = %d", ret);
    return ret;
  }
  if (result != DVC_PNL_CEH_DETAIL_SETTING_STARTUP_DONE)
    return kNotSuccess;

  int count = -1;
  if (read_count(function, count) != DVC_PNL_CEH_RET_OK)
    count = 0;
  ret = write_count(function, count + 1L);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_int_from_dm error ret_code = %d", ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_transaction::transaction_ok(int function) {
  CEH_TRC("transaction_ok() function:%d.", function);
  int count = 1;
  int ret = read_count(function, count);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("get from PanelDataManager of TRANSACTION_TIMES ret_code = %d", ret);
    return ret;
  }
  // One commit per open level: a commit on an inner page closes every level of the function.
  for (int level = 0; level < count; ++level) {
    detail_command command;
    ret = command.key.dvc_pnl_cmm_clear();
    if (ret != DVC_PNL_CMM_OK) {
      CEH_ERR("ROOT.JOB.DETAIL_SETTING.OK node_key clear ret_code = %d", ret);
      return kFailed;
    }
    ret = build_key(command, DVC_PNL_CEH_DETAIL_SETTING_OK);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("ROOT.JOB.DETAIL_SETTING.OK build key ret_code = %d", ret);
      return kFailed;
    }
    ret = fill_request(command, get_cmn_function_id_from_view_function_id(function));
    if (ret == DVC_PNL_CEH_RET_OK)
      ret = invoke(command);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_PLATFORM_FAIL(ret, "ROOT.JOB.DETAIL_SETTING.OK");
      return kFailed;
    }
    long result = kNotSuccess;
    read_result(command, DVC_PNL_CEH_DETAIL_SETTING_OK, result);
    if (result != DVC_PNL_CEH_DETAIL_SETTING_OK_DONE)
      return kNotSuccess;
  }
  ret = write_count(function, 0);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("set from PanelDataManager of TRANSACTION_TIMES ret_code = %d", ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_transaction::transaction_cancel(int function) {
  CEH_TRC("transaction_cancel() function:%d.", function);
  int count = 0;
  int ret = read_count(function, count);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_int_from_dm error ret_code = %d", ret);
    return ret;
  }
  if (count == 0)
    return DVC_PNL_CEH_RET_OK;

  detail_command command;
  ret = send(command, DVC_PNL_CEH_DETAIL_SETTING_CANCEL,
             get_cmn_function_id_from_view_function_id(function));
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  long result = kNotSuccess;
  ret = read_result(command, DVC_PNL_CEH_DETAIL_SETTING_CANCEL, result);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("get RESULT ret_code = %d", ret);
    return ret;
  }
  if (result != DVC_PNL_CEH_DETAIL_SETTING_CANCEL_DONE)
    return kNotSuccess;

  count = -1;
  ret = read_count(function, count);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_dm error ret_code = %d", ret);
    return ret;
  }
  ret = write_count(function, count - 1L);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_int_from_dm error ret_code = %d", ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_transaction::transaction_reset(int function) {
  CEH_TRC("transaction_reset() function:%d.", function);
  int count = 0;
  const int read = read_count(function, count);
  if (read != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_dm error ret_code = %d", read);
  if (count < 1) {
    transaction_times_init(function);
    return DVC_PNL_CEH_RET_OK;
  }
  for (int level = 0; level < count; ++level) {
    const int ret = transaction_cancel(function);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("transaction_cancel ret_code = %d", ret);
      return ret;
    }
  }
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_transaction::transaction_times_init(int function) {
  const int ret = write_count(function, 0);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("transaction_times_init failed. ret_code = %d", ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_transaction::get_cmn_function_id_from_view_function_id(int function) {
  return dvc_pnl_ceh_contents_hdl_common_function_of(function);
}

}  // namespace orvanta
