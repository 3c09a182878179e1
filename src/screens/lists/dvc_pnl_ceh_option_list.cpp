// What the option lists and the system menu lists share.
#include "screens/lists/dvc_pnl_ceh_option_list.h"

#include <algorithm>
#include <cstring>

#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

bool one_of(unsigned long v, std::initializer_list<unsigned long> set) {
  return std::find(set.begin(), set.end(), v) != set.end();
}

int read_record(DVC_PNL_CEH_TRANSACTION_RECORD& record, int function) {
  record = {};
  const int ret = dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_DVC_CEH_BINARY, &record,
                                                              sizeof record, function);
  if (ret != DVC_PNL_CEH_RET_OK || record.count < 0 ||
      record.count > DVC_PNL_CEH_TRANSACTION_ENTRIES)
    record = {};  // missing or not a record of kept settings: empty
  return DVC_PNL_CEH_RET_OK;
}

bool same_key(const T_TRANSACTION_STRUCT_INNER_& a, const T_TRANSACTION_STRUCT_INNER_& b) {
  return a.count == b.count &&
         std::equal(a.key, a.key + std::clamp(a.count, 0, DVC_PNL_CEH_TRANSACTION_KEY_SIZE), b.key);
}

}  // namespace

int dvc_pnl_ceh_option_list_get_position(const std::vector<unsigned long>& key) {
  auto k = [&key](std::size_t i) { return i < key.size() ? key[i] : 0UL; };
  switch (key.size()) {
    case 8:
      if (k(6) == 15)
        return k(2) == 2 ? 6 : 0;
      return k(6) == 59 ? 7 : 0;
    case 7:
      if (one_of(k(6), {14, 19, 20, 24, 53, 64, 3687, 3688}))
        return 6;
      if (one_of(k(6), {15, 35}))
        return k(5) == 49 || k(2) == 2 ? 6 : 0;
      return k(5) == 49 ? 6 : 0;
    case 4:
      return one_of(k(2), {667, 669, 670}) ? 3 : 0;
    default:
      return 0;
  }
}

int dvc_pnl_ceh_store_pdm_transaction_data(const T_TRANSACTION_STRUCT_INNER_& entry, int function) {
  DVC_PNL_CEH_TRANSACTION_RECORD record;
  read_record(record, function);
  int at = 0;
  while (at < record.count && !same_key(record.entry[at], entry))
    ++at;
  if (at == DVC_PNL_CEH_TRANSACTION_ENTRIES) {
    CEH_ERR("transaction data full");
    return DVC_PNL_CEH_RET_PLATFORM;
  }
  record.entry[at] = entry;
  if (at == record.count)
    ++record.count;
  const int ret = dvc_pnl_ceh_contents_hdl_set_binary_to_dm(DVC_PNL_PDM_DVC_CEH_BINARY, &record,
                                                            sizeof record, function);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_binary_to_dm ret_code = %d", ret);
  return ret;
}

int dvc_pnl_ceh_commit_pdm_transaction_data(int function) {
  DVC_PNL_CEH_TRANSACTION_RECORD record;
  read_record(record, function);
  int result = DVC_PNL_CEH_RET_OK;
  for (int i = 0; i < record.count; ++i) {
    const T_TRANSACTION_STRUCT_INNER_& e = record.entry[i];
    unsigned long key[DVC_PNL_CEH_TRANSACTION_KEY_SIZE];
    const int count = std::clamp(e.count, 0, DVC_PNL_CEH_TRANSACTION_KEY_SIZE);
    std::copy(e.key, e.key + count, key);
    int ret;
    if (e.kind == 0) {
      ret = dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(key, e.start_position,
                                                        static_cast<unsigned>(count), e.value);
    } else {
      char text[DVC_PNL_CEH_TRANSACTION_TEXT_SIZE + 1] = {};
      std::memcpy(text, e.text, DVC_PNL_CEH_TRANSACTION_TEXT_SIZE);
      ret = dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm(key, e.start_position,
                                                           static_cast<unsigned>(count), text);
    }
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("commit_pdm_transaction_data ret_code = %d", ret);
      if (result == DVC_PNL_CEH_RET_OK)
        result = ret;
    }
  }
  dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_DVC_CEH_BINARY, function);
  return result;
}

}  // namespace orvanta
