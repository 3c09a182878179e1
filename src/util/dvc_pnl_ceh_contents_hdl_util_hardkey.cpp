// Hard key locks: the count of locks per key, the lock words sent to the platform, the colour LED
// words and the temporary release of keys.
#include <iterator>
#include <map>

#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace {

struct hardkey_type_row {
  DVC_PNL_CMN_ENUM_HARDKEY_TYPE type;
  const char* log_name;  // as the log writes it
};

// Every counted key type, in the order the log walks them.
constexpr hardkey_type_row hardkey_typ_tbl_[] = {
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_DEFAULT, "DEFAULT "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_CHANGE_FUNCTION_KEY, "CHANGE_FUNCTION_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_CALL_DISP_KEY, "CALL_DISP_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_SHIFT_LOCK_KEY, "SHIFT_LOCK_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_FREXIBLE_KEY, "FREXIBLE_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_FUNCTION_MENU_KEY, "FUNCTION_MENU_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_CURSOR_KEY, "CURSOR_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_ENTER_AND_BACK_KEY, "ENTER_AND_BACK_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_TEN_KEY, "TEN_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_CLEAR_KEY, "CLEAR_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_RESET_KEY, "RESET_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_STOP_KEY, "STOP_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_START_KEY, "START_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_PROGRAM_KEY, "PROGRAM_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_LOGOUT_KEY, "LOGOUT_KEY "},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_AUTO_COLOR_KEY, "AUTO_COLOR_KEY"},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_FULL_COLOR_KEY, "FULL_COLOR_KEY"},
    {DVC_PNL_CMN_ENUM_HARDKEY_TYPE_MONO_COLOR_KEY, "MONO_COLOR_KE"},
};
static_assert(std::size(hardkey_typ_tbl_) == DVC_PNL_CEH_HARDKEY_TYPE_COUNT);

// Lock count of each key type. Plain process-wide state: every caller runs inside a dispatch, whose
// serial order protects it.
std::map<DVC_PNL_CMN_ENUM_HARDKEY_TYPE, unsigned>& hardkey_type_() {
  static std::map<DVC_PNL_CMN_ENUM_HARDKEY_TYPE, unsigned> counts;
  return counts;
}

// Keys released for the moment; 0 when none is.
unsigned long hardkey_lock_release_temporarily_ = 0;

constexpr unsigned long kWordMask = 0xffffffffUL;

bool names(unsigned long word, DVC_PNL_CMN_ENUM_HARDKEY_TYPE type) {
  return (word & type) != 0;
}

// While a function login screen pre-loads its page, the locks its load asks for are not real.
bool login_pre_loading() {
  int pre_loading = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(
      DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING, pre_loading);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR(
        "get_int_from_dm_by_application DVC_PNL_PDM_CEH_FUNCTION_LOGIN_PRE_LOADING ret_code = %d",
        ret);
    return false;
  }
  return pre_loading > 0;
}

void send_lock_word(unsigned long word) {
  const dvc_pnl_cmm_valueset source =
      events::group_of(DVC_PNL_CEH_NODE_HARDKEY_LOCK,
                       {{DVC_PNL_CEH_NODE_HARDKEY_LOCK_WORD, static_cast<long>(word & kWordMask)}});
  events::post(DVC_PNL_CEH_EVENT_HARDKEY_LOCK, DVC_PNL_CEH_EVENT_INIT_KIND, &source);
}

}  // namespace

unsigned dvc_pnl_ceh_contents_hdl_get_hardkey_lock(DVC_PNL_CMN_ENUM_HARDKEY_TYPE type) {
  const unsigned count = hardkey_type_()[type];
  CEH_TRC("dvc_pnl_ceh_contents_hdl_get_hardkey_lock [%08X]sts = %d ", static_cast<unsigned>(type),
          static_cast<int>(count));
  return count;
}

void dvc_pnl_ceh_contents_hdl_set_hardkey_lock(unsigned long word) {
  auto& counts = hardkey_type_();
  if (counts.empty()) {
    for (const hardkey_type_row& row : hardkey_typ_tbl_)
      counts[row.type] = 0;
  }
  if ((word & DVC_PNL_CMN_ENUM_HARDKEY_OPE_LOCK) != 0) {
    for (const hardkey_type_row& row : hardkey_typ_tbl_) {
      if (!names(word, row.type))
        continue;
      CEH_TRC("OPE_LOCK [%s] count %d + %d", row.log_name, static_cast<int>(counts[row.type]), 1);
      ++counts[row.type];
    }
  } else if ((word & DVC_PNL_CMN_ENUM_HARDKEY_OPE_UNLOCK) != 0) {
    for (const hardkey_type_row& row : hardkey_typ_tbl_) {
      if (counts[row.type] == 0 || !names(word, row.type))
        continue;
      CEH_TRC("OPE_UNLOCK [%s] count %d - %d", row.log_name, static_cast<int>(counts[row.type]), 1);
      --counts[row.type];
    }
  } else if ((word & DVC_PNL_CMN_ENUM_HARDKEY_OPE_CLEAR) != 0) {
    for (const hardkey_type_row& row : hardkey_typ_tbl_) {
      if (!names(word, row.type))
        continue;
      CEH_TRC("OPE_CLEAR [%s] count = %d", row.log_name, static_cast<int>(counts[row.type]));
      counts[row.type] = 0;
    }
  }
  for (const hardkey_type_row& row : hardkey_typ_tbl_) {
    if (counts[row.type] != 0)
      CEH_TRC("key [%s] count = %d", row.log_name, static_cast<int>(counts[row.type]));
  }
}

void dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status(long word) {
  if (login_pre_loading())
    return;
  unsigned long lock_word = static_cast<unsigned long>(word) & kWordMask;
  if (lock_word == DVC_PNL_CMN_ENUM_HARDKEY_TYPE_ALL_KEY) {
    lock_word = DVC_PNL_CMN_ENUM_HARDKEY_TYPE_ALL_KEY | DVC_PNL_CMN_ENUM_HARDKEY_OPE_LOCK;
    CEH_TRC("DVC_PNL_CMN_ENUM_HARDKEY_TYPE_ALL_KEY | DVC_PNL_CMN_ENUM_HARDKEY_OPE_LOCK");
  } else if (lock_word == 0) {
    lock_word = DVC_PNL_CMN_ENUM_HARDKEY_TYPE_ALL_KEY | DVC_PNL_CMN_ENUM_HARDKEY_OPE_UNLOCK;
    CEH_TRC("DVC_PNL_CMN_ENUM_HARDKEY_TYPE_ALL_KEY | DVC_PNL_CMN_ENUM_HARDKEY_OPE_UNLOCK");
  }
  dvc_pnl_ceh_contents_hdl_set_hardkey_lock(lock_word);
  // The counts follow the request; the platform keeps released keys free until the release ends.
  lock_word &= ~hardkey_lock_release_temporarily_;
  send_lock_word(lock_word);
}

void dvc_pnl_ceh_contents_hdl_send_panel_event_update_hardkey_lock_status_led(long word,
                                                                              int function) {
  if (login_pre_loading())
    return;
  const dvc_pnl_cmm_valueset source = events::group_of(
      DVC_PNL_CEH_NODE_HARDKEY_LOCK, {{DVC_PNL_CEH_NODE_HARDKEY_LED_WORD, word},
                                      {DVC_PNL_CEH_NODE_HARDKEY_LED_FUNCTION, function}});
  events::post(DVC_PNL_CEH_EVENT_HARDKEY_LOCK, DVC_PNL_CEH_EVENT_INIT_KIND, &source);
}

void dvc_pnl_ceh_contents_hdl_hardkey_lock_release_temporarily(long keys, int release) {
  const unsigned long key_bits = static_cast<unsigned long>(keys) & kWordMask;
  if (release != 0) {
    hardkey_lock_release_temporarily_ = key_bits;
    send_lock_word(key_bits | DVC_PNL_CMN_ENUM_HARDKEY_OPE_CLEAR);
    return;
  }
  // One lock word per level of count: a key locked twice is locked twice at the platform again.
  auto& counts = hardkey_type_();
  for (unsigned level = 0;; ++level) {
    unsigned long word = 0;
    for (const hardkey_type_row& row : hardkey_typ_tbl_) {
      if (names(key_bits, row.type) && counts[row.type] > level)
        word |= row.type;
    }
    if (word == 0) {
      hardkey_lock_release_temporarily_ = 0;
      break;
    }
    send_lock_word(word | DVC_PNL_CMN_ENUM_HARDKEY_OPE_LOCK);
  }
}

void dvc_pnl_ceh_contents_hdl_reset_hardkey_locks() {
  hardkey_type_().clear();
  hardkey_lock_release_temporarily_ = 0;
}

}  // namespace orvanta
