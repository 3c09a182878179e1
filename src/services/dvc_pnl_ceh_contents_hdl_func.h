// Function settings: the one door to the job settings tree of each function (current and default
// value of every setting), and the commands that several screens share (error screen close, job
// cancel in error, Wi-Fi).
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"

namespace orvanta {

// ---- the vocabulary of job settings ----
// The values are the machine services' own; the panel passes them through and compares them only
// where a screen says so. Each is a plain integer.
using ENV_MODE_10_VAL = int;  // a setting that is off or on
using ENV_SIDED_MODE_VAL = int;
using ENV_PAPERDIR_VAL = int;
using ENV_QUALITY_VAL = int;
using ENV_DENSITY_MODE_VAL = int;
using ENV_PRIORYTY_VAL = int;
using ENV_CLMODE_VAL = int;
using ENV_TX_MODE_VAL = int;
using ENV_RESO_VAL = int;
using ENV_IMAGE_TYPE_VAL = int;
using ENV_SIZE_VAL = int;
using ENV_SIZE_ORIGINAL_VAL = int;
using ENV_JPEG_PRINT_VAL = int;
using ENV_ZOOM_MODE_VAL = int;
using ENV_COMBINE1_VAL = int;
using ENV_COMBINE2_VAL = int;
using ENV_COMBINE3_VAL = int;
using ENV_PRN_BIND_MODE_VAL = int;
using ENV_SCN_MODE_VAL = int;
using ENV_FEEDER_VAL = int;  // a paper source as written; read back as a WSC_VAL_FEEDER
using ENV_CLSHARPNESS_VAL = int;
using ENV_GROUND_COLOR_MODE_VAL = int;
using ENV_GROUND_COLOR_VAL = int;
using ENV_REP_CONF_VAL = int;
using ENV_CONTRAST_MODE_VAL = int;

// Element 3 of a setting key: the current or the default value.
inline constexpr unsigned long DVC_PNL_CEH_FUNC_SCOPE_CURRENT = 160;
inline constexpr unsigned long DVC_PNL_CEH_FUNC_SCOPE_DEFAULT = 3;
// What get_error_event_node_key_by_current_function answers for a function without an error
// node.
inline constexpr unsigned long DVC_PNL_CEH_ERROR_NODE_NONE = 65535;

// The zoom presets that the wrappers read over: full size.
inline constexpr ENV_ZOOM_MODE_VAL DVC_PNL_CEH_ZOOM_MODE_PRESET = 1;
inline constexpr int DVC_PNL_CEH_ZOOM_RATIO_PRESET = 1000;
// What get_current_sharpness answers when the read fails.
inline constexpr ENV_CLSHARPNESS_VAL DVC_PNL_CEH_SHARPNESS_PRESET = 3;

// ---- records ----

inline constexpr std::size_t DVC_PNL_CEH_APL_NAME_SIZE = 32;
inline constexpr std::size_t DVC_PNL_CEH_APL_VERSION_SIZE = 16;
inline constexpr std::size_t DVC_PNL_CEH_APL_TEXT_SIZE = 256;

// One application of the machine's application list, copied out of a list row. Every text is
// terminated and cut to its field.
struct APPLICATION_MANAGE_INFO {
  char name[DVC_PNL_CEH_APL_NAME_SIZE];  // 2516
  std::int32_t value_2486;
  std::int32_t value_2488;
  std::int32_t value_2489;
  std::int32_t value_2490;
  std::int32_t value_2491;
  char text_2492[DVC_PNL_CEH_APL_VERSION_SIZE];
  char text_2494[DVC_PNL_CEH_APL_TEXT_SIZE];
  std::int32_t value_2591;
  std::int32_t value_2145;
  std::int32_t value_2633;
  std::int32_t value_2592;
};
static_assert(sizeof(APPLICATION_MANAGE_INFO) == 340);

inline constexpr std::size_t DVC_PNL_CEH_SSID_SIZE = 33;
inline constexpr std::size_t DVC_PNL_CEH_MAC_ADDRESS_SIZE = 6;

// The access point chosen for a wireless connection, in DVC_PNL_PDM_CEH_ACCESS_POINT_INFO of the
// function. 76 bytes.
struct ACCESS_POINT_INFO {
  std::int32_t value_3511;
  std::int32_t value_3512;
  std::int32_t value_3513;
  std::int32_t value_3514;
  std::int32_t value_3496;
  std::int32_t value_3515;
  std::int32_t value_3516;
  std::int32_t value_3517;
  std::int32_t value_3518;
  char ssid[DVC_PNL_CEH_SSID_SIZE];                     // 3495
  unsigned char address[DVC_PNL_CEH_MAC_ADDRESS_SIZE];  // 3519
};
static_assert(sizeof(ACCESS_POINT_INFO) == 76);

// The same for a connection through the Wi-Fi settings, under the same data manager key. 60 bytes.
struct WIFI_ACCESS_POINT_INFO {
  std::int32_t value_3513;  // 2: enterprise security, whose settings go with the request
  std::int32_t value_3514;
  std::int32_t value_3496;
  std::int32_t value_3515;
  std::int32_t value_3957;           // 1: the certificate setting goes with the request
  char ssid[DVC_PNL_CEH_SSID_SIZE];  // 3495, its length to 3518
  unsigned char address[DVC_PNL_CEH_MAC_ADDRESS_SIZE];  // 3519
};
static_assert(sizeof(WIFI_ACCESS_POINT_INFO) == 60);

// The door to the job settings tree. One instance serves every function: it reads the tree of the
// function that the last dvc_pnl_ceh_get_instance named, so callers take the pointer anew at
// each use. Screens that keep a door of their own for their view function construct one.
//
// Every `op_X(value, is_default, is_write)` knows the key 0.1.F.S.<path> of its setting: F the
// function node, S 3 for `is_default` 1 and 160 otherwise. A non-zero `is_write` writes `value`,
// 0 reads into it. The wrappers read into a local 0 (or the preset named) and hand it on whatever
// the result.
class dvc_pnl_ceh_contents_hdl_func {
 public:
  explicit dvc_pnl_ceh_contents_hdl_func(int function = 0);
  virtual ~dvc_pnl_ceh_contents_hdl_func();
  dvc_pnl_ceh_contents_hdl_func(const dvc_pnl_ceh_contents_hdl_func&) = delete;
  dvc_pnl_ceh_contents_hdl_func& operator=(const dvc_pnl_ceh_contents_hdl_func&) = delete;

  // The shared instance, created on the first call, re-targeted to `function` on every call.
  static dvc_pnl_ceh_contents_hdl_func* dvc_pnl_ceh_get_instance(int function);
  // Sets the function id and its node (DVC_PNL_CEH_FUNC_NODE_NONE for a function without a tree).
  void registe_current_function(int function);
  int get_function_id() const { return function_id_; }
  unsigned long get_function_node() const { return function_node_; }

  // ---- settings with an op ----
  int op_collate_setting(int& value, int is_default, int is_write) const;
  int get_current_collate_setting(ENV_MODE_10_VAL& value) const;
  int set_current_collate_setting(ENV_MODE_10_VAL value) const;
  int get_default_collate_setting(ENV_MODE_10_VAL& value) const;
  int set_default_collate_setting(ENV_MODE_10_VAL value) const;

  int op_scan_duplex_setting(int& value, int is_default, int is_write) const;
  int get_current_scan_duplex_setting(ENV_SIDED_MODE_VAL& value) const;
  int set_current_scan_duplex_setting(ENV_SIDED_MODE_VAL value) const;
  int get_default_scan_duplex_setting(ENV_SIDED_MODE_VAL& value) const;

  int op_print_duplex_setting(int& value, int is_default, int is_write) const;
  int get_current_print_duplex_setting(ENV_MODE_10_VAL& value) const;
  int get_default_print_duplex_setting(ENV_MODE_10_VAL& value) const;

  int op_original_orientation_setting(int& value, int is_default, int is_write) const;
  int get_current_original_orientation_setting(ENV_PAPERDIR_VAL& value) const;
  int set_current_original_orientation_setting(ENV_PAPERDIR_VAL value) const;
  int get_default_original_orientation_setting(ENV_PAPERDIR_VAL& value) const;

  int op_original_image_setting(int& value, int is_default, int is_write) const;
  int get_current_original_image_setting(ENV_QUALITY_VAL& value) const;
  int set_current_original_image_setting(ENV_QUALITY_VAL value) const;
  int get_default_original_image_setting(ENV_QUALITY_VAL& value) const;

  int op_scn_quality_setting(int& value, int is_default, int is_write) const;
  int get_current_scn_quality_setting(ENV_QUALITY_VAL& value) const;
  int set_current_scn_quality_setting(ENV_QUALITY_VAL value) const;

  int op_density_adjustment_method_setting(int& value, int is_default, int is_write) const;
  int get_current_density_adjustment_method_setting(ENV_MODE_10_VAL& value) const;
  int set_current_density_adjustment_method_setting(ENV_MODE_10_VAL value) const;
  int get_default_density_adjustment_method_setting(ENV_MODE_10_VAL& value) const;

  int op_density_setting(int& value, int is_default, int is_write) const;
  int get_current_density_setting(ENV_DENSITY_MODE_VAL& value) const;
  int set_current_density_setting(ENV_DENSITY_MODE_VAL value) const;
  int get_default_density_setting(ENV_DENSITY_MODE_VAL& value) const;

  int op_file_name_entry_setting(std::string& value, int is_default, int is_write) const;
  int get_current_file_name_entry_setting(std::string& value) const;
  int get_default_file_name_entry_setting(std::string& value) const;

  int op_job_end_report_setting(int& value, int is_default, int is_write) const;
  int get_current_job_end_report_setting(ENV_MODE_10_VAL& value) const;
  int get_default_job_end_report_setting(ENV_MODE_10_VAL& value) const;

  int op_print_override_setting(int& value, int is_default, int is_write) const;
  int get_current_print_override_setting(ENV_PRIORYTY_VAL& value) const;
  int set_current_print_override_setting(ENV_PRIORYTY_VAL value) const;
  int get_default_print_override_setting(ENV_PRIORYTY_VAL& value) const;

  int op_scancolor_setting(int& value, int is_default, int is_write) const;
  int get_current_scancolor_setting(ENV_CLMODE_VAL& value) const;
  int set_current_scancolor_setting(ENV_CLMODE_VAL value) const;
  int get_default_scancolor_setting(ENV_CLMODE_VAL& value) const;

  int op_fax_delayed_tx_setting(int& value, int is_default, int is_write) const;
  int get_current_fax_delayed_tx_setting(int& value) const;
  int get_default_fax_delayed_tx_setting(int& value) const;

  int op_file_separation_setting(int& value, int is_default, int is_write) const;
  int get_current_file_separation_setting(int& value) const;

  int op_fax_direct_tx_setting(int& value, int is_default, int is_write) const;
  int get_current_fax_direct_tx_setting(ENV_TX_MODE_VAL& value) const;
  int set_current_fax_direct_tx_setting(ENV_TX_MODE_VAL value) const;
  int get_default_fax_direct_tx_setting(ENV_TX_MODE_VAL& value) const;

  int op_fax_resolution_setting(int& value, int is_default, int is_write) const;
  int get_current_fax_resolution_setting(ENV_RESO_VAL& value) const;
  int get_default_fax_resolution_setting(ENV_RESO_VAL& value) const;

  int op_fax_rx_polling_setting(int& value, int is_default, int is_write) const;
  int get_current_fax_rx_polling_setting(ENV_MODE_10_VAL& value) const;
  int get_default_fax_rx_polling_setting(ENV_MODE_10_VAL& value) const;

  int op_file_format_setting(int& value, int is_default, int is_write) const;
  int get_current_file_format_setting(ENV_IMAGE_TYPE_VAL& value) const;
  int set_current_file_format_setting(ENV_IMAGE_TYPE_VAL value) const;
  int get_default_file_format_setting(ENV_IMAGE_TYPE_VAL& value) const;

  int op_ftp_secure_tx_setting(int& value, int is_default, int is_write) const;
  int get_current_ftp_secure_tx_setting(ENV_MODE_10_VAL& value) const;
  int get_default_ftp_secure_tx_setting(ENV_MODE_10_VAL& value) const;

  int op_scan_resolution_setting(int& value, int is_default, int is_write) const;
  int get_current_scan_resolution_setting(ENV_RESO_VAL& value) const;
  int set_current_scan_resolution_setting(ENV_RESO_VAL value) const;
  int get_default_scan_resolution_setting(ENV_RESO_VAL& value) const;

  int op_send_size_setting(int& value, int is_default, int is_write) const;
  int get_current_send_size_setting(ENV_SIZE_VAL& value) const;
  int get_default_send_size_setting(ENV_SIZE_VAL& value) const;

  int op_subject_entry_setting(std::string& value, int is_default, int is_write) const;
  int get_current_subject_entry_setting(std::string& value) const;
  int get_default_subject_entry_setting(std::string& value) const;

  int op_storing_size_setting(int& value, int is_default, int is_write) const;
  int get_current_storing_size_setting(ENV_SIZE_VAL& value) const;
  int get_default_storing_size_setting(ENV_SIZE_VAL& value) const;

  int op_encryption_pdf_setting(std::string& value, int is_default, int is_write) const;
  int get_current_encrypted_pdf_setting(std::string& value) const;
  int get_default_encrypted_pdf_setting(std::string& value) const;

  int op_jpeg_print_mode(int& value, int is_default, int is_write) const;
  int get_current_jpeg_print_mode(ENV_JPEG_PRINT_VAL& value) const;
  int get_default_jpeg_print_mode(ENV_JPEG_PRINT_VAL& value) const;

  int op_xps_fit_to_page(int& value, int is_default, int is_write) const;
  int get_current_xps_fit_to_page(ENV_MODE_10_VAL& value) const;
  int get_default_xps_fit_to_page(ENV_MODE_10_VAL& value) const;

  int op_auto_file_del(int& value, int is_default, int is_write) const;
  int get_current_auto_file_del(ENV_MODE_10_VAL& value) const;
  int get_default_auto_file_del(ENV_MODE_10_VAL& value) const;

  // 46.48 for the copy tree (F = 2), 46.48.48 for the others.
  int op_ecoprint_setting(int& value, int is_default, int is_write) const;
  int get_current_ecoprint_setting(ENV_MODE_10_VAL& value) const;
  int set_current_ecoprint_setting(ENV_MODE_10_VAL value) const;
  int get_default_ecoprint_setting(ENV_MODE_10_VAL& value) const;

  // The size at 12.18.20 and whether the original is of standard size at 12.18.19, both read
  // through the group 12.18.
  int op_original_size_setting(int& size, int& original, int is_default, int is_write) const;
  int get_current_original_size_setting(ENV_SIZE_VAL& size, ENV_SIZE_ORIGINAL_VAL& original) const;
  int get_default_original_size_setting(ENV_SIZE_VAL& size, ENV_SIZE_ORIGINAL_VAL& original) const;

  // Reads the mode (12.13.14) and the ratio (12.13.15.16) through the group 12.13; writes the
  // mode alone.
  int op_zoom_setting(int& mode, int& ratio, int is_default, int is_write) const;
  int get_current_zoom_setting(ENV_ZOOM_MODE_VAL& mode, int& ratio) const;
  // `ratio` does not take part: the machine works the ratio out from the mode.
  int set_current_zoom_setting(ENV_ZOOM_MODE_VAL mode, int ratio) const;
  int get_default_zoom_setting(ENV_ZOOM_MODE_VAL& mode, int& ratio) const;

  // These three read from the print set that get_current_print_valueset or
  // get_default_print_valueset cached, answer 0 whatever they found, and write the leaf straight.
  int op_duplex_layout_setting(int& value, int is_default, int is_write) const;
  int get_current_duplex_layout_setting(ENV_COMBINE2_VAL& value) const;
  int set_current_duplex_layout_setting(ENV_COMBINE2_VAL value) const;
  int get_default_duplex_layout_setting(ENV_COMBINE2_VAL& value) const;

  int op_duplex_border_line_setting(int& value, int is_default, int is_write) const;
  int get_current_duplex_border_line_setting(ENV_COMBINE3_VAL& value) const;
  int set_current_duplex_border_line_setting(ENV_COMBINE3_VAL value) const;
  int get_default_duplex_border_line_setting(ENV_COMBINE3_VAL& value) const;

  int op_duplex_copy_bind_setting(int& value, int is_default, int is_write) const;
  int get_current_duplex_copy_bind_setting(ENV_PRN_BIND_MODE_VAL& value) const;
  int set_current_duplex_copy_bind_setting(ENV_PRN_BIND_MODE_VAL value) const;
  int get_default_duplex_copy_bind_setting(ENV_PRN_BIND_MODE_VAL& value) const;

  int op_continuous_scan_setting(int& value, int is_default, int is_write) const;
  int get_current_continuous_scan_setting(ENV_SCN_MODE_VAL& value) const;
  int set_current_continuous_scan_setting(ENV_SCN_MODE_VAL value) const;
  int get_default_continuous_scan_setting(ENV_SCN_MODE_VAL& value) const;

  // Reads through the group 46.58.59 and answers 0 whatever it found.
  int op_combine_setting(int& value, int is_default, int is_write) const;
  int get_current_combine_setting(ENV_COMBINE1_VAL& value) const;
  int get_default_combine_setting(ENV_COMBINE1_VAL& value) const;

  int op_paper_source_setting(int& value, int is_default, int is_write) const;
  int get_current_paper_source_setting(WSC_VAL_FEEDER& value) const;
  int set_current_paper_source_setting(ENV_FEEDER_VAL value) const;
  int get_default_paper_source_setting(WSC_VAL_FEEDER& value) const;
  int set_default_paper_source_setting(ENV_FEEDER_VAL value) const;

  // ---- current values without an op ----
  // 3 when the read fails.
  int get_current_sharpness(ENV_CLSHARPNESS_VAL& value) const;
  int get_current_background_dens_mode(ENV_GROUND_COLOR_MODE_VAL& value) const;
  int get_current_background_dens(ENV_GROUND_COLOR_VAL& value) const;
  int get_current_prevent_bleed_through_setting(ENV_MODE_10_VAL& value) const;
  int get_current_fax_tx_report_setting(ENV_REP_CONF_VAL& value) const;
  int get_current_quiet_mode_setting(ENV_MODE_10_VAL& value) const;
  int get_current_blank_skip_setting(ENV_MODE_10_VAL& value) const;
  int get_current_mixed_sized_originals(ENV_MODE_10_VAL& value) const;
  int get_current_contrast(ENV_CONTRAST_MODE_VAL& value) const;

  // ---- other settings access ----
  // The original size of the box store tree, whatever the function.
  int get_scan_original_size(ENV_SIZE_VAL& value) const;
  int get_system_default_duplex_layout_setting(ENV_COMBINE2_VAL& value) const;
  int set_system_default_duplex_layout_setting(ENV_COMBINE2_VAL value) const;
  // Fill the caches of the scan (12), send (185) and print (46) groups.
  int get_default_scan_valueset();
  int get_current_scan_valueset();
  int get_default_send_valueset();
  int get_current_send_valueset();
  int get_default_print_valueset();
  int get_current_print_valueset();

  // The node of the current function in DVC_PNL_PDM_ERROR_OCCURRENCE, or
  // DVC_PNL_CEH_ERROR_NODE_NONE.
  unsigned long get_error_event_node_key_by_current_function() const;
  // Appends the feeder of every installed cassette that holds paper of `type`. The result of the
  // last read, -1 when no cassette was read.
  int get_paper_type_selecting(ENV_MEDIA_TYPE_VAL type, std::vector<WSC_VAL_FEEDER>& feeders) const;
  // The weight set for paper of `type`; always -1, `weight` is the answer.
  int get_paper_weight(ENV_MEDIA_TYPE_VAL type, ENV_PAPER_WEIGHT_VAL& weight) const;
  // Copies the application row at `key` of `set` into `info`.
  void parse_apl_info(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key& key,
                      APPLICATION_MANAGE_INFO& info) const;

  // ---- commands ----
  // Tells the machine that the user dismissed the error screen of the current function.
  int op_error_screen_close_setting() const;
  // Cancels the copy job in error and ends the maintenance that the error asked for: 1 when the
  // machine refused, else 0 or the code of the data manager write.
  static int dvc_pnl_ceh_contents_hdl_set_job_cancel_and_maintenance_finish();
  int dvc_pnl_ceh_contents_hdl_wifi_direct_auto_setting_cancel(long& result) const;
  int dvc_pnl_ceh_contents_hdl_wifi_direct_wps_pbc_connection_start() const;
  int dvc_pnl_ceh_contents_hdl_wifi_direct_acceptance(long& result) const;
  int dvc_pnl_ceh_contents_hdl_wifi_direct_confirm(long& result) const;
  int dvc_pnl_ceh_contents_hdl_wifi_cancel_connect(long& result) const;
  int dvc_pnl_ceh_contents_hdl_execute_access_point_connection() const;
  int dvc_pnl_ceh_contents_hdl_execute_wifi_access_point_connection(long& result) const;

  // Drops the shared instance; for tests and the runtime only.
  static void reset_for_tests();

 private:
  // Reads the print setting at `path` below the scope out of the cached print set, one nested
  // set per path element; `value` is left alone when the cache lacks it. Always 0.
  int read_print_cache(int is_default, std::initializer_list<unsigned long> path, int& value) const;
  // Reads the group `group` below the scope into `cache`.
  int fill_cache(int is_default, unsigned long group, dvc_pnl_cmm_valueset& cache);

  static dvc_pnl_ceh_contents_hdl_func* s_instance_;

  int function_id_ = 0;
  unsigned long function_node_ = DVC_PNL_CEH_FUNC_NODE_NONE;
  dvc_pnl_cmm_valueset default_scan_set_;
  dvc_pnl_cmm_valueset default_print_set_;
  dvc_pnl_cmm_valueset current_print_set_;
  dvc_pnl_cmm_valueset current_scan_set_;
  dvc_pnl_cmm_valueset default_send_set_;
  dvc_pnl_cmm_valueset current_send_set_;
};

}  // namespace orvanta
