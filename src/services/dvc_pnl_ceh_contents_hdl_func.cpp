// Function settings: the door's targeting and every setting of the job settings tree.
#include "services/dvc_pnl_ceh_contents_hdl_func.h"

#include <array>
#include <initializer_list>

#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_func* dvc_pnl_ceh_contents_hdl_func::s_instance_ = nullptr;

namespace {

// The tree of the getters that fall back to copy instead of having no tree: `with_fax` and
// `with_box_print` say whether the fax and box print trees take part.
unsigned long tree_with_fallback(int function, bool with_fax, bool with_box_print) {
  switch (function) {
    case 3:
      return 161;
    case 4:
      return with_fax ? 206 : 2;
    case 6:
      return with_box_print ? 207 : 2;
    case 7:
      return 214;
    default:
      return 2;
  }
}

constexpr unsigned long kCopyTree = 2;

// Group node of the job settings below which each function keeps its tree.
constexpr unsigned long kJobSettings = 1;

// A node path from ROOT, short enough for any key of the settings tree.
class node_path {
 public:
  node_path(std::initializer_list<unsigned long> nodes) { append(nodes); }
  // 0.1.F.S.<tail>, S by `is_default`.
  static node_path setting(unsigned long tree, int is_default,
                           std::initializer_list<unsigned long> tail) {
    node_path p{0, kJobSettings, tree,
                is_default == 1 ? DVC_PNL_CEH_FUNC_SCOPE_DEFAULT : DVC_PNL_CEH_FUNC_SCOPE_CURRENT};
    p.append(tail);
    return p;
  }
  node_path plus(unsigned long node) const {
    node_path p = *this;
    p.append({node});
    return p;
  }
  const unsigned long* nodes() const { return nodes_.data(); }
  unsigned size() const { return size_; }

 private:
  void append(std::initializer_list<unsigned long> nodes) {
    for (unsigned long n : nodes)
      nodes_[size_++] = n;
  }
  std::array<unsigned long, 16> nodes_{};
  unsigned size_ = 0;
};

// Reads or writes the integer at `key` with start position `start`; a failure is traced with the
// setting's word.
int access_int(const node_path& key, int start, int is_write, int& value, const char* word) {
  int ret;
  if (is_write != 0) {
    const long v = value;
    ret = dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(key.nodes(), start, key.size(), v);
  } else {
    long v = 0;
    ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(key.nodes(), start, key.size(), v);
    value = static_cast<int>(v);
  }
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Can not op %s ret_code = %d", word, ret);
  return ret;
}

int access_string(const node_path& key, int is_write, std::string& value, const char* word) {
  const int ret = is_write != 0 ? dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm(
                                      key.nodes(), 0, key.size(), value.c_str())
                                : dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(
                                      key.nodes(), 0, key.size(), value);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Can not op %s ret_code = %d", word, ret);
  return ret;
}

// The integer entry `key` right inside `set` (not in a nested set).
int entry_int(const dvc_pnl_cmm_valueset& set, const node_path& key, int& value) {
  long v = 0;
  const int ret =
      dvc_pnl_ceh_contents_hdl_get_int_from_valueset(key.nodes(), 0, key.size(), set, v);
  if (ret == DVC_PNL_CEH_RET_OK)
    value = static_cast<int>(v);
  return ret;
}

int entry_set(const dvc_pnl_cmm_valueset& set, const node_path& key, dvc_pnl_cmm_valueset& out) {
  return dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(key.nodes(), 0, key.size(), set, out);
}

int read_group(const node_path& key, dvc_pnl_cmm_valueset& out) {
  return dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm(key.nodes(), 0, key.size(), out);
}

// A getter without an op: the current value at `key`, traced with `word` when the read fails.
int read_current(const node_path& key, int start, int& value, const char* word) {
  long v = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(key.nodes(), start, key.size(), v);
  value = static_cast<int>(v);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Can not get %s ret_code = %d", word, ret);
  return ret;
}

}  // namespace

namespace {

// A wrapper's read: `op` into a fresh local, handed on whatever the result.
template <typename T>
int read_with(const dvc_pnl_ceh_contents_hdl_func& door,
              int (dvc_pnl_ceh_contents_hdl_func::*op)(T&, int, int) const, int is_default,
              T& value) {
  T local{};
  const int ret = (door.*op)(local, is_default, 0);
  value = local;
  return ret;
}

}  // namespace

dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_contents_hdl_func(int function) {
  registe_current_function(function);
}

dvc_pnl_ceh_contents_hdl_func::~dvc_pnl_ceh_contents_hdl_func() = default;

dvc_pnl_ceh_contents_hdl_func* dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_get_instance(
    int function) {
  if (s_instance_ == nullptr)
    s_instance_ = new dvc_pnl_ceh_contents_hdl_func(function);
  s_instance_->registe_current_function(function);
  return s_instance_;
}

void dvc_pnl_ceh_contents_hdl_func::registe_current_function(int function) {
  function_id_ = function;
  function_node_ = dvc_pnl_ceh_contents_hdl_settings_node_of(function);
}

void dvc_pnl_ceh_contents_hdl_func::reset_for_tests() {
  delete s_instance_;
  s_instance_ = nullptr;
}

// ---- plain settings ----

int dvc_pnl_ceh_contents_hdl_func::op_collate_setting(int& value, int is_default,
                                                      int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {148, 149}), 0, is_write, value,
                    "collate");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_collate_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_collate_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_collate_setting(int value) const {
  return op_collate_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_collate_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_collate_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_default_collate_setting(int value) const {
  return op_collate_setting(value, 1, 1);
}

int dvc_pnl_ceh_contents_hdl_func::op_scan_duplex_setting(int& value, int is_default,
                                                          int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {12, 28}), 0, is_write, value,
                    "scan duplex");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_scan_duplex_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_scan_duplex_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_scan_duplex_setting(int value) const {
  return op_scan_duplex_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_scan_duplex_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_scan_duplex_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_print_duplex_setting(int& value, int is_default,
                                                           int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {46, 63, 64}), 6, is_write,
                    value, "print duplex");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_print_duplex_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_print_duplex_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_print_duplex_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_print_duplex_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_original_orientation_setting(int& value, int is_default,
                                                                   int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {12, 22}), 0, is_write, value,
                    "original orientation");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_original_orientation_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_original_orientation_setting, 0,
                   value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_original_orientation_setting(int value) const {
  return op_original_orientation_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_original_orientation_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_original_orientation_setting, 1,
                   value);
}

int dvc_pnl_ceh_contents_hdl_func::op_original_image_setting(int& value, int is_default,
                                                             int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {12, 29, 34}), 0, is_write,
                    value, "original image");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_original_image_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_original_image_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_original_image_setting(int value) const {
  return op_original_image_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_original_image_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_original_image_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_scn_quality_setting(int& value, int is_default,
                                                          int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {12, 29, 3790}), 0, is_write,
                    value, "scn quality");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_scn_quality_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_scn_quality_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_scn_quality_setting(int value) const {
  return op_scn_quality_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::op_density_adjustment_method_setting(int& value, int is_default,
                                                                        int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {12, 29, 30, 31}), 0, is_write,
                    value, "density adjustment method");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_density_adjustment_method_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_density_adjustment_method_setting, 0,
                   value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_density_adjustment_method_setting(int value) const {
  return op_density_adjustment_method_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_density_adjustment_method_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_density_adjustment_method_setting, 1,
                   value);
}

int dvc_pnl_ceh_contents_hdl_func::op_density_setting(int& value, int is_default,
                                                      int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {12, 29, 30, 32, 33}), 0,
                    is_write, value, "density");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_density_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_density_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_density_setting(int value) const {
  return op_density_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_density_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_density_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_job_end_report_setting(int& value, int is_default,
                                                             int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {1, 6, 6}), 0, is_write, value,
                    "job end report");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_job_end_report_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_job_end_report_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_job_end_report_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_job_end_report_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_print_override_setting(int& value, int is_default,
                                                             int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {1, 11}), 0, is_write, value,
                    "print override");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_print_override_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_print_override_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_print_override_setting(int value) const {
  return op_print_override_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_print_override_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_print_override_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_scancolor_setting(int& value, int is_default,
                                                        int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {12, 104, 165}), 0, is_write,
                    value, "scancolor");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_scancolor_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_scancolor_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_scancolor_setting(int value) const {
  return op_scancolor_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_scancolor_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_scancolor_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_fax_delayed_tx_setting(int& value, int is_default,
                                                             int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {198, 199}), 0, is_write, value,
                    "fax delayed tx");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_fax_delayed_tx_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_fax_delayed_tx_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_fax_delayed_tx_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_fax_delayed_tx_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_file_separation_setting(int& value, int is_default,
                                                              int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {166, 184}), 0, is_write, value,
                    "file separation");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_file_separation_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_file_separation_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_fax_direct_tx_setting(int& value, int is_default,
                                                            int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {185, 194}), 0, is_write, value,
                    "fax direct tx");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_fax_direct_tx_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_fax_direct_tx_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_fax_direct_tx_setting(int value) const {
  return op_fax_direct_tx_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_fax_direct_tx_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_fax_direct_tx_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_fax_resolution_setting(int& value, int is_default,
                                                             int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {185, 186, 187}), 0, is_write,
                    value, "fax resolution");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_fax_resolution_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_fax_resolution_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_fax_resolution_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_fax_resolution_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_fax_rx_polling_setting(int& value, int is_default,
                                                             int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {203, 204}), 0, is_write, value,
                    "fax rx polling");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_fax_rx_polling_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_fax_rx_polling_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_fax_rx_polling_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_fax_rx_polling_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_file_format_setting(int& value, int is_default,
                                                          int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {166, 166, 167}), 0, is_write,
                    value, "file format");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_file_format_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_file_format_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_file_format_setting(int value) const {
  return op_file_format_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_file_format_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_file_format_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_ftp_secure_tx_setting(int& value, int is_default,
                                                            int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {185, 193}), 0, is_write, value,
                    "ftp secure tx");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_ftp_secure_tx_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_ftp_secure_tx_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_ftp_secure_tx_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_ftp_secure_tx_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_scan_resolution_setting(int& value, int is_default,
                                                              int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {12, 29, 164}), 0, is_write,
                    value, "scan resolution");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_scan_resolution_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_scan_resolution_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_scan_resolution_setting(int value) const {
  return op_scan_resolution_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_scan_resolution_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_scan_resolution_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_send_size_setting(int& value, int is_default,
                                                        int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {185, 188}), 0, is_write, value,
                    "send size");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_send_size_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_send_size_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_send_size_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_send_size_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_storing_size_setting(int& value, int is_default,
                                                           int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {216, 217}), 0, is_write, value,
                    "storing size");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_storing_size_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_storing_size_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_storing_size_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_storing_size_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_jpeg_print_mode(int& value, int is_default,
                                                      int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {46, 2743}), 0, is_write, value,
                    "jpeg print mode");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_jpeg_print_mode(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_jpeg_print_mode, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_jpeg_print_mode(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_jpeg_print_mode, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_xps_fit_to_page(int& value, int is_default,
                                                      int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {46, 2747}), 0, is_write, value,
                    "xps fit to page");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_xps_fit_to_page(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_xps_fit_to_page, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_xps_fit_to_page(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_xps_fit_to_page, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_auto_file_del(int& value, int is_default,
                                                    int is_write) const {
  return access_int(node_path::setting(function_node_, is_default, {1, 208}), 0, is_write, value,
                    "auto file del");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_auto_file_del(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_auto_file_del, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_auto_file_del(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_auto_file_del, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_file_name_entry_setting(std::string& value, int is_default,
                                                              int is_write) const {
  return access_string(node_path::setting(function_node_, is_default, {1, 4, 4}), is_write, value,
                       "file name entry");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_file_name_entry_setting(std::string& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_file_name_entry_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_file_name_entry_setting(std::string& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_file_name_entry_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_subject_entry_setting(std::string& value, int is_default,
                                                            int is_write) const {
  return access_string(node_path::setting(function_node_, is_default, {185, 189, 190}), is_write,
                       value, "subject entry");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_subject_entry_setting(std::string& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_subject_entry_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_subject_entry_setting(std::string& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_subject_entry_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::op_encryption_pdf_setting(std::string& value, int is_default,
                                                             int is_write) const {
  return access_string(node_path::setting(function_node_, is_default, {46, 176}), is_write, value,
                       "encryption pdf");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_encrypted_pdf_setting(std::string& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_encryption_pdf_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_encrypted_pdf_setting(std::string& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_encryption_pdf_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_ecoprint_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_ecoprint_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_ecoprint_setting(int value) const {
  return op_ecoprint_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_ecoprint_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_ecoprint_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_duplex_layout_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_duplex_layout_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_duplex_layout_setting(int value) const {
  return op_duplex_layout_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_duplex_layout_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_duplex_layout_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_duplex_border_line_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_duplex_border_line_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_duplex_border_line_setting(int value) const {
  return op_duplex_border_line_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_duplex_border_line_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_duplex_border_line_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_duplex_copy_bind_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_duplex_copy_bind_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_duplex_copy_bind_setting(int value) const {
  return op_duplex_copy_bind_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_duplex_copy_bind_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_duplex_copy_bind_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_continuous_scan_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_continuous_scan_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_continuous_scan_setting(int value) const {
  return op_continuous_scan_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_continuous_scan_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_continuous_scan_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_combine_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_combine_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_combine_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_combine_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_paper_source_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_paper_source_setting, 0, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_paper_source_setting(int value) const {
  return op_paper_source_setting(value, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_paper_source_setting(int& value) const {
  return read_with(*this, &dvc_pnl_ceh_contents_hdl_func::op_paper_source_setting, 1, value);
}

int dvc_pnl_ceh_contents_hdl_func::set_default_paper_source_setting(int value) const {
  return op_paper_source_setting(value, 1, 1);
}

// ---- settings read through a group ----

int dvc_pnl_ceh_contents_hdl_func::op_ecoprint_setting(int& value, int is_default,
                                                       int is_write) const {
  // The copy tree keeps the setting one level higher than the others.
  const node_path key = function_node_ == kCopyTree
                            ? node_path::setting(function_node_, is_default, {46, 48})
                            : node_path::setting(function_node_, is_default, {46, 48, 48});
  return access_int(key, 0, is_write, value, "ecoprint");
}

int dvc_pnl_ceh_contents_hdl_func::op_original_size_setting(int& size, int& original,
                                                            int is_default, int is_write) const {
  const int ret = access_int(node_path::setting(function_node_, is_default, {12, 18, 20}), 6,
                             is_write, size, "original size");
  const int ret_original = access_int(node_path::setting(function_node_, is_default, {12, 18, 19}),
                                      6, is_write, original, "original size");
  return ret != DVC_PNL_CEH_RET_OK ? ret : ret_original;
}

int dvc_pnl_ceh_contents_hdl_func::get_current_original_size_setting(
    ENV_SIZE_VAL& size, ENV_SIZE_ORIGINAL_VAL& original) const {
  int local_size = 0;
  int local_original = 0;
  const int ret = op_original_size_setting(local_size, local_original, 0, 0);
  size = local_size;
  original = local_original;
  return ret;
}

int dvc_pnl_ceh_contents_hdl_func::get_default_original_size_setting(
    ENV_SIZE_VAL& size, ENV_SIZE_ORIGINAL_VAL& original) const {
  int local_size = 0;
  int local_original = 0;
  const int ret = op_original_size_setting(local_size, local_original, 1, 0);
  size = local_size;
  original = local_original;
  return ret;
}

int dvc_pnl_ceh_contents_hdl_func::op_zoom_setting(int& mode, int& ratio, int is_default,
                                                   int is_write) const {
  const node_path group = node_path::setting(function_node_, is_default, {12, 13});
  if (is_write != 0)
    return access_int(group.plus(14), 0, is_write, mode, "zoom");
  dvc_pnl_cmm_valueset set;
  int ret = read_group(group, set);
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = entry_int(set, group.plus(14), mode);
  dvc_pnl_cmm_valueset ratio_set;
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = entry_set(set, group.plus(15), ratio_set);
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = entry_int(ratio_set, group.plus(15).plus(16), ratio);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Can not op %s ret_code = %d", "zoom", ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_func::get_current_zoom_setting(ENV_ZOOM_MODE_VAL& mode,
                                                            int& ratio) const {
  mode = DVC_PNL_CEH_ZOOM_MODE_PRESET;
  ratio = DVC_PNL_CEH_ZOOM_RATIO_PRESET;
  return op_zoom_setting(mode, ratio, 0, 0);
}

int dvc_pnl_ceh_contents_hdl_func::set_current_zoom_setting(ENV_ZOOM_MODE_VAL mode,
                                                            int /*ratio*/) const {
  int unused_ratio = 0;
  return op_zoom_setting(mode, unused_ratio, 0, 1);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_zoom_setting(ENV_ZOOM_MODE_VAL& mode,
                                                            int& ratio) const {
  mode = DVC_PNL_CEH_ZOOM_MODE_PRESET;
  ratio = DVC_PNL_CEH_ZOOM_RATIO_PRESET;
  return op_zoom_setting(mode, ratio, 1, 0);
}

int dvc_pnl_ceh_contents_hdl_func::read_print_cache(int is_default,
                                                    std::initializer_list<unsigned long> path,
                                                    int& value) const {
  // A copy: the walk must not disturb the cache that other reads share.
  dvc_pnl_cmm_valueset set = is_default == 1 ? default_print_set_ : current_print_set_;
  auto node = path.begin();
  node_path key = node_path::setting(function_node_, is_default, {*node, *(node + 1)});
  // Walks down one nested set per path element, then reads the leaf.
  for (node += 2; node != path.end(); ++node) {
    dvc_pnl_cmm_valueset inner;
    if (entry_set(set, key, inner) != DVC_PNL_CEH_RET_OK)
      return DVC_PNL_CEH_RET_OK;
    set = inner;
    key = key.plus(*node);
  }
  entry_int(set, key, value);
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_func::op_duplex_layout_setting(int& value, int is_default,
                                                            int is_write) const {
  if (is_write == 0)
    return read_print_cache(is_default, {46, 58, 59, 61}, value);
  return access_int(node_path::setting(function_node_, is_default, {46, 58, 59, 61}), 0, is_write,
                    value, "duplex layout");
}

int dvc_pnl_ceh_contents_hdl_func::op_duplex_border_line_setting(int& value, int is_default,
                                                                 int is_write) const {
  if (is_write == 0)
    return read_print_cache(is_default, {46, 58, 59, 62}, value);
  return access_int(node_path::setting(function_node_, is_default, {46, 58, 59, 62}), 0, is_write,
                    value, "duplex border line");
}

int dvc_pnl_ceh_contents_hdl_func::op_duplex_copy_bind_setting(int& value, int is_default,
                                                               int is_write) const {
  if (is_write == 0)
    return read_print_cache(is_default, {46, 63, 66}, value);
  return access_int(node_path::setting(function_node_, is_default, {46, 63, 66}), 6, is_write,
                    value, "duplex copy bind");
}

int dvc_pnl_ceh_contents_hdl_func::op_continuous_scan_setting(int& value, int is_default,
                                                              int is_write) const {
  const char* const word = "scan mode";
  const node_path group = node_path::setting(function_node_, is_default, {12, 35});
  if (is_write != 0)
    return access_int(group.plus(35), 6, is_write, value, word);
  // Send, fax and box store keep the mode at the group node itself.
  if (function_node_ == 161 || function_node_ == 206 || function_node_ == 214)
    return access_int(group, 0, is_write, value, word);
  dvc_pnl_cmm_valueset set;
  int ret = read_group(group, set);
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = entry_int(set, group.plus(35), value);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Can not op %s ret_code = %d", word, ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_func::op_combine_setting(int& value, int is_default,
                                                      int is_write) const {
  const node_path group = node_path::setting(function_node_, is_default, {46, 58, 59});
  if (is_write != 0)
    return access_int(group.plus(60), 0, is_write, value, "combine");
  dvc_pnl_cmm_valueset set;
  int ret = read_group(group, set);
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = entry_int(set, group.plus(60), value);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Can not op %s ret_code = %d", "combine", ret);
  // The screens take whatever the value holds: the read never reports a failure.
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_func::op_paper_source_setting(int& value, int is_default,
                                                           int is_write) const {
  const node_path group = node_path::setting(function_node_, is_default, {46, 49});
  if (is_write != 0)
    return access_int(group.plus(51), 6, is_write, value, "paper source");
  dvc_pnl_cmm_valueset set;
  int ret = read_group(group, set);
  if (ret == DVC_PNL_CEH_RET_OK)
    ret = entry_int(set, group.plus(51), value);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Can not op %s ret_code = %d", "paper source", ret);
  return ret;
}

// ---- current values without an op ----

int dvc_pnl_ceh_contents_hdl_func::get_current_sharpness(ENV_CLSHARPNESS_VAL& value) const {
  const node_path key = function_node_ == kCopyTree
                            ? node_path::setting(function_node_, 0, {99, 147})
                            : node_path::setting(function_node_, 0, {12, 104, 147});
  int read = 0;
  const int ret = read_current(key, 0, read, "sharpness");
  value = ret == DVC_PNL_CEH_RET_OK ? read : DVC_PNL_CEH_SHARPNESS_PRESET;
  return ret;
}

int dvc_pnl_ceh_contents_hdl_func::get_current_background_dens_mode(
    ENV_GROUND_COLOR_MODE_VAL& value) const {
  const node_path key = function_id_ == 1
                            ? node_path::setting(function_node_, 0, {99, 145, 145})
                            : node_path::setting(function_node_, 0, {12, 104, 145, 145});
  return read_current(key, 0, value, "background dens mode");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_background_dens(ENV_GROUND_COLOR_VAL& value) const {
  const node_path key = function_id_ == 1
                            ? node_path::setting(function_node_, 0, {99, 145, 146})
                            : node_path::setting(function_node_, 0, {12, 104, 145, 146});
  return read_current(key, 0, value, "background dens");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_prevent_bleed_through_setting(
    ENV_MODE_10_VAL& value) const {
  return read_current(
      node_path::setting(tree_with_fallback(function_id_, false, false), 0, {12, 2997}), 0, value,
      "prevent bleed through");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_fax_tx_report_setting(
    ENV_REP_CONF_VAL& value) const {
  return read_current(node_path::setting(function_node_, 0, {411}), 0, value, "fax tx report");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_quiet_mode_setting(ENV_MODE_10_VAL& value) const {
  return read_current(
      node_path::setting(tree_with_fallback(function_id_, true, true), 0, {3796, 3797}), 0, value,
      "quiet mode");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_blank_skip_setting(ENV_MODE_10_VAL& value) const {
  return read_current(
      node_path::setting(tree_with_fallback(function_id_, true, true), 0, {12, 3686, 3687}), 6,
      value, "blank skip");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_mixed_sized_originals(ENV_MODE_10_VAL& value) const {
  return read_current(
      node_path::setting(tree_with_fallback(function_id_, true, true), 0, {12, 23, 24}), 6, value,
      "mixed sized originals");
}

int dvc_pnl_ceh_contents_hdl_func::get_current_contrast(ENV_CONTRAST_MODE_VAL& value) const {
  return read_current(
      node_path::setting(tree_with_fallback(function_id_, true, false), 0, {12, 782}), 0, value,
      "contrast");
}

// ---- other settings access ----

int dvc_pnl_ceh_contents_hdl_func::get_scan_original_size(ENV_SIZE_VAL& value) const {
  return read_current(node_path::setting(214, 0, {12, 18, 20}), 0, value, "scan original size");
}

int dvc_pnl_ceh_contents_hdl_func::get_system_default_duplex_layout_setting(
    ENV_COMBINE2_VAL& value) const {
  return read_current(node_path{0, 230, 231, 233, 59, 61}, 0, value,
                      "system default duplex layout");
}

int dvc_pnl_ceh_contents_hdl_func::set_system_default_duplex_layout_setting(
    ENV_COMBINE2_VAL value) const {
  return access_int(node_path{0, 230, 231, 233, 59, 61}, 0, 1, value,
                    "system default duplex layout");
}

int dvc_pnl_ceh_contents_hdl_func::fill_cache(int is_default, unsigned long group,
                                              dvc_pnl_cmm_valueset& cache) {
  const int ret = read_group(node_path::setting(function_node_, is_default, {group}), cache);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("Can not get valueset %lu ret_code = %d", group, ret);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_func::get_default_scan_valueset() {
  return fill_cache(1, 12, default_scan_set_);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_scan_valueset() {
  return fill_cache(0, 12, current_scan_set_);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_send_valueset() {
  return fill_cache(1, 185, default_send_set_);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_send_valueset() {
  return fill_cache(0, 185, current_send_set_);
}

int dvc_pnl_ceh_contents_hdl_func::get_default_print_valueset() {
  return fill_cache(1, 46, default_print_set_);
}

int dvc_pnl_ceh_contents_hdl_func::get_current_print_valueset() {
  return fill_cache(0, 46, current_print_set_);
}

}  // namespace orvanta
