// Host data manager: in-memory scopes keyed by string, deep copies in and out.
#include "orvanta/host/host_data_manager.h"

#include "orvanta/platform/dvc_pnl_pdm_keys.h"

namespace orvanta {

dvc_pnl_pdm_data_manager* dvc_pnl_pdm_data_manager::dvc_pnl_pdm_get_instance() {
  return &host::host_data_manager::instance();
}

namespace host {
namespace {

bool function_ok(int function) {
  return function >= host_data_manager::kFunctionMin && function <= host_data_manager::kFunctionMax;
}

template <typename Map, typename Addr>
int get_from(const Map& m, const Addr& addr, dvc_pnl_cmm_value& value) {
  auto it = m.find(addr);
  if (it == m.end())
    return DVC_PNL_CMM_NOT_FOUND;
  value = it->second;
  return DVC_PNL_CMM_OK;
}

template <typename Map, typename Addr>
int set_into(Map& m, const Addr& addr, const dvc_pnl_cmm_value& value) {
  // An entry always holds something; an empty value is refused rather than stored.
  if (value.empty())
    return DVC_PNL_CMM_WRONG_KIND;
  m.insert_or_assign(addr, value);
  return DVC_PNL_CMM_OK;
}

template <typename Map, typename Addr>
int remove_from(Map& m, const Addr& addr) {
  return m.erase(addr) != 0 ? DVC_PNL_CMM_OK : DVC_PNL_CMM_NOT_FOUND;
}

}  // namespace

host_data_manager& host_data_manager::instance() {
  static host_data_manager dm;
  return dm;
}

host_data_manager::host_data_manager() {
  page_lifecycle::instance().add_listener(this);
}

bool host_data_manager::fault(dm_op op, const std::string& key) const {
  const int o = static_cast<int>(op);
  // Capped, so that a long interactive run does not grow it without end.
  if (op == dm_op::get && log_reads_ && read_keys_.size() < kReadKeysKept)
    read_keys_.push_back(key);
  const std::size_t index = calls_[o]++;
  if (index == fail_at_[o])
    return true;
  int& armed = armed_[o];
  if (armed == 0)
    return false;
  armed = 0;
  return true;
}

void host_data_manager::fail_next(dm_op op) {
  armed_[static_cast<int>(op)] = 1;
}

void host_data_manager::fail_call(dm_op op, std::size_t index) {
  fail_at_[static_cast<int>(op)] = index;
}

void host_data_manager::reset() {
  page_.clear();
  function_.clear();
  application_.clear();
  cross_.clear();
  for (int& a : armed_)
    a = 0;
  for (std::size_t& f : fail_at_)
    f = kNoCall;
  for (std::size_t& c : calls_)
    c = 0;
  read_keys_.clear();
}

// ---- page scope ----

int host_data_manager::dvc_pnl_pdm_get_by_page_scope(const std::string& key, int function,
                                                     int contents_id,
                                                     dvc_pnl_cmm_value& value) const {
  if (fault(dm_op::get, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty() || !function_ok(function))
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return get_from(page_, page_addr{function, contents_id, key}, value);
}

int host_data_manager::dvc_pnl_pdm_set_by_page_scope(const std::string& key, int function,
                                                     int contents_id,
                                                     const dvc_pnl_cmm_value& value) {
  if (fault(dm_op::set, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty() || !function_ok(function))
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return set_into(page_, page_addr{function, contents_id, key}, value);
}

int host_data_manager::dvc_pnl_pdm_remove_by_page_scope(const std::string& key, int function,
                                                        int contents_id) {
  if (fault(dm_op::remove, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty() || !function_ok(function))
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return remove_from(page_, page_addr{function, contents_id, key});
}

// ---- function scope ----

int host_data_manager::dvc_pnl_pdm_get_by_function_scope(const std::string& key, int function,
                                                         dvc_pnl_cmm_value& value) const {
  if (fault(dm_op::get, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty() || !function_ok(function))
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return get_from(function_, function_addr{function, key}, value);
}

int host_data_manager::dvc_pnl_pdm_set_by_function_scope(const std::string& key, int function,
                                                         const dvc_pnl_cmm_value& value) {
  if (fault(dm_op::set, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty() || !function_ok(function))
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return set_into(function_, function_addr{function, key}, value);
}

int host_data_manager::dvc_pnl_pdm_remove_by_function_scope(const std::string& key, int function) {
  if (fault(dm_op::remove, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty() || !function_ok(function))
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return remove_from(function_, function_addr{function, key});
}

// ---- application scope ----

int host_data_manager::dvc_pnl_pdm_get_by_application_scope(const std::string& key,
                                                            dvc_pnl_cmm_value& value) const {
  if (fault(dm_op::get, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty())
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return get_from(application_, key, value);
}

int host_data_manager::dvc_pnl_pdm_set_by_application_scope(const std::string& key,
                                                            const dvc_pnl_cmm_value& value) {
  if (fault(dm_op::set, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty())
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return set_into(application_, key, value);
}

int host_data_manager::dvc_pnl_pdm_remove_by_application_scope(const std::string& key) {
  if (fault(dm_op::remove, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty())
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return remove_from(application_, key);
}

// ---- cross-function scope ----

int host_data_manager::dvc_pnl_pdm_get_by_cross_function_scope(const std::string& key,
                                                               int contents_id,
                                                               dvc_pnl_cmm_value& value) const {
  if (fault(dm_op::get, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty())
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return get_from(cross_, cross_addr{contents_id, key}, value);
}

int host_data_manager::dvc_pnl_pdm_set_by_cross_function_scope(const std::string& key,
                                                               int contents_id,
                                                               const dvc_pnl_cmm_value& value) {
  if (fault(dm_op::set, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty())
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return set_into(cross_, cross_addr{contents_id, key}, value);
}

int host_data_manager::dvc_pnl_pdm_remove_by_cross_function_scope(const std::string& key,
                                                                  int contents_id) {
  if (fault(dm_op::remove, key))
    return DVC_PNL_CMM_FAULT;
  if (key.empty())
    return DVC_PNL_CMM_BAD_ARGUMENT;
  return remove_from(cross_, cross_addr{contents_id, key});
}

// ---- pages ----

void host_data_manager::page_opened(int function, int contents_id) {
  if (!function_ok(function))
    return;
  dvc_pnl_cmm_value label;
  label.dvc_pnl_cmm_set_int(contents_id);
  page_.insert_or_assign(page_addr{function, contents_id, PAGE_SCOPE_DATA_LABEL}, label);
}

void host_data_manager::page_closed(int function, int contents_id) {
  // Entries of one page are adjacent in the map: (function, contents id) is the key's prefix.
  auto first = page_.lower_bound(page_addr{function, contents_id, std::string()});
  auto last = first;
  while (last != page_.end() && std::get<0>(last->first) == function &&
         std::get<1>(last->first) == contents_id) {
    ++last;
  }
  page_.erase(first, last);
}

std::size_t host_data_manager::page_entry_count(int function, int contents_id) const {
  std::size_t n = 0;
  for (auto it = page_.lower_bound(page_addr{function, contents_id, std::string()});
       it != page_.end() && std::get<0>(it->first) == function &&
       std::get<1>(it->first) == contents_id;
       ++it) {
    ++n;
  }
  return n;
}

std::size_t host_data_manager::function_entry_count(int function) const {
  std::size_t n = 0;
  for (const auto& [addr, v] : function_) {
    if (std::get<0>(addr) == function)
      ++n;
  }
  return n;
}

}  // namespace host
}  // namespace orvanta
