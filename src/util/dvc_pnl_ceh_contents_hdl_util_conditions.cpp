// Condition queries about users, login and the remote panel, and the shared read and command
// steps of all condition queries. They never fail outward: a failed read gives the fallback.
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"

#include <string>
#include <utility>

#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_records.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

// ---------------------------------------------------------------- shared steps

namespace conditions {

namespace {

// Reads through `get` into a temporary and hands it over only on success, so that the caller's
// preset stands after a failed read.
template <typename T, typename Get>
int read_setting(Get get, const path& node, T& value, int start) {
  T read{};
  const int ret = get(node.data(), start, static_cast<unsigned>(node.size()), read);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("retrieval of setting from cmm failed. ret_code = %d", ret);
    return ret;
  }
  value = std::move(read);
  return DVC_PNL_CEH_RET_OK;
}

}  // namespace

int read_int(const path& node, long& value, int start) {
  return read_setting(dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm, node, value, start);
}

int read_string(const path& node, std::string& value, int start) {
  return read_setting(dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm, node, value, start);
}

int answer_equals(const path& node, long yes, int failure, int start) {
  long value = 0;
  if (read_int(node, value, start) != DVC_PNL_CEH_RET_OK)
    return failure;
  return value == yes ? 1 : 0;
}

namespace {

dvc_pnl_cmm_key key_of(const path& nodes) {
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_build_key(key, nodes.data(), static_cast<unsigned>(nodes.size()));
  return key;
}

path below(const path& command, unsigned long node) {
  path full = command;
  full.push_back(node);
  return full;
}

}  // namespace

int run_command(const path& command, const dvc_pnl_cmm_valueset& request,
                dvc_pnl_cmm_valueset& response) {
  int ret = dvc_pnl_ceh_contents_hdl_invoke_cmm(key_of(command), request, response);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_invoke_cmm ret_code = %d", ret);
    return ret;
  }
  // Nothing but RESULT is read unless it is the success value.
  long result = -1;
  ret = response_int(command, DVC_PNL_CEH_NODE_RESULT, response, result);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  if (result != 0) {
    CEH_ERR("command result NG. RESULT = %ld", result);
    return DVC_PNL_CEH_RET_UNKNOWN_TYPE;
  }
  return DVC_PNL_CEH_RET_OK;
}

int run_command(const path& command, std::initializer_list<word> words,
                dvc_pnl_cmm_valueset& response) {
  const dvc_pnl_cmm_key key = key_of(command);
  dvc_pnl_cmm_valueset request;
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, DVC_PNL_CEH_NODE_REQUEST_KIND, 1);
  for (const word& w : words)
    dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, w.first, w.second);
  return run_command(command, request, response);
}

int response_int(const path& command, unsigned long node, const dvc_pnl_cmm_valueset& response,
                 long& value) {
  const path full = below(command, node);
  long read = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(
      full.data(), 0, static_cast<unsigned>(full.size()), response, read);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_valueset ret_code = %d", ret);
    return ret;
  }
  value = read;
  return DVC_PNL_CEH_RET_OK;
}

int response_string(const path& command, unsigned long node, const dvc_pnl_cmm_valueset& response,
                    std::string& value) {
  const path full = below(command, node);
  const char* read = nullptr;
  const int ret = dvc_pnl_ceh_contents_hdl_get_string_from_valueset(
      full.data(), 0, static_cast<unsigned>(full.size()), response, read);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_string_from_valueset ret_code = %d", ret);
    return ret;
  }
  value = read;  // the text belongs to the response: copy it now
  return DVC_PNL_CEH_RET_OK;
}

const path kUserRecord = {0, 681, 843, 584};

int guest_user_record(dvc_pnl_cmm_valueset& response) {
  // The guest is known to this command by login id and user number.
  constexpr long kGuestUserNumber = 102;
  return run_command(kUserRecord, {{1012, DVC_PNL_CEH_USER_GUEST}, {1365, kGuestUserNumber}},
                     response);
}

bool users_log_in(int management) {
  return management == 1 || management == 3;
}

bool user_logged_in_not_guest() {
  const long id = dvc_pnl_ceh_contents_hdl_get_authentication_id();
  return id != DVC_PNL_CEH_USER_NONE && id != DVC_PNL_CEH_USER_GUEST;
}

}  // namespace conditions

using conditions::path;

namespace {

const path kUserInformation = {0, 874, 844};

// Fields of the user information answer.
constexpr unsigned long kUserName = 504;
constexpr unsigned long kUserDomain = 658;
constexpr unsigned long kUserAuthenticatedBy = 536;  // 1 a network user
constexpr unsigned long kUserOwnLanguage = 730;      // 2 the user's own language is used
constexpr unsigned long kUserRole = 1561;            // 1 administrator, 3 machine administrator
constexpr unsigned long kUserLanguage = 3170;
constexpr unsigned long kUserOptionLanguage = 3891;
constexpr unsigned long kUserOwnSendScreen = 3171;  // 2 the user's own default send screen
constexpr unsigned long kUserSendScreenKind = 348;  // 1 and 8 carry a screen
constexpr unsigned long kUserSendScreen = 3172;

// Authentication settings, each read out of its group.
const path kAuthSetting = {0, 534, 535, 2257, 501};
const path kAuthMethod = {0, 534, 535, 2257, 536};  // 1 network authentication
const path kAuthServerType = {0, 534, 535, 537, 539};
const path kKeyboardLogin = {0, 534, 535, 1987};
const path kPinLoginMode = {0, 534, 535, 3839};
constexpr int kGroupEntry = 4;

// An integer read without the common failure trace: the caller traces its own text.
int try_int(const path& node, long& value, int start = 0) {
  long read = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(
      node.data(), start, static_cast<unsigned>(node.size()), read);
  if (ret == DVC_PNL_CEH_RET_OK)
    value = read;
  return ret;
}

int int_from_dm(const std::string& key, int preset) {
  int value = preset;
  dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(key, value);
  return value;
}

// The current user's information answer; 0 when it was read.
int current_user_information(dvc_pnl_cmm_valueset& response) {
  return dvc_pnl_ceh_contents_hdl_get_user_information(
      dvc_pnl_ceh_contents_hdl_get_authentication_id(), response);
}

// A text field of the current user compared with `text`.
int current_user_text_is(unsigned long node, const char* text) {
  dvc_pnl_cmm_valueset response;
  if (current_user_information(response) != DVC_PNL_CEH_RET_OK)
    return 0;
  std::string value;
  if (dvc_pnl_ceh_contents_hdl_get_user_information_string(response, node, value) !=
      DVC_PNL_CEH_RET_OK)
    return 0;
  return value == text ? 1 : 0;
}

// The information of the user logged in, when users log in and somebody other than the guest is
// logged in: true with the answer in `response`, node 536 in `by` and, for a network user
// (`by` 1), the server kind in `kind`.
bool logged_in_user_information(dvc_pnl_cmm_valueset& response, long& by, long& kind) {
  if (!conditions::users_log_in(dvc_pnl_ceh_contents_hdl_get_management()) ||
      !conditions::user_logged_in_not_guest())
    return false;
  if (current_user_information(response) != DVC_PNL_CEH_RET_OK)
    return false;
  dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserAuthenticatedBy, by);
  if (by == 1)
    dvc_pnl_ceh_contents_hdl_get_auth_server_type(kind);
  return true;
}

// Whether the current user is a network user, and the server kind when it is.
bool network_user(long& kind) {
  dvc_pnl_cmm_valueset response;
  long by = 0;
  return logged_in_user_information(response, by, kind) && by == 1;
}

}  // namespace

// ---------------------------------------------------------------- the user information

int dvc_pnl_ceh_contents_hdl_get_user_information(long user_id, dvc_pnl_cmm_valueset& response) {
  return conditions::run_command(kUserInformation, {{1012, user_id}}, response);
}

int dvc_pnl_ceh_contents_hdl_get_user_information_int(const dvc_pnl_cmm_valueset& response,
                                                      unsigned long node, long& value) {
  return conditions::response_int(kUserInformation, node, response, value);
}

int dvc_pnl_ceh_contents_hdl_get_user_information_string(const dvc_pnl_cmm_valueset& response,
                                                         unsigned long node, std::string& value) {
  return conditions::response_string(kUserInformation, node, response, value);
}

int dvc_pnl_ceh_contents_hdl_get_auth_server_type(long& kind) {
  return conditions::read_int(kAuthServerType, kind, kGroupEntry);
}

// ---------------------------------------------------------------- users and authentication

int dvc_pnl_ceh_contents_hdl_get_management() {
  // Preset 0: the read keeps it on failure and has traced the failure itself.
  int management = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_MODE,
                                                          management);
  CEH_TRC("management = %d", management);
  return management;
}

int dvc_pnl_ceh_contents_hdl_get_authentication_function() {
  int mode = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(
      DVC_PNL_PDM_AUTHENTICATION_MODE, mode);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("get authentication mode failed :%d", ret);
    return -1;
  }
  return mode != 0 ? 1 : 0;
}

long dvc_pnl_ceh_contents_hdl_get_authentication_id() {
  return int_from_dm(DVC_PNL_PDM_AUTHENTICATION_ID, static_cast<int>(DVC_PNL_CEH_USER_NONE));
}

int dvc_pnl_ceh_contents_hdl_is_login() {
  return dvc_pnl_ceh_contents_hdl_get_authentication_id() != DVC_PNL_CEH_USER_NONE ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_is_guest_user() {
  if (!conditions::users_log_in(dvc_pnl_ceh_contents_hdl_get_management()))
    return 0;
  if (int_from_dm(DVC_PNL_PDM_FUNCTION_LOGIN_SETTING, 0) != 1)
    return 0;
  return dvc_pnl_ceh_contents_hdl_get_authentication_id() == DVC_PNL_CEH_USER_GUEST ? 1 : 0;
}

int get_authentication_method() {
  long method = -1;
  if (try_int(kAuthMethod, method, kGroupEntry) != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("auth_method acquisition failed.");
    return -1;
  }
  return static_cast<int>(method);
}

int get_authentication_setting() {
  long setting = 0;
  if (try_int(kAuthSetting, setting, kGroupEntry) != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("auth_setting acquisition failed.");
    return 0;
  }
  return static_cast<int>(setting);
}

int get_keyboard_login_setting() {
  long setting = -1;
  const int ret = try_int(kKeyboardLogin, setting);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("KEYBOARD_LOGIN_SETTING acquisition failed. ret_code = %d", ret);
    return -1;
  }
  return static_cast<int>(setting);
}

int dvc_pnl_ceh_contents_hdl_is_network_user() {
  long kind = 0;
  return network_user(kind) ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_is_network_nlc_user() {
  long kind = 0;
  return network_user(kind) && kind == 2 ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_is_admin_user() {
  dvc_pnl_cmm_valueset response;
  const int ret = current_user_information(response);
  if (ret == DVC_PNL_CEH_RET_UNKNOWN_TYPE)
    return 0;  // the machine answered, and not with success
  if (ret != DVC_PNL_CEH_RET_OK)
    return 3;
  long role = 0;
  if (dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserRole, role) !=
      DVC_PNL_CEH_RET_OK)
    return 3;
  return role == 1 || role == 3 ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_is_apparatus_admin(long id) {
  if (id == DVC_PNL_CEH_USER_NONE)
    id = dvc_pnl_ceh_contents_hdl_get_authentication_id();
  dvc_pnl_cmm_valueset response;
  if (dvc_pnl_ceh_contents_hdl_get_user_information(id, response) != DVC_PNL_CEH_RET_OK)
    return 0;
  long role = 0;
  dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserRole, role);
  return role == 3 ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_login_user_is_self(const char* name) {
  if (name == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_login_user_is_self name is NULL");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  return current_user_text_is(kUserName, name);
}

int dvc_pnl_ceh_contents_hdl_login_user_is_self_by_user_name(const char* /*name*/) {
  return 1;
}

int dvc_pnl_ceh_contents_hdl_check_domain_name(const char* domain) {
  if (domain == nullptr) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_check_domain_name domain is NULL");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  return current_user_text_is(kUserDomain, domain);
}

int dvc_pnl_ceh_contents_hdl_get_unknown_user_id(long& id) {
  const path command = {0, 503, 3952};
  dvc_pnl_cmm_valueset response;
  const int ret = conditions::run_command(command, {{3958, 3}}, response);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  return conditions::response_int(command, 1259, response, id);
}

long dvc_pnl_ceh_contents_hdl_get_guest_user_status(long node) {
  dvc_pnl_cmm_valueset response;
  if (dvc_pnl_ceh_contents_hdl_get_user_information(DVC_PNL_CEH_USER_GUEST, response) !=
      DVC_PNL_CEH_RET_OK)
    return -1;
  long value = -1;
  if (dvc_pnl_ceh_contents_hdl_get_user_information_int(response, static_cast<unsigned long>(node),
                                                        value) != DVC_PNL_CEH_RET_OK)
    return -1;
  return value;
}

namespace {

// The language a network user has chosen for himself: true with `language` when the user
// information says so (`language` keeps the start value when its field can't be read).
bool own_language(long& language) {
  dvc_pnl_cmm_valueset response;
  long by = 0;
  long kind = 0;
  if (!logged_in_user_information(response, by, kind) || by != 1 || kind < 2)
    return false;
  long own = 0;
  dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserOwnLanguage, own);
  if (own != 2)
    return false;
  dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserLanguage, language);
  if (language == DVC_PNL_CEH_LANGUAGE_OPTION)
    dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserOptionLanguage, language);
  return true;
}

}  // namespace

long dvc_pnl_ceh_contents_hdl_get_user_language() {
  long language = 1;
  if (own_language(language))
    return language;
  language = dvc_pnl_ceh_contents_hdl_get_display_language();
  if (language == DVC_PNL_CEH_LANGUAGE_OPTION) {
    const int ret = dvc_pnl_ceh_contents_hdl_get_display_option_language(language);
    if (ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("failed dvc_pnl_ceh_contents_hdl_get_display_option_language. ret_code = %d", ret);
  }
  return language;
}

int dvc_pnl_ceh_contents_hdl_is_selected_language_opt() {
  // The same walk as the user language, but the first failed read answers 0.
  dvc_pnl_cmm_valueset response;
  long by = 0;
  long kind = 0;
  if (logged_in_user_information(response, by, kind) && by == 1 && kind >= 2) {
    long own = 0;
    if (dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserOwnLanguage, own) !=
        DVC_PNL_CEH_RET_OK) {
      CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm failed.");
      return 0;
    }
    if (own == 2) {
      long language = 0;
      if (dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserLanguage, language) !=
          DVC_PNL_CEH_RET_OK) {
        CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm failed.");
        return 0;
      }
      return language == DVC_PNL_CEH_LANGUAGE_OPTION ? 1 : 0;
    }
  }
  long language = 0;
  if (try_int({0, 230, 343, 347}, language) != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm failed.");
    return 0;
  }
  return language == DVC_PNL_CEH_LANGUAGE_OPTION ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_get_send_default_screen(long& screen) {
  if (conditions::users_log_in(dvc_pnl_ceh_contents_hdl_get_management()) &&
      dvc_pnl_ceh_contents_hdl_is_login() == 1) {
    dvc_pnl_cmm_valueset response;
    if (current_user_information(response) == DVC_PNL_CEH_RET_OK) {
      long by = 0;
      long kind = 0;
      long own = 0;
      dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserAuthenticatedBy, by);
      if (by == 1)
        dvc_pnl_ceh_contents_hdl_get_auth_server_type(kind);
      dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserOwnSendScreen, own);
      long screen_kind = 0;
      if (kind == 2 && own == 2 &&
          dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserSendScreenKind,
                                                            screen_kind) == DVC_PNL_CEH_RET_OK &&
          (screen_kind == 1 || screen_kind == 8) &&
          dvc_pnl_ceh_contents_hdl_get_user_information_int(response, kUserSendScreen, screen) ==
              DVC_PNL_CEH_RET_OK)
        return DVC_PNL_CEH_RET_OK;
    }
  }
  long value = 0;
  if (dvc_pnl_ceh_contents_hdl_get_send_default_screen_from_cmm(value) == DVC_PNL_CEH_RET_OK) {
    screen = value;
    if (value == 1)
      screen = dvc_pnl_ceh_contents_hdl_modify_send_def_screen(1);
  }
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_get_job_user_type(const char* user_name, const char* domain_name) {
  if (user_name == nullptr || *user_name == '\0')
    return 3;
  dvc_pnl_cmm_valueset response;
  std::string guest;
  if (conditions::guest_user_record(response) == DVC_PNL_CEH_RET_OK &&
      conditions::response_string(conditions::kUserRecord, kUserName, response, guest) ==
          DVC_PNL_CEH_RET_OK &&
      guest == user_name)
    return 0;
  if (dvc_pnl_ceh_contents_hdl_is_login() == 1 ||
      conditions::users_log_in(dvc_pnl_ceh_contents_hdl_get_management())) {
    if (dvc_pnl_ceh_contents_hdl_login_user_is_self(user_name) == 1 &&
        dvc_pnl_ceh_contents_hdl_check_domain_name(domain_name) == 1)
      return 1;
  }
  return 2;
}

int dvc_pnl_ceh_contents_hdl_is_pin_login_priority() {
  long setting = 0;
  long method = 0;
  long kind = 0;
  if (try_int(kAuthSetting, setting, kGroupEntry) != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("auth_setting acquisition failed.");
    return 0;
  }
  if (try_int(kAuthMethod, method, kGroupEntry) != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("auth_method acquisition failed.");
    return 0;
  }
  if (method == 1 && try_int(kAuthServerType, kind, kGroupEntry) != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("server_type acquisition failed.");
    return 0;
  }
  if (setting != 1 || method != 1 || kind != 2)
    return 0;
  long pin = 0;
  if (try_int(kPinLoginMode, pin) != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("pin_login_mode acquisition failed.");
    return 0;
  }
  return pin == 1 ? 1 : 0;
}

DVC_PNL_CEH_CONTENTS_ID dvc_pnl_ceh_contents_hdl_get_panel_lock_login_page() {
  if (dvc_pnl_ceh_contents_hdl_ic_card_reader_device_detect() == 1)
    return CID_11_09_N1;
  if (dvc_pnl_ceh_contents_hdl_is_pin_login_priority() == 1)
    return CID_11_11_N7;
  return get_keyboard_login_setting() != 0 ? CID_11_08_N1 : CID_11_01_N1;
}

DVC_PNL_CEH_CONTENTS_ID dvc_pnl_ceh_contents_hdl_get_job_info_login_page() {
  if (get_authentication_method() == 1) {
    long kind = -1;
    if (try_int(kAuthServerType, kind, kGroupEntry) != DVC_PNL_CEH_RET_OK)
      kind = -1;
    if (kind != 2)
      return CID_11_01_N1;
  }
  return dvc_pnl_ceh_contents_hdl_get_panel_lock_login_page();
}

int dvc_pnl_ceh_contents_hdl_get_panel_lock_restriction_status(long option) {
  const int status = dvc_pnl_ceh_contents_hdl_get_panel_lock_status();
  if (status < 1 || status > 4 || (option & (1L << (status - 1))) == 0)
    return 0;
  if (dvc_pnl_ceh_contents_hdl_is_login() != 1)
    return 1;
  const bool admin = dvc_pnl_ceh_contents_hdl_is_admin_user() == 1;
  if (dvc_pnl_ceh_contents_hdl_get_management() == 2 && !admin)
    return 1;
  return admin ? 0 : 2;
}

namespace {

// One function a guest may be refused: its bit, the field of the guest's job accounting record
// that can refuse it (by count method 0 and other; 0 none), and the guest permission node.
struct guest_function {
  long bit;
  unsigned long field_count_method_0;
  unsigned long field_other;
  long permission;
};

constexpr guest_function kGuestFunctions[] = {
    {0x10, 1372, 1385, 3060},  {0x20, 0, 0, 3061},        {0x40, 1369, 1385, 3062},
    {0x80, 0, 0, 3063},        {0x100, 0, 0, 3064},       {0x200, 1374, 1374, 3065},
    {0x400, 1375, 1375, 3066}, {0x800, 1374, 1374, 3067}, {0x1000, 1374, 1374, 3068},
};

long account_field(const ACCOUNT_DETAIL& account, unsigned long node) {
  switch (node) {
    case 1369:
      return account.restriction_1369;
    case 1372:
      return account.restriction_1372;
    case 1374:
      return account.restriction_1374;
    case 1375:
      return account.restriction_1375;
    case 1385:
      return account.restriction_1385;
    default:
      return 0;
  }
}

// A restriction field of 2 refuses the function outright.
constexpr long kAccountRestricted = 2;

}  // namespace

int dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(long option) {
  const bool accounting = dvc_pnl_ceh_contents_hdl_get_management() == 3;
  // Without job accounting the record stays empty and refuses nothing.
  ACCOUNT_DETAIL account{};
  if (accounting)
    dvc_pnl_ceh_contents_hdl_get_guest_user_job_accounting_detail_from_cmm(account);

  for (const guest_function& f : kGuestFunctions) {
    if ((option & f.bit) == 0)
      continue;
    if (accounting && f.field_count_method_0 != 0) {
      unsigned long field = f.field_count_method_0;
      if (f.field_other != f.field_count_method_0 &&
          dvc_pnl_ceh_contents_hdl_get_job_accounting_count_method() != 0)
        field = f.field_other;
      if (account_field(account, field) == kAccountRestricted)
        return 1;
    }
    const long status = dvc_pnl_ceh_contents_hdl_get_guest_user_status(f.permission);
    if (status == -1 || status == -2)
      return 0;
    return status == 1 ? 1 : 0;
  }

  if ((option & 0x2000) != 0)
    return dvc_pnl_ceh_contents_hdl_get_job_permission_state(48);
  if ((option & 0x4000) != 0) {
    if (dvc_pnl_ceh_contents_hdl_get_job_permission_state(3528) == 1)
      return 1;
    return dvc_pnl_ceh_contents_hdl_get_job_permission_state(3529);
  }
  if ((option & 0x8000) != 0)
    return dvc_pnl_ceh_contents_hdl_get_job_permission_state(3529);
  if ((option & 0x10000) != 0)
    return dvc_pnl_ceh_contents_hdl_get_job_permission_state(486);
  return 0;
}

// ---------------------------------------------------------------- remote panel

namespace {

// The remote panel status at 0.2096 of the stored status set; false when it can't be read.
bool remote_status(long& status) {
  dvc_pnl_cmm_valueset remote;
  if (dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_application_scope(
          DVC_PNL_PDM_REMOTE_PANEL_STATUS, remote) != 0)
    return false;
  const unsigned long node[] = {0, 2096};
  return dvc_pnl_ceh_contents_hdl_get_int_from_valueset(node, 0, 2, remote, status) == 0;
}

}  // namespace

int is_remote_connected(long& status) {
  status = 0;
  long value = 0;
  if (!remote_status(value))
    return 0;
  status = value;
  return value == 2 || value == 3 ? 1 : 0;
}

int is_remote_connected() {
  long status = 0;
  return is_remote_connected(status);
}

int is_remote_connection_made() {
  long status = 0;
  if (!remote_status(status))
    return 0;
  return status == 2 || status == 3 || status == 4 ? 1 : 0;
}

}  // namespace orvanta
