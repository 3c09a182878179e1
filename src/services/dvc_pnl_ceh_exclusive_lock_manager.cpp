// Exclusive lock manager: requests to the lock service, the records of what the panel holds, and
// the locks given back when the panel leaves a function or a function's settings are reset.
#include "services/dvc_pnl_ceh_exclusive_lock_manager.h"

#include <initializer_list>
#include <iterator>
#include <utility>

#include "orvanta/platform/dvc_pnl_psm_page_stack_matrix.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

// Events the manager answers, in the order it subscribes to them.
constexpr int kEvents[] = {854, 248, 249, 610, 609, 880, 1214};
constexpr int kEventLeaveFunction = 854;
constexpr int kEventSendSettingsReset = 248;
constexpr int kEventFaxSettingsReset = 249;
// After these the box function no longer needs the box it holds.
constexpr int kEventBoxRelease610 = 610;
constexpr int kEventBoxRelease609 = 609;
constexpr int kEventBackToTop = 880;
constexpr int kEventOptNicStatus = 1214;

// Functions that hold locks.
constexpr int kFuncSend = 3;
constexpr int kFuncFax = 4;
constexpr int kFuncBox = 5;
constexpr int kFuncSystem = 10;

// The lock service and its request nodes.
constexpr unsigned long kLockService = 503;
constexpr unsigned long kLockCommand = 2528;
constexpr unsigned long kUnlockCommand = 2529;
constexpr unsigned long kNodeKind = 1180;
constexpr unsigned long kNodeFirst = 1301;
constexpr unsigned long kNodeSecond = 197;
constexpr unsigned long kNodeThird = 2611;
// The third argument of the locks that name no record of their own.
constexpr long kWholeRecord = 4;

// Box locks of the box function end and begin with this reason.
constexpr long kBoxReason = 2;
// A network option whose setting the panel must hold.
constexpr long kOptNicNeedsLock = 5;
// A box kind that keeps the remote data service from running.
constexpr long kBoxKindBlockingUrds = 2;

constexpr unsigned long kPullPrint[] = {0, 3693, 860};
constexpr unsigned long kPullPrintLock = 3694;
constexpr unsigned long kPullPrintUnlock = 3695;
constexpr long kPullPrintGranted = 1;

constexpr unsigned long kDestinationCount[] = {0, 896, 901};
constexpr unsigned long kNodeFunction = 1035;
constexpr unsigned long kNodeCount = 1569;

constexpr unsigned long kOptNicStatus[] = {0, 3362, 714};

dvc_pnl_cmm_key key_of(std::initializer_list<unsigned long> nodes) {
  dvc_pnl_cmm_key key;
  for (unsigned long node : nodes)
    dvc_pnl_ceh_contents_hdl_add_key(key, node);
  return key;
}

// Runs `command` with the request words and reads RESULT into `result`. false when the command
// could not run; `result` keeps its preset when the answer holds none.
bool run(const dvc_pnl_cmm_key& command,
         std::initializer_list<std::pair<unsigned long, long>> words,
         dvc_pnl_cmm_valueset& response, long& result) {
  dvc_pnl_cmm_valueset request;
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, command, DVC_PNL_CEH_NODE_REQUEST_KIND,
                                                   1);
  for (const auto& [node, value] : words)
    dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, command, node, value);
  const int ret = dvc_pnl_ceh_contents_hdl_invoke_cmm(command, request, response);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_invoke_cmm ret_code = %d", ret);
    return false;
  }
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, command, DVC_PNL_CEH_NODE_RESULT,
                                                      result);
  return true;
}

}  // namespace

// ---------------------------------------------------------------- records

DVC_PNL_CEH_ENUM_REASON_OF_LOCKING dvc_pnl_ceh_locked_addressbook::wanted_by(int function) const {
  switch (function) {
    case kFuncSend:
      return want_send_;
    case kFuncFax:
      return want_fax_;
    case kFuncSystem:
      return want_system_;
    default:
      return DVC_PNL_CEH_REASON_OF_LOCKING_NONE;
  }
}

void dvc_pnl_ceh_locked_addressbook::want(int function, DVC_PNL_CEH_ENUM_REASON_OF_LOCKING reason) {
  switch (function) {
    case kFuncSend:
      want_send_ = reason;
      break;
    case kFuncFax:
      want_fax_ = reason;
      break;
    case kFuncSystem:
      want_system_ = reason;
      break;
    default:
      break;
  }
}

// ---------------------------------------------------------------- life

dvc_pnl_ceh_exclusive_lock_manager* dvc_pnl_ceh_exclusive_lock_manager::s_instance_ = nullptr;

dvc_pnl_ceh_exclusive_lock_manager* dvc_pnl_ceh_exclusive_lock_manager::get_instance() {
  // Only screens and the dispatcher's notifications use it, all inside a dispatch.
  if (s_instance_ == nullptr)
    s_instance_ = new dvc_pnl_ceh_exclusive_lock_manager();
  return s_instance_;
}

void dvc_pnl_ceh_exclusive_lock_manager::reset_for_tests() {
  delete s_instance_;
  s_instance_ = nullptr;
}

dvc_pnl_ceh_exclusive_lock_manager::dvc_pnl_ceh_exclusive_lock_manager()
    : box_(std::make_unique<dvc_pnl_ceh_locked_box>()),
      sys_box_(std::make_unique<dvc_pnl_ceh_locked_box>()),
      addressbook_(std::make_unique<dvc_pnl_ceh_locked_addressbook>()),
      user_login_(std::make_unique<dvc_pnl_ceh_locked_user_information>()),
      job_accounting_(std::make_unique<dvc_pnl_ceh_locked_user_information>()),
      opt_nic_(std::make_unique<dvc_pnl_ceh_locked_user_information>()) {
  dvu_pnl_evd_event_dispatcher* dispatcher =
      dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance();
  if (dispatcher == nullptr) {
    CEH_ERR("dvu_pnl_evd_event_dispatcher is NULL");
    return;
  }
  for (int id : kEvents) {
    const int ret = dispatcher->dvu_pnl_evd_add_handler(dvc_pnl_evh_event_id(id), this);
    if (ret != 0)
      CEH_ERR("dvu_pnl_evd_add_handler(%d) ret_code = %d", id, ret);
  }
}

dvc_pnl_ceh_exclusive_lock_manager::~dvc_pnl_ceh_exclusive_lock_manager() {
  // The process-long manager never goes; tests drop it and must not leave it subscribed.
  dvu_pnl_evd_event_dispatcher* dispatcher =
      dvu_pnl_evd_event_dispatcher::dvu_pnl_evd_get_instance();
  if (dispatcher == nullptr)
    return;
  for (int id : kEvents) {
    while (dispatcher->dvu_pnl_evd_remove_handler(dvc_pnl_evh_event_id(id), this) == 0) {
    }
  }
}

// ---------------------------------------------------------------- requests

int dvc_pnl_ceh_exclusive_lock_manager::request(unsigned long command, long kind, long a, long b,
                                                long c) {
  const dvc_pnl_cmm_key key = key_of({0, kLockService, command});
  dvc_pnl_cmm_valueset response;
  long result = -1;
  if (!run(key, {{kNodeKind, kind}, {kNodeFirst, a}, {kNodeSecond, b}, {kNodeThird, c}}, response,
           result)) {
    return 0;
  }
  if (result != 0) {
    CEH_ERR("exclusive %s kind:%ld (%ld,%ld,%ld) result = %ld",
            command == kLockCommand ? "lock" : "unlock", kind, a, b, c, result);
    return 0;
  }
  CEH_TRC("exclusive %s kind:%ld (%ld,%ld,%ld)", command == kLockCommand ? "lock" : "unlock", kind,
          a, b, c);
  return 1;
}

int dvc_pnl_ceh_exclusive_lock_manager::lock(long kind, long a, long b, long c) {
  return request(kLockCommand, kind, a, b, c);
}

int dvc_pnl_ceh_exclusive_lock_manager::unlock(long kind, long a, long b, long c) {
  return request(kUnlockCommand, kind, a, b, c);
}

// ---------------------------------------------------------------- boxes

dvc_pnl_ceh_locked_box* dvc_pnl_ceh_exclusive_lock_manager::box_of(int function) {
  if (function == kFuncBox)
    return box_.get();
  if (function == kFuncSystem)
    return sys_box_.get();
  return nullptr;
}

int dvc_pnl_ceh_exclusive_lock_manager::lockBox(int function, long kind, long number, long reason) {
  // The panel is one holder: a box that either record holds is the panel's already.
  if ((kind != -1 || number != -1) && (box_->holds(kind, number) || sys_box_->holds(kind, number)))
    return 1;
  if (lock(DVC_PNL_CEH_LOCK_KIND_BOX, kind, number, reason) != 1)
    return 0;
  if (dvc_pnl_ceh_locked_box* record = box_of(function))
    record->set(kind, number, function);
  return 1;
}

int dvc_pnl_ceh_exclusive_lock_manager::unlockBox(int function, long kind, long number,
                                                  long reason) {
  dvc_pnl_ceh_locked_box* record = box_of(function);
  if (record == nullptr || !record->holds(kind, number) || record->function_ != function)
    return 1;
  if (unlock(DVC_PNL_CEH_LOCK_KIND_BOX, kind, number, reason) != 1)
    return 0;
  record->clear();
  return 1;
}

int dvc_pnl_ceh_exclusive_lock_manager::isBoxLocked(long kind, long number, int& owner) {
  if (kind == -1 && number == -1)
    return 0;
  for (const dvc_pnl_ceh_locked_box* record : {box_.get(), sys_box_.get()}) {
    if (record->holds(kind, number)) {
      owner = record->function_;
      return 1;
    }
  }
  return 0;
}

// ---------------------------------------------------------------- address book

int dvc_pnl_ceh_exclusive_lock_manager::lockAddressbook(int function,
                                                        DVC_PNL_CEH_ENUM_REASON_OF_LOCKING reason) {
  addressbook_->want(function, reason);
  if (addressbook_->function_ != -1)
    return 1;
  if (lock(DVC_PNL_CEH_LOCK_KIND_ADDRESSBOOK, 0, 0, kWholeRecord) != 1)
    return 0;
  addressbook_->function_ = function;
  addressbook_->reason_ = reason;
  return 1;
}

int dvc_pnl_ceh_exclusive_lock_manager::unlockAddressbook(
    int function, DVC_PNL_CEH_ENUM_REASON_OF_LOCKING reason) {
  // The wish that this reason stood for ends; a wish for the other reason stays.
  if (addressbook_->wanted_by(function) == reason)
    addressbook_->want(function, DVC_PNL_CEH_REASON_OF_LOCKING_NONE);
  if (addressbook_->function_ != function || addressbook_->reason_ != reason)
    return 1;
  if (unlock(DVC_PNL_CEH_LOCK_KIND_ADDRESSBOOK, 0, 0, kWholeRecord) != 1)
    return 0;
  addressbook_->function_ = -1;
  addressbook_->reason_ = DVC_PNL_CEH_REASON_OF_LOCKING_NONE;
  if (function == kFuncSend &&
      addressbook_->wanted_by(kFuncSend) == DVC_PNL_CEH_REASON_OF_LOCKING_1)
    lockAddressbook(kFuncSend, DVC_PNL_CEH_REASON_OF_LOCKING_1);
  return 1;
}

int dvc_pnl_ceh_exclusive_lock_manager::isAddressbookLocked(
    int& function, DVC_PNL_CEH_ENUM_REASON_OF_LOCKING& reason) {
  if (addressbook_->function_ == -1) {
    function = 0;
    reason = DVC_PNL_CEH_REASON_OF_LOCKING_NONE;
    return 0;
  }
  function = addressbook_->function_;
  reason = addressbook_->reason_;
  return 1;
}

// ---------------------------------------------------------------- information locks

int dvc_pnl_ceh_exclusive_lock_manager::lock_information(
    dvc_pnl_ceh_locked_user_information& record, long kind) {
  if (record.locked_ == 1)
    return 1;
  if (lock(kind, 0, 0, kWholeRecord) != 1)
    return 0;
  record.locked_ = 1;
  return 1;
}

int dvc_pnl_ceh_exclusive_lock_manager::unlock_information(
    dvc_pnl_ceh_locked_user_information& record, long kind) {
  if (record.locked_ != 1)
    return 1;
  if (unlock(kind, 0, 0, kWholeRecord) != 1)
    return 0;
  record.locked_ = 0;
  return 1;
}

int dvc_pnl_ceh_exclusive_lock_manager::lockUserLoginInformation() {
  return lock_information(*user_login_, DVC_PNL_CEH_LOCK_KIND_USER_LOGIN);
}

int dvc_pnl_ceh_exclusive_lock_manager::unlockUserLoginInformation() {
  return unlock_information(*user_login_, DVC_PNL_CEH_LOCK_KIND_USER_LOGIN);
}

int dvc_pnl_ceh_exclusive_lock_manager::lockJobAccountingInformation() {
  return lock_information(*job_accounting_, DVC_PNL_CEH_LOCK_KIND_JOB_ACCOUNTING);
}

int dvc_pnl_ceh_exclusive_lock_manager::unlockJobAccountingInformation() {
  return unlock_information(*job_accounting_, DVC_PNL_CEH_LOCK_KIND_JOB_ACCOUNTING);
}

int dvc_pnl_ceh_exclusive_lock_manager::lockOptNicSetting() {
  return lock_information(*opt_nic_, DVC_PNL_CEH_LOCK_KIND_OPT_NIC);
}

int dvc_pnl_ceh_exclusive_lock_manager::unlockOptNicSetting() {
  return unlock_information(*opt_nic_, DVC_PNL_CEH_LOCK_KIND_OPT_NIC);
}

int dvc_pnl_ceh_exclusive_lock_manager::isUserLoginInformationLocked() {
  return user_login_->locked_;
}

int dvc_pnl_ceh_exclusive_lock_manager::isJobAccountingInformationLocked() {
  return job_accounting_->locked_;
}

int dvc_pnl_ceh_exclusive_lock_manager::isOptNicSettingLocked() {
  return opt_nic_->locked_;
}

void dvc_pnl_ceh_exclusive_lock_manager::unlock_all_information() {
  unlockUserLoginInformation();
  unlockJobAccountingInformation();
  unlockOptNicSetting();
}

int dvc_pnl_ceh_exclusive_lock_manager::isURDSEnable() {
  if (addressbook_->function_ != -1)
    return 0;
  if (box_->kind_ == kBoxKindBlockingUrds || sys_box_->kind_ == kBoxKindBlockingUrds)
    return 0;
  return 1;
}

// ---------------------------------------------------------------- functions

void dvc_pnl_ceh_exclusive_lock_manager::unlockFunction(int function) {
  switch (function) {
    case kFuncBox:
      unlockBox(kFuncBox, box_->kind_, box_->number_, kBoxReason);
      break;
    case kFuncSend:
    case kFuncFax:
      unlockAddressbook(function, addressbook_->reason_);
      break;
    case kFuncSystem:
      unlockBox(kFuncSystem, sys_box_->kind_, sys_box_->number_, kBoxReason);
      unlockAddressbook(kFuncSystem, addressbook_->reason_);
      unlock_all_information();
      break;
    default:
      break;
  }
}

// ---------------------------------------------------------------- other requests

int dvc_pnl_ceh_exclusive_lock_manager::pullprint_exclusive_lock(int lock) {
  int user = -1;
  const int read =
      dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_ID, user);
  if (read != DVC_PNL_CEH_RET_OK)
    CEH_ERR("get_int_from_dm_by_application DVC_PNL_PDM_AUTHENTICATION_ID ret_code = %d", read);
  const dvc_pnl_cmm_key key = key_of(
      {kPullPrint[0], kPullPrint[1], kPullPrint[2], lock != 0 ? kPullPrintLock : kPullPrintUnlock});
  dvc_pnl_cmm_valueset response;
  long result = -1;
  if (!run(key, {{1012, user}}, response, result))
    return -1;
  if (result != kPullPrintGranted) {
    CEH_ERR("pullprint_exclusive_lock(%d) result = %ld", lock, result);
    return -1;
  }
  return 0;
}

long dvc_pnl_ceh_exclusive_lock_manager::get_destination_count(long function) {
  const dvc_pnl_cmm_key key =
      key_of({kDestinationCount[0], kDestinationCount[1], kDestinationCount[2]});
  dvc_pnl_cmm_valueset response;
  long result = -1;
  if (!run(key, {{kNodeFunction, function}}, response, result))
    return 0;
  long count = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, key, kNodeCount, count);
  return count;
}

// ---------------------------------------------------------------- events

long dvc_pnl_ceh_exclusive_lock_manager::getOptNicStatus(const dvc_pnl_evh_panel_event& event) {
  dvc_pnl_cmm_valueset source;
  if (event.dvc_pnl_evh_get_event_source_valueset(source) != 0) {
    CEH_ERR("dvc_pnl_evh_get_event_source_valueset failed");
    return -1;
  }
  long status = -1;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(
      kOptNicStatus, 2, std::size(kOptNicStatus), source, status);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_valueset ret_code = %d", ret);
    return -1;
  }
  return status;
}

void dvc_pnl_ceh_exclusive_lock_manager::hand_over_addressbook(int from, int to) {
  if (addressbook_->function_ == -1)
    return;
  if (addressbook_->function_ == from) {
    unlockAddressbook(from, addressbook_->reason_);
    if (get_destination_count(to) > 0)
      lockAddressbook(to, DVC_PNL_CEH_REASON_OF_LOCKING_2);
  }
  if (addressbook_->wanted_by(to) == DVC_PNL_CEH_REASON_OF_LOCKING_1)
    lockAddressbook(to, DVC_PNL_CEH_REASON_OF_LOCKING_1);
}

int dvc_pnl_ceh_exclusive_lock_manager::dvu_pnl_evd_notify(const dvc_pnl_evh_panel_event& event) {
  const int id = event.dvc_pnl_evh_get_id();
  switch (id) {
    case kEventBackToTop:
      unlockFunction(kFuncBox);
      unlockFunction(kFuncSend);
      unlockFunction(kFuncFax);
      unlockFunction(kFuncSystem);
      break;
    case kEventLeaveFunction: {
      dvc_pnl_psm_page_stack_matrix* psm =
          dvc_pnl_psm_page_stack_matrix::dvc_pnl_psm_get_instance();
      const int function = psm == nullptr ? -1 : psm->dvc_pnl_psm_get_function();
      if (function == kFuncBox) {
        unlockBox(kFuncBox, box_->kind_, box_->number_, kBoxReason);
      } else if (function == kFuncSystem) {
        if (sys_box_->function_ == kFuncSystem)
          unlockBox(kFuncSystem, sys_box_->kind_, sys_box_->number_, kBoxReason);
        if (addressbook_->function_ == kFuncSystem)
          unlockAddressbook(kFuncSystem, addressbook_->reason_);
        unlock_all_information();
      }
      break;
    }
    case kEventBoxRelease610:
    case kEventBoxRelease609:
      if (box_->function_ == kFuncBox)
        unlockBox(kFuncBox, box_->kind_, box_->number_, kBoxReason);
      break;
    case kEventSendSettingsReset:
      hand_over_addressbook(kFuncSend, kFuncFax);
      break;
    case kEventFaxSettingsReset:
      hand_over_addressbook(kFuncFax, kFuncSend);
      break;
    case kEventOptNicStatus:
      if (getOptNicStatus(event) == kOptNicNeedsLock && opt_nic_->locked_ != 1) {
        opt_nic_->locked_ = 0;
        lockOptNicSetting();
      }
      break;
    default:
      break;
  }
  return 1;
}

}  // namespace orvanta
