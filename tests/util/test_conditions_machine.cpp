// Condition queries about the machine: equipment and settings read from single nodes, the region,
// send commands, address books and host names.
#include <string>
#include <vector>

#include "orvanta/host/host_data_manager.h"
#include "orvanta/host/value_faults.h"
#include "test_conditions_support.h"

namespace orvanta::test {
namespace {

constexpr const char* kReadFailed = "retrieval of setting from cmm failed. ret_code = 3";

// ---- yes/no queries on one node ----

struct yes_no_case {
  const char* name;
  int (*query)();
  const char* node;   // where the value lies
  const char* asked;  // what the machine is asked for
  long yes;           // a value that answers 1
  long other;         // a value that answers 0
  int failure;        // the answer when the read fails
};

const yes_no_case kYesNo[] = {
    {"dp_is_exist", dvc_pnl_ceh_contents_hdl_dp_is_exist, "0.728.713.745", "0.728.713.745", 2, 1,
     3},
    {"is_sdcard_exist", dvc_pnl_ceh_contents_hdl_is_sdcard_exist, "0.684.685.3784",
     "0.684.685.3784", 3, 1, 0},
    {"is_ram_disk_on", dvc_pnl_ceh_contents_hdl_is_ram_disk_on, "0.230.231.2903.2904",
     "0.230.231.2903.2904", 1, 0, 0},
    {"ic_card_reader_device_detect", dvc_pnl_ceh_contents_hdl_ic_card_reader_device_detect,
     "0.678.2032", "0.678.2032", 1, 2, 0},
    {"wsd_scan_is_on", dvc_pnl_ceh_contents_hdl_wsd_scan_is_on, "0.633.1979.1980",
     "0.633.1979.1980", 1, 0, 3},
    {"is_monochrome_mode", dvc_pnl_ceh_contents_hdl_is_monochrome_mode, "0.1902.3558",
     "0.1902.3558", 2, 1, 0},
    {"get_job_permission_state",
     [] { return dvc_pnl_ceh_contents_hdl_get_job_permission_state(2749); }, "0.1902.2749",
     "0.1902.2749", 2, 1, 0},
    {"get_auto_duplex_check", dvc_pnl_ceh_contents_hdl_get_auto_duplex_check,
     "0.704.3624.3653.3655", "0.704.3624.3653.3655", 2, 1, 0},
    {"is_sanitization_lock", dvc_pnl_ceh_contents_hdl_is_sanitization_lock, "0.230.3313.3319",
     "0.230.3313.3319", 1L << 26, (1L << 25) | (1L << 27), 0},
    {"is_default_port", [] { return dvc_pnl_ceh_contents_is_default_port(2200, 8080); },
     "0.633.2200.668", "0.633.2200", 8080, 80, 0},
    {"check_unit_is_cent_or_not", dvc_pnl_ceh_contents_check_unit_is_cent_or_not, "0.230.331.332",
     "0.230.331.332", 0, 1, 3},
    {"is_SSL_enabled", is_SSL_enabled, "0.633.634.635", "0.633.634.635", 1, 0, 0},
    {"is_VNC_enabled", is_VNC_enabled, "0.633.4161.649", "0.633.4161.649", 1, 0, 0},
    {"is_VNC_over_SSL_enabled", is_VNC_over_SSL_enabled, "0.633.4163.649", "0.633.4163.649", 1, 0,
     0},
    {"is_enhanced_VNC_over_SSL_enabled", is_enhanced_VNC_over_SSL_enabled, "0.633.4164.649",
     "0.633.4164.649", 1, 0, 0},
    {"destination_is_europe", dvc_pnl_ceh_contents_hdl_destination_is_europe, "0.728.729",
     "0.728.729", 1, 3, 3},
    {"destination_is_asia", dvc_pnl_ceh_contents_hdl_destination_is_asia, "0.728.729", "0.728.729",
     3, 1, 3},
    {"destination_is_japan", dvc_pnl_ceh_contents_hdl_destination_is_japan, "0.728.729",
     "0.728.729", 4, 3, 3},
    {"destination_is_europe_or_asia", dvc_pnl_ceh_contents_hdl_destination_is_europe_or_asia,
     "0.728.729", "0.728.729", 7, 4, 3},
    {"encryption_fax_is_exist", dvc_pnl_ceh_contents_hdl_encryption_fax_is_exist, "0.503.3297",
     "0.503.3297", 0, 1, 0},
    {"fax_tx_report_is_set", dvc_pnl_ceh_contents_hdl_fax_tx_report_is_set, "0.230.408.411.412",
     "0.230.408.411.412", 3, 1, 0},
    {"polling_reception_is_setting(3)",
     [] { return dvc_pnl_ceh_contents_hdl_polling_reception_is_setting(3); }, "0.1.161.160.203.204",
     "0.1.161.160.203.204", 16, 0, 3},
    {"polling_reception_is_setting(4)",
     [] { return dvc_pnl_ceh_contents_hdl_polling_reception_is_setting(4); }, "0.1.206.160.203.204",
     "0.1.206.160.203.204", 16, 15, 3},
    {"is_send_direct_entry_prohibiton_on",
     dvc_pnl_ceh_contents_hdl_is_send_direct_entry_prohibiton_on, "0.230.185.3488",
     "0.230.185.3488", 1, 0, 0},
    // The odd one of the three: 1 for the value 0.
    {"is_fax_direct_entry_prohibiton_on",
     dvc_pnl_ceh_contents_hdl_is_fax_direct_entry_prohibiton_on, "0.230.185.3132", "0.230.185.3132",
     0, 1, 0},
    {"is_send_reentry_prohibiton_on", dvc_pnl_ceh_contents_hdl_is_send_reentry_prohibiton_on,
     "0.230.185.3489", "0.230.185.3489", 1, 0, 0},
    {"check_new_address_confirm_on", dvc_pnl_ceh_contents_hdl_check_new_address_confirm_on,
     "0.230.185.2340", "0.230.185.2340", 1, 0, 0},
    // Preset -1: a failed read is no.
    {"get_external_addr_book_status", dvc_pnl_ceh_contents_hdl_get_external_addr_book_status,
     "0.633.2318.649", "0.633.2318.649", 1, 2, 0},
    // Preset 1: a failed read is no, although the value 0 is yes.
    {"is_address_book_admin_only_on", dvc_pnl_ceh_contents_hdl_is_address_book_admin_only_on,
     "0.230.3885.887", "0.230.3885.887", 0, 1, 0},
};

TEST_F(Conditions, YesNoQueriesAskOneNodeAndAnswerTheirFallbackOnFailure) {
  for (const yes_no_case& c : kYesNo) {
    SCOPED_TRACE(c.name);
    machine().set_int(c.node, c.yes);
    machine().clear_log();
    EXPECT_EQ(1, c.query());
    EXPECT_EQ(Calls{std::string("get ") + c.asked}, calls());

    machine().set_int(c.node, c.other);
    EXPECT_EQ(0, c.query());

    host::trace_sink::instance().clear();
    machine().fail_next(verb::get, c.asked);
    EXPECT_EQ(c.failure, c.query());
    EXPECT_TRUE(traced(kReadFailed)) << trace_dump();

    // A node the machine doesn't have fails the same way.
    machine().remove_node(c.node);
    EXPECT_EQ(c.failure, c.query());
  }
}

TEST_F(Conditions, SdCardAndEuropeOrAsiaAcceptSeveralValues) {
  for (long state : {2L, 3L, 4L}) {
    machine().set_int("0.684.685.3784", state);
    EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_is_sdcard_exist()) << state;
  }
  const std::vector<std::pair<long, int>> regions = {{0, 0}, {1, 1}, {2, 0}, {3, 1}, {4, 0},
                                                     {5, 1}, {6, 1}, {7, 1}, {8, 1}, {9, 0}};
  for (const auto& [region, answer] : regions) {
    machine().set_int("0.728.729", region);
    EXPECT_EQ(answer, dvc_pnl_ceh_contents_hdl_destination_is_europe_or_asia()) << region;
  }
}

TEST_F(Conditions, RegionQueriesAnswer0WhenTheirKeyCannotBeBuilt) {
  for (auto query :
       {dvc_pnl_ceh_contents_hdl_destination_is_europe,
        dvc_pnl_ceh_contents_hdl_destination_is_asia, dvc_pnl_ceh_contents_hdl_destination_is_japan,
        dvc_pnl_ceh_contents_hdl_destination_is_europe_or_asia}) {
    machine().clear_log();
    host::trace_sink::instance().clear();
    host::fail_value_op(host::value_op::key_add, 1);
    EXPECT_EQ(0, query());
    EXPECT_TRUE(calls().empty());
    EXPECT_TRUE(traced("dvc_pnl_cmm_key::dvc_pnl_cmm_add_key ret_code = 3")) << trace_dump();
  }
}

TEST_F(Conditions, PollingReceptionOfAFunctionWithoutTheSettingAnswers3WithoutAsking) {
  for (int function : {0, 1, 2, 5, 7}) {
    EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_polling_reception_is_setting(function)) << function;
  }
  EXPECT_TRUE(calls().empty());
}

TEST_F(Conditions, RemoteAccessQueriesCombineTheirSettings) {
  struct combo {
    long ssl, vnc_over_ssl, enhanced;
    int compatible, ccrx;
  };
  const combo combos[] = {{1, 1, 0, 1, 0}, {1, 0, 1, 1, 1}, {0, 1, 0, 0, 0},
                          {0, 0, 1, 1, 0}, {0, 0, 0, 0, 0}, {1, 0, 0, 0, 0}};
  for (const combo& c : combos) {
    machine().set_int("0.633.634.635", c.ssl);
    machine().set_int("0.633.4163.649", c.vnc_over_ssl);
    machine().set_int("0.633.4164.649", c.enhanced);
    SCOPED_TRACE(testing::Message() << c.ssl << c.vnc_over_ssl << c.enhanced);
    EXPECT_EQ(c.compatible, is_VNC_compatible());
    EXPECT_EQ(c.ccrx, is_CCRX());
  }
}

// ---- queries that answer the value read ----

struct value_case {
  const char* name;
  int (*query)();
  const char* node;
  int failure;
};

const value_case kValues[] = {
    {"get_display_language", dvc_pnl_ceh_contents_hdl_get_display_language, "0.230.343.347", -1},
    {"get_option_language_umu", dvc_pnl_ceh_contents_hdl_get_option_language_umu, "0.728.2854", 0},
    {"get_default_screen", dvc_pnl_ceh_contents_hdl_get_default_screen, "0.230.343.348", -1},
    {"get_job_accounting_count_method", dvc_pnl_ceh_contents_hdl_get_job_accounting_count_method,
     "0.541.542.543", 0},
    {"get_panel_lock_status", dvc_pnl_ceh_contents_hdl_get_panel_lock_status, "0.728.346", -1},
    {"get_default_address_book_setting", dvc_pnl_ceh_contents_hdl_get_default_address_book_setting,
     "0.230.2520.3189", 0},
};

TEST_F(Conditions, ValueQueriesAnswerTheValueOrTheirFallback) {
  for (const value_case& c : kValues) {
    SCOPED_TRACE(c.name);
    for (long value : {3L, 999L}) {
      machine().set_int(c.node, value);
      EXPECT_EQ(value, c.query());
    }
    machine().fail_next(verb::get, c.node);
    EXPECT_EQ(c.failure, c.query());
  }
}

// ---- queries with an out-argument that answer the read ----

struct out_case {
  const char* name;
  int (*query)(long&);
  const char* node;
  const char* asked;
  long value;    // stored in the node
  long out;      // what the query gives for it
  long failure;  // what the out-argument holds after a failed read (preset 99)
};

const out_case kOuts[] = {
    {"is_dp_auto_detect",
     [](long& v) {
       int on = static_cast<int>(v);
       const int r = dvc_pnl_ceh_contents_hdl_is_dp_auto_detect(on);
       v = on;
       return r;
     },
     "0.230.356.3996", "0.230.356.3996", 5, 1, 99},
    {"get_copy_org_size", dvc_pnl_ceh_contents_hdl_get_copy_org_size, "0.1.2.160.12.18.20",
     "0.1.2.160.12.18", 13, 13, 99},
    {"get_display_option_language", dvc_pnl_ceh_contents_hdl_get_display_option_language,
     "0.230.343.3890", "0.230.343.3890", 81, 81, -1},
    {"get_wifi_rssi", dvc_pnl_ceh_contents_hdl_get_wifi_rssi, "0.728.3937.3515", "0.728.3937.3515",
     -61, -61, 99},
    {"get_fax_server_mode",
     [](long& v) {
       int mode = static_cast<int>(v);
       const int r = dvc_pnl_ceh_contents_hdl_get_fax_server_mode(mode);
       v = mode;
       return r;
     },
     "0.1.161.160.3985", "0.1.161.160.3985", 1, 1, 99},
    {"get_fax_server_default_addrbook", dvc_pnl_ceh_contents_hdl_get_fax_server_default_addrbook,
     "0.230.3986.3189", "0.230.3986.3189", 3, 3, 99},
    {"get_send_default_screen_from_cmm", dvc_pnl_ceh_contents_hdl_get_send_default_screen_from_cmm,
     "0.230.185.1009", "0.230.185.1009", 8, 8, 99},
};

TEST_F(Conditions, OutArgumentQueriesAnswerTheReadAndKeepTheOutOnFailure) {
  for (const out_case& c : kOuts) {
    SCOPED_TRACE(c.name);
    machine().set_int(c.node, c.value);
    machine().clear_log();
    long out = 99;
    EXPECT_EQ(0, c.query(out));
    EXPECT_EQ(c.out, out);
    EXPECT_EQ(Calls{std::string("get ") + c.asked}, calls());

    machine().fail_next(verb::get, c.asked);
    out = 99;
    EXPECT_EQ(3, c.query(out));
    EXPECT_EQ(c.failure, out);
  }
  // The other values of the two flags.
  machine().set_int("0.230.356.3996", 0);
  int on = 1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_is_dp_auto_detect(on));
  EXPECT_EQ(0, on);
  machine().set_int("0.1.161.160.3985", 2);
  int mode = 1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_fax_server_mode(mode));
  EXPECT_EQ(0, mode);
}

TEST_F(Conditions, LanguageAttributesComeFromTheManager) {
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_is_furigana_enable(), 0);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_is_report_menu_map(), 0);
  host::set_language_attributes({1, 0});
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_is_furigana_enable(), 1);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_is_report_menu_map(), 0);
  host::set_language_attributes({0, 1});
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_is_furigana_enable(), 0);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_is_report_menu_map(), 1);
  // Without a manager: readings offered, no report menu map.
  host::set_language_manager_available(false);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_is_furigana_enable(), 1);
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_is_report_menu_map(), 0);
  host::reset();
  EXPECT_EQ(dvc_pnl_ceh_contents_hdl_is_furigana_enable(), 0);
}

TEST_F(Conditions, WifiNeedsBothNodesSet) {
  struct wifi {
    long equipped, enabled;
    int on;
  };
  for (const wifi& w : {wifi{1, 1, 1}, wifi{1, 0, 0}, wifi{0, 1, 0}, wifi{2, 5, 1}}) {
    machine().set_int("0.728.3943.3944", w.equipped);
    machine().set_int("0.728.3943.3945", w.enabled);
    int on = -1;
    EXPECT_EQ(0, is_equip_wifi_status(on));
    EXPECT_EQ(w.on, on) << w.equipped << w.enabled;
  }
  machine().fail_next(verb::get, "0.728.3943.3945");
  int on = -1;
  EXPECT_EQ(3, is_equip_wifi_status(on));
  EXPECT_EQ(-1, on);
}

TEST_F(Conditions, FaxServerModeIsWrittenToItsNode) {
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_fax_server_mode(1));
  EXPECT_EQ(Calls{"set 0.1.161.160.3985"}, calls());
  EXPECT_EQ(1, machine().int_at("0.1.161.160.3985"));
  machine().fail_next(verb::set, "0.1.161.160.3985");
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_set_fax_server_mode(0));
  EXPECT_EQ(1, machine().int_at("0.1.161.160.3985"));
}

// ---- data manager flags and small operations ----

TEST_F(Conditions, DataManagerFlags) {
  struct flag {
    const std::string& key;
    int (*query)();
  };
  for (const flag& f :
       {flag{DVC_PNL_PDM_FAX, dvc_pnl_ceh_contents_hdl_fax_is_exist},
        flag{DVC_PNL_PDM_SHIFTLOCK, dvc_pnl_ceh_contents_hdl_get_shift_key_lock_status}}) {
    SCOPED_TRACE(f.key);
    EXPECT_EQ(0, f.query());  // not stored
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(f.key, 1);
    EXPECT_EQ(1, f.query());
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(f.key, 2);
    EXPECT_EQ(0, f.query());
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(f.key, 1);
    host::host_data_manager::instance().fail_next(host::dm_op::get);
    EXPECT_EQ(0, f.query());
  }
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_model());
  dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_MODEL, 42);
  EXPECT_EQ(42, dvc_pnl_ceh_contents_hdl_get_model());
}

TEST_F(Conditions, ViewJobIdKeepsItsLastFourDigits) {
  for (const auto& [id, shown] :
       std::vector<std::pair<long, long>>{{123456, 3456}, {9999, 9999}, {10000, 0}, {40012, 12}}) {
    long v = id;
    dvc_pnl_ceh_contents_hdl_restrict_digits_of_view_job_id(v);
    EXPECT_EQ(shown, v) << id;
  }
}

// ---- send commands ----

TEST_F(Conditions, SendNumReadsTheFourCountsOnlyOnSuccess) {
  script("0.896.901", 0, {{206, 1L}, {884, 2L}, {1345, 3L}, {1569, 4L}});
  long a = -1, b = -1, c = -1, d = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_send_num(a, b, c, d, 7));
  EXPECT_EQ((std::vector<long>{1, 2, 3, 4}), (std::vector<long>{a, b, c, d}));
  EXPECT_EQ(1, request_word("0.896.901", 1320));
  EXPECT_EQ(7, request_word("0.896.901", 1035));

  a = b = c = d = -1;
  script("0.896.901", 1, {{206, 1L}, {884, 2L}, {1345, 3L}, {1569, 4L}});
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_get_send_num(a, b, c, d, 7));
  machine().fail_next(verb::invoke, "0.896.901");
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_send_num(a, b, c, d, 7));
  EXPECT_EQ((std::vector<long>{-1, -1, -1, -1}), (std::vector<long>{a, b, c, d}));
}

TEST_F(Conditions, SendDestinationSizeTakesItsThreeNodesAndAlwaysAnswers1) {
  script("0.896.901", 0, {{206, 1L}, {1345, 3L}, {1569, 4L}});
  long a = -1, b = -1, c = -1;
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_send_destination_size_cmm(a, b, c, 3));
  EXPECT_EQ((std::vector<long>{4, 1, 3}), (std::vector<long>{a, b, c}));
  EXPECT_EQ(3, request_word("0.896.901", 1035));

  a = b = c = -1;
  machine().fail_next(verb::invoke, "0.896.901");
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_send_destination_size_cmm(a, b, c, 3));
  EXPECT_EQ((std::vector<long>{-1, -1, -1}), (std::vector<long>{a, b, c}));
}

TEST_F(Conditions, GroupMemberCountsAndGroupDetail) {
  const std::map<unsigned long, leaf> group = {
      {2540, 1L}, {2541, 2L}, {2542, 3L}, {2544, 4L}, {2875, 9L}};
  script("0.887.921.584", 0, group);
  long a = -1, b = -1, c = -1, d = -1, total = -1;
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_group_member_count_cmm(12, a, b, c, d, total));
  EXPECT_EQ((std::vector<long>{1, 2, 3, 4, 10}), (std::vector<long>{a, b, c, d, total}));
  EXPECT_EQ(12, request_word("0.887.921.584", 1462));

  machine().fail_next(verb::invoke, "0.887.921.584");
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_get_group_member_count_cmm(12, a, b, c, d, total));
  EXPECT_EQ((std::vector<long>{0, 0, 0, 0, 0}), (std::vector<long>{a, b, c, d, total}));

  script("0.887.921.584", 0, group);
  long members = -1, count = -1;
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_address_book_group_detail_from_cmm(5, members, count));
  EXPECT_EQ(9, members);
  EXPECT_EQ(4, count);
  script("0.887.921.584", 4, group);
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_get_address_book_group_detail_from_cmm(5, members, count));
  EXPECT_EQ(0, members);
  EXPECT_EQ(0, count);
}

TEST_F(Conditions, MailAddressConfirmationAnswersItsResult) {
  for (long result : {0L, 5L}) {
    script("0.874.4241", result);
    EXPECT_EQ(result, dvc_pnl_ceh_contents_hdl_confirm_email_address_setting());
  }
  EXPECT_EQ(1, request_word("0.874.4241", 1320));
  machine().fail_next(verb::invoke, "0.874.4241");
  EXPECT_EQ(-1, dvc_pnl_ceh_contents_hdl_confirm_email_address_setting());
}

// ---- address books ----

class AddressBooks : public Conditions {
 protected:
  // Marks the external book rows in use (0 to 3).
  static void books_in_use(const char* table, std::vector<int> rows) {
    for (int row = 0; row < 4; ++row)
      machine().set_int(std::string(table) + "." + std::to_string(row) + ".3589", 0);
    for (int row : rows)
      machine().set_int(std::string(table) + "." + std::to_string(row) + ".3589", 1);
  }
  static constexpr const char* kBooks = "0.230.2520.3588";
  static constexpr const char* kFaxBooks = "0.230.3986.3588";

  static int stored_book(int function) {
    int book = -1;
    EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_EXT_ADDR_BOOK_SERVER_NUM,
                                                          book, function));
    return book;
  }
};

TEST_F(AddressBooks, MasksOfBooksInUse) {
  books_in_use(kBooks, {0, 2});
  books_in_use(kFaxBooks, {1, 3});
  long mask = 0;
  EXPECT_EQ(0x5, dvc_pnl_ceh_contents_hdl_check_use_ext_addrbook(mask));
  EXPECT_EQ(0x5, mask);
  EXPECT_EQ(0x20 | 0x80, dvc_pnl_ceh_contents_hdl_get_fax_server_ext_addrbook_use(mask));
  EXPECT_EQ(0x5 | 0x20 | 0x80, mask);
  books_in_use(kFaxBooks, {});
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_fax_server_ext_addrbook_use(mask));

  // A row that can't be read counts as not in use.
  machine().fail_next(verb::get, kBooks);
  mask = 0;
  dvc_pnl_ceh_contents_hdl_check_use_ext_addrbook(mask);
  EXPECT_EQ(0x4, mask);
}

TEST_F(AddressBooks, FirstBookInUse) {
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_ext_addrbook_is_exist());  // the default model
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_get_pri_addr_book());
  books_in_use(kBooks, {2, 3});
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_ext_addrbook_is_exist());
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_get_pri_addr_book());
}

TEST_F(AddressBooks, DefaultBookAndTheBookStoredForAFunction) {
  struct book_case {
    long setting;
    std::vector<int> in_use;
    int is_default;
    int valid;  // what set_valid stores
  };
  const book_case cases[] = {
      {0, {}, 1, 0}, {0, {1}, 1, 0}, {2, {1}, 1, 2}, {2, {3}, 0, 4}, {2, {}, 0, 0}, {5, {0}, 0, 1},
  };
  for (const book_case& c : cases) {
    SCOPED_TRACE(c.setting);
    machine().set_int("0.230.2520.3189", c.setting);
    books_in_use(kBooks, c.in_use);
    EXPECT_EQ(c.is_default, dvc_pnl_ceh_contents_is_default_addr_book());
    ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_valid_address_book_setting_to_dm(3));
    EXPECT_EQ(c.valid, stored_book(3));
    ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_set_default_address_book_setting_to_dm(4));
    EXPECT_EQ(c.setting, stored_book(4));
  }
  EXPECT_TRUE(traced("incorrect index was selected")) << trace_dump();

  host::host_data_manager::instance().fail_next(host::dm_op::set);
  EXPECT_EQ(3, dvc_pnl_ceh_contents_hdl_set_default_address_book_setting_to_dm(4));
  EXPECT_TRUE(traced("Cannot set default address book to dm ret_code = 3")) << trace_dump();
}

TEST_F(AddressBooks, SendScreenFollowsTheDefaultBook) {
  machine().set_int("0.230.2520.3189", 0);
  EXPECT_EQ(5, dvc_pnl_ceh_contents_hdl_modify_send_def_screen(5));
  machine().set_int("0.230.2520.3189", 1);
  EXPECT_EQ(1, dvc_pnl_ceh_contents_hdl_modify_send_def_screen(5));
  books_in_use(kBooks, {3});
  EXPECT_EQ(2, dvc_pnl_ceh_contents_hdl_modify_send_def_screen(5));
}

TEST_F(AddressBooks, IndexOfABookAmongTheBooksInUse) {
  books_in_use(kBooks, {1, 3});
  const std::vector<std::pair<int, int>> cases = {{2, 0}, {4, 1}, {1, -1}, {3, -1}, {0, -1}};
  for (const auto& [book, index] : cases) {
    int got = 77;
    EXPECT_EQ(index == -1 ? -1 : 0, dvc_pnl_ceh_contents_hdl_value_to_index_ext_addr(book, got));
    EXPECT_EQ(index, got) << book;
  }
  EXPECT_TRUE(traced("Value is not found.")) << trace_dump();
}

TEST_F(AddressBooks, NamesOfTheSelectedBook) {
  struct name_case {
    int book;
    const char* name;
  };
  for (const name_case& c : {name_case{3, "External book 3"}, name_case{1, "External book 1"},
                             name_case{7, "External book 1"}, name_case{-2, "External book 1"}}) {
    const char* name = nullptr;
    get_selected_ext_address_book_name(c.book, name);
    ASSERT_NE(nullptr, name) << c.book;
    EXPECT_STREQ(c.name, name) << c.book;
  }
  const char* name = nullptr;
  get_selected_fax_server_ext_address_book_name(4, name);
  EXPECT_STREQ("Fax server book 4", name);

  // The machine's own book leaves the name alone.
  const char* kept = "kept";
  name = kept;
  machine().clear_log();
  get_selected_ext_address_book_name(0, name);
  EXPECT_EQ(kept, name);
  EXPECT_TRUE(calls().empty());
  EXPECT_TRUE(traced("NORMAL ADDRESS BOOK IS SELECTED ")) << trace_dump();

  machine().fail_next(verb::get, kBooks);
  get_selected_ext_address_book_name(2, name);
  EXPECT_EQ(kept, name);
}

// ---- host names ----

TEST(HostNames, Validation) {
  const std::vector<std::pair<const char*, int>> cases = {
      {"", 1},      {"printer", 1}, {"printer:80", 1}, {"[::1]:80", 1}, {"[fe80::1]", 1},
      {"a:b:c", 0}, {"[a]]", 0},    {"[[a]", 0},       {"[::1", 0},     {"a]b", 1},
  };
  for (const auto& [host, valid] : cases)
    EXPECT_EQ(valid, validate_hostname(host)) << host;
  EXPECT_EQ(6, validate_hostname(nullptr));
}

TEST(HostNames, Merging) {
  struct merge_case {
    const char* host;
    int port;
    const char* out;
  };
  for (const merge_case& c : {merge_case{"::1", 8080, "[::1]:8080"}, merge_case{"::1", 0, "[::1]"},
                              merge_case{"a:b", 21, "a:b:21"}, merge_case{"host", 1, "host:1"},
                              merge_case{"host", -5, "host"}}) {
    std::string out = "old";
    EXPECT_EQ(0, merge_host_name(out, c.host, c.port));
    EXPECT_EQ(c.out, out);
  }
  std::string out = "old";
  EXPECT_EQ(6, merge_host_name(out, nullptr, 80));
  EXPECT_EQ("old", out);
}

}  // namespace
}  // namespace orvanta::test
