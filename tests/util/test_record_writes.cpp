// Record writes and edit checks: the user, account and box changes with their request words in
// order, refusals and failures, the edit check of each record kind, and the proxy settings.
#include <algorithm>
#include <cstddef>
#include <cstring>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "test_conditions_support.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_record_writes_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_records.h"

namespace orvanta::test {
namespace {

using record_writes::request_words;
using Nodes = std::vector<unsigned long>;

constexpr const char* kUserChange = "0.681.843.583";
constexpr const char* kUserCard = "0.681.843.2394.2499";
constexpr const char* kAccountChange = "0.679.843.583";
constexpr const char* kBoxNew = "0.857.860.351";
constexpr const char* kBoxChange = "0.857.860.583";
constexpr int kFunction = 3;

Nodes nodes_of(const request_words& words) {
  Nodes out;
  for (const auto& w : words)
    out.push_back(w.node);
  return out;
}

// The value of `node` among `words`; -12345 when it is not there or is a text.
long word(const request_words& words, unsigned long node) {
  for (const auto& w : words) {
    if (w.node == node && std::holds_alternative<long>(w.value))
      return std::get<long>(w.value);
  }
  return -12345;
}

std::string text_word(const request_words& words, unsigned long node) {
  for (const auto& w : words) {
    if (w.node == node && std::holds_alternative<std::string>(w.value))
      return std::get<std::string>(w.value);
  }
  return "<none>";
}

// `nodes` with those of `drop` left out.
Nodes without(Nodes nodes, const Nodes& drop) {
  std::erase_if(nodes, [&](unsigned long n) { return std::count(drop.begin(), drop.end(), n); });
  return nodes;
}

class RecordWrites : public Conditions {
 protected:
  // The invokes of the machine's log, "invoke <command>" in order.
  static Calls invokes() {
    Calls out;
    for (const std::string& c : calls()) {
      if (c.rfind("invoke ", 0) == 0)
        out.push_back(c);
    }
    return out;
  }

  // The request of the first invoke of `command` holds exactly `words`, each below the command.
  static ::testing::AssertionResult sent(const std::string& command, const request_words& words) {
    std::vector<entry> entries;
    for (const auto& w : words) {
      const std::string path = command + "." + std::to_string(w.node);
      if (const long* n = std::get_if<long>(&w.value))
        entries.push_back({path, *n});
      else
        entries.push_back({path, std::get<std::string>(w.value)});
    }
    for (const call_record& c : machine().log()) {
      if (c.kind == verb::invoke && c.key == command)
        return sets_equal(c.request, make_valueset(entries));
    }
    return ::testing::AssertionFailure() << "no invoke of " << command;
  }

  template <typename R>
  static void store(const std::string& key, const R& record, int function = kFunction) {
    ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_binary_to_dm(key, &record, sizeof record, function));
  }
};

// ---- users ----

USER_LOGIN sample_user() {
  USER_LOGIN u{};
  u.user_number = 102;
  std::strcpy(u.login_name, "guest");
  std::strcpy(u.password, "secret");
  std::strcpy(u.name, "Gast");
  std::strcpy(u.text_1361, "t1361");
  u.account_id = 1;
  std::strcpy(u.account_name, "never sent");
  std::strcpy(u.mail, "gast@example.org");
  u.value_1363 = 13;
  for (int i = 0; i < DVC_PNL_CEH_USER_PERMISSION_COUNT; ++i)
    u.permission[i] = 100 + i;
  u.permission_3537 = 37;
  u.language = 4;
  u.option_language = 5;
  u.default_screen_kind = 1;
  u.default_screen = 2;
  u.address_book_setting = 3;
  std::strcpy(u.text_3616, "t3616");
  return u;
}

TEST_F(RecordWrites, UserChangeWordsInTheirOrder) {
  const USER_LOGIN user = sample_user();
  const request_words words = record_writes::user_property_request(user, 55);
  EXPECT_EQ((Nodes{1320, 1365, 1012, 504,  1360, 1037, 1361, 1362, 10,   1363,
                   3060, 3061, 3062, 3063, 3064, 3065, 3066, 3067, 3068, 3537,
                   730,  3170, 3891, 3171, 348,  3172, 3189, 3181, 3616}),
            nodes_of(words));
  EXPECT_EQ(1, word(words, 1320));
  EXPECT_EQ(102, word(words, 1365));
  EXPECT_EQ(55, word(words, 1012));
  EXPECT_EQ("gast@example.org", text_word(words, 10));
  EXPECT_EQ(106, word(words, 3066));
  EXPECT_EQ(2, word(words, 730));
  EXPECT_EQ(2, word(words, 3171));
  EXPECT_EQ(1, word(words, 3181));
  EXPECT_EQ("t3616", text_word(words, 3616));

  // A text that fills its field goes out whole, without a terminator.
  USER_LOGIN full = user;
  std::memset(full.login_name, 'x', sizeof full.login_name);
  EXPECT_EQ(std::string(DVC_PNL_CEH_USER_LOGIN_NAME_SIZE, 'x'),
            text_word(record_writes::user_property_request(full, 55), 504));
}

TEST_F(RecordWrites, UserDefaultScreenAndAddressBookGoOutOnlyWhereTheyMeanSomething) {
  struct screen_case {
    int kind, screen;
    bool sends_screen, sends_book;
  };
  const screen_case cases[] = {{1, 1, true, true},   {8, 2, true, true},   {1, 3, true, false},
                               {8, 0, true, false},  {0, 1, false, false}, {2, 2, false, false},
                               {7, 1, false, false}, {9, 2, false, false}};
  for (const screen_case& c : cases) {
    USER_LOGIN user = sample_user();
    user.default_screen_kind = c.kind;
    user.default_screen = c.screen;
    const request_words words = record_writes::user_property_request(user, 55);
    const Nodes nodes = nodes_of(words);
    SCOPED_TRACE(testing::Message() << "348 = " << c.kind << ", 3172 = " << c.screen);
    EXPECT_EQ(c.sends_screen, std::count(nodes.begin(), nodes.end(), 3172UL) == 1);
    EXPECT_EQ(c.sends_book, std::count(nodes.begin(), nodes.end(), 3189UL) == 1);
    if (c.sends_book) {
      EXPECT_EQ(3, word(words, 3189));
    }
  }
}

TEST_F(RecordWrites, UserChangeSendsBothCommandsAndDropsTheUndoCopy) {
  login(1, 55);
  const char backup[] = "undo copy";
  store(DVC_PNL_PDM_DVC_CEH_BINARY_TMP_BACKUP, backup, 10);
  USER_LOGIN user = sample_user();
  machine().clear_log();

  EXPECT_EQ(1, update_user_property(&user));
  EXPECT_EQ((Calls{"invoke 0.681.843.583", "invoke 0.681.843.2394.2499"}), invokes());
  EXPECT_TRUE(sent(kUserChange, record_writes::user_property_request(user, 55)));
  EXPECT_TRUE(sent(kUserCard, {{1320, 1L}, {1365, 102L}, {1012, 55L}}));
  char read[sizeof backup];
  EXPECT_NE(0, dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_DVC_CEH_BINARY_TMP_BACKUP,
                                                           read, sizeof read, 10));
}

TEST_F(RecordWrites, UserChangeFailures) {
  struct failure_case {
    const char* name;
    std::function<void()> arm;
    long user_number;
    Calls invokes;
    bool undo_copy_kept;
    const char* trace;
  };
  const failure_case cases[] = {
      {"change not delivered",
       [] { machine().fail_next(verb::invoke, kUserChange); },
       102,
       {"invoke 0.681.843.583"},
       true,
       "invoke failed :  ret_code = 3"},
      {"change refused",
       [] { machine().fail_next_result(kUserChange, 4); },
       102,
       {"invoke 0.681.843.583"},
       true,
       "command result NG. RESULT = 4"},
      {"change answered without RESULT",
       [] { machine().script_next_response(kUserChange, dvc_pnl_cmm_valueset{}); },
       102,
       {"invoke 0.681.843.583"},
       true,
       "command result NG. RESULT = 1"},
      {"user unknown to the machine",
       [] {},
       77,
       {"invoke 0.681.843.583"},
       true,
       "command result NG. RESULT = 1"},
      {"second step not delivered",
       [] { machine().fail_next(verb::invoke, kUserCard); },
       102,
       {"invoke 0.681.843.583", "invoke 0.681.843.2394.2499"},
       false,
       "invoke failed :  ret_code = 3"},
      {"second step refused",
       [] { machine().fail_next_result(kUserCard, 2); },
       102,
       {"invoke 0.681.843.583", "invoke 0.681.843.2394.2499"},
       false,
       "command result NG. RESULT = 2"},
  };
  for (const failure_case& c : cases) {
    SCOPED_TRACE(c.name);
    machine().reset();
    host::reset();
    const char backup[] = "undo copy";
    store(DVC_PNL_PDM_DVC_CEH_BINARY_TMP_BACKUP, backup, 10);
    c.arm();
    machine().clear_log();
    USER_LOGIN user = sample_user();
    user.user_number = static_cast<std::int32_t>(c.user_number);

    EXPECT_EQ(0, update_user_property(&user));
    EXPECT_EQ(c.invokes, invokes());
    char read[sizeof backup];
    EXPECT_EQ(c.undo_copy_kept,
              dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_DVC_CEH_BINARY_TMP_BACKUP,
                                                          read, sizeof read, 10) == 0);
    EXPECT_TRUE(traced(c.trace)) << trace_dump();
  }
}

// ---- job accounting accounts ----

ACCOUNT_DETAIL sample_account() {
  ACCOUNT_DETAIL a{};
  a.account_id = 1;
  std::memcpy(a.code, "ABCDEFGH", 8);  // fills the field: no terminator
  std::strcpy(a.name, "Sales");
  std::strcpy(a.text_1368, "Floor 2");
  a.restriction_1369 = a.restriction_1372 = a.restriction_1374 = a.restriction_1375 =
      a.restriction_1385 = 1;
  a.limit_1377 = 77;
  a.limit_1380 = 80;
  a.limit_1382 = 82;
  a.limit_1383 = 83;
  a.limit_1386 = 86;
  return a;
}

const Nodes kAccountNodes = {1320, 1362, 1366, 1367, 1368, 1369, 1370, 1371, 1372,
                             1373, 1374, 1375, 1376, 1377, 1378, 1379, 1380, 1381,
                             1382, 1383, 1385, 2050, 2051, 1386, 2052, 2053};

TEST_F(RecordWrites, AccountChangeWordsInTheirOrder) {
  const request_words words = record_writes::job_accounting_request(sample_account());
  EXPECT_EQ(kAccountNodes, nodes_of(words));
  EXPECT_EQ("ABCDEFGH", text_word(words, 1366));
  EXPECT_EQ("Sales", text_word(words, 1367));
  EXPECT_EQ("Floor 2", text_word(words, 1368));
  const std::vector<std::pair<unsigned long, long>> fixed = {
      {1320, 1}, {1370, 1}, {1371, 1}, {1373, 1}, {1376, 0}, {1378, 0},  {1379, 0},
      {1381, 0}, {2050, 1}, {2051, 1}, {2052, 0}, {2053, 0}, {1377, 77}, {1386, 86}};
  for (const auto& [node, value] : fixed)
    EXPECT_EQ(value, word(words, node)) << node;
}

TEST_F(RecordWrites, AccountLimitGoesOutOnlyWithItsModeOne) {
  struct mode_case {
    std::int32_t ACCOUNT_DETAIL::*mode;
    unsigned long limit;
  };
  const mode_case cases[] = {{&ACCOUNT_DETAIL::restriction_1369, 1377},
                             {&ACCOUNT_DETAIL::restriction_1372, 1380},
                             {&ACCOUNT_DETAIL::restriction_1374, 1382},
                             {&ACCOUNT_DETAIL::restriction_1375, 1383},
                             {&ACCOUNT_DETAIL::restriction_1385, 1386}};
  for (const mode_case& c : cases) {
    for (std::int32_t mode : {0, 2}) {
      ACCOUNT_DETAIL account = sample_account();
      account.*c.mode = mode;
      SCOPED_TRACE(testing::Message() << "limit " << c.limit << ", mode " << mode);
      EXPECT_EQ(without(kAccountNodes, {c.limit}),
                nodes_of(record_writes::job_accounting_request(account)));
    }
  }
}

TEST_F(RecordWrites, AccountChangeAndItsFailures) {
  ACCOUNT_DETAIL account = sample_account();
  EXPECT_EQ(1, update_job_accounting(&account));
  EXPECT_TRUE(sent(kAccountChange, record_writes::job_accounting_request(account)));

  struct failure_case {
    std::function<void()> arm;
    long id;
    const char* trace;
  };
  const failure_case cases[] = {
      {[] { machine().fail_next(verb::invoke, kAccountChange); }, 1,
       "invoke failed :  ret_code = 3"},
      {[] { machine().fail_next_result(kAccountChange, 3); }, 1, "command result NG. RESULT = 3"},
      {[] {}, 9, "command result NG. RESULT = 1"},  // an account the machine doesn't hold
  };
  for (const failure_case& c : cases) {
    SCOPED_TRACE(c.trace);
    c.arm();
    account.account_id = static_cast<std::int32_t>(c.id);
    EXPECT_EQ(0, update_job_accounting(&account));
    EXPECT_TRUE(traced(c.trace)) << trace_dump();
  }
}

TEST_F(RecordWrites, NullRecordsSendNothing) {
  EXPECT_EQ(0, update_user_property(nullptr));
  EXPECT_EQ(0, update_job_accounting(nullptr));
  EXPECT_TRUE(invokes().empty());
  EXPECT_TRUE(traced("update_user_property user is NULL")) << trace_dump();
  EXPECT_TRUE(traced("update_job_accounting account is NULL")) << trace_dump();
}

// ---- boxes ----

BOX_INFO sample_box() {
  BOX_INFO b{};
  b.box_id = DVC_PNL_CEH_BOX_ID_NEW;
  b.kind = DVC_PNL_CEH_BOX_KIND_NORMAL;
  b.value_1346 = 46;
  std::strcpy(b.name, "Reports");
  b.owner_kind = DVC_PNL_CEH_BOX_OWNER_USER;
  b.owner_id = 2;
  b.value_1363 = 63;
  b.value_2468 = 1;
  std::strcpy(b.text_2672, "anna");
  std::strcpy(b.domain, "CORP");
  b.value_1349 = 49;
  b.value_1351 = 51;
  b.value_1352 = 1;
  std::strcpy(b.text_219, "1234");
  b.value_1354 = 54;
  b.value_2202 = 1;
  b.capacity_limit = 10;
  b.value_531 = 31;
  b.value_2780 = 80;
  return b;
}

request_words box_words(const BOX_INFO& box) {
  request_words words;
  EXPECT_EQ(0, record_writes::custom_box_request(box, words));
  return words;
}

TEST_F(RecordWrites, BoxWordsByBoxKindOwnerAndSettings) {
  const Nodes all = {1180, 1320, 1327, 1012, 1363, 1347, 1346, 2468, 2672,
                     509,  1351, 1352, 219,  1354, 2202, 1355, 531,  2780};
  struct box_case {
    const char* name;
    std::function<void(BOX_INFO&)> change;
    Nodes nodes;
  };
  const box_case cases[] = {
      {"new box, owned by a user", [](BOX_INFO&) {}, all},
      {"change",
       [](BOX_INFO& b) { b.box_id = 7; },
       {197, 1320, 1327, 1012, 1363, 1347, 1346, 2468, 2672, 509, 1351, 1352, 219, 1354, 2202, 1355,
        531, 2780}},
      {"owned by nobody",
       [](BOX_INFO& b) { b.owner_kind = 0; },
       {1180, 1320, 1327, 1347, 1346, 1354, 2202, 1355, 531, 2780}},
      {"another kind of box", [](BOX_INFO& b) { b.kind = 3; },
       without(all, {1346, 2468, 2672, 509})},
      {"owner not of 2468 kind 1",
       [](BOX_INFO& b) { b.value_2468 = 0; },
       {1180, 1320, 1327, 1012, 1363, 1347, 1346, 2468, 1349, 509, 1351, 1352, 219, 1354, 2202,
        1355, 531, 2780}},
      {"2468 neither 0 nor 1", [](BOX_INFO& b) { b.value_2468 = 2; }, without(all, {2672, 509})},
      {"1352 not 1", [](BOX_INFO& b) { b.value_1352 = 2; }, without(all, {219})},
      {"no capacity limit", [](BOX_INFO& b) { b.value_2202 = 0; }, without(all, {1355})},
  };
  for (const box_case& c : cases) {
    SCOPED_TRACE(c.name);
    BOX_INFO box = sample_box();
    c.change(box);
    EXPECT_EQ(c.nodes, nodes_of(box_words(box)));
  }

  BOX_INFO box = sample_box();
  EXPECT_EQ(1, word(box_words(box), 1180));
  EXPECT_EQ("CORP", text_word(box_words(box), 509));
  EXPECT_EQ(10, word(box_words(box), 1355));
  box.value_2468 = 0;
  EXPECT_EQ("", text_word(box_words(box), 509)) << "2468 = 0 sends an empty domain";
}

TEST_F(RecordWrites, BoxWithoutDomainTakesTheStoredOne) {
  machine().set_string("0.534.535.509", "STORED");
  BOX_INFO box = sample_box();
  std::memset(box.domain, 0, sizeof box.domain);
  machine().clear_log();
  EXPECT_EQ("STORED", text_word(box_words(box), 509));
  EXPECT_EQ((Calls{"get 0.534.535.509"}), calls());

  machine().clear_log();
  box.value_2468 = 0;
  box_words(box);
  EXPECT_TRUE(calls().empty()) << "an empty domain goes out as it is with 2468 = 0";

  box = sample_box();
  machine().clear_log();
  box_words(box);
  EXPECT_TRUE(calls().empty()) << "a domain of its own needs no read";
}

TEST_F(RecordWrites, BoxStoredDomainUnreadableSendsNothing) {
  BOX_INFO box = sample_box();
  std::memset(box.domain, 0, sizeof box.domain);
  machine().fail_next(verb::get, "0.534.535.509");
  machine().clear_log();
  long result = 4242;
  EXPECT_EQ(0, update_custom_box(box, result));
  EXPECT_EQ(4242, result);
  EXPECT_TRUE(invokes().empty());
  EXPECT_TRUE(traced("get string from cmm error ret_code = 3")) << trace_dump();
}

TEST_F(RecordWrites, BoxOverItsCapacitySendsNothing) {
  struct size_case {
    long box_id, size, limit;
    bool sends;
  };
  const size_case cases[] = {{7, 2049, 2, false},
                             {7, 1, 0, false},
                             {7, 2048, 2, true},
                             {DVC_PNL_CEH_BOX_ID_NEW, 5000, 0, true}};
  for (const size_case& c : cases) {
    SCOPED_TRACE(testing::Message() << "box " << c.box_id << " size " << c.size);
    BOX_INFO box = sample_box();
    box.box_id = static_cast<std::int32_t>(c.box_id);
    box.size = static_cast<std::int32_t>(c.size);
    box.capacity_limit = static_cast<std::int32_t>(c.limit);
    machine().clear_log();
    host::trace_sink::instance().clear();
    long result = 4242;
    update_custom_box(box, result);
    EXPECT_EQ(c.sends, !invokes().empty());
    if (!c.sends) {
      EXPECT_TRUE(calls().empty());
      EXPECT_EQ(4242, result);
      EXPECT_TRUE(traced("box_info.size : " + std::to_string(c.size))) << trace_dump();
      EXPECT_TRUE(traced("box_info.capacity_limit : " + std::to_string(c.limit))) << trace_dump();
    }
  }
}

TEST_F(RecordWrites, NewBoxThenChangeTakeTheNumbersTheMachineAnswers) {
  BOX_INFO box = sample_box();
  long result = -1;
  EXPECT_EQ(1, update_custom_box(box, result));
  EXPECT_EQ(1, result);  // the first box the machine makes
  EXPECT_TRUE(sent(kBoxNew, box_words(box)));

  box.box_id = 1;
  result = -1;
  machine().clear_log();
  EXPECT_EQ(1, update_custom_box(box, result));
  EXPECT_EQ((Calls{"invoke 0.857.860.583"}), invokes());
  EXPECT_TRUE(sent(kBoxChange, box_words(box)));
  EXPECT_EQ(1, result);  // node 1114 of the change's answer

  // The answer is read where the machine puts it.
  dvc_pnl_cmm_valueset answer =
      make_valueset({{"0.857.860.583.1484", 0L}, {"0.857.860.583.1114", 31L}});
  machine().script_next_response(kBoxChange, answer);
  EXPECT_EQ(1, update_custom_box(box, result));
  EXPECT_EQ(31, result);
}

TEST_F(RecordWrites, BoxFailuresKeepTheCallersNumber) {
  struct failure_case {
    const char* name;
    std::function<void()> arm;
    long box_id;
    const char* trace;
  };
  const failure_case cases[] = {
      {"not delivered", [] { machine().fail_next(verb::invoke, kBoxNew); }, DVC_PNL_CEH_BOX_ID_NEW,
       "invoke failed :  ret_code = 3"},
      {"refused", [] { machine().fail_next_result(kBoxNew, 5); }, DVC_PNL_CEH_BOX_ID_NEW,
       "command result NG. RESULT = 5"},
      {"answer without RESULT",
       [] {
         machine().script_next_response(kBoxChange,
                                        make_valueset({{kBoxChange + std::string(".1114"), 3L}}));
       },
       1, "command result NG. RESULT = 1"},
      {"a box the machine doesn't hold", [] {}, 9, "command result NG. RESULT = 1"},
  };
  for (const failure_case& c : cases) {
    SCOPED_TRACE(c.name);
    c.arm();
    BOX_INFO box = sample_box();
    box.box_id = static_cast<std::int32_t>(c.box_id);
    long result = 4242;
    EXPECT_EQ(0, update_custom_box(box, result));
    EXPECT_EQ(4242, result);
    EXPECT_TRUE(traced(c.trace)) << trace_dump();
  }
}

// ---- writes seen by later reads ----

TEST_F(RecordWrites, LaterReadsSeeWhatWasWritten) {
  ACCOUNT_DETAIL account = sample_account();
  ASSERT_EQ(1, update_job_accounting(&account));
  ACCOUNT_DETAIL read{};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_job_accounting_detail_from_cmm(1, read));
  EXPECT_STREQ("Sales", read.name);
  EXPECT_STREQ("ABCDEFG", read.code) << "the read keeps a terminator in the 8-byte field";
  EXPECT_EQ(1, read.restriction_1385);

  USER_LOGIN user = sample_user();
  std::strcpy(user.login_name, "visitor");
  ASSERT_EQ(1, update_user_property(&user));
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_job_user_type("visitor", ""))
      << "the guest's record names the guest by the new login name";
}

// ---- edit checks ----

TEST_F(RecordWrites, EditCheckOfAnUnknownKindCountsAsChanged) {
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_edit_change_check(static_cast<EDIT_STRUCT_TYPE>(5), 3));
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_edit_change_check(static_cast<EDIT_STRUCT_TYPE>(-1), 3));
}

// Stores `size` bytes of `record` under `key` and the same bytes, one changed at `offset` when
// it is not npos, as the backup.
void store_pair(const std::string& key, const void* record, std::size_t size, std::size_t offset) {
  std::vector<unsigned char> backup(static_cast<const unsigned char*>(record),
                                    static_cast<const unsigned char*>(record) + size);
  if (offset != std::string::npos)
    backup[offset] ^= 0x5a;
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_binary_to_dm(key, record, static_cast<unsigned>(size),
                                                         kFunction));
  ASSERT_EQ(
      0, dvc_pnl_ceh_contents_hdl_set_binary_to_dm(DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP, backup.data(),
                                                   static_cast<unsigned>(size), kFunction));
}

TEST_F(RecordWrites, EditCheckComparesEachKindWithItsBackup) {
  struct kind_case {
    EDIT_STRUCT_TYPE type;
    const std::string& key;
    std::size_t size;
    std::size_t changed_byte;  // one that counts
  };
  const kind_case cases[] = {
      {EDIT_STRUCT_TYPE_ADDBOOK_PERSONAL, DVC_PNL_PDM_ADDRESS_PERSONAL,
       sizeof(ADDRESS_BOOK_INDIVIDUAL), offsetof(ADDRESS_BOOK_INDIVIDUAL, contact_kind)},
      {EDIT_STRUCT_TYPE_ADDBOOK_GROUP, DVC_PNL_PDM_ADDRESS_GROUP, sizeof(ADDRESS_BOOK_GROUP_DETAIL),
       offsetof(ADDRESS_BOOK_GROUP_DETAIL, name) + 1152},
      {EDIT_STRUCT_TYPE_BOX_INFO, DVC_PNL_PDM_DVC_CEH_BINARY, sizeof(BOX_INFO),
       offsetof(BOX_INFO, reserved) + 583},
      {EDIT_STRUCT_TYPE_ACCOUNT_DETAIL, DVC_PNL_PDM_CEH_ACCOUNT_INFO, sizeof(ACCOUNT_DETAIL),
       offsetof(ACCOUNT_DETAIL, limit_1386)},
      {EDIT_STRUCT_TYPE_USER_LOGIN, DVC_PNL_PDM_DVC_CEH_BINARY, sizeof(USER_LOGIN),
       offsetof(USER_LOGIN, card)},
  };
  for (const kind_case& c : cases) {
    SCOPED_TRACE(c.key);
    std::vector<unsigned char> record(c.size);
    for (std::size_t i = 0; i < c.size; ++i)
      record[i] = static_cast<unsigned char>(i * 7 + 1);
    store_pair(c.key, record.data(), c.size, std::string::npos);
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_edit_change_check(c.type, kFunction));
    store_pair(c.key, record.data(), c.size, c.changed_byte);
    EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_edit_change_check(c.type, kFunction));
  }
}

TEST_F(RecordWrites, EditCheckFailedReads) {
  struct read_case {
    const char* name;
    EDIT_STRUCT_TYPE type;
    std::function<void()> prepare;
    int answer;
    std::string trace;
  };
  const std::vector<unsigned char> user(sizeof(USER_LOGIN), 1);
  const std::vector<unsigned char> group(sizeof(ADDRESS_BOOK_GROUP_DETAIL), 1);
  const std::string group_failure =
      "dvc_pnl_ceh_contents_hdl_edit_change_check(EDIT_STRUCT_TYPE_ADDBOOK_GROUP) pdm get err ";
  const read_case cases[] = {
      {"personal record missing", EDIT_STRUCT_TYPE_ADDBOOK_PERSONAL, [] {}, 0,
       "dvc_pnl_ceh_contents_hdl_edit_change_check ret_code = 3"},
      {"user backup missing", EDIT_STRUCT_TYPE_USER_LOGIN,
       [&] {
         ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_binary_to_dm(
                          DVC_PNL_PDM_DVC_CEH_BINARY, user.data(),
                          static_cast<unsigned>(user.size()), kFunction));
       },
       0, "dvc_pnl_ceh_contents_hdl_edit_change_check ret_code = 3"},
      {"box record of another size", EDIT_STRUCT_TYPE_BOX_INFO,
       [&] { store_pair(DVC_PNL_PDM_DVC_CEH_BINARY, user.data(), user.size(), std::string::npos); },
       0, "dvc_pnl_ceh_contents_hdl_edit_change_check ret_code = 6"},
      {"group record missing", EDIT_STRUCT_TYPE_ADDBOOK_GROUP, [] {}, 1,
       group_failure + "DVC_PNL_PDM_ADDRESS_GROUP"},
      {"group backup missing", EDIT_STRUCT_TYPE_ADDBOOK_GROUP,
       [&] {
         ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_binary_to_dm(
                          DVC_PNL_PDM_ADDRESS_GROUP, group.data(),
                          static_cast<unsigned>(group.size()), kFunction));
       },
       1, group_failure + "DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP"},
  };
  for (const read_case& c : cases) {
    SCOPED_TRACE(c.name);
    host::reset();
    c.prepare();
    EXPECT_EQ(c.answer, dvc_pnl_ceh_contents_hdl_edit_change_check(c.type, kFunction));
    EXPECT_TRUE(traced(c.trace)) << trace_dump();
  }
  // The record of another function is not this function's.
  host::reset();
  store_pair(DVC_PNL_PDM_DVC_CEH_BINARY, user.data(), user.size(), std::string::npos);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_edit_change_check(EDIT_STRUCT_TYPE_USER_LOGIN, 4));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_edit_change_check ret_code = 3")) << trace_dump();
}

TEST_F(RecordWrites, PersonalRecordsCompareTextsAsTexts) {
  auto record = std::make_unique<ADDRESS_BOOK_INDIVIDUAL>();
  record->id = 4;
  std::strcpy(record->name, "Anna");
  std::strcpy(record->mail, "anna@example.org");
  std::memset(record->text_2351, 'z', sizeof record->text_2351);  // full, no terminator
  record->destination_kind = -1;

  struct personal_case {
    const char* name;
    std::function<void(ADDRESS_BOOK_INDIVIDUAL&)> change;
    int answer;
  };
  const personal_case cases[] = {
      {"the same", [](ADDRESS_BOOK_INDIVIDUAL&) {}, 0},
      {"bytes behind the name's end", [](ADDRESS_BOOK_INDIVIDUAL& b) { b.name[10] = 'q'; }, 0},
      {"bytes behind the mail's end", [](ADDRESS_BOOK_INDIVIDUAL& b) { b.mail[100] = 'q'; }, 0},
      {"the last 32 bytes",
       [](ADDRESS_BOOK_INDIVIDUAL& b) {
         reinterpret_cast<unsigned char*>(&b)[sizeof b - 32] = 9;
         reinterpret_cast<unsigned char*>(&b)[sizeof b - 1] = 9;
       },
       0},
      {"the byte before them",
       [](ADDRESS_BOOK_INDIVIDUAL& b) { reinterpret_cast<unsigned char*>(&b)[sizeof b - 33] = 9; },
       1},
      {"a name", [](ADDRESS_BOOK_INDIVIDUAL& b) { std::strcpy(b.name, "Anne"); }, 1},
      {"the end of a full text", [](ADDRESS_BOOK_INDIVIDUAL& b) { b.text_2351[2303] = 'y'; }, 1},
      {"the destination kind", [](ADDRESS_BOOK_INDIVIDUAL& b) { b.destination_kind = 3; }, 1},
      {"the contact kind", [](ADDRESS_BOOK_INDIVIDUAL& b) { b.contact_kind = 1; }, 1},
  };
  for (const personal_case& c : cases) {
    SCOPED_TRACE(c.name);
    auto backup = std::make_unique<ADDRESS_BOOK_INDIVIDUAL>(*record);
    c.change(*backup);
    store(DVC_PNL_PDM_ADDRESS_PERSONAL, *record);
    store(DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP, *backup);
    EXPECT_EQ(c.answer, dvc_pnl_ceh_contents_hdl_edit_change_check(
                            EDIT_STRUCT_TYPE_ADDBOOK_PERSONAL, kFunction));
  }
}

TEST_F(RecordWrites, GroupRecordsCompareNameReadingAndMembersInUse) {
  auto record = std::make_unique<ADDRESS_BOOK_GROUP_DETAIL>();
  std::strcpy(record->name, "Sales");
  std::strcpy(record->reading, "sales");
  record->member_count = 2;
  record->members[0] = {3, 0, "Berger", 0};
  record->members[1] = {4, 3, "Kowalski", 1};

  struct group_case {
    const char* name;
    std::function<void(ADDRESS_BOOK_GROUP_DETAIL&)> change;
    int answer;
  };
  const group_case cases[] = {
      {"the same", [](ADDRESS_BOOK_GROUP_DETAIL&) {}, 0},
      {"removed members and the changed word",
       [](ADDRESS_BOOK_GROUP_DETAIL& b) {
         b.removed[0] = {9, 3, 1};
         b.changed = 1;
         b.value_2875 = 5;
       },
       0},
      {"a member behind the count", [](ADDRESS_BOOK_GROUP_DETAIL& b) { b.members[2].id = 8; }, 0},
      {"a member's name", [](ADDRESS_BOOK_GROUP_DETAIL& b) { b.members[1].name[2] = 'X'; }, 1},
      {"a member's flag", [](ADDRESS_BOOK_GROUP_DETAIL& b) { b.members[0].flag = 1; }, 1},
      {"the count", [](ADDRESS_BOOK_GROUP_DETAIL& b) { b.member_count = 1; }, 1},
      {"the name", [](ADDRESS_BOOK_GROUP_DETAIL& b) { b.name[1152] = 'X'; }, 1},
      {"the reading", [](ADDRESS_BOOK_GROUP_DETAIL& b) { b.reading[0] = 'S'; }, 1},
  };
  for (const group_case& c : cases) {
    SCOPED_TRACE(c.name);
    auto backup = std::make_unique<ADDRESS_BOOK_GROUP_DETAIL>(*record);
    c.change(*backup);
    store(DVC_PNL_PDM_ADDRESS_GROUP, *record);
    store(DVC_PNL_PDM_DVC_CEH_BINARY_BACKUP, *backup);
    EXPECT_EQ(c.answer, dvc_pnl_ceh_contents_hdl_edit_change_check(EDIT_STRUCT_TYPE_ADDBOOK_GROUP,
                                                                   kFunction));
  }
}

// ---- proxy settings ----

PROXY_SETTING sample_proxy() {
  PROXY_SETTING p{};
  p.same_proxy = 0;
  std::strcpy(p.http_serv, "proxy.example.org");
  std::strcpy(p.http_port, "8080");
  std::strcpy(p.https_serv, "secure.example.org");
  std::strcpy(p.https_port, "8443");
  std::strcpy(p.no_proxy, "localhost");
  return p;
}

const Calls kProxySets = {"set 0.633.2561.2568.2569", "set 0.633.2561.2568.2570",
                          "set 0.633.2561.2568.2571", "set 0.633.2561.2568.2572",
                          "set 0.633.2561.2568.2573", "set 0.633.2561.2568.2574"};

TEST_F(RecordWrites, ProxySettingsWrittenInOrderAndReadBack) {
  const PROXY_SETTING written = sample_proxy();
  machine().clear_log();
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_set_proxy_to_cm(written));
  EXPECT_EQ(kProxySets, calls());

  machine().clear_log();
  const PROXY_SETTING read = dvc_pnl_ceh_contents_hdl_get_proxy_from_cm();
  EXPECT_EQ((Calls{"get 0.633.2561.2568"}), calls());
  EXPECT_EQ(0, std::memcmp(&written, &read, sizeof read));
}

TEST_F(RecordWrites, ProxyReadCutsLongTextsAndZeroesWhatItCannotRead) {
  machine().set_string("0.633.2561.2568.2571", "123456789012345678");
  machine().remove_node("0.633.2561.2568.2574");
  PROXY_SETTING read = dvc_pnl_ceh_contents_hdl_get_proxy_from_cm();
  EXPECT_STREQ("123456789012345", read.http_port);
  EXPECT_EQ(1, read.same_proxy);  // the default model's
  EXPECT_STREQ("", read.no_proxy);

  machine().fail_next(verb::get, "0.633.2561.2568");
  read = dvc_pnl_ceh_contents_hdl_get_proxy_from_cm();
  const PROXY_SETTING zero{};
  EXPECT_EQ(0, std::memcmp(&zero, &read, sizeof read));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm ret_code = 3"))
      << trace_dump();
}

TEST_F(RecordWrites, ProxyWriteStopsAtTheFirstFailure) {
  for (std::size_t failing = 0; failing < kProxySets.size(); ++failing) {
    const std::string node = kProxySets[failing].substr(4);
    SCOPED_TRACE(node);
    machine().reset();
    const PROXY_SETTING before = dvc_pnl_ceh_contents_hdl_get_proxy_from_cm();
    machine().fail_next(verb::set, node);
    machine().clear_log();
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_set_proxy_to_cm(sample_proxy()));
    EXPECT_EQ(Calls(kProxySets.begin(), kProxySets.begin() + static_cast<long>(failing) + 1),
              calls());
    EXPECT_TRUE(traced(failing == 0
                           ? "dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm ret_code = 3"
                           : "dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm ret_code = 3"))
        << trace_dump();

    // The nodes before the failure hold the new values, the others the old ones.
    const PROXY_SETTING after = dvc_pnl_ceh_contents_hdl_get_proxy_from_cm();
    const PROXY_SETTING wanted = sample_proxy();
    EXPECT_EQ(failing > 0 ? wanted.same_proxy : before.same_proxy, after.same_proxy);
    const char* const fields_after[] = {after.http_serv, after.http_port, after.https_serv,
                                        after.https_port, after.no_proxy};
    const char* const fields_wanted[] = {wanted.http_serv, wanted.http_port, wanted.https_serv,
                                         wanted.https_port, wanted.no_proxy};
    const char* const fields_before[] = {before.http_serv, before.http_port, before.https_serv,
                                         before.https_port, before.no_proxy};
    for (std::size_t i = 0; i < 5; ++i) {
      const bool written = i + 1 < failing;
      EXPECT_STREQ(written ? fields_wanted[i] : fields_before[i], fields_after[i]) << i;
    }
  }
}

}  // namespace
}  // namespace orvanta::test
