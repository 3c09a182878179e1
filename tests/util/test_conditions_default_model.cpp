// The condition queries that run machine commands, each asked of the untouched default machine:
// its fixed answers must serve them, with the values the sample model gives.
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include "test_conditions_support.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_records.h"

namespace orvanta::test {
namespace {

using DefaultModel = Conditions;

// RESULT of an invoke's response, -12345 when it holds none.
long result_of(const call_record& c) {
  long result = -12345;
  c.response.dvc_pnl_cmm_get_int(key_of(c.key + ".1484"), result);
  return result;
}

TEST_F(DefaultModel, EveryCommandQueryIsServed) {
  struct served_case {
    const char* query;
    Calls invokes;                           // the commands it runs, in order
    std::function<std::vector<long>()> ask;  // its answer, then what it filled in
    std::vector<long> expected;
  };
  const served_case cases[] = {
      {"get_user_information",
       {"invoke 0.874.844"},
       [] {
         dvc_pnl_cmm_valueset response;
         long number = -1;
         const int ret = dvc_pnl_ceh_contents_hdl_get_user_information(-1, response);
         dvc_pnl_ceh_contents_hdl_get_user_information_int(response, 1365, number);
         return std::vector<long>{ret, number};
       },
       {0, 102}},
      {"is_admin_user",
       {"invoke 0.874.844"},
       [] { return std::vector<long>{dvc_pnl_ceh_contents_hdl_is_admin_user()}; },
       {0}},
      {"login_user_is_self",
       {"invoke 0.874.844", "invoke 0.874.844"},
       [] {
         return std::vector<long>{dvc_pnl_ceh_contents_hdl_login_user_is_self("Guest"),
                                  dvc_pnl_ceh_contents_hdl_login_user_is_self("Anna")};
       },
       {1, 0}},
      {"check_domain_name",
       {"invoke 0.874.844"},
       [] { return std::vector<long>{dvc_pnl_ceh_contents_hdl_check_domain_name("")}; },
       {1}},
      {"get_guest_user_status",
       {"invoke 0.874.844", "invoke 0.874.844", "invoke 0.874.844"},
       [] {
         return std::vector<long>{dvc_pnl_ceh_contents_hdl_get_guest_user_status(1365),
                                  dvc_pnl_ceh_contents_hdl_get_guest_user_status(536),
                                  dvc_pnl_ceh_contents_hdl_get_guest_user_status(3068)};
       },
       {102, 0, 0}},
      {"get_job_user_type",
       {"invoke 0.681.843.584"},
       [] { return std::vector<long>{dvc_pnl_ceh_contents_hdl_get_job_user_type("Guest", "")}; },
       {0}},
      {"get_unknown_user_id",
       {"invoke 0.503.3952"},
       [] {
         long id = -1;
         const int ret = dvc_pnl_ceh_contents_hdl_get_unknown_user_id(id);
         return std::vector<long>{ret, id};
       },
       {0, 1}},
      {"confirm_email_address_setting",
       {"invoke 0.874.4241"},
       [] { return std::vector<long>{dvc_pnl_ceh_contents_hdl_confirm_email_address_setting()}; },
       {0}},
      {"get_send_num",
       {"invoke 0.896.901"},
       [] {
         long a = -1, b = -1, c = -1, d = -1;
         const int ret = dvc_pnl_ceh_contents_hdl_get_send_num(a, b, c, d, 1);
         return std::vector<long>{ret, a, b, c, d};
       },
       {0, 0, 0, 0, 0}},
      {"get_send_destination_size_cmm",
       {"invoke 0.896.901"},
       [] {
         long a = -1, b = -1, c = -1;
         const int ret = dvc_pnl_ceh_contents_hdl_get_send_destination_size_cmm(a, b, c, 3);
         return std::vector<long>{ret, a, b, c};
       },
       {1, 0, 0, 0}},
      {"get_group_member_count_cmm",
       {"invoke 0.887.921.584"},
       [] {
         long a = -1, b = -1, c = -1, d = -1, total = -1;
         const int ret = dvc_pnl_ceh_contents_hdl_get_group_member_count_cmm(1, a, b, c, d, total);
         return std::vector<long>{ret, a, b, c, d, total};
       },
       {1, 2, 1, 0, 1, 4}},
      {"get_address_book_group_detail_from_cmm",
       {"invoke 0.887.921.584"},
       [] {
         long a = -1, b = -1;
         const int ret = dvc_pnl_ceh_contents_hdl_get_address_book_group_detail_from_cmm(4, a, b);
         return std::vector<long>{ret, a, b};
       },
       {0, 2, 1}},
      {"get_job_accounting_detail_from_cmm",
       {"invoke 0.679.843.584"},
       [] {
         ACCOUNT_DETAIL account{};
         account.restriction_1385 = -1;  // the read zeroes the record before filling it
         const int ret = dvc_pnl_ceh_contents_hdl_get_job_accounting_detail_from_cmm(1, account);
         return std::vector<long>{ret, account.account_id, account.restriction_1369,
                                  account.restriction_1385};
       },
       {0, 1, 0, 0}},
      {"get_guest_user_job_accounting_detail_from_cmm",
       {"invoke 0.681.843.584", "invoke 0.679.843.584"},
       [] {
         ACCOUNT_DETAIL account{};
         account.account_id = -1;
         const int ret =
             dvc_pnl_ceh_contents_hdl_get_guest_user_job_accounting_detail_from_cmm(account);
         return std::vector<long>{ret, account.account_id};
       },
       {0, 1}},
      {"get_curr_cassette_id_from_cmm, copy",
       {"invoke 0.821.2855"},
       [] {
         long cassette = -1;
         const int ret = dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, 1);
         return std::vector<long>{ret, cassette};
       },
       {0, 1}},
      {"get_curr_cassette_id_from_cmm, box",
       {"invoke 0.821.2855"},
       [] {
         long cassette = -1;
         const int ret = dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, 6);
         return std::vector<long>{ret, cassette};
       },
       {0, 1}},
      {"is_color_document",
       {"invoke 0.857.866.2885"},
       [] { return std::vector<long>{dvc_pnl_ceh_contents_hdl_is_color_document(1, 1)}; },
       {1}},
      {"get_local_user_property_pages",
       {"invoke 0.874.844"},
       [] {
         std::vector<long> pages;
         dvc_pnl_ceh_contents_hdl_get_local_user_property_pages(0, 0, 0, pages);
         return pages;
       },
       {591, 593, 594, 596, 597}},
  };
  for (const served_case& c : cases) {
    SCOPED_TRACE(c.query);
    machine().clear_log();
    EXPECT_EQ(c.expected, c.ask());

    Calls invokes;
    for (const call_record& r : machine().log()) {
      // Every call the query made was answered, and every command with success.
      EXPECT_EQ(0, r.result) << r.key;
      if (r.kind == verb::invoke) {
        invokes.push_back("invoke " + r.key);
        EXPECT_EQ(0, result_of(r)) << r.key;
      }
    }
    EXPECT_EQ(c.invokes, invokes);
  }
}

TEST_F(DefaultModel, TheGuestsJobAccountingRecordComesWithItsTexts) {
  ACCOUNT_DETAIL account{};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_guest_user_job_accounting_detail_from_cmm(account));
  EXPECT_EQ(1, request_word("0.679.843.584", 1362));  // the account the guest's record names
  EXPECT_STREQ("Guest", account.name);
  EXPECT_STREQ("0001", account.code);
  EXPECT_STREQ("Guest", account.text_1368);
  EXPECT_EQ((std::vector<long>{0, 0, 0, 0, 0}),
            (std::vector<long>{account.restriction_1369, account.restriction_1372,
                               account.restriction_1374, account.restriction_1375,
                               account.restriction_1385}));
}

}  // namespace
}  // namespace orvanta::test
