// Machine and user condition queries: small questions that screens ask, each answered in one int.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "orvanta/platform/dvc_pnl_cmm_valueset.h"
#include "orvanta/platform/dvc_pnl_evh_panel_event.h"

// Every query catches its own failure: a failed read is traced and the query answers the fallback
// its comment names. Yes/no answers that can also carry a code (3 and the like) mean yes only
// for 1.

namespace orvanta {

// ---- vocabulary of job settings and paper sources ----

// A paper source: 0 the manual tray, 1 to 5 the cassettes.
using WSC_VAL_FEEDER = int;
// A cassette number, as the cassette dial knows it.
using CASSETTE_NUMBER_ID = int;
// A media type; 21 to 28 are the custom media types.
using ENV_MEDIA_TYPE_VAL = int;
// A paper weight, 0 to 9 in ascending weight.
using ENV_PAPER_WEIGHT_VAL = int;
// A time zone, 0 to 115.
using ENV_TIMEZ_VAL = int;
// A setting item: the row of the prohibition table of a function.
using DVC_PNL_CMN_ENUM_SETTING_ITEM_ID = unsigned;

// Element 2 of the job settings keys of a function: 2 copy (1, 24), 161 send (3), 206 fax (4),
// 207 box print (6), 214 box store (7); DVC_PNL_CEH_FUNC_NODE_NONE for a function without a
// settings tree.
inline constexpr unsigned long DVC_PNL_CEH_FUNC_NODE_NONE = static_cast<unsigned long>(-1);
unsigned long dvc_pnl_ceh_contents_hdl_settings_node_of(int function);

// Users with a meaning of their own.
inline constexpr long DVC_PNL_CEH_USER_NONE = -1;     // nobody logged in
inline constexpr long DVC_PNL_CEH_USER_GUEST = 9001;  // the guest
// The language of the optional language pack.
inline constexpr long DVC_PNL_CEH_LANGUAGE_OPTION = 999;

// Date and time of the machine's clock, with the text of its time zone. 80 bytes, as the data
// manager carries it.
inline constexpr std::size_t DVC_PNL_CEH_TIME_ZONE_SIZE = 56;
struct DATE_TIME {
  std::int32_t year;
  std::int32_t month;
  std::int32_t day;
  std::int32_t hour;
  std::int32_t minute;
  std::int32_t second;
  char time_zone[DVC_PNL_CEH_TIME_ZONE_SIZE];  // from the 24th byte on, always terminated
};
static_assert(sizeof(DATE_TIME) == 80);

// The queue of notices that a change of job settings calls for (function scope,
// DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS). 360 bytes.
inline constexpr int DVC_PNL_CEH_PROHIBITION_PLACES = 8;
inline constexpr int DVC_PNL_CEH_PROHIBITION_ITEMS = 9;
struct DVC_PNL_CEH_PROHIBITION_WINDOWS {
  std::int32_t cid[DVC_PNL_CEH_PROHIBITION_PLACES];    // notices to show, CID_NONE in a free place
  std::int32_t value[DVC_PNL_CEH_PROHIBITION_PLACES];  // the changed value of each place
  // For each place the path of the changed setting (below ROOT), closed by -1.
  std::int32_t items[DVC_PNL_CEH_PROHIBITION_PLACES][DVC_PNL_CEH_PROHIBITION_ITEMS];
  std::int32_t index;     // the place being shown, -1 with none queued
  std::int32_t next_cid;  // where to go after the last place
};
static_assert(sizeof(DVC_PNL_CEH_PROHIBITION_WINDOWS) == 360);

// ---- machine equipment and functions ----

int dvc_pnl_ceh_contents_hdl_fax_is_exist();          // DVC_PNL_PDM_FAX is 1; failure 0
int dvc_pnl_ceh_contents_hdl_dp_is_exist();           // document processor unit: 1 or 0; failure 3
int dvc_pnl_ceh_contents_hdl_is_ssd_exist();          // always 0
int dvc_pnl_ceh_contents_hdl_is_sdcard_exist();       // card state 2, 3 or 4; failure 0
int dvc_pnl_ceh_contents_hdl_is_ram_disk_on();        // failure 0
int dvc_pnl_ceh_contents_hdl_is_seckit_enabled();     // always 0
int dvc_pnl_ceh_contents_hdl_quiet_mode_is_permit();  // always 0
int dvc_pnl_ceh_contents_hdl_is_fax_data_santitization_supported();                // always 0
int dvc_pnl_ceh_contents_hdl_is_cassette_dial_other(CASSETTE_NUMBER_ID cassette);  // always 1
int dvc_pnl_ceh_contents_hdl_ic_card_reader_device_detect();                       // failure 0
int dvc_pnl_ceh_contents_hdl_wsd_scan_is_on();                                     // failure 3
int dvc_pnl_ceh_contents_hdl_is_monochrome_mode();                                 // failure 0
// 1 when the job permission node 0.1902.`node` holds 2 (the job is barred); failure 0.
int dvc_pnl_ceh_contents_hdl_get_job_permission_state(unsigned long node);
int dvc_pnl_ceh_contents_hdl_get_auto_duplex_check();  // failure 0
// `on` = whether the automatic detection is on, set only by a successful read; answers the read.
int dvc_pnl_ceh_contents_hdl_is_dp_auto_detect(int& on);
// The original size code of the copy settings, set only by a successful read; answers the read.
int dvc_pnl_ceh_contents_hdl_get_copy_org_size(long& size);
int dvc_pnl_ceh_contents_hdl_get_display_language();  // the language; failure -1
// `language` = the language of the optional pack, -1 after a failed read; answers the read.
int dvc_pnl_ceh_contents_hdl_get_display_option_language(long& language);
int dvc_pnl_ceh_contents_hdl_get_option_language_umu();  // failure 0
int dvc_pnl_ceh_contents_hdl_get_default_screen();       // failure -1
int dvc_pnl_ceh_contents_hdl_get_model();                // DVC_PNL_PDM_MODEL; failure 0
// The language attribute manager is not among the platform interfaces yet: these two answer as
// when it cannot be asked (furigana 1, menu map report 0).
int dvc_pnl_ceh_contents_hdl_is_furigana_enable();
int dvc_pnl_ceh_contents_hdl_is_report_menu_map();
int dvc_pnl_ceh_contents_hdl_is_sanitization_lock();  // bit 26 of the lock word; failure 0
// 1 when port node 0.633.`node`.668 equals `port`; failure 0.
int dvc_pnl_ceh_contents_is_default_port(unsigned long node, long port);
int dvc_pnl_ceh_contents_check_unit_is_cent_or_not();            // failure 3
int dvc_pnl_ceh_contents_hdl_get_job_accounting_count_method();  // failure 0
int is_SSL_enabled();                                            // failure 0
int is_VNC_enabled();                                            // failure 0
int is_VNC_over_SSL_enabled();                                   // failure 0
int is_enhanced_VNC_over_SSL_enabled();                          // failure 0
int is_VNC_compatible();  // SSL and VNC over SSL, or enhanced VNC over SSL
int is_CCRX();            // SSL and enhanced VNC over SSL
// `on` = both wireless nodes are not 0, set only when both reads succeed; answers the first
// failed read, or 0.
int is_equip_wifi_status(int& on);
// `rssi` set only by a successful read; answers the read.
int dvc_pnl_ceh_contents_hdl_get_wifi_rssi(long& rssi);
int dvc_pnl_ceh_contents_hdl_get_shift_key_lock_status();  // DVC_PNL_PDM_SHIFTLOCK is 1
int dvc_pnl_ceh_contents_hdl_get_panel_lock_status();      // 0 none, 1 to 4 levels; failure -1
// Keeps the last four digits that a job id shows.
void dvc_pnl_ceh_contents_hdl_restrict_digits_of_view_job_id(long& id);

// ---- destination region: failure 3, a key that cannot be built 0 ----

int dvc_pnl_ceh_contents_hdl_destination_is_europe();
int dvc_pnl_ceh_contents_hdl_destination_is_asia();
int dvc_pnl_ceh_contents_hdl_destination_is_japan();
int dvc_pnl_ceh_contents_hdl_destination_is_europe_or_asia();

// ---- fax and send settings ----

int dvc_pnl_ceh_contents_hdl_encryption_fax_is_exist();  // failure 0
int dvc_pnl_ceh_contents_hdl_fax_tx_report_is_set();     // failure 0
// Functions 3 and 4 have a polling reception setting; any other function and a failed read 3.
int dvc_pnl_ceh_contents_hdl_polling_reception_is_setting(int function);
// `mode` = 1 for the fax server mode 1, else 0, set only by a successful read; answers the read.
int dvc_pnl_ceh_contents_hdl_get_fax_server_mode(int& mode);
int dvc_pnl_ceh_contents_hdl_set_fax_server_mode(int mode);                   // answers the write
int dvc_pnl_ceh_contents_hdl_get_fax_server_default_addrbook(long& value);    // answers the read
int dvc_pnl_ceh_contents_hdl_is_send_direct_entry_prohibiton_on();            // failure 0
int dvc_pnl_ceh_contents_hdl_is_fax_direct_entry_prohibiton_on();             // 1 for the value 0
int dvc_pnl_ceh_contents_hdl_is_send_reentry_prohibiton_on();                 // failure 0
int dvc_pnl_ceh_contents_hdl_check_new_address_confirm_on();                  // failure 0
int dvc_pnl_ceh_contents_hdl_get_send_default_screen_from_cmm(long& screen);  // answers the read
// `screen` with the machine's address book as default; else 2 with an external book, 1 without.
long dvc_pnl_ceh_contents_hdl_modify_send_def_screen(long screen);
// RESULT of the mail address confirmation setting command; -1 when it cannot run.
int dvc_pnl_ceh_contents_hdl_confirm_email_address_setting();
// Destination counts of `function` (nodes 206, 884, 1345, 1569); the outs stay unless RESULT
// is 0. Answers 0, 3 (command failed), 2 (RESULT not 0) or a failed read's code.
int dvc_pnl_ceh_contents_hdl_get_send_num(long& a, long& b, long& c, long& d, int function);
// The same command: nodes 1569, 206, 1345 when RESULT is 0. Always answers 1.
int dvc_pnl_ceh_contents_hdl_get_send_destination_size_cmm(long& a, long& b, long& c, int function);
// Member counts of address book group `group` (nodes 2540, 2541, 2542, 2544) and their sum; all
// 0 unless RESULT is 0. Always answers 1.
int dvc_pnl_ceh_contents_hdl_get_group_member_count_cmm(long group, long& a, long& b, long& c,
                                                        long& d, long& total);
// Nodes 2875 and 2544 of the group; both 0 unless RESULT is 0. Answers as get_send_num.
int dvc_pnl_ceh_contents_hdl_get_address_book_group_detail_from_cmm(long group, long& a, long& b);

// ---- address books: the machine's book and four external books ----

int dvc_pnl_ceh_contents_hdl_get_external_addr_book_status();  // failure 0
int dvc_pnl_ceh_contents_hdl_is_address_book_admin_only_on();  // 1 for the value 0; failure 0
// 0 the machine's book, 1 to 4 an external book; failure 0.
int dvc_pnl_ceh_contents_hdl_get_default_address_book_setting();
// Stores the default book in DVC_PNL_PDM_EXT_ADDR_BOOK_SERVER_NUM; answers the store.
int dvc_pnl_ceh_contents_hdl_set_default_address_book_setting_to_dm(int function);
// Adds bit 1, 2, 4, 8 to `mask` for each external book row 0 to 3 in use; answers the bits found
// (0 with no book in use).
long dvc_pnl_ceh_contents_hdl_check_use_ext_addrbook(long& mask);
// Adds bit 16, 32, 64, 128 to `mask` for each fax server book row 0 to 3 in use; answers the bits
// found.
long dvc_pnl_ceh_contents_hdl_get_fax_server_ext_addrbook_use(long& mask);
int dvc_pnl_ceh_contents_hdl_ext_addrbook_is_exist();  // some external book is in use
int dvc_pnl_ceh_contents_hdl_get_pri_addr_book();      // the first book in use, 1 to 4, or 0
// 1 when the default book is the machine's or an external book in use.
int dvc_pnl_ceh_contents_is_default_addr_book();
// Stores the default book when usable, else the first book in use, else 0; answers the store.
int dvc_pnl_ceh_contents_hdl_set_valid_address_book_setting_to_dm(int function);
// `index` = the place of book `value` among the books in use, from 0, or -1; answers 0 or -1.
int dvc_pnl_ceh_contents_hdl_value_to_index_ext_addr(int value, int& index);
// `name` = the name of external book `book` (1 to 4; any other but 0 reads row 0); book 0
// leaves it. The text stays valid until the next call of either on this thread.
void get_selected_ext_address_book_name(int book, const char*& name);
void get_selected_fax_server_ext_address_book_name(int book, const char*& name);

// ---- users and authentication ----

// The authentication mode: 0 no user management, 1 and 3 users log in (3 with job accounting
// too), 2 job accounting only. A failed read answers 0.
int dvc_pnl_ceh_contents_hdl_get_management();
int dvc_pnl_ceh_contents_hdl_get_authentication_function();  // mode not 0; failure -1
long dvc_pnl_ceh_contents_hdl_get_authentication_id();       // failure -1, nobody
int dvc_pnl_ceh_contents_hdl_is_login();
int dvc_pnl_ceh_contents_hdl_is_guest_user();
int get_authentication_method();   // 1 network; failure -1
int get_authentication_setting();  // failure 0
int get_keyboard_login_setting();  // failure -1
int dvc_pnl_ceh_contents_hdl_is_network_user();
int dvc_pnl_ceh_contents_hdl_is_network_nlc_user();
// 1 for an administrator or machine administrator, 0 for others and for a RESULT other than 0,
// 3 when the user information cannot be read.
int dvc_pnl_ceh_contents_hdl_is_admin_user();
// 1 when user `id` (-1: the current user) is a machine administrator; failure 0.
int dvc_pnl_ceh_contents_hdl_is_apparatus_admin(long id);
int dvc_pnl_ceh_contents_hdl_login_user_is_self(const char* name);
int dvc_pnl_ceh_contents_hdl_login_user_is_self_by_user_name(const char* name);  // always 1
int dvc_pnl_ceh_contents_hdl_check_domain_name(const char* domain);
// `id` = the machine's number for an unknown user, set when RESULT is 0; answers as
// get_send_num.
int dvc_pnl_ceh_contents_hdl_get_unknown_user_id(long& id);
// The guest's value at `node` of the user information; failure -1.
long dvc_pnl_ceh_contents_hdl_get_guest_user_status(long node);
long dvc_pnl_ceh_contents_hdl_get_user_language();
int dvc_pnl_ceh_contents_hdl_is_selected_language_opt();
// The send screen to start on: the user's own when set, else the machine's. Always 0.
int dvc_pnl_ceh_contents_hdl_get_send_default_screen(long& screen);
// 0 the guest's job, 1 the logged-in user's, 2 someone else's, 3 without a user name.
int dvc_pnl_ceh_contents_hdl_get_job_user_type(const char* user_name, const char* domain_name);
int dvc_pnl_ceh_contents_hdl_is_pin_login_priority();
DVC_PNL_CEH_CONTENTS_ID dvc_pnl_ceh_contents_hdl_get_panel_lock_login_page();
DVC_PNL_CEH_CONTENTS_ID dvc_pnl_ceh_contents_hdl_get_job_info_login_page();
// `option` has bit n-1 for panel lock level n: 0 usable, 1 needs a login, 2 needs an
// administrator.
int dvc_pnl_ceh_contents_hdl_get_panel_lock_restriction_status(long option);
// 1 when the guest may not use the function of the first bit set in `option`.
int dvc_pnl_ceh_contents_hdl_get_guest_login_restriction_status(long option);

// The user information command 0.874.844 for `user_id`. 0 with the answer in `response`; 3 when
// the command could not run, 2 when RESULT is not 0, or the code of the failed RESULT read.
int dvc_pnl_ceh_contents_hdl_get_user_information(long user_id, dvc_pnl_cmm_valueset& response);
// Fields of that answer; `value` is set only on success.
int dvc_pnl_ceh_contents_hdl_get_user_information_int(const dvc_pnl_cmm_valueset& response,
                                                      unsigned long node, long& value);
int dvc_pnl_ceh_contents_hdl_get_user_information_string(const dvc_pnl_cmm_valueset& response,
                                                         unsigned long node, std::string& value);
// The kind of authentication server: 2 is one with its own user data. Answers the read.
int dvc_pnl_ceh_contents_hdl_get_auth_server_type(long& kind);

// ---- time of day, prohibitions and pull print ----

// 1 while jobs are barred at this time of day and the bar has not been lifted.
int dvc_pnl_ceh_contents_hdl_is_job_prohibit_on();
// Reads the machine's clock and time zone. 0, or the code of the failed clock read.
int dvc_pnl_ceh_contents_hdl_get_date_time_setting(DATE_TIME& time);
// The text of a time zone, "NOT_FOUND" for one outside the table.
std::string dvc_pnl_ceh_contents_hdl_get_timez_val_str(ENV_TIMEZ_VAL zone);
// 1 when the entered date and hour of a data sanitization lie after the present hour.
int dvc_pnl_ceh_contents_hdl_is_time_valid(int function);
// Reasons why pull print cannot run, one bit each (1, 2, 4, 8, 16, 32, 64, 128).
long dvc_pnl_ceh_contents_hdl_get_pull_print_prohibit_state();
int dvc_pnl_ceh_contents_hdl_is_pull_print_prohibit_enable();
// `value` = the mask of allowed values of setting `item` of `function`, set only on success;
// answers the table read, 0 for a function without a table.
int dvc_pnl_ceh_contents_hdl_get_prohibit_value(int function, DVC_PNL_CMN_ENUM_SETTING_ITEM_ID item,
                                                long& value);
// Queues the notices that the setting changes reported in `event` call for, stores the queue in
// DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS and sets `cid` to the first notice (unchanged with none).
// 0, 3 when the event carries no value set, or the store's code.
int dvc_pnl_ceh_contents_hdl_get_prohibit_cid(const dvc_pnl_evh_panel_event& event, long& cid,
                                              int function);
// 1 when the machine is used at home and no panel lock is set; the read's code when it fails.
int is_location_usage_home();
int is_location_usage_home_bypass(long id);

// ---- remote panel ----

// 1 while a remote panel is connected (status 2 or 3 at node 0.2096 of the remote panel status
// in the application scope), else 0; a failed read answers 0. `status` gets the status read, 0
// when the read failed.
int is_remote_connected(long& status);
int is_remote_connected();
// 1 for the status 2, 3 or 4.
int is_remote_connection_made();

// ---- paper ----

// Text resources of a paper size code, -1 for a code without one.
void dvc_pnl_ceh_contents_hdl_get_origin_size_resource_id(long size, long& resource);
void dvc_pnl_ceh_contents_hdl_get_origin_size_resource_id_for_flexiblekey(long size,
                                                                          long& resource);
void dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(long size, long& resource);
void dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(long size, long orientation,
                                                                  long& resource);
// Text resource of a paper kind; `detail` chooses the long text for kinds 9, 11 and 17.
void dvc_pnl_ceh_contents_hdl_get_cassette_paper_kind_resource_id(long kind, long& resource,
                                                                  int detail);
// 1 for a label of the other orientation, 0 for the labels of paper sizes, -1 otherwise.
long dvc_pnl_ceh_contents_hdl_get_paper_orientation_from_msg_label(long label);
// The cassette chosen for `function`, 0 to 5 (0 the manual tray or the machine's own choice).
// Always 0.
int dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(long& cassette, int function);
// Size, kind, quantity and orientation of the paper in `cassette`. 0, or the code of the first
// failed read, which ends the reading.
int dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm_papersourceudpate(
    long cassette, long& size, long& kind, long& quantity, long& orientation, int function,
    long msg_id);
int dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm(long cassette, long& size,
                                                                long& kind, long& quantity,
                                                                int function, long msg_id);
void dvc_pnl_ceh_contents_hdl_get_paper_type_weight_range(ENV_MEDIA_TYPE_VAL type,
                                                          ENV_PAPER_WEIGHT_VAL& min,
                                                          ENV_PAPER_WEIGHT_VAL& max);
void dvc_pnl_ceh_contents_hdl_get_paper_source_weight_range(WSC_VAL_FEEDER source,
                                                            ENV_MEDIA_TYPE_VAL type,
                                                            ENV_PAPER_WEIGHT_VAL& min,
                                                            ENV_PAPER_WEIGHT_VAL& max);
int dvc_pnl_ceh_contents_hdl_paper_weight_limit_check(ENV_PAPER_WEIGHT_VAL min,
                                                      ENV_PAPER_WEIGHT_VAL max,
                                                      ENV_PAPER_WEIGHT_VAL weight);
// 1 unless file `file` of box `box` is in colour mode 2 or 3; 0 when the machine cannot tell.
int dvc_pnl_ceh_contents_hdl_is_color_document(int box, int file);
// 1 when originals lie on the document processor, by `event` or, without one, by the last
// original status update.
int dvc_pnl_ceh_contents_hdl_is_paper_set_on_dp(const dvc_pnl_evh_panel_event* event);

// ---- host names ----

// 1 for an empty host, a bracketed IPv6 address (with or without a port) and a host with at most
// one colon; 6 for NULL.
int validate_hostname(const char* host);
// `out` = host and port as one text, an IPv6 address in brackets; the port only when 1 or above.
// 6 for NULL, else 0.
int merge_host_name(std::string& out, const char* host, int port);

// ---- pages of the record detail screens, appended to `pages` ----

void dvc_pnl_ceh_contents_hdl_get_unknown_user_auth_rules_pages(std::vector<long>& pages);
void dvc_pnl_ceh_contents_hdl_get_unknown_user_property_pages(int a, long kind,
                                                              std::vector<long>& pages);
void dvc_pnl_ceh_contents_hdl_get_local_user_setting_pages(int a, int b, int c,
                                                           std::vector<long>& pages);
void dvc_pnl_ceh_contents_hdl_get_local_user_property_pages(int a, int b, int c,
                                                            std::vector<long>& pages);

}  // namespace orvanta
