// Condition queries about users: login state, the user information command and what depends on
// it (network users, administrators, languages, login pages, restrictions), and the job
// accounting records.
#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "orvanta/host/host_data_manager.h"
#include "test_conditions_support.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_records.h"

namespace orvanta::test {
namespace {

constexpr long kGuest = 9001;

using Users = Conditions;

// ---- login state ----

TEST_F(Users, LoginStateFromTheDataManager) {
  // Nothing stored: no management, nobody logged in.
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_management());
  EXPECT_EQ(-1, dvc_pnl_ceh_contents_hdl_get_authentication_id());
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_login());

  login(3, 17);
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_management());
  EXPECT_TRUE(traced("management = 3")) << trace_dump();
  EXPECT_EQ(17, dvc_pnl_ceh_contents_hdl_get_authentication_id());
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_is_login());
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_authentication_function());

  login(0, -1);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_authentication_function());
  host::host_data_manager::instance().fail_next(host::dm_op::get);
  EXPECT_EQ(-1, dvc_pnl_ceh_contents_hdl_get_authentication_function());
  EXPECT_TRUE(traced("get authentication mode failed :3")) << trace_dump();
}

TEST_F(Users, GuestNeedsUserLoginFunctionLoginAndTheGuestId) {
  struct guest_case {
    int management, function_login;
    long id;
    int guest;
  };
  const guest_case cases[] = {{1, 1, kGuest, 1}, {3, 1, kGuest, 1}, {2, 1, kGuest, 0},
                              {0, 1, kGuest, 0}, {1, 0, kGuest, 0}, {1, 1, 17, 0}};
  for (const guest_case& c : cases) {
    login(c.management, c.id, c.function_login);
    EXPECT_EQ(c.guest, dvc_pnl_ceh_contents_hdl_is_guest_user())
        << c.management << " " << c.function_login << " " << c.id;
  }
}

TEST_F(Users, AuthenticationSettingsReadOutOfTheirGroups) {
  struct setting_case {
    int (*query)();
    const char* node;
    const char* asked;
    int failure;
    const char* trace;
  };
  const setting_case cases[] = {
      {get_authentication_method, "0.534.535.2257.536", "0.534.535.2257", -1,
       "auth_method acquisition failed."},
      {get_authentication_setting, "0.534.535.2257.501", "0.534.535.2257", 0,
       "auth_setting acquisition failed."},
      {get_keyboard_login_setting, "0.534.535.1987", "0.534.535.1987", -1,
       "KEYBOARD_LOGIN_SETTING acquisition failed. ret_code = 3"},
  };
  for (const setting_case& c : cases) {
    SCOPED_TRACE(c.node);
    machine().set_int(c.node, 2);
    machine().clear_log();
    EXPECT_EQ(2, c.query());
    EXPECT_EQ(Calls{std::string("get ") + c.asked}, calls());
    machine().fail_next(verb::get, c.asked);
    EXPECT_EQ(c.failure, c.query());
    EXPECT_TRUE(traced(c.trace)) << trace_dump();
  }
}

// ---- the user information command ----

TEST_F(Users, NetworkUsers) {
  serve_users({{17, {{536, 1L}}}, {18, {{536, 0L}}}, {kGuest, {{536, 1L}}}});
  machine().set_int("0.534.535.537.539", 2);
  struct network_case {
    int management;
    long id;
    long server_kind;
    int network, nlc;
  };
  const network_case cases[] = {
      {1, 17, 2, 1, 1}, {3, 17, 1, 1, 0},     {1, 18, 2, 0, 0},
      {2, 17, 2, 0, 0}, {1, kGuest, 2, 0, 0}, {1, -1, 2, 0, 0},
  };
  for (const network_case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.management << " " << c.id << " " << c.server_kind);
    login(c.management, c.id);
    machine().set_int("0.534.535.537.539", c.server_kind);
    EXPECT_EQ(c.network, dvc_pnl_ceh_contents_hdl_is_network_user());
    EXPECT_EQ(c.nlc, dvc_pnl_ceh_contents_hdl_is_network_nlc_user());
  }
  // The command carries the user's id.
  login(1, 17);
  machine().clear_log();
  dvc_pnl_ceh_contents_hdl_is_network_user();
  EXPECT_EQ(17, request_word("0.874.844", 1012));
  EXPECT_EQ(1, request_word("0.874.844", 1320));
  // The guest and nobody are never asked about.
  login(1, kGuest);
  machine().clear_log();
  dvc_pnl_ceh_contents_hdl_is_network_user();
  EXPECT_TRUE(calls().empty());
}

TEST_F(Users, AdministratorAnswers3WhenTheUserCannotBeRead) {
  login(1, 17);
  for (const auto& [role, admin] :
       std::vector<std::pair<long, int>>{{1, 1}, {3, 1}, {0, 0}, {2, 0}}) {
    serve_users({{17, {{1561, role}}}});
    EXPECT_EQ(admin, dvc_pnl_ceh_contents_hdl_is_admin_user()) << role;
    EXPECT_EQ(role == 3 ? 1 : 0, dvc_pnl_ceh_contents_hdl_is_apparatus_admin(-1)) << role;
  }
  serve_users({{17, {{1561, 1L}}}, {30, {{1561, 3L}}}});
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_is_apparatus_admin(30));
  // RESULT other than 0, a failed command, a missing role.
  login(1, 99);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_admin_user());
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_apparatus_admin(-1));
  machine().fail_next(verb::invoke, "0.874.844");
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_is_admin_user());
  serve_users({{99, {{536, 1L}}}});
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_is_admin_user());
}

TEST_F(Users, NameAndDomainOfTheCurrentUser) {
  serve_users({{17, {{504, "anna"}, {658, "office"}}}});
  login(1, 17);
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_login_user_is_self("anna"));
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_login_user_is_self("ann"));
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_check_domain_name("office"));
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_check_domain_name("home"));
  EXPECT_EQ(6, dvc_pnl_ceh_contents_hdl_login_user_is_self(nullptr));
  EXPECT_EQ(6, dvc_pnl_ceh_contents_hdl_check_domain_name(nullptr));
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_login_user_is_self_by_user_name("anybody"));
  machine().fail_next(verb::invoke, "0.874.844");
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_login_user_is_self("anna"));
}

TEST_F(Users, GuestStatusAndUnknownUser) {
  serve_users({{kGuest, {{3060, 1L}, {3061, 0L}}}});
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_guest_user_status(3060));
  EXPECT_EQ(kGuest, request_word("0.874.844", 1012));
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_guest_user_status(3061));
  EXPECT_EQ(-1, dvc_pnl_ceh_contents_hdl_get_guest_user_status(3062));  // not in the answer
  machine().fail_next(verb::invoke, "0.874.844");
  EXPECT_EQ(-1, dvc_pnl_ceh_contents_hdl_get_guest_user_status(3060));

  script("0.503.3952", 0, {{1259, 4711L}});
  long id = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_unknown_user_id(id));
  EXPECT_EQ(4711, id);
  EXPECT_EQ(3, request_word("0.503.3952", 3958));
  script("0.503.3952", 1, {{1259, 5L}});
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_get_unknown_user_id(id));
  EXPECT_EQ(4711, id);
}

// ---- languages ----

TEST_F(Users, UserLanguage) {
  machine().set_int("0.230.343.347", 81);
  machine().set_int("0.230.343.3890", 44);
  machine().set_int("0.534.535.537.539", 2);
  serve_users({{17, {{536, 1L}, {730, 2L}, {3170, 33L}, {3891, 55L}}},
               {18, {{536, 1L}, {730, 1L}, {3170, 33L}}},
               {19, {{536, 1L}, {730, 2L}, {3170, 999L}, {3891, 55L}}}});
  struct language_case {
    int management;
    long id;
    long server_kind;
    long display;
    long language;
    int option;  // is_selected_language_opt
  };
  const language_case cases[] = {
      {1, 17, 2, 81, 33, 0},      // the user's own language
      {1, 19, 3, 81, 55, 1},      // the user's own option language
      {1, 17, 1, 81, 81, 0},      // server without user data: the display language
      {1, 18, 2, 81, 81, 0},      // the user doesn't use his own language
      {0, 17, 2, 999, 44, 1},     // no user login: the option language of the display
      {1, kGuest, 2, 81, 81, 0},  // the guest has no language of his own
  };
  for (const language_case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.management << " " << c.id);
    login(c.management, c.id);
    machine().set_int("0.534.535.537.539", c.server_kind);
    machine().set_int("0.230.343.347", c.display);
    EXPECT_EQ(c.language, dvc_pnl_ceh_contents_hdl_get_user_language());
    EXPECT_EQ(c.option, dvc_pnl_ceh_contents_hdl_is_selected_language_opt());
  }
  // The option language can't be read: -1, traced.
  login(0, -1);
  machine().set_int("0.230.343.347", 999);
  machine().fail_next(verb::get, "0.230.343.3890");
  EXPECT_EQ(-1, dvc_pnl_ceh_contents_hdl_get_user_language());
  EXPECT_TRUE(traced("failed dvc_pnl_ceh_contents_hdl_get_display_option_language. ret_code = 3"))
      << trace_dump();
  machine().fail_next(verb::get, "0.230.343.347");
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_selected_language_opt());
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm failed.")) << trace_dump();
}

// ---- send screen and job owners ----

TEST_F(Users, SendDefaultScreen) {
  machine().set_int("0.534.535.537.539", 2);
  machine().set_int("0.230.185.1009", 4);
  serve_users({{17, {{536, 1L}, {3171, 2L}, {348, 8L}, {3172, 6L}}},
               {18, {{536, 1L}, {3171, 2L}, {348, 2L}, {3172, 6L}}},
               {19, {{536, 1L}, {3171, 1L}, {348, 8L}, {3172, 6L}}}});
  const std::vector<std::pair<long, long>> cases = {{17, 6}, {18, 4}, {19, 4}, {-1, 4}};
  for (const auto& [id, screen] : cases) {
    login(1, id);
    long got = -1;
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_send_default_screen(got));
    EXPECT_EQ(screen, got) << id;
  }
  // The machine's screen 1 goes through the default address book.
  login(0, -1);
  machine().set_int("0.230.185.1009", 1);
  machine().set_int("0.230.2520.3189", 2);
  machine().set_int("0.230.2520.3588.1.3589", 1);
  long got = -1;
  dvc_pnl_ceh_contents_hdl_get_send_default_screen(got);
  EXPECT_EQ(2, got);
  // Nothing readable: the screen stays.
  machine().fail_next(verb::get, "0.230.185.1009");
  got = -7;
  dvc_pnl_ceh_contents_hdl_get_send_default_screen(got);
  EXPECT_EQ(-7, got);
}

TEST_F(Users, JobUserType) {
  serve_users({{17, {{504, "anna"}, {658, "office"}}}});
  const auto guest_name = [] { script("0.681.843.584", 0, {{504, "guest"}}); };
  login(1, 17);
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_job_user_type("", "office"));
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_job_user_type(nullptr, "office"));
  guest_name();
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_job_user_type("guest", "office"));
  EXPECT_EQ(kGuest, request_word("0.681.843.584", 1012));
  EXPECT_EQ(102, request_word("0.681.843.584", 1365));
  guest_name();
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_job_user_type("anna", "office"));
  guest_name();
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_get_job_user_type("anna", "home"));
  guest_name();
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_get_job_user_type("ben", "office"));
  // Nobody logged in and no user login: never the user's own.
  login(0, -1);
  guest_name();
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_get_job_user_type("anna", "office"));
}

// ---- login pages ----

TEST_F(Users, PinLoginPriority) {
  const auto settings = [](long setting, long method, long kind, long pin) {
    machine().set_int("0.534.535.2257.501", setting);
    machine().set_int("0.534.535.2257.536", method);
    machine().set_int("0.534.535.537.539", kind);
    machine().set_int("0.534.535.3839", pin);
  };
  settings(1, 1, 2, 1);
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_is_pin_login_priority());
  for (const auto& [setting, method, kind, pin] : std::vector<std::tuple<long, long, long, long>>{
           {0, 1, 2, 1}, {1, 0, 2, 1}, {1, 1, 1, 1}, {1, 1, 2, 0}}) {
    settings(setting, method, kind, pin);
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_pin_login_priority())
        << setting << method << kind << pin;
  }
  struct failure_case {
    const char* asked;
    const char* trace;
  };
  for (const failure_case& f :
       {failure_case{"0.534.535.2257", "auth_setting acquisition failed."},
        failure_case{"0.534.535.537", "server_type acquisition failed."},
        failure_case{"0.534.535.3839", "pin_login_mode acquisition failed."}}) {
    settings(1, 1, 2, 1);
    machine().fail_next(verb::get, f.asked);
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_pin_login_priority()) << f.asked;
    EXPECT_TRUE(traced(f.trace)) << trace_dump();
  }
}

TEST_F(Users, LoginPages) {
  // Card reader first, then PIN login, then the keyboard login setting.
  machine().set_int("0.678.2032", 1);
  EXPECT_EQ(CID_11_09_N1, dvc_pnl_ceh_contents_hdl_get_panel_lock_login_page());
  machine().set_int("0.678.2032", 0);
  machine().set_int("0.534.535.2257.501", 1);
  machine().set_int("0.534.535.2257.536", 1);
  machine().set_int("0.534.535.537.539", 2);
  machine().set_int("0.534.535.3839", 1);
  EXPECT_EQ(CID_11_11_N7, dvc_pnl_ceh_contents_hdl_get_panel_lock_login_page());
  machine().set_int("0.534.535.3839", 0);
  machine().set_int("0.534.535.1987", 1);
  EXPECT_EQ(CID_11_08_N1, dvc_pnl_ceh_contents_hdl_get_panel_lock_login_page());
  machine().set_int("0.534.535.1987", 0);
  EXPECT_EQ(CID_11_01_N1, dvc_pnl_ceh_contents_hdl_get_panel_lock_login_page());
  machine().fail_next(verb::get, "0.534.535.1987");
  EXPECT_EQ(CID_11_08_N1, dvc_pnl_ceh_contents_hdl_get_panel_lock_login_page());

  // Job information: network authentication against a server without user data logs in by
  // keyboard; everything else as the panel lock.
  machine().set_int("0.534.535.1987", 1);
  machine().set_int("0.534.535.537.539", 1);
  EXPECT_EQ(CID_11_01_N1, dvc_pnl_ceh_contents_hdl_get_job_info_login_page());
  machine().set_int("0.534.535.537.539", 2);
  EXPECT_EQ(CID_11_08_N1, dvc_pnl_ceh_contents_hdl_get_job_info_login_page());
  machine().set_int("0.534.535.2257.536", 0);
  machine().set_int("0.534.535.537.539", 1);
  EXPECT_EQ(CID_11_08_N1, dvc_pnl_ceh_contents_hdl_get_job_info_login_page());
}

// ---- restrictions ----

TEST_F(Users, PanelLockRestriction) {
  serve_users({{17, {{1561, 0L}}}, {18, {{1561, 1L}}}});
  struct lock_case {
    long status;
    long option;
    int management;
    long id;
    int answer;
  };
  const lock_case cases[] = {
      {0, 0xf, 1, 17, 0}, {5, 0xf, 1, 17, 0}, {2, 0x1, 1, 17, 0}, {2, 0x2, 1, -1, 1},
      {4, 0x8, 2, 17, 1}, {4, 0x8, 2, 18, 0}, {1, 0x1, 1, 17, 2}, {1, 0x1, 1, 18, 0},
  };
  for (const lock_case& c : cases) {
    machine().set_int("0.728.346", c.status);
    login(c.management, c.id);
    EXPECT_EQ(c.answer, dvc_pnl_ceh_contents_hdl_get_panel_lock_restriction_status(c.option))
        << c.status << " " << c.option << " " << c.management << " " << c.id;
  }
}

TEST_F(Users, GuestLoginRestrictionFromThePermissions) {
  login(1, kGuest, 1);
  serve_users({{kGuest, {{3060, 1L}, {3061, 0L}, {3062, -2L}, {3065, 1L}}}});
  struct guest_case {
    long option;
    int answer;
  };
  // The first bit set decides.
  for (const guest_case& c :
       {guest_case{0x10, 1}, guest_case{0x20, 0}, guest_case{0x40, 0}, guest_case{0x80, 0},
        guest_case{0x30, 1}, guest_case{0x220, 0}, guest_case{0x200, 1}, guest_case{0, 0}}) {
    EXPECT_EQ(c.answer, dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(c.option))
        << std::hex << c.option;
  }
  // Bits without a guest permission ask the job permissions.
  machine().set_int("0.1902.48", 2);
  machine().set_int("0.1902.3528", 1);
  machine().set_int("0.1902.3529", 2);
  machine().set_int("0.1902.486", 1);
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(0x2000));
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(0x4000));
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(0x8000));
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(0x10000));
  machine().set_int("0.1902.3529", 1);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(0x4000));
  machine().set_int("0.1902.3528", 2);
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(0x4000));
  // No account is read outside job accounting.
  EXPECT_EQ(Calls{}, [] {
    Calls invokes;
    for (const std::string& c : calls())
      if (c.rfind("invoke 0.679", 0) == 0 || c.rfind("invoke 0.681", 0) == 0)
        invokes.push_back(c);
    return invokes;
  }());
}

class GuestAccounting : public Conditions {
 protected:
  void SetUp() override {
    Conditions::SetUp();
    login(3, kGuest, 1);
    // The guest's permissions would allow everything.
    serve_users({{kGuest, {{3060, 0L}, {3062, 0L}, {3065, 0L}, {3066, 0L}}}});
  }
  // The guest's user record names account 44, whose record has the restriction fields.
  static void account(std::map<unsigned long, leaf> restrictions) {
    script("0.681.843.584", 0, {{1362, 44L}});
    std::map<unsigned long, leaf> fields = {{1362, 44L}, {1367, "guests"}, {1366, "g"},
                                            {1368, ""},  {1369, 0L},       {1372, 0L},
                                            {1374, 0L},  {1375, 0L},       {1385, 0L}};
    for (const auto& [node, value] : restrictions)
      fields.insert_or_assign(node, value);
    script("0.679.843.584", 0, fields);
  }
};

TEST_F(GuestAccounting, ARestrictedAccountRefusesBeforeThePermissionIsAsked) {
  struct account_case {
    long option;
    long count_method;
    unsigned long field;
    int answer;
  };
  const account_case cases[] = {
      {0x10, 0, 1372, 1}, {0x10, 1, 1372, 0},  {0x10, 1, 1385, 1},  {0x40, 0, 1369, 1},
      {0x40, 0, 1385, 0}, {0x200, 0, 1374, 1}, {0x400, 1, 1375, 1}, {0x400, 0, 1374, 0},
  };
  for (const account_case& c : cases) {
    SCOPED_TRACE(testing::Message() << std::hex << c.option << " " << std::dec << c.field);
    machine().set_int("0.541.542.543", c.count_method);
    account({{c.field, 2L}});
    machine().clear_log();
    EXPECT_EQ(c.answer, dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(c.option));
    EXPECT_EQ(44, request_word("0.679.843.584", 1362));
    // Refused by the account: the guest's permission is not asked.
    const Calls made = calls();
    EXPECT_EQ(c.answer == 1 ? 0 : 1,
              std::count(made.begin(), made.end(), std::string("invoke 0.874.844")));
  }
}

// ---- job accounting records ----

TEST_F(Conditions, JobAccountingRecordIsReadInFull) {
  const std::string long_name(2000, 'n');
  script("0.679.843.584", 0,
         {{1362, 44L},
          {1367, long_name},
          {1366, "code-too-long"},
          {1368, "t"},
          {1369, 1L},
          {1372, 2L},
          {1374, 3L},
          {1375, 4L},
          {1385, 5L}});
  ACCOUNT_DETAIL account;
  std::memset(&account, 0x7f, sizeof account);
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_job_accounting_detail_from_cmm(44, account));
  EXPECT_EQ(44, request_word("0.679.843.584", 1362));
  EXPECT_EQ(44, account.account_id);
  EXPECT_EQ(std::string(DVC_PNL_CEH_ACCOUNT_NAME_SIZE - 1, 'n'), account.name);
  EXPECT_STREQ("code-to", account.code);
  EXPECT_STREQ("t", account.text_1368);
  EXPECT_EQ((std::vector<int>{1, 2, 3, 4, 5}),
            (std::vector<int>{account.restriction_1369, account.restriction_1372,
                              account.restriction_1374, account.restriction_1375,
                              account.restriction_1385}));
  EXPECT_EQ(0, account.reserved[0]);

  // RESULT other than 0 leaves the record as it came.
  script("0.679.843.584", 1, {{1362, 45L}});
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_get_job_accounting_detail_from_cmm(45, account));
  EXPECT_EQ(44, account.account_id);
  // A missing field ends the reading with what was read so far.
  script("0.679.843.584", 0, {{1362, 46L}, {1367, "x"}});
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_job_accounting_detail_from_cmm(46, account));
  EXPECT_EQ(46, account.account_id);
  EXPECT_STREQ("x", account.name);
  EXPECT_EQ(0, account.restriction_1385);
}

TEST_F(Conditions, GuestAccountComesFromTheGuestsUserRecord) {
  script("0.681.843.584", 0, {{1362, 8L}});
  script("0.679.843.584", 0,
         {{1362, 8L},
          {1367, "guests"},
          {1366, "g"},
          {1368, ""},
          {1369, 0L},
          {1372, 0L},
          {1374, 0L},
          {1375, 0L},
          {1385, 2L}});
  ACCOUNT_DETAIL account{};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_guest_user_job_accounting_detail_from_cmm(account));
  EXPECT_EQ(kGuest, request_word("0.681.843.584", 1012));
  EXPECT_EQ(8, request_word("0.679.843.584", 1362));
  EXPECT_STREQ("guests", account.name);
  EXPECT_EQ(2, account.restriction_1385);

  machine().fail_next(verb::invoke, "0.681.843.584");
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_guest_user_job_accounting_detail_from_cmm(account));
}

}  // namespace
}  // namespace orvanta::test
