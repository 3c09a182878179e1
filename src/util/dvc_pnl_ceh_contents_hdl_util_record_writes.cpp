// Record writes and edit checks: the user, account and box changes sent to the machine, the test
// whether an edited record differs from its backup, and the proxy settings.
#include <array>
#include <cstring>
#include <memory>
#include <span>
#include <string>
#include <utility>

#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_record_writes_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_records.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {
namespace record_writes {
namespace {

using conditions::path;

const path kUserChange = {0, 681, 843, 583};
const path kUserCardChange = {0, 681, 843, 2394, 2499};
const path kAccountChange = {0, 679, 843, 583};
const path kBoxNew = {0, 857, 860, 351};
const path kBoxChange = {0, 857, 860, 583};
// The domain a box takes when its record names none.
const path kStoredDomain = {0, 534, 535, 509};
const path kProxyGroup = {0, 633, 2561, 2568};

// The system menu's function, where the user records are edited.
constexpr int kSystemMenuFunction = 10;

// A text field goes out up to its size: a full field need not be terminated.
template <std::size_t N>
std::string text_of(const char (&field)[N]) {
  return std::string(field, strnlen(field, N));
}

template <std::size_t N>
void add_text(request_words& words, unsigned long node, const char (&field)[N]) {
  words.emplace_back(node, text_of(field));
}

void add(request_words& words, unsigned long node, long value) {
  words.emplace_back(node, value);
}

dvc_pnl_cmm_key key_of(const path& nodes) {
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_build_key(key, nodes.data(), static_cast<unsigned>(nodes.size()));
  return key;
}

// Writes `words` in their order below `key` and runs the command; the mediator's failure is
// traced and passed on.
int send(const dvc_pnl_cmm_key& key, const request_words& words, dvc_pnl_cmm_valueset& response) {
  dvc_pnl_cmm_valueset request;
  for (const request_word& w : words) {
    if (const long* number = std::get_if<long>(&w.value))
      dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, w.node, *number);
    else
      dvc_pnl_ceh_contents_hdl_set_string_to_request_node(request, key, w.node,
                                                          std::get<std::string>(w.value).c_str());
  }
  const int ret = dvc_pnl_ceh_contents_hdl_invoke_cmm(key, request, response);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("invoke failed :  ret_code = %d", ret);
  return ret;
}

// RESULT below the command; 1, a refusal, when the response holds none.
long result_of(dvc_pnl_cmm_valueset& response, const dvc_pnl_cmm_key& key) {
  long result = 1;
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, key, DVC_PNL_CEH_NODE_RESULT,
                                                      result);
  if (result != 0)
    CEH_ERR("command result NG. RESULT = %ld", result);
  return result;
}

// Runs the command at `command` with `words`: true when it got through and RESULT is 0.
bool run(const path& command, const request_words& words, dvc_pnl_cmm_key& key,
         dvc_pnl_cmm_valueset& response) {
  key = key_of(command);
  return send(key, words, response) == DVC_PNL_CEH_RET_OK && result_of(response, key) == 0;
}

}  // namespace

request_words user_property_request(const USER_LOGIN& user, long actor) {
  request_words words;
  add(words, DVC_PNL_CEH_NODE_REQUEST_KIND, 1);
  add(words, 1365, user.user_number);
  add(words, 1012, actor);
  add_text(words, 504, user.login_name);
  add_text(words, 1360, user.password);
  add_text(words, 1037, user.name);
  add_text(words, 1361, user.text_1361);
  add(words, 1362, user.account_id);
  add_text(words, 10, user.mail);
  add(words, 1363, user.value_1363);
  for (int i = 0; i < DVC_PNL_CEH_USER_PERMISSION_COUNT; ++i)
    add(words, DVC_PNL_CEH_USER_FIRST_PERMISSION + static_cast<unsigned long>(i),
        user.permission[i]);
  add(words, 3537, user.permission_3537);
  add(words, 730, 2);
  add(words, 3170, user.language);
  add(words, 3891, user.option_language);
  add(words, 3171, 2);
  add(words, 348, user.default_screen_kind);
  // The default screen goes out only with a kind that carries one, and the address book setting
  // only with a default screen that uses one.
  if (user.default_screen_kind == 1 || user.default_screen_kind == 8) {
    add(words, 3172, user.default_screen);
    if (user.default_screen == 1 || user.default_screen == 2)
      add(words, 3189, user.address_book_setting);
  }
  add(words, 3181, 1);
  add_text(words, 3616, user.text_3616);
  return words;
}

request_words job_accounting_request(const ACCOUNT_DETAIL& account) {
  // A limit goes out only behind its restriction mode 1.
  const auto limit = [](request_words& words, std::int32_t mode, unsigned long node, long value) {
    if (mode == 1)
      add(words, node, value);
  };
  request_words words;
  add(words, DVC_PNL_CEH_NODE_REQUEST_KIND, 1);
  add(words, 1362, account.account_id);
  add_text(words, 1366, account.code);
  add_text(words, 1367, account.name);
  add_text(words, 1368, account.text_1368);
  add(words, 1369, account.restriction_1369);
  add(words, 1370, 1);
  add(words, 1371, 1);
  add(words, 1372, account.restriction_1372);
  add(words, 1373, 1);
  add(words, 1374, account.restriction_1374);
  add(words, 1375, account.restriction_1375);
  add(words, 1376, 0);
  limit(words, account.restriction_1369, 1377, account.limit_1377);
  add(words, 1378, 0);
  add(words, 1379, 0);
  limit(words, account.restriction_1372, 1380, account.limit_1380);
  add(words, 1381, 0);
  limit(words, account.restriction_1374, 1382, account.limit_1382);
  limit(words, account.restriction_1375, 1383, account.limit_1383);
  add(words, 1385, account.restriction_1385);
  add(words, 2050, 1);
  add(words, 2051, 1);
  limit(words, account.restriction_1385, 1386, account.limit_1386);
  add(words, 2052, 0);
  add(words, 2053, 0);
  return words;
}

int custom_box_request(const BOX_INFO& box, request_words& words) {
  const bool user_owned = box.owner_kind == DVC_PNL_CEH_BOX_OWNER_USER;
  const bool normal = box.kind == DVC_PNL_CEH_BOX_KIND_NORMAL;
  words.clear();
  if (box.box_id == DVC_PNL_CEH_BOX_ID_NEW)
    add(words, 1180, box.kind);
  else
    add(words, 197, box.box_id);
  add(words, DVC_PNL_CEH_NODE_REQUEST_KIND, 1);
  add(words, 1327, box.owner_kind);
  if (user_owned) {
    add(words, 1012, box.owner_id);
    add(words, 1363, box.value_1363);
  }
  add_text(words, 1347, box.name);
  if (normal)
    add(words, 1346, box.value_1346);
  if (user_owned && normal) {
    add(words, 2468, box.value_2468);
    if (box.value_2468 == 1) {
      add_text(words, 2672, box.text_2672);
      std::string domain = text_of(box.domain);
      if (domain.empty()) {
        const int ret = dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(
            kStoredDomain.data(), 0, static_cast<unsigned>(kStoredDomain.size()), domain);
        if (ret != DVC_PNL_CEH_RET_OK) {
          CEH_ERR("get string from cmm error ret_code = %d", ret);
          return ret;
        }
      }
      words.push_back({509, domain});
    } else if (box.value_2468 == 0) {
      add(words, 1349, box.value_1349);
      words.push_back({509, std::string()});
    }
  }
  if (user_owned) {
    add(words, 1351, box.value_1351);
    add(words, 1352, box.value_1352);
    if (box.value_1352 == 1)
      add_text(words, 219, box.text_219);
  }
  add(words, 1354, box.value_1354);
  add(words, 2202, box.value_2202);
  if (box.value_2202 == 1)
    add(words, 1355, box.capacity_limit);
  add(words, 531, box.value_531);
  add(words, 2780, box.value_2780);
  return DVC_PNL_CEH_RET_OK;
}

}  // namespace record_writes

using record_writes::request_words;

int update_user_property(USER_LOGIN* user) {
  if (user == nullptr) {
    CEH_ERR("update_user_property user is NULL");
    return 0;
  }
  const long actor = dvc_pnl_ceh_contents_hdl_get_authentication_id();
  dvc_pnl_cmm_key key;
  dvc_pnl_cmm_valueset response;
  if (!record_writes::run(record_writes::kUserChange,
                          record_writes::user_property_request(*user, actor), key, response))
    return 0;
  // The change is in: the copy kept to undo it goes.
  dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_DVC_CEH_BINARY_TMP_BACKUP,
                                     record_writes::kSystemMenuFunction);
  const request_words card = {
      {DVC_PNL_CEH_NODE_REQUEST_KIND, 1L}, {1365, long{user->user_number}}, {1012, actor}};
  dvc_pnl_cmm_valueset card_response;
  return record_writes::run(record_writes::kUserCardChange, card, key, card_response) ? 1 : 0;
}

int update_job_accounting(ACCOUNT_DETAIL* account) {
  if (account == nullptr) {
    CEH_ERR("update_job_accounting account is NULL");
    return 0;
  }
  dvc_pnl_cmm_key key;
  dvc_pnl_cmm_valueset response;
  return record_writes::run(record_writes::kAccountChange,
                            record_writes::job_accounting_request(*account), key, response)
             ? 1
             : 0;
}

int update_custom_box(BOX_INFO box, long& result) {
  const bool is_new = box.box_id == DVC_PNL_CEH_BOX_ID_NEW;
  // A box that holds more than its limit can't take the change; capacity is in megabytes, the
  // size in kilobytes.
  if (!is_new && static_cast<long>(box.size) > static_cast<long>(box.capacity_limit) * 1024) {
    CEH_ERR("box_info.size : %ld", static_cast<long>(box.size));
    CEH_ERR("box_info.capacity_limit : %ld", static_cast<long>(box.capacity_limit));
    return 0;
  }
  request_words words;
  if (record_writes::custom_box_request(box, words) != DVC_PNL_CEH_RET_OK)
    return 0;
  dvc_pnl_cmm_key key;
  dvc_pnl_cmm_valueset response;
  if (!record_writes::run(is_new ? record_writes::kBoxNew : record_writes::kBoxChange, words, key,
                          response))
    return 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, key, is_new ? 197 : 1114, result);
  return 1;
}

// ---- edit checks ----

namespace {

// Bytes behind the texts of a personal record that an edit does not count.
constexpr std::size_t kPersonalTail = 32;

template <typename R>
bool bytes_differ(R& record, R& backup) {
  return std::memcmp(&record, &backup, sizeof(R)) != 0;
}

// The text fields of a personal record, in the record's order.
std::array<std::span<char>, 17> text_fields(ADDRESS_BOOK_INDIVIDUAL& r) {
  return {r.name,     r.reading,      r.fax_number, r.subaddress,   r.text_1410, r.mail,
          r.smb_host, r.smb_path,     r.smb_user,   r.smb_password, r.ftp_host,  r.ftp_path,
          r.ftp_user, r.ftp_password, r.text_2350,  r.text_2349,    r.text_2351};
}

// Texts equal as strings take the backup's bytes, so what lies behind their end doesn't count;
// nor does the record's tail.
bool personal_differs(ADDRESS_BOOK_INDIVIDUAL& record, ADDRESS_BOOK_INDIVIDUAL& backup) {
  const auto mine = text_fields(record);
  const auto kept = text_fields(backup);
  for (std::size_t i = 0; i < mine.size(); ++i) {
    if (std::strncmp(mine[i].data(), kept[i].data(), mine[i].size()) == 0)
      std::memcpy(mine[i].data(), kept[i].data(), mine[i].size());
  }
  auto* record_bytes = reinterpret_cast<unsigned char*>(&record);
  const auto* backup_bytes = reinterpret_cast<const unsigned char*>(&backup);
  std::memcpy(record_bytes + sizeof record - kPersonalTail,
              backup_bytes + sizeof backup - kPersonalTail, kPersonalTail);
  return bytes_differ(record, backup);
}

// Name, reading and the members in use, entry by entry; the table of removed members and the
// changed word don't count.
bool group_differs(ADDRESS_BOOK_GROUP_DETAIL& record, ADDRESS_BOOK_GROUP_DETAIL& backup) {
  if (std::memcmp(record.name, backup.name, sizeof record.name) != 0 ||
      std::memcmp(record.reading, backup.reading, sizeof record.reading) != 0 ||
      record.member_count != backup.member_count)
    return true;
  const int count = record.member_count < 0 ? 0
                    : record.member_count > DVC_PNL_CEH_GROUP_MEMBER_MAX
                        ? DVC_PNL_CEH_GROUP_MEMBER_MAX
                        : record.member_count;
  for (int i = 0; i < count; ++i) {
    if (bytes_differ(record.members[i], backup.members[i]))
      return true;
  }
  return false;
}

// Reads the record under `key` and its backup and compares them with `differs`. A failed read
// is traced and answers `on_failure`.
template <typename R>
int check(EDIT_STRUCT_TYPE type, const std::string& key, int function, bool (*differs)(R&, R&),
          int on_failure) {
  // The group record is too large for the stack.
  auto record = std::make_unique<R>();
  auto backup = std::make_unique<R>();
  const std::string* failed = &key;
  int ret = dvc_pnl_ceh_contents_hdl_get_binary_from_dm(key, record.get(), sizeof(R), function);
  if (ret == DVC_PNL_CEH_RET_OK) {
    failed = &DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP;
    ret = dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP,
                                                      backup.get(), sizeof(R), function);
  }
  if (ret != DVC_PNL_CEH_RET_OK) {
    if (type == EDIT_STRUCT_TYPE_ADDBOOK_GROUP)
      CEH_ERR(
          "dvc_pnl_ceh_contents_hdl_edit_change_check(EDIT_STRUCT_TYPE_ADDBOOK_GROUP) pdm get "
          "err %s",
          failed->c_str());
    else
      CEH_ERR("dvc_pnl_ceh_contents_hdl_edit_change_check ret_code = %d", ret);
    return on_failure;
  }
  return differs(*record, *backup) ? 1 : 0;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_edit_change_check(EDIT_STRUCT_TYPE type, int function) {
  switch (type) {
    case EDIT_STRUCT_TYPE_ADDBOOK_PERSONAL:
      return check<ADDRESS_BOOK_INDIVIDUAL>(type, DVC_PNL_PDM_ADDRESS_PERSONAL, function,
                                            personal_differs, 0);
    case EDIT_STRUCT_TYPE_ADDBOOK_GROUP:
      // Without the group to compare, it counts as changed.
      return check<ADDRESS_BOOK_GROUP_DETAIL>(type, DVC_PNL_PDM_ADDRESS_GROUP, function,
                                              group_differs, 1);
    case EDIT_STRUCT_TYPE_BOX_INFO:
      return check<BOX_INFO>(type, DVC_PNL_PDM_DVC_CEH_BINARY, function, bytes_differ<BOX_INFO>, 0);
    case EDIT_STRUCT_TYPE_ACCOUNT_DETAIL:
      return check<ACCOUNT_DETAIL>(type, DVC_PNL_PDM_CEH_ACCOUNT_INFO, function,
                                   bytes_differ<ACCOUNT_DETAIL>, 0);
    case EDIT_STRUCT_TYPE_USER_LOGIN:
      return check<USER_LOGIN>(type, DVC_PNL_PDM_DVC_CEH_BINARY, function, bytes_differ<USER_LOGIN>,
                               0);
  }
  // Nothing to compare with: whatever it is counts as changed.
  return 1;
}

// ---- proxy settings ----

namespace {

// The proxy settings' text fields with their nodes, in the order they are written.
std::array<std::pair<unsigned long, std::span<char>>, 5> proxy_texts(PROXY_SETTING& s) {
  return {{{2570, s.http_serv},
           {2571, s.http_port},
           {2572, s.https_serv},
           {2573, s.https_port},
           {2574, s.no_proxy}}};
}

constexpr unsigned long kSameProxy = 2569;

}  // namespace

PROXY_SETTING dvc_pnl_ceh_contents_hdl_get_proxy_from_cm() {
  PROXY_SETTING setting{};
  const conditions::path& group = record_writes::kProxyGroup;
  dvc_pnl_cmm_valueset set;
  const int ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm(
      group.data(), 0, static_cast<unsigned>(group.size()), set);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm ret_code = %d", ret);
    return setting;
  }
  const auto field_key = [](unsigned long node) {
    dvc_pnl_cmm_key key = record_writes::key_of(record_writes::kProxyGroup);
    dvc_pnl_ceh_contents_hdl_add_key(key, node);
    return key;
  };
  long same = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_valueset(set, field_key(kSameProxy), same);
  setting.same_proxy = static_cast<std::int32_t>(same);
  for (auto& [node, field] : proxy_texts(setting)) {
    const char* text = nullptr;
    dvc_pnl_ceh_contents_hdl_get_string_from_valueset(set, field_key(node), text);
    // The text belongs to the set: copy it, cut to the field, while the set lives.
    if (text != nullptr)
      std::memcpy(field.data(), text, strnlen(text, field.size() - 1));
  }
  return setting;
}

int dvc_pnl_ceh_contents_hdl_set_proxy_to_cm(PROXY_SETTING setting) {
  conditions::path node = record_writes::kProxyGroup;
  node.push_back(kSameProxy);
  const long same = setting.same_proxy;
  int ret = dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(node.data(), 0,
                                                        static_cast<unsigned>(node.size()), same);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm ret_code = %d", ret);
    return 0;
  }
  for (auto& [leaf, field] : proxy_texts(setting)) {
    node.back() = leaf;
    const std::string text(field.data(), strnlen(field.data(), field.size()));
    ret = dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm(
        node.data(), 0, static_cast<unsigned>(node.size()), text.c_str());
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm ret_code = %d", ret);
      return 0;
    }
  }
  return 1;
}

}  // namespace orvanta
