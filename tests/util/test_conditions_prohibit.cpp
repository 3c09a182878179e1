// Condition queries about what is barred: setting value masks, the notices after setting
// changes, the job prohibition period and the clock, pull print, location usage, and the page
// sets of the record detail screens.
#include <string>
#include <tuple>
#include <vector>

#include "orvanta/host/host_data_manager.h"
#include "test_conditions_support.h"

namespace orvanta::test {
namespace {

// ---- setting value masks ----

TEST_F(Conditions, ProhibitValueReadsTheMaskOfTheFunctionsTable) {
  machine().set_int("0.223.224.2.3.225", 5);
  machine().set_int("0.223.224.161.3.225", 6);
  machine().set_int("0.223.224.214.4.999", 1);  // a row without a mask
  struct mask_case {
    int function;
    unsigned item;
    int result;
    long value;
  };
  const mask_case cases[] = {
      {1, 3, 0, 5},  {24, 3, 0, 5},  {3, 3, 0, 6},  {7, 4, 0, -1},
      {0, 3, 0, -1}, {25, 3, 0, -1}, {5, 3, 0, -1}, {4, 3, 3, -1},  // no table at 0.223.224.206
      {1, 9, 3, -1},                                                // no such row
  };
  for (const mask_case& c : cases) {
    long value = -1;  // all ones: nothing barred
    EXPECT_EQ(c.result, dvc_pnl_ceh_contents_hdl_get_prohibit_value(c.function, c.item, value))
        << c.function << " " << c.item;
    EXPECT_EQ(c.value, value) << c.function << " " << c.item;
  }
  machine().clear_log();
  long value = -1;
  dvc_pnl_ceh_contents_hdl_get_prohibit_value(6, 3, value);
  EXPECT_EQ(Calls{"get 0.223.224.207"}, calls());
  machine().clear_log();
  dvc_pnl_ceh_contents_hdl_get_prohibit_value(2, 3, value);
  EXPECT_TRUE(calls().empty());
}

// ---- notices after setting changes ----

class ProhibitCid : public Conditions {
 protected:
  // The event of a change of settings: each entry is a changed setting's full key and value.
  static dvc_pnl_evh_panel_event changes(const std::vector<entry>& entries) {
    dvc_pnl_evh_panel_event event(220);
    event.dvc_pnl_evh_set_event_source_valueset(make_valueset(entries, 3));
    return event;
  }
  static DVC_PNL_CEH_PROHIBITION_WINDOWS queue(int function) {
    DVC_PNL_CEH_PROHIBITION_WINDOWS q{};
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS,
                                                             &q, sizeof q, function));
    return q;
  }
  static std::vector<int> notices(const DVC_PNL_CEH_PROHIBITION_WINDOWS& q) {
    return std::vector<int>(std::begin(q.cid), std::end(q.cid));
  }
  // The places after the first `used` are free.
  static std::vector<int> queued(std::vector<int> cids) {
    cids.resize(DVC_PNL_CEH_PROHIBITION_PLACES, CID_NONE);
    return cids;
  }
  static constexpr long kGoingTo = 1234;
};

TEST_F(ProhibitCid, OneChangeQueuesItsNotice) {
  const auto event = changes({{"0.1253.1255.0.1256.1.2.160.12.29.164", 5L}});
  long cid = kGoingTo;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_prohibit_cid(event, cid, 1));
  EXPECT_EQ(CID_10_01_N17, cid);
  const DVC_PNL_CEH_PROHIBITION_WINDOWS q = queue(1);
  EXPECT_EQ(queued({CID_10_01_N17}), notices(q));
  EXPECT_EQ(5, q.value[0]);
  EXPECT_EQ((std::vector<int>{1, 2, 160, 12, 29, 164, -1, -1, -1}),
            std::vector<int>(std::begin(q.items[0]), std::end(q.items[0])));
  EXPECT_EQ(0, q.index);
  EXPECT_EQ(kGoingTo, q.next_cid);
  for (const std::string& line :
       {"open window cid= " + std::to_string(CID_10_01_N17), std::string("index= 0"),
        std::string("keyindex= 0 ok"), std::string("change_value= 5 ")})
    EXPECT_TRUE(traced(line)) << line << "\n" << trace_dump();
}

TEST_F(ProhibitCid, GroupsQueueInOrderOneNoticeEach) {
  struct queue_case {
    const char* name;
    std::vector<entry> changes;
    std::vector<int> notices;
  };
  const queue_case cases[] = {
      {"the same setting and value twice gives one notice",
       {{"0.1253.1255.0.1256.1.2.160.12.29.164", 5L}, {"0.1253.1255.1.1256.1.2.160.12.29.164", 5L}},
       {CID_10_01_N17}},
      {"the same setting with another value gives another",
       {{"0.1253.1255.0.1256.1.2.160.12.29.164", 5L}, {"0.1253.1255.3.1256.1.2.160.12.29.164", 6L}},
       {CID_10_01_N17, CID_10_01_N17}},
      {"a group stops at its first new notice",
       {{"0.1253.1255.0.1256.1.2.160.12.29.30.32.33", 1L},
        {"0.1253.1255.0.1256.1.2.160.12.29.34", 1L}},
       {CID_10_01_N2}},
      {"a group whose first notice is queued goes on to its next row",
       {{"0.1253.1255.0.1256.1.2.160.12.29.164", 5L},
        {"0.1253.1255.1.1256.1.2.160.12.29.164", 5L},
        {"0.1253.1255.1.1256.1.2.160.12.29.34", 1L}},
       {CID_10_01_N17, CID_10_05_N11}},
      {"two settings with one notice",
       {{"0.1253.1255.2.1256.1.2.160.46.49.51", 3L}, {"0.1253.1255.5.1256.1.2.160.46.49.50", 3L}},
       {CID_10_01_N3}},
      {"groups beyond the eighth are not looked at",
       {{"0.1253.1255.8.1256.1.2.160.12.29.164", 5L}},
       {}},
  };
  for (const queue_case& c : cases) {
    SCOPED_TRACE(c.name);
    long cid = kGoingTo;
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_prohibit_cid(changes(c.changes), cid, 1));
    EXPECT_EQ(c.notices.empty() ? kGoingTo : c.notices[0], cid);
    const DVC_PNL_CEH_PROHIBITION_WINDOWS q = queue(1);
    EXPECT_EQ(queued(c.notices), notices(q));
    EXPECT_EQ(c.notices.empty() ? -1 : 0, q.index);
  }
}

TEST_F(ProhibitCid, FaxSendAndBoxFunctionsHaveTheirOwnEventNodeAndSettings) {
  struct function_case {
    int function;
    const char* changed;
    int notice;
  };
  const function_case cases[] = {
      {3, "0.1265.1255.0.1256.1.161.160.12.29.164", CID_10_01_N17},
      {3, "0.1265.1255.0.1256.1.161.160.216.217", CID_10_08_N7},  // row of 1.214.160.216.217
      {4, "0.1266.1255.0.1256.1.206.160.411", CID_10_10_N1},
      {6, "0.1267.1255.0.1256.1.207.160.46.49.50", CID_10_01_N3},
      {7, "0.1269.1255.0.1256.1.214.160.185.194", CID_10_05_N10},
      {24, "0.1253.1255.0.1256.1.161.160.411", CID_10_10_N1},   // paths stand as they are
      {1, "0.1265.1255.0.1256.1.161.160.12.29.164", CID_NONE},  // another function's node
      {3, "0.1265.1255.0.1256.1.2.160.12.29.164", CID_NONE},    // copy's path under fax
  };
  for (const function_case& c : cases) {
    SCOPED_TRACE(c.changed);
    long cid = kGoingTo;
    EXPECT_EQ(
        0, dvc_pnl_ceh_contents_hdl_get_prohibit_cid(changes({{c.changed, 2L}}), cid, c.function));
    EXPECT_EQ(c.notice == CID_NONE ? kGoingTo : c.notice, cid);
    EXPECT_EQ(c.notice, queue(c.function).cid[0]);
  }
}

TEST_F(ProhibitCid, NothingToQueueKeepsTheCidAndStillStoresTheEmptyQueue) {
  long cid = kGoingTo;
  dvc_pnl_evh_panel_event empty(220);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_prohibit_cid(empty, cid, 1));
  EXPECT_EQ(kGoingTo, cid);
  DVC_PNL_CEH_PROHIBITION_WINDOWS q = queue(1);
  EXPECT_EQ(queued({}), notices(q));
  EXPECT_EQ(-1, q.index);
  EXPECT_EQ(kGoingTo, q.next_cid);
  EXPECT_TRUE(traced("CUST: dvc_pnl_ceh_contents_hdl_get_prohibit_cid for loop BREAK"))
      << trace_dump();

  // Changes that call for no notice.
  host::trace_sink::instance().clear();
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_prohibit_cid(
                   changes({{"0.1253.1255.0.1256.1.2.160.12.29.999", 1L}}), cid, 1));
  EXPECT_EQ(kGoingTo, cid);
  EXPECT_TRUE(traced("keyindex= 20 not ok")) << trace_dump();

  host::host_data_manager::instance().fail_next(host::dm_op::set);
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_prohibit_cid(
                   changes({{"0.1253.1255.0.1256.1.2.160.12.29.164", 5L}}), cid, 1));
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_set_binary_to_dm ret_code = 3")) << trace_dump();
}

// ---- clock and time zones ----

TEST(TimeZones, TextsOfTheTable) {
  const std::vector<std::pair<int, const char*>> cases = {
      {0, "3182"},   {14, "3815"},       {26, "3201"},       {33, "3215"},       {104, "3821"},
      {115, "3236"}, {105, "NOT_FOUND"}, {114, "NOT_FOUND"}, {116, "NOT_FOUND"}, {-1, "NOT_FOUND"}};
  for (const auto& [zone, text] : cases)
    EXPECT_EQ(text, dvc_pnl_ceh_contents_hdl_get_timez_val_str(zone)) << zone;
  // The texts come from the resource table.
  host::set_text_resource(3215, "(UTC+01:00) Paris");
  EXPECT_EQ("(UTC+01:00) Paris", dvc_pnl_ceh_contents_hdl_get_timez_val_str(33));
  host::clear_text_resources();
  EXPECT_EQ("3215", dvc_pnl_ceh_contents_hdl_get_timez_val_str(33));
  int missing = 0;
  for (int zone = 0; zone <= 115; ++zone)
    missing += dvc_pnl_ceh_contents_hdl_get_timez_val_str(zone) == "NOT_FOUND" ? 1 : 0;
  EXPECT_EQ(10, missing);
}

TEST_F(Conditions, DateAndTimeOfTheMachine) {
  DATE_TIME time{};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_date_time_setting(time));
  // The default model's clock and time zone.
  EXPECT_EQ(
      (std::vector<int>{2024, 5, 14, 10, 30, 0}),
      (std::vector<int>{time.year, time.month, time.day, time.hour, time.minute, time.second}));
  EXPECT_STREQ("3215", time.time_zone);

  machine().set_int("0.230.311.320", 110);
  dvc_pnl_ceh_contents_hdl_get_date_time_setting(time);
  EXPECT_STREQ("NOT_FOUND", time.time_zone);
  // A zone that can't be read counts as zone 0.
  machine().fail_next(verb::get, "0.230.311.320");
  dvc_pnl_ceh_contents_hdl_get_date_time_setting(time);
  EXPECT_STREQ("3182", time.time_zone);

  machine().fail_next(verb::get, "0.4167.1499");
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_date_time_setting(time));
}

TEST_F(Conditions, SanitizationTimeMustLieAfterThePresentHour) {
  // The clock: 2024-05-14 10:30.
  const std::vector<std::tuple<long, long, long, long, int>> cases = {
      {2025, 1, 1, 0, 1},   {2023, 12, 31, 23, 0}, {2024, 6, 1, 0, 1},
      {2024, 4, 30, 23, 0}, {2024, 5, 15, 0, 1},   {2024, 5, 13, 23, 0},
      {2024, 5, 14, 11, 1}, {2024, 5, 14, 10, 0},  {2024, 5, 14, 23, 1},
  };
  for (const auto& [year, month, day, hour, valid] : cases) {
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(DVC_PNL_PDM_CEH_DATA_SANITIZATION_YEAR, 9,
                                                         CID_07_02_472_N3, year);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(DVC_PNL_PDM_CEH_DATA_SANITIZATION_MONTH, 9,
                                                         CID_07_02_472_N3, month);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(DVC_PNL_PDM_CEH_DATA_SANITIZATION_DAY, 9,
                                                         CID_07_02_472_N3, day);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(DVC_PNL_PDM_CEH_DATA_SANITIZATION_HOUR, 9,
                                                         CID_07_02_472_N4, hour);
    EXPECT_EQ(valid, dvc_pnl_ceh_contents_hdl_is_time_valid(9))
        << year << "-" << month << "-" << day << " " << hour;
  }
  // Entered under another function: nothing to compare.
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_time_valid(8));
}

// ---- job prohibition period ----

TEST_F(Conditions, JobProhibitionPeriod) {
  struct period_case {
    long on, start, end, hour, minute;
    int released;
    int answer;
  };
  const period_case cases[] = {
      {1, 1700, 800, 23, 0, 2, 1}, {1, 1700, 800, 7, 59, 2, 1},  {1, 1700, 800, 8, 0, 2, 1},
      {1, 1700, 800, 12, 0, 2, 0}, {1, 1700, 800, 17, 0, 2, 1},  {1, 900, 1700, 12, 0, 2, 1},
      {1, 900, 1700, 17, 1, 2, 0}, {1, 1200, 1200, 12, 0, 2, 0}, {0, 900, 1700, 12, 0, 2, 0},
      {1, 900, 1700, 12, 0, 1, 0}, {1, 900, 1700, 12, 0, 0, 0},  {1, 900, 1700, 12, 0, -1, 1},
  };
  for (const period_case& c : cases) {
    machine().set_int("0.230.311.599.2361", c.on);
    machine().set_int("0.230.311.599.601", c.start);
    machine().set_int("0.230.311.599.602", c.end);
    machine().set_int("0.4167.1499.201", c.hour);
    machine().set_int("0.4167.1499.202", c.minute);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_RELEASED_FROM_PROHIBITION,
                                                          c.released);
    EXPECT_EQ(c.answer, dvc_pnl_ceh_contents_hdl_is_job_prohibit_on())
        << c.on << " " << c.start << "-" << c.end << " at " << c.hour << ":" << c.minute
        << " released " << c.released;
  }
  machine().fail_next(verb::get, "0.230.311.599");
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_job_prohibit_on());
  EXPECT_TRUE(traced("dvc_pnl_ceh_contents_hdl_is_job_prohibit_on ret_code = 3")) << trace_dump();
  host::host_data_manager::instance().fail_next(host::dm_op::get);
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_job_prohibit_on());
  EXPECT_TRUE(traced("get released from prohibition status from dm failed. ret_code = 3"))
      << trace_dump();
}

// ---- pull print ----

TEST_F(Conditions, PullPrintProhibitionReasons) {
  struct reason_case {
    int documents;
    std::vector<const char*> barred;  // job permissions set to 2
    long reasons;
  };
  const reason_case cases[] = {
      {5, {}, 0},
      {0, {}, 16},
      {1000, {}, 0},
      {1001, {}, 1},
      {5, {"2749"}, 4},
      {5, {"2177"}, 8},
      {5, {"2138", "2139", "2159"}, 32},
      {5, {"2139", "2159"}, 64},
      {5, {"2159"}, 128},
      {0, {"2749", "2176", "2139"}, 16 | 4 | 8 | 64},
  };
  for (const reason_case& c : cases) {
    machine().reset();
    for (const char* node : c.barred)
      machine().set_int(std::string("0.1902.") + node, 2);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_PULL_PRINT_DOCUMENT_NUM,
                                                          c.documents);
    EXPECT_EQ(c.reasons, dvc_pnl_ceh_contents_hdl_get_pull_print_prohibit_state()) << c.documents;
  }
  // Inside the job prohibition period.
  machine().reset();
  machine().set_int("0.230.311.599.2361", 1);
  machine().set_int("0.230.311.599.601", 900);
  machine().set_int("0.230.311.599.602", 1700);
  dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_RELEASED_FROM_PROHIBITION, 2);
  dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_PULL_PRINT_DOCUMENT_NUM, 5);
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_get_pull_print_prohibit_state());
}

TEST_F(Conditions, PullPrintProhibitionAppliesToNetworkUsersOfAServerWithUserData) {
  serve_users({{17, {{536, 1L}}}, {18, {{536, 0L}}}});
  struct enable_case {
    int management;
    long id;
    long server_kind;
    int documents, running;
    int answer;
  };
  const enable_case cases[] = {
      {1, 17, 2, 3, 0, 1}, {3, 17, 2, 3, 2, 1}, {1, 17, 2, 3, 1, 0}, {1, 17, 2, 0, 0, 0},
      {1, 17, 1, 3, 0, 0}, {1, 18, 2, 3, 0, 0}, {2, 17, 2, 3, 0, 0}, {1, -1, 2, 3, 0, 0},
  };
  for (const enable_case& c : cases) {
    login(c.management, c.id);
    machine().set_int("0.534.535.537.539", c.server_kind);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_PULL_PRINT_DOCUMENT_NUM,
                                                          c.documents);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_CEH_PULL_PRINT_RUNNING,
                                                          c.running);
    EXPECT_EQ(c.answer, dvc_pnl_ceh_contents_hdl_is_pull_print_prohibit_enable())
        << c.management << " " << c.id << " " << c.server_kind << " " << c.documents << " "
        << c.running;
  }
}

// ---- location usage ----

TEST_F(Conditions, LocationUsageAtHome) {
  struct home_case {
    long usage, lock;
    int home;
  };
  for (const home_case& c : {home_case{1, 0, 1}, home_case{1, 2, 0}, home_case{0, 0, 0}}) {
    machine().set_int("0.2064.4223", c.usage);
    machine().set_int("0.728.346", c.lock);
    EXPECT_EQ(c.home, is_location_usage_home()) << c.usage << " " << c.lock;
    EXPECT_EQ(c.home, is_location_usage_home_bypass(100)) << c.usage << " " << c.lock;
  }
  machine().set_int("0.2064.4223", 1);
  machine().set_int("0.728.346", 0);
  for (long id : {631L, 707L, 841L, 868L, 1296L, 1372L})
    EXPECT_EQ(0, is_location_usage_home_bypass(id)) << id;
  // A failed read answers its code, which the bypass takes as no.
  machine().fail_next(verb::get, "0.2064.4223");
  EXPECT_EQ(3, is_location_usage_home());
  EXPECT_TRUE(traced("fail command for management mode. ret_code = 3")) << trace_dump();
  machine().fail_next(verb::get, "0.2064.4223");
  EXPECT_EQ(0, is_location_usage_home_bypass(100));
}

// ---- remote panel ----

TEST_F(Conditions, RemoteConnectionMadeIncludesStatus4) {
  for (const auto& [status, connected, made] : std::vector<std::tuple<long, int, int>>{
           {1, 0, 0}, {2, 1, 1}, {3, 1, 1}, {4, 0, 1}, {5, 0, 0}}) {
    dvc_pnl_cmm_value v;
    ASSERT_EQ(0, v.dvc_pnl_cmm_set_valueset(make_valueset({{"0.2096", status}})));
    ASSERT_EQ(0, host::host_data_manager::instance().dvc_pnl_pdm_set_by_application_scope(
                     DVC_PNL_PDM_REMOTE_PANEL_STATUS, v));
    EXPECT_EQ(connected, is_remote_connected()) << status;
    EXPECT_EQ(made, is_remote_connection_made()) << status;
  }
  host::host_data_manager::instance().reset();
  EXPECT_EQ(0, is_remote_connection_made());
}

// ---- page sets ----

TEST(PageSets, FixedSets) {
  std::vector<long> pages = {7};
  dvc_pnl_ceh_contents_hdl_get_unknown_user_auth_rules_pages(pages);
  EXPECT_EQ((std::vector<long>{7, 1650}), pages);

  const std::vector<std::tuple<int, long, std::vector<long>>> unknown = {
      {1, 2, {1646, 1647, 1648}}, {0, 2, {1646, 1648}}, {1, 1, {1648, 1646, 1647}},
      {0, 1, {1648, 1646}},       {1, 3, {1648, 1649}}, {1, 4, {}}};
  for (const auto& [a, kind, expected] : unknown) {
    pages.clear();
    dvc_pnl_ceh_contents_hdl_get_unknown_user_property_pages(a, kind, pages);
    EXPECT_EQ(expected, pages) << a << " " << kind;
  }

  pages.clear();
  dvc_pnl_ceh_contents_hdl_get_local_user_setting_pages(1, 1, 0, pages);
  EXPECT_EQ((std::vector<long>{1237, 1238, 1239, 1240, 1242, 1243, 1244}), pages);
  pages.clear();
  dvc_pnl_ceh_contents_hdl_get_local_user_setting_pages(0, 0, 1, pages);
  EXPECT_EQ((std::vector<long>{1237, 1239, 1240, 1242, 1243}), pages);
}

TEST_F(Conditions, LocalUserPropertyPagesDependOnTheUser) {
  serve_users({{17, {{536, 0L}}}, {18, {{536, 1L}}}});
  struct property_case {
    long id;
    long server_kind;
    long network_only;  // 0.2758.2758
    int a, b;
    std::vector<long> pages;
  };
  const property_case cases[] = {
      {17, 2, 0, 1, 1, {591, 592, 593, 594, 596, 597, 598}},
      {17, 2, 0, 0, 0, {591, 593, 594, 596, 597}},
      {18, 2, 0, 0, 1, {591, 593, 594, 595, 596, 597, 598, 610, 611}},
      {18, 1, 1, 0, 1, {591, 593, 594, 595, 596, 597, 608, 609, 610}},
      {18, 1, 0, 0, 1, {591, 593, 594, 595, 596, 597, 610}},
  };
  for (const property_case& c : cases) {
    login(1, c.id);
    machine().set_int("0.534.535.537.539", c.server_kind);
    machine().set_int("0.2758.2758", c.network_only);
    std::vector<long> pages;
    dvc_pnl_ceh_contents_hdl_get_local_user_property_pages(c.a, c.b, 0, pages);
    EXPECT_EQ(c.pages, pages) << c.id << " " << c.server_kind << " " << c.network_only;
  }
  // A failed command or read leaves the pages as they came.
  std::vector<long> pages = {1};
  machine().fail_next(verb::invoke, "0.874.844");
  dvc_pnl_ceh_contents_hdl_get_local_user_property_pages(1, 1, 0, pages);
  machine().fail_next(verb::get, "0.2758.2758");
  dvc_pnl_ceh_contents_hdl_get_local_user_property_pages(1, 1, 0, pages);
  EXPECT_EQ(std::vector<long>{1}, pages);
}

}  // namespace
}  // namespace orvanta::test
