// Condition queries about the machine: its equipment, region, fax and send settings, address
// books and host names.
#include <cstring>
#include <string>

#include "orvanta/platform/dvc_pnl_cmm_command_mediator.h"
#include "orvanta/platform/dvc_pnl_rmg_lang_attribute_manager.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

using conditions::answer_equals;
using conditions::path;
using conditions::read_int;

namespace {

// A yes/no answer from an application scope integer of the data manager; a failed read keeps 0.
int dm_flag_is(const std::string& key, int yes) {
  int value = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(key, value);
  return value == yes ? 1 : 0;
}

// An integer answer: the value read, or `failure`.
int value_or(const path& node, int failure, int start = 0) {
  long value = 0;
  if (read_int(node, value, start) != DVC_PNL_CEH_RET_OK)
    return failure;
  return static_cast<int>(value);
}

}  // namespace

// ---------------------------------------------------------------- equipment and functions

int dvc_pnl_ceh_contents_hdl_fax_is_exist() {
  return dm_flag_is(DVC_PNL_PDM_FAX, 1);
}

int dvc_pnl_ceh_contents_hdl_dp_is_exist() {
  return answer_equals({0, 728, 713, 745}, 2, 3);
}

int dvc_pnl_ceh_contents_hdl_is_ssd_exist() {
  return 0;
}

int dvc_pnl_ceh_contents_hdl_is_sdcard_exist() {
  long state = 0;
  if (read_int({0, 684, 685, 3784}, state) != DVC_PNL_CEH_RET_OK)
    return 0;
  return state == 2 || state == 3 || state == 4 ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_is_ram_disk_on() {
  return answer_equals({0, 230, 231, 2903, 2904}, 1, 0);
}

int dvc_pnl_ceh_contents_hdl_is_seckit_enabled() {
  return 0;
}

int dvc_pnl_ceh_contents_hdl_quiet_mode_is_permit() {
  return 0;
}

int dvc_pnl_ceh_contents_hdl_is_fax_data_santitization_supported() {
  return 0;
}

int dvc_pnl_ceh_contents_hdl_is_cassette_dial_other(CASSETTE_NUMBER_ID /*cassette*/) {
  return 1;
}

int dvc_pnl_ceh_contents_hdl_ic_card_reader_device_detect() {
  return answer_equals({0, 678, 2032}, 1, 0);
}

int dvc_pnl_ceh_contents_hdl_wsd_scan_is_on() {
  return answer_equals({0, 633, 1979, 1980}, 1, 3);
}

int dvc_pnl_ceh_contents_hdl_is_monochrome_mode() {
  return answer_equals({0, 1902, 3558}, 2, 0);
}

int dvc_pnl_ceh_contents_hdl_get_job_permission_state(unsigned long node) {
  return answer_equals({0, 1902, node}, 2, 0);
}

int dvc_pnl_ceh_contents_hdl_get_auto_duplex_check() {
  return answer_equals({0, 704, 3624, 3653, 3655}, 2, 0);
}

int dvc_pnl_ceh_contents_hdl_is_dp_auto_detect(int& on) {
  long value = 0;
  const int ret = read_int({0, 230, 356, 3996}, value);
  if (ret == DVC_PNL_CEH_RET_OK)
    on = value != 0 ? 1 : 0;
  return ret;
}

int dvc_pnl_ceh_contents_hdl_get_copy_org_size(long& size) {
  return read_int({0, 1, 2, 160, 12, 18, 20}, size, 6);
}

int dvc_pnl_ceh_contents_hdl_get_display_language() {
  return value_or({0, 230, 343, 347}, -1);
}

int dvc_pnl_ceh_contents_hdl_get_display_option_language(long& language) {
  long value = 1;
  const int ret = read_int({0, 230, 343, 3890}, value);
  language = ret == DVC_PNL_CEH_RET_OK ? value : -1;
  return ret;
}

int dvc_pnl_ceh_contents_hdl_get_option_language_umu() {
  return value_or({0, 728, 2854}, 0);
}

int dvc_pnl_ceh_contents_hdl_get_default_screen() {
  return value_or({0, 230, 343, 348}, -1);
}

int dvc_pnl_ceh_contents_hdl_get_model() {
  int model = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_MODEL, model);
  return model;
}

int dvc_pnl_ceh_contents_hdl_is_furigana_enable() {
  dvc_pnl_rmg_lang_attribute_manager* languages =
      dvc_pnl_rmg_lang_attribute_manager::dvc_pnl_rmg_get_instance();
  // Without a manager to ask, readings are offered rather than withheld.
  return languages == nullptr ? 1 : languages->dvc_pnl_rmg_is_furigana();
}

int dvc_pnl_ceh_contents_hdl_is_report_menu_map() {
  dvc_pnl_rmg_lang_attribute_manager* languages =
      dvc_pnl_rmg_lang_attribute_manager::dvc_pnl_rmg_get_instance();
  return languages == nullptr ? 0 : languages->dvc_pnl_rmg_is_report_menu_map();
}

int dvc_pnl_ceh_contents_hdl_is_sanitization_lock() {
  long word = 0;
  if (read_int({0, 230, 3313, 3319}, word) != DVC_PNL_CEH_RET_OK)
    return 0;
  return static_cast<int>((static_cast<unsigned long>(word) >> 26) & 1UL);
}

int dvc_pnl_ceh_contents_is_default_port(unsigned long node, long port) {
  long value = -1;
  if (read_int({0, 633, node, 668}, value, 3) != DVC_PNL_CEH_RET_OK)
    return 0;
  return value == port ? 1 : 0;
}

int dvc_pnl_ceh_contents_check_unit_is_cent_or_not() {
  return answer_equals({0, 230, 331, 332}, 0, 3);
}

int dvc_pnl_ceh_contents_hdl_get_job_accounting_count_method() {
  return value_or({0, 541, 542, 543}, 0);
}

int is_SSL_enabled() {
  return answer_equals({0, 633, 634, 635}, 1, 0);
}

int is_VNC_enabled() {
  return answer_equals({0, 633, 4161, 649}, 1, 0);
}

int is_VNC_over_SSL_enabled() {
  return answer_equals({0, 633, 4163, 649}, 1, 0);
}

int is_enhanced_VNC_over_SSL_enabled() {
  return answer_equals({0, 633, 4164, 649}, 1, 0);
}

int is_VNC_compatible() {
  if (is_SSL_enabled() == 1 && is_VNC_over_SSL_enabled() == 1)
    return 1;
  return is_enhanced_VNC_over_SSL_enabled() == 1 ? 1 : 0;
}

int is_CCRX() {
  return is_SSL_enabled() == 1 && is_enhanced_VNC_over_SSL_enabled() == 1 ? 1 : 0;
}

int is_equip_wifi_status(int& on) {
  long equipped = 0;
  long enabled = 0;
  int ret = read_int({0, 728, 3943, 3944}, equipped);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  ret = read_int({0, 728, 3943, 3945}, enabled);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  on = equipped != 0 && enabled != 0 ? 1 : 0;
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_get_wifi_rssi(long& rssi) {
  return read_int({0, 728, 3937, 3515}, rssi);
}

int dvc_pnl_ceh_contents_hdl_get_shift_key_lock_status() {
  return dm_flag_is(DVC_PNL_PDM_SHIFTLOCK, 1);
}

int dvc_pnl_ceh_contents_hdl_get_panel_lock_status() {
  return value_or({0, 728, 346}, -1);
}

void dvc_pnl_ceh_contents_hdl_restrict_digits_of_view_job_id(long& id) {
  id %= 10000;
}

// ---------------------------------------------------------------- destination region

namespace {

// Region answers. The region queries build their key themselves: a key that cannot be built
// answers 0, a failed read 3.
enum class region_read { ok, no_key, failed };

region_read read_region(long& region) {
  const unsigned long nodes[] = {0, 728, 729};
  dvc_pnl_cmm_key key;
  for (unsigned long node : nodes) {
    const int ret = key.dvc_pnl_cmm_add_key(node);
    if (ret != 0) {
      CEH_ERR("ret = %d.", ret);
      CEH_ERR("dvc_pnl_cmm_key::dvc_pnl_cmm_add_key ret_code = %d", DVC_PNL_CEH_RET_PLATFORM);
      return region_read::no_key;
    }
  }
  dvc_pnl_cmm_value value;
  int ret = dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance().dvc_pnl_cmm_get_value(
      key, value, DVC_PNL_CEH_CMM_MODE);
  if (ret == 0)
    ret = value.dvc_pnl_cmm_get_int(region);
  if (ret != 0) {
    CEH_ERR("ret = %d.", ret);
    CEH_ERR("retrieval of setting from cmm failed. ret_code = %d", DVC_PNL_CEH_RET_PLATFORM);
    return region_read::failed;
  }
  return region_read::ok;
}

template <typename Match>
int region_answer(Match match) {
  long region = 0;
  switch (read_region(region)) {
    case region_read::no_key:
      return 0;
    case region_read::failed:
      return 3;
    case region_read::ok:
      break;
  }
  return match(region) ? 1 : 0;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_destination_is_europe() {
  return region_answer([](long r) { return r == 1; });
}

int dvc_pnl_ceh_contents_hdl_destination_is_asia() {
  return region_answer([](long r) { return r == 3; });
}

int dvc_pnl_ceh_contents_hdl_destination_is_japan() {
  return region_answer([](long r) { return r == 4; });
}

int dvc_pnl_ceh_contents_hdl_destination_is_europe_or_asia() {
  return region_answer([](long r) { return r == 1 || r == 3 || (r >= 5 && r <= 8); });
}

// ---------------------------------------------------------------- fax and send settings

namespace {

const path kFaxServerMode = {0, 1, 161, 160, 3985};
const path kSendDestinationSize = {0, 896, 901};  // ROOT.SEND_DESTINATION.SIZE_ACQUIRE
const path kAddressBookGroup = {0, 887, 921, 584};

}  // namespace

int dvc_pnl_ceh_contents_hdl_encryption_fax_is_exist() {
  return answer_equals({0, 503, 3297}, 0, 0);
}

int dvc_pnl_ceh_contents_hdl_fax_tx_report_is_set() {
  return answer_equals({0, 230, 408, 411, 412}, 3, 0);
}

int dvc_pnl_ceh_contents_hdl_polling_reception_is_setting(int function) {
  // Only the fax functions have the setting; for any other the read has nothing to ask.
  unsigned long fax = 0;
  if (function == 3)
    fax = 161;
  else if (function == 4)
    fax = 206;
  else {
    CEH_ERR("retrieval of setting from cmm failed. ret_code = %d", DVC_PNL_CEH_RET_BAD_ARGUMENT);
    return 3;
  }
  return answer_equals({0, 1, fax, 160, 203, 204}, 16, 3);
}

int dvc_pnl_ceh_contents_hdl_get_fax_server_mode(int& mode) {
  long value = 0;
  const int ret = read_int(kFaxServerMode, value);
  if (ret == DVC_PNL_CEH_RET_OK)
    mode = value == 1 ? 1 : 0;
  return ret;
}

int dvc_pnl_ceh_contents_hdl_set_fax_server_mode(int mode) {
  const long value = mode;
  const int ret = dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(
      kFaxServerMode.data(), 0, static_cast<unsigned>(kFaxServerMode.size()), value);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm ret_code = %d", ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_get_fax_server_default_addrbook(long& value) {
  return read_int({0, 230, 3986, 3189}, value);
}

int dvc_pnl_ceh_contents_hdl_is_send_direct_entry_prohibiton_on() {
  return answer_equals({0, 230, 185, 3488}, 1, 0);
}

int dvc_pnl_ceh_contents_hdl_is_fax_direct_entry_prohibiton_on() {
  return answer_equals({0, 230, 185, 3132}, 0, 0);
}

int dvc_pnl_ceh_contents_hdl_is_send_reentry_prohibiton_on() {
  return answer_equals({0, 230, 185, 3489}, 1, 0);
}

int dvc_pnl_ceh_contents_hdl_check_new_address_confirm_on() {
  return answer_equals({0, 230, 185, 2340}, 1, 0);
}

int dvc_pnl_ceh_contents_hdl_get_send_default_screen_from_cmm(long& screen) {
  return read_int({0, 230, 185, 1009}, screen);
}

long dvc_pnl_ceh_contents_hdl_modify_send_def_screen(long screen) {
  if (dvc_pnl_ceh_contents_hdl_get_default_address_book_setting() == 0)
    return screen;
  return dvc_pnl_ceh_contents_hdl_ext_addrbook_is_exist() == 1 ? 2 : 1;
}

int dvc_pnl_ceh_contents_hdl_confirm_email_address_setting() {
  const path command = {0, 874, 4241};
  dvc_pnl_cmm_valueset response;
  const int ret = conditions::run_command(command, {}, response);
  if (ret == DVC_PNL_CEH_RET_OK)
    return 0;
  // A RESULT other than success is the answer itself.
  long result = -1;
  if (ret == DVC_PNL_CEH_RET_UNKNOWN_TYPE &&
      conditions::response_int(command, DVC_PNL_CEH_NODE_RESULT, response, result) ==
          DVC_PNL_CEH_RET_OK)
    return static_cast<int>(result);
  return -1;
}

int dvc_pnl_ceh_contents_hdl_get_send_num(long& a, long& b, long& c, long& d, int function) {
  dvc_pnl_cmm_valueset response;
  int ret = conditions::run_command(kSendDestinationSize, {{1035, function}}, response);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  long fields[4] = {a, b, c, d};
  const unsigned long nodes[4] = {206, 884, 1345, 1569};
  for (int i = 0; i < 4; ++i) {
    ret = conditions::response_int(kSendDestinationSize, nodes[i], response, fields[i]);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
  }
  a = fields[0];
  b = fields[1];
  c = fields[2];
  d = fields[3];
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_get_send_destination_size_cmm(long& a, long& b, long& c,
                                                           int function) {
  dvc_pnl_cmm_valueset response;
  if (conditions::run_command(kSendDestinationSize, {{1035, function}}, response) ==
      DVC_PNL_CEH_RET_OK) {
    conditions::response_int(kSendDestinationSize, 1569, response, a);
    conditions::response_int(kSendDestinationSize, 206, response, b);
    conditions::response_int(kSendDestinationSize, 1345, response, c);
  }
  return 1;
}

int dvc_pnl_ceh_contents_hdl_get_group_member_count_cmm(long group, long& a, long& b, long& c,
                                                        long& d, long& total) {
  a = b = c = d = 0;
  dvc_pnl_cmm_valueset response;
  if (conditions::run_command(kAddressBookGroup, {{1462, group}}, response) == DVC_PNL_CEH_RET_OK) {
    conditions::response_int(kAddressBookGroup, 2540, response, a);
    conditions::response_int(kAddressBookGroup, 2541, response, b);
    conditions::response_int(kAddressBookGroup, 2542, response, c);
    conditions::response_int(kAddressBookGroup, 2544, response, d);
  }
  total = a + b + c + d;
  return 1;
}

int dvc_pnl_ceh_contents_hdl_get_address_book_group_detail_from_cmm(long group, long& a, long& b) {
  a = 0;
  b = 0;
  dvc_pnl_cmm_valueset response;
  const int ret = conditions::run_command(kAddressBookGroup, {{1462, group}}, response);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  conditions::response_int(kAddressBookGroup, 2875, response, a);
  conditions::response_int(kAddressBookGroup, 2544, response, b);
  return DVC_PNL_CEH_RET_OK;
}

// ---------------------------------------------------------------- address books

namespace {

// The four external books, and the four fax server books, lie in tables of four rows; entry
// 3589 of a row is 1 when the row is in use and entry 9 holds its name.
const path kExternalBooks = {0, 230, 2520, 3588};
const path kFaxServerBooks = {0, 230, 3986, 3588};
constexpr unsigned kBookRows = 4;
constexpr unsigned long kBookInUse = 3589;
constexpr unsigned long kBookName = 9;

// Row `row` of a book table; 0 when it was read.
int read_book_row(const path& table, unsigned row, dvc_pnl_cmm_valueset& set) {
  const int ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(
      table.data(), 0, static_cast<unsigned>(table.size()), row, set);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Cannot get cmm value ret_code = %d", ret);
  return ret;
}

// Whether row `row` is in use; a row that can't be read is not.
bool book_in_use(const path& table, unsigned row) {
  dvc_pnl_cmm_valueset set;
  if (read_book_row(table, row, set) != DVC_PNL_CEH_RET_OK)
    return false;
  path entry = table;
  entry.push_back(row);
  entry.push_back(kBookInUse);
  long in_use = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_valueset(entry.data(), 0,
                                                 static_cast<unsigned>(entry.size()), set, in_use);
  return in_use == 1;
}

// The name of row `row`; `name` is left when it can't be read.
void book_name(const path& table, unsigned row, const char*& name) {
  // The text must outlive the row set it came from.
  thread_local std::string kept;
  dvc_pnl_cmm_valueset set;
  if (read_book_row(table, row, set) != DVC_PNL_CEH_RET_OK)
    return;
  path entry = table;
  entry.push_back(row);
  entry.push_back(kBookName);
  const char* text = nullptr;
  const int ret = dvc_pnl_ceh_contents_hdl_get_string_from_valueset(
      entry.data(), 0, static_cast<unsigned>(entry.size()), set, text);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("Cannot get cmm value ret_code = %d", ret);
    return;
  }
  kept = text;
  name = kept.c_str();
}

void selected_book_name(const path& table, int book, const char*& name) {
  if (book == 0) {
    CEH_TRC("NORMAL ADDRESS BOOK IS SELECTED ");
    return;
  }
  const unsigned row = book >= 1 && book <= 4 ? static_cast<unsigned>(book - 1) : 0;
  book_name(table, row, name);
}

// The number, 1 to 4, of the first external book in use, or 0.
int first_book_in_use() {
  for (unsigned row = 0; row < kBookRows; ++row) {
    if (book_in_use(kExternalBooks, row))
      return static_cast<int>(row + 1);
  }
  return 0;
}

int store_book(int book, int function) {
  const long value = book;
  return dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_EXT_ADDR_BOOK_SERVER_NUM, value,
                                                function);
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_get_external_addr_book_status() {
  long value = -1;
  read_int({0, 633, 2318, 649}, value);
  return value == 1 ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_is_address_book_admin_only_on() {
  // Preset 1, so a read that fails answers no.
  long value = 1;
  read_int({0, 230, 3885, 887}, value);
  return value == 0 ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_get_default_address_book_setting() {
  return value_or({0, 230, 2520, 3189}, 0);
}

int dvc_pnl_ceh_contents_hdl_set_default_address_book_setting_to_dm(int function) {
  const int ret = store_book(dvc_pnl_ceh_contents_hdl_get_default_address_book_setting(), function);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Cannot set default address book to dm ret_code = %d", ret);
  return ret;
}

long dvc_pnl_ceh_contents_hdl_check_use_ext_addrbook(long& mask) {
  long found = 0;
  for (unsigned row = 0; row < kBookRows; ++row) {
    if (book_in_use(kExternalBooks, row))
      found |= 1L << row;
  }
  mask |= found;
  return found;
}

long dvc_pnl_ceh_contents_hdl_get_fax_server_ext_addrbook_use(long& mask) {
  long found = 0;
  for (unsigned row = 0; row < kBookRows; ++row) {
    if (book_in_use(kFaxServerBooks, row))
      found |= 16L << row;
  }
  mask |= found;
  return found;
}

int dvc_pnl_ceh_contents_hdl_ext_addrbook_is_exist() {
  return first_book_in_use() != 0 ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_get_pri_addr_book() {
  return first_book_in_use();
}

int dvc_pnl_ceh_contents_is_default_addr_book() {
  const int setting = dvc_pnl_ceh_contents_hdl_get_default_address_book_setting();
  if (setting == 0)
    return 1;
  if (setting < 0 || setting > 4) {
    CEH_ERR("incorrect index was selected");
    return 0;
  }
  return book_in_use(kExternalBooks, static_cast<unsigned>(setting - 1)) ? 1 : 0;
}

int dvc_pnl_ceh_contents_hdl_set_valid_address_book_setting_to_dm(int function) {
  const int setting = dvc_pnl_ceh_contents_hdl_get_default_address_book_setting();
  int book = 0;
  if (setting == 0 || (setting >= 1 && setting <= 4 && book_in_use(kExternalBooks, setting - 1)))
    book = setting;
  else
    book = first_book_in_use();
  const int ret = store_book(book, function);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Cannot set default address book to dm ret_code = %d", ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_value_to_index_ext_addr(int value, int& index) {
  int place = 0;
  for (unsigned row = 0; row < kBookRows; ++row) {
    if (!book_in_use(kExternalBooks, row))
      continue;
    if (static_cast<int>(row + 1) == value) {
      index = place;
      return 0;
    }
    ++place;
  }
  CEH_ERR("Value is not found.");
  index = -1;
  return -1;
}

void get_selected_ext_address_book_name(int book, const char*& name) {
  selected_book_name(kExternalBooks, book, name);
}

void get_selected_fax_server_ext_address_book_name(int book, const char*& name) {
  selected_book_name(kFaxServerBooks, book, name);
}

// ---------------------------------------------------------------- host names

int validate_hostname(const char* host) {
  if (host == nullptr) {
    CEH_ERR("validate_hostname host is NULL");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  if (*host == '\0')
    return 1;
  int open = 0;
  int close = 0;
  int colons = 0;
  for (const char* p = host; *p != '\0'; ++p) {
    open += *p == '[' ? 1 : 0;
    close += *p == ']' ? 1 : 0;
    colons += *p == ':' ? 1 : 0;
  }
  // A bracketed IPv6 address may carry any number of colons, a port included.
  if (*host == '[')
    return open == 1 && close == 1 ? 1 : 0;
  return colons <= 1 ? 1 : 0;
}

int merge_host_name(std::string& out, const char* host, int port) {
  if (host == nullptr) {
    CEH_ERR("merge_host_name host is NULL");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  int colons = 0;
  for (const char* p = host; *p != '\0'; ++p)
    colons += *p == ':' ? 1 : 0;
  // More than one colon is an IPv6 address, which needs brackets before a port can follow.
  out = colons > 1 ? std::string("[") + host + "]" : std::string(host);
  if (port >= 1)
    out += ":" + std::to_string(port);
  return DVC_PNL_CEH_RET_OK;
}

}  // namespace orvanta
