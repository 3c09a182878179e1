// Function settings: the error key, paper queries, application rows and the shared commands.
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <iterator>
#include <string>
#include <vector>

#include "services/dvc_pnl_ceh_contents_hdl_func.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

using path = std::vector<unsigned long>;

// ---- error events ----

constexpr unsigned long kNoNode = DVC_PNL_CEH_ERROR_NODE_NONE;

// The node of each function's error event in DVC_PNL_PDM_ERROR_OCCURRENCE, for the function ids
// 1 to 18 in order; kNoNode where the function has no error event of its own.
constexpr unsigned long kErrorNodes[] = {
    1080, kNoNode, 1093,    1094,    1095,    1097, 1098, 1096,    1099,
    1101, kNoNode, kNoNode, kNoNode, kNoNode, 1100, 1103, kNoNode, 1102,
};
constexpr int kFirstErrorFunction = 1;
constexpr int kLastErrorFunction = 18;

unsigned long error_node_of(int function) {
  if (function < kFirstErrorFunction || function > kLastErrorFunction)
    return kNoNode;
  return kErrorNodes[function - kFirstErrorFunction];
}

// Fields of an error event, read as 0.<error node>.<field>.
constexpr unsigned long kJobId = 221;
constexpr unsigned long kErrorId = 1081;
constexpr unsigned long kErrorCode = 1000;

// The error event that the platform stored for `function`; a failure is traced.
int read_error_event(int function, dvc_pnl_cmm_valueset& event) {
  const int ret =
      dvc_pnl_ceh_contents_hdl_get_valueset_from_dm(DVC_PNL_PDM_ERROR_OCCURRENCE, event, function);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("get from PanelDataManager of DVC_PNL_PDM_ERROR_OCCURRENCE ret_code = %d", ret);
  return ret;
}

// A field of the event; a missing one is traced under `name`.
int error_field(const dvc_pnl_cmm_valueset& event, unsigned long node, unsigned long field,
                const char* name, long& value) {
  const unsigned long field_path[] = {0, node, field};
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(field_path, 2, 3, event, value);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("%s ret_code = %d", name, ret);
  return ret;
}

// The copy function, whose job the maintenance cancel ends, and the maintenance function that
// is told through the data manager that it has ended.
constexpr int kCopyFunction = 1;
constexpr int kMaintenanceFunction = 11;

// ---- commands ----

const path kErrorScreenClose = {0, 503, 2449};
const path kErrorJobManipulation = {0, 821, 847};
const path kWifiDirectAutoSettingCancel = {0, 503, 3939, 3953, 825};
const path kWifiDirectWpsPbcStart = {0, 503, 3939, 3953, 3955};
const path kWifiDirectAcceptance = {0, 503, 3939, 3953, 3954};
const path kWifiDirectConfirm = {0, 503, 3939, 975};
const path kWifiCancelConnect = {0, 503, 3492, 3510};
const path kAccessPointConnection = {0, 503, 3492, 3508};

// The job manipulation that cancels the job in error.
constexpr long kCancelJob = 4;

dvc_pnl_cmm_key key_of(const path& nodes) {
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_build_key(key, nodes.data(), static_cast<unsigned>(nodes.size()));
  return key;
}

struct word {
  unsigned long node;
  long value;
};

void add_words(dvc_pnl_cmm_valueset& request, const dvc_pnl_cmm_key& key,
               std::initializer_list<word> words) {
  for (const word& w : words)
    dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, w.node, w.value);
}

// Runs the command. Once it got through and `result` is given, RESULT goes there: -1 when the
// response holds none, so that a missing answer never reads as success. The response is not
// looked at when the mediator failed.
int send(const dvc_pnl_cmm_key& key, const dvc_pnl_cmm_valueset& request, long* result) {
  dvc_pnl_cmm_valueset response;
  const int ret = dvc_pnl_ceh_contents_hdl_invoke_cmm(key, request, response);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("invoke failed : ret_code = %d", ret);
    return ret;
  }
  if (result != nullptr) {
    long answer = -1;
    dvc_pnl_ceh_contents_hdl_get_int_from_response_node(response, key, DVC_PNL_CEH_NODE_RESULT,
                                                        answer);
    if (answer != 0)
      CEH_ERR("command result NG. RESULT = %ld", answer);
    *result = answer;
  }
  return ret;
}

// A command whose request is integers only.
int send_words(const path& command, std::initializer_list<word> words, long* result) {
  const dvc_pnl_cmm_key key = key_of(command);
  dvc_pnl_cmm_valueset request;
  add_words(request, key, words);
  return send(key, request, result);
}

// ---- access points ----

// The access point record that the selection screens stored for `function`.
template <typename Record>
int read_access_point(int function, Record& record) {
  const int ret = dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_CEH_ACCESS_POINT_INFO,
                                                              &record, sizeof record, function);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("get binary from pdm error ret_code = %d", ret);
  return ret;
}

// A text field of a record goes out up to its size: a full field need not be terminated.
template <std::size_t N>
std::string text_of(const char (&field)[N]) {
  return std::string(field, strnlen(field, N));
}

void add_address(dvc_pnl_cmm_valueset& request, const dvc_pnl_cmm_key& key,
                 const unsigned char (&address)[DVC_PNL_CEH_MAC_ADDRESS_SIZE]) {
  dvc_pnl_cmm_binary blob;
  const unsigned long length = DVC_PNL_CEH_MAC_ADDRESS_SIZE;
  blob.dvc_pnl_cmm_set_data(address, length);
  dvc_pnl_ceh_contents_hdl_set_binary_to_request_node(request, key, 3519, blob);
}

// The request group of the access point connection: its nested settings are keyed below it.
constexpr unsigned long kConnectionGroup[] = {0, 503, 3492};
constexpr unsigned long kEnterpriseNode = 3499;
constexpr unsigned long kCertificateNode = 2247;

// The key of `leaf` below `node` of the connection group: 0.503.3492.<node>.<leaf>.
path connection_setting(unsigned long node, unsigned long leaf) {
  path nodes(std::begin(kConnectionGroup), std::end(kConnectionGroup));
  nodes.push_back(node);
  nodes.push_back(leaf);
  return nodes;
}

// The machine's settings of an enterprise network: the identity (string) and the method
// (integer), both read through their group.
int enterprise_settings(dvc_pnl_cmm_valueset& settings) {
  const unsigned long identity_node[] = {0, 633, 3937, 3497, 3499, 3500};
  std::string identity;
  int ret = dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(identity_node, 5, 6, identity);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get enterprise identity ret_code = %d", ret);
    return ret;
  }
  const unsigned long method_node[] = {0, 633, 3937, 3497, 3499, 3938};
  long method = 0;
  ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(method_node, 5, 6, method);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get enterprise method ret_code = %d", ret);
    return ret;
  }
  const path identity_key = connection_setting(kEnterpriseNode, 3500);
  const path method_key = connection_setting(kEnterpriseNode, 3938);
  dvc_pnl_ceh_contents_hdl_set_string_to_valueset(identity_key.data(), 0,
                                                  static_cast<unsigned>(identity_key.size()),
                                                  settings, identity.c_str());
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(
      method_key.data(), 0, static_cast<unsigned>(method_key.size()), settings, method);
  return DVC_PNL_CEH_RET_OK;
}

// The machine's certificate setting of the wireless network, read through its group.
int certificate_setting(dvc_pnl_cmm_valueset& settings) {
  const unsigned long certificate_node[] = {0, 633, 3937, 3501, 3503, 2247};
  long certificate = 0;
  const int ret =
      dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(certificate_node, 5, 6, certificate);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get certificate setting ret_code = %d", ret);
    return ret;
  }
  const path certificate_key = connection_setting(kCertificateNode, 2247);
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(certificate_key.data(), 0,
                                               static_cast<unsigned>(certificate_key.size()),
                                               settings, certificate);
  return DVC_PNL_CEH_RET_OK;
}

// Adds the settings that `gather` reads from the machine as one set at request node `node`.
int add_settings(dvc_pnl_cmm_valueset& request, const dvc_pnl_cmm_key& key, unsigned long node,
                 int (*gather)(dvc_pnl_cmm_valueset&)) {
  dvc_pnl_cmm_valueset settings;
  const int ret = gather(settings);
  if (ret == DVC_PNL_CEH_RET_OK)
    dvc_pnl_ceh_contents_hdl_set_valueset_to_request_node(request, key, node, settings);
  return ret;
}

// The security value of an access point that asks for the enterprise settings, and the value of
// the certificate word that asks for the certificate setting.
constexpr std::int32_t kEnterpriseSecurity = 2;
constexpr std::int32_t kWithCertificate = 1;

// ---- paper ----

const path kCassetteMask = {0, 728, 713, 129};

struct cassette {
  long bit;
  unsigned long node;
  WSC_VAL_FEEDER feeder;
};
constexpr cassette kCassettes[] = {{2, 372, 1}, {4, 375, 2}, {8, 376, 3}, {16, 377, 4}};

struct weight_node {
  ENV_MEDIA_TYPE_VAL type;
  unsigned long node;
};
constexpr weight_node kWeightNodes[] = {
    {1, 383},  {2, 385},  {3, 386},  {4, 387},  {5, 388},   {6, 389},
    {7, 390},  {8, 391},  {9, 392},  {10, 393}, {11, 394},  {12, 395},
    {13, 396}, {16, 397}, {14, 400}, {17, 399}, {18, 3748},
};
constexpr ENV_MEDIA_TYPE_VAL kFirstCustomType = 21;
constexpr ENV_MEDIA_TYPE_VAL kLastCustomType = 28;
constexpr unsigned long kWeightLeaf = 384;

// ---- application rows ----

template <std::size_t N>
void copy_text(dvc_pnl_cmm_valueset& set, const dvc_pnl_cmm_key& key, unsigned long node,
               char (&field)[N]) {
  const char* text = nullptr;
  dvc_pnl_ceh_contents_hdl_get_string_from_response_node(set, key, node, text);
  const std::size_t length = text != nullptr ? strnlen(text, N - 1) : 0;
  if (length > 0)
    std::memcpy(field, text, length);
  field[length] = '\0';
}

void copy_int(dvc_pnl_cmm_valueset& set, const dvc_pnl_cmm_key& key, unsigned long node,
              std::int32_t& field) {
  long value = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_response_node(set, key, node, value);
  field = static_cast<std::int32_t>(value);
}

// The integer fields of an application row.
struct apl_int {
  unsigned long node;
  std::int32_t APPLICATION_MANAGE_INFO::*member;
};
constexpr apl_int kAplInts[] = {
    {2486, &APPLICATION_MANAGE_INFO::value_2486}, {2488, &APPLICATION_MANAGE_INFO::value_2488},
    {2489, &APPLICATION_MANAGE_INFO::value_2489}, {2490, &APPLICATION_MANAGE_INFO::value_2490},
    {2491, &APPLICATION_MANAGE_INFO::value_2491}, {2591, &APPLICATION_MANAGE_INFO::value_2591},
    {2145, &APPLICATION_MANAGE_INFO::value_2145}, {2633, &APPLICATION_MANAGE_INFO::value_2633},
    {2592, &APPLICATION_MANAGE_INFO::value_2592},
};

}  // namespace

// ---------------------------------------------------------------- error key

unsigned long dvc_pnl_ceh_contents_hdl_func::get_error_event_node_key_by_current_function() const {
  return error_node_of(function_id_);
}

// ---------------------------------------------------------------- paper

int dvc_pnl_ceh_contents_hdl_func::get_paper_type_selecting(
    ENV_MEDIA_TYPE_VAL type, std::vector<WSC_VAL_FEEDER>& feeders) const {
  long mask = 0;
  int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(
      kCassetteMask.data(), 0, static_cast<unsigned>(kCassetteMask.size()), mask);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("can not get cassette status ret_code = %d", ret);
  // Only the cassette reads count for the result: without an installed cassette nothing was
  // looked at.
  ret = -1;
  for (const cassette& c : kCassettes) {
    if ((mask & c.bit) == 0)
      continue;
    const unsigned long kind_node[] = {0, 230, 49, 371, c.node, 374};
    long kind = 0;
    ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(kind_node, 0, 6, kind);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("can not get cst paper type ret_code = %d", ret);
      continue;
    }
    if (kind == type)
      feeders.push_back(c.feeder);
  }
  return ret;
}

int dvc_pnl_ceh_contents_hdl_func::get_paper_weight(ENV_MEDIA_TYPE_VAL type,
                                                    ENV_PAPER_WEIGHT_VAL& weight) const {
  long value = 0;
  int ret = DVC_PNL_CEH_RET_OK;
  bool known = false;
  for (const weight_node& row : kWeightNodes) {
    if (row.type != type)
      continue;
    known = true;
    const unsigned long weight_path[] = {0, 230, 49, 382, row.node, kWeightLeaf};
    ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(weight_path, 0, 6, value);
    break;
  }
  if (!known && type >= kFirstCustomType && type <= kLastCustomType) {
    known = true;
    // The custom types are the rows of one table, in order; each row holds its weight.
    const unsigned long table[] = {0, 230, 49, 382, 401, 402};
    const unsigned index = static_cast<unsigned>(type - kFirstCustomType);
    dvc_pnl_cmm_valueset row;
    ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(table, 0, 6, index, row);
    if (ret == DVC_PNL_CEH_RET_OK) {
      const unsigned long weight_path[] = {0, 230, 49, 382, 401, 402, index, kWeightLeaf};
      ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(weight_path, 0, 8, row, value);
    }
  }
  if (!known) {
    CEH_ERR("paper type %d has no weight", type);
  } else if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get paper weight ret_code = %d", ret);
  } else {
    weight = static_cast<ENV_PAPER_WEIGHT_VAL>(value);
  }
  return -1;
}

// ---------------------------------------------------------------- application rows

void dvc_pnl_ceh_contents_hdl_func::parse_apl_info(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key& key,
                                                   APPLICATION_MANAGE_INFO& info) const {
  // A field the row lacks reads as 0 or empty, not as what the record held before.
  info = APPLICATION_MANAGE_INFO{};
  copy_text(set, key, 2516, info.name);
  copy_text(set, key, 2492, info.text_2492);
  copy_text(set, key, 2494, info.text_2494);
  for (const apl_int& field : kAplInts)
    copy_int(set, key, field.node, info.*field.member);
}

// ---------------------------------------------------------------- error screens

int dvc_pnl_ceh_contents_hdl_func::op_error_screen_close_setting() const {
  dvc_pnl_cmm_valueset event;
  int ret = read_error_event(function_id_, event);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  const unsigned long node = get_error_event_node_key_by_current_function();
  if (node == kNoNode) {
    // No error of this function can be on the screen: there is nothing to close.
    CEH_ERR("current function id = %d", function_id_);
    CEH_ERR("it is beyond reasonable scope.");
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  }
  // Only the error id is needed to name the error: a missing job id goes out as 0.
  long job_id = 0;
  error_field(event, node, kJobId, "job_id", job_id);
  long error_id = 0;
  ret = error_field(event, node, kErrorId, "error_id", error_id);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;

  const dvc_pnl_cmm_key key = key_of(kErrorScreenClose);
  dvc_pnl_cmm_valueset request;
  add_words(request, key,
            {{DVC_PNL_CEH_NODE_REQUEST_KIND, 1}, {kJobId, job_id}, {kErrorId, error_id}});
  dvc_pnl_ceh_contents_hdl_set_string_to_request_node(request, key, 2466, "");
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, 1002, 0);
  // A refusal is traced and nothing more: the screen closes when the machine says so.
  long result = 0;
  return send(key, request, &result);
}

int dvc_pnl_ceh_contents_hdl_func::
    dvc_pnl_ceh_contents_hdl_set_job_cancel_and_maintenance_finish() {
  // Without the job and its error code there is nothing to cancel.
  dvc_pnl_cmm_valueset event;
  const unsigned long node = error_node_of(kCopyFunction);
  long job_id = 0;
  long error_code = 0;
  if (read_error_event(kCopyFunction, event) != DVC_PNL_CEH_RET_OK ||
      error_field(event, node, kJobId, "job_id", job_id) != DVC_PNL_CEH_RET_OK ||
      error_field(event, node, kErrorCode, "error_code", error_code) != DVC_PNL_CEH_RET_OK)
    return 0;

  long result = -1;
  const int ret = send_words(kErrorJobManipulation,
                             {{DVC_PNL_CEH_NODE_REQUEST_KIND, 1},
                              {kJobId, job_id},
                              {1334, kCancelJob},
                              {kErrorCode, error_code}},
                             &result);
  if (ret != DVC_PNL_CEH_RET_OK)
    return 0;
  if (result != 0)
    return 1;
  // Tells the maintenance function, through its hand-over entry, that its job has ended.
  return dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, 1,
                                                kMaintenanceFunction);
}

// ---------------------------------------------------------------- Wi-Fi

int dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_contents_hdl_wifi_direct_auto_setting_cancel(
    long& result) const {
  return send_words(kWifiDirectAutoSettingCancel, {{DVC_PNL_CEH_NODE_REQUEST_KIND, 1}}, &result);
}

int dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_contents_hdl_wifi_direct_wps_pbc_connection_start()
    const {
  return send_words(kWifiDirectWpsPbcStart, {{DVC_PNL_CEH_NODE_REQUEST_KIND, 2}}, nullptr);
}

int dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_contents_hdl_wifi_direct_acceptance(
    long& result) const {
  return send_words(kWifiDirectAcceptance, {{DVC_PNL_CEH_NODE_REQUEST_KIND, 1}}, &result);
}

int dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_contents_hdl_wifi_direct_confirm(
    long& result) const {
  return send_words(kWifiDirectConfirm, {{DVC_PNL_CEH_NODE_REQUEST_KIND, 1}}, &result);
}

int dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_contents_hdl_wifi_cancel_connect(
    long& result) const {
  return send_words(kWifiCancelConnect, {{DVC_PNL_CEH_NODE_REQUEST_KIND, 2}, {3959, 2}}, &result);
}

int dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_contents_hdl_execute_access_point_connection()
    const {
  ACCESS_POINT_INFO info{};
  const int ret = read_access_point(function_id_, info);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  const dvc_pnl_cmm_key key = key_of(kAccessPointConnection);
  dvc_pnl_cmm_valueset request;
  add_words(request, key,
            {{DVC_PNL_CEH_NODE_REQUEST_KIND, 2},
             {3511, info.value_3511},
             {3512, info.value_3512},
             {3513, info.value_3513},
             {3514, info.value_3514},
             {3496, info.value_3496},
             {3515, info.value_3515},
             {3516, info.value_3516},
             {3517, info.value_3517},
             {3518, info.value_3518}});
  dvc_pnl_ceh_contents_hdl_set_string_to_request_node(request, key, 3495,
                                                      text_of(info.ssid).c_str());
  add_address(request, key, info.address);
  return send(key, request, nullptr);
}

int dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_contents_hdl_execute_wifi_access_point_connection(
    long& result) const {
  WIFI_ACCESS_POINT_INFO info{};
  int ret = read_access_point(function_id_, info);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  const std::string ssid = text_of(info.ssid);
  const dvc_pnl_cmm_key key = key_of(kAccessPointConnection);
  dvc_pnl_cmm_valueset request;
  add_words(request, key,
            {{DVC_PNL_CEH_NODE_REQUEST_KIND, 1},
             {3959, 2},
             {3511, 0},
             {3512, 0},
             {3513, info.value_3513},
             {3514, info.value_3514},
             {3496, info.value_3496},
             {3515, info.value_3515},
             {3516, 0},
             {3517, 0},
             {3957, info.value_3957},
             {3518, static_cast<long>(ssid.size())}});
  dvc_pnl_ceh_contents_hdl_set_string_to_request_node(request, key, 3495, ssid.c_str());
  // A connection that cannot carry the settings its network asks for is not tried.
  if (info.value_3513 == kEnterpriseSecurity) {
    ret = add_settings(request, key, kEnterpriseNode, enterprise_settings);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
  }
  if (info.value_3957 == kWithCertificate) {
    ret = add_settings(request, key, kCertificateNode, certificate_setting);
    if (ret != DVC_PNL_CEH_RET_OK)
      return ret;
  }
  add_address(request, key, info.address);
  return send(key, request, &result);
}

}  // namespace orvanta
