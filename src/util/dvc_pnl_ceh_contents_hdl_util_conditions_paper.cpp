// Condition queries about paper: text resources of sizes and kinds, the cassettes and their
// paper, weight ranges, colour documents and originals on the document processor.
#include <iterator>
#include <map>

#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

using conditions::path;

// ---------------------------------------------------------------- sizes and kinds

namespace {

// Text resources of a size code: as an original size, on a flexible key, as cassette paper.
struct size_resources {
  long size;
  long origin;
  long flexible_key;
  long cassette;
};

constexpr size_resources kSizeResources[] = {
    {1, 35, 81, 35},        {2, 30, 30, 30},        {3, 34, 80, 34},        {4, 33, 79, 33},
    {5, 1264, 82, 1277},    {6, 1262, 1001, 1275},  {7, 1263, 1004, 1276},  {8, 1266, 1011, 1279},
    {9, 1269, 1324, 1282},  {13, 1267, 1014, 1280}, {14, 1268, 1017, 1281}, {15, 1270, 1325, 1283},
    {16, 32, 78, 32},       {17, 31, 77, 31},       {18, 1272, 1023, 1285}, {19, 1038, 1039, 1038},
    {25, 1038, 1039, 1038}, {26, 1038, 1039, 1038}, {27, 1038, 1039, 1038}, {31, 883, 1031, 883},
    {32, 1032, 1033, 1032}, {33, 1265, 1175, 1278}, {40, 1273, 1026, 1286}, {42, 2812, 2831, 2812},
    {50, 1274, 1029, 1287}, {51, 1271, 1020, 1284}, {52, 1034, 1035, 1034}, {53, 1036, 1037, 1036},
};

const size_resources* find_size(long size) {
  for (const size_resources& row : kSizeResources) {
    if (row.size == size)
      return &row;
  }
  return nullptr;
}

// The one size that has a text in the other orientation.
constexpr long kOtherOrientationSize = 13;
constexpr long kOtherOrientationResource = 3796;

struct kind_resource {
  long kind;
  long resource;
};

constexpr kind_resource kKindResources[] = {
    {1, 619}, {2, 1398}, {3, 623},  {4, 899},  {5, 278},  {6, 642},  {7, 777},
    {8, 668}, {10, 311}, {12, 393}, {13, 291}, {14, 308}, {16, 974},
};

// Kinds whose text depends on the detail: with detail, without.
struct detailed_kind {
  long kind;
  long with_detail;
  long without_detail;
};

constexpr detailed_kind kDetailedKinds[] = {{9, 902, 1408}, {11, 936, 1407}, {17, 1660, 1734}};

// The custom kinds 21 to 28 give 330 to 337.
constexpr long kFirstCustomKind = 21;
constexpr long kLastCustomKind = 28;
constexpr long kFirstCustomKindResource = 330;

}  // namespace

void dvc_pnl_ceh_contents_hdl_get_origin_size_resource_id(long size, long& resource) {
  const size_resources* row = find_size(size);
  resource = row != nullptr ? row->origin : -1;
}

void dvc_pnl_ceh_contents_hdl_get_origin_size_resource_id_for_flexiblekey(long size,
                                                                          long& resource) {
  const size_resources* row = find_size(size);
  resource = row != nullptr ? row->flexible_key : -1;
}

void dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(long size, long& resource) {
  const size_resources* row = find_size(size);
  resource = row != nullptr ? row->cassette : -1;
}

void dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(long size, long orientation,
                                                                  long& resource) {
  if (orientation == 0)
    dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(size, resource);
  else if (orientation == 1)
    resource = size == kOtherOrientationSize ? kOtherOrientationResource : -1;
  else
    resource = -1;
}

void dvc_pnl_ceh_contents_hdl_get_cassette_paper_kind_resource_id(long kind, long& resource,
                                                                  int detail) {
  for (const kind_resource& row : kKindResources) {
    if (row.kind == kind) {
      resource = row.resource;
      return;
    }
  }
  for (const detailed_kind& row : kDetailedKinds) {
    if (row.kind == kind) {
      resource = detail != 0 ? row.with_detail : row.without_detail;
      return;
    }
  }
  if (kind >= kFirstCustomKind && kind <= kLastCustomKind) {
    resource = kFirstCustomKindResource + (kind - kFirstCustomKind);
    return;
  }
  resource = -1;
}

long dvc_pnl_ceh_contents_hdl_get_paper_orientation_from_msg_label(long label) {
  if (label == 3798)
    return 1;
  if (label == 329 || (label >= 394 && label <= 399) || label == 782 || label == 783 ||
      label == 928 || label == 1059 || (label >= 1301 && label <= 1313) || label == 2832)
    return 0;
  return -1;
}

// ---------------------------------------------------------------- cassettes

namespace conditions {

int read_feeder(long feeder, unsigned long leaf, long& value) {
  // Paper nodes of the feeders: 0.704.705.715.<feeder node>.<leaf>, for feeders 0 to 5.
  constexpr unsigned long kFeederNodes[] = {723, 372, 375, 376, 377, 3049};
  if (feeder < 0 || feeder >= static_cast<long>(std::size(kFeederNodes)))
    return DVC_PNL_CEH_RET_BAD_ARGUMENT;
  const path node = {0, 704, 705, 715, kFeederNodes[feeder], leaf};
  return dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(node.data(), 0,
                                                       static_cast<unsigned>(node.size()), value);
}

}  // namespace conditions

using conditions::kFeederKind;
using conditions::kFeederOrientation;
using conditions::kFeederQuantity;
using conditions::kFeederSize;
using conditions::read_feeder;

namespace {

// The paper source settings of a function's job settings lie in the group 0.1.F.160.46.49,
// with F 207 for function 6 and 2 for every other function.
constexpr unsigned long kManualSource = 50;  // 1: the source is chosen by hand
constexpr unsigned long kChosenCassette = 51;
constexpr unsigned long kManualTraySetting = 52;  // 1 and 2: the tray has a size of its own
constexpr unsigned long kManualTraySize = 53;
constexpr unsigned long kManualTrayKind = 55;
constexpr unsigned long kManualTrayOrientation = 2382;
constexpr int kSourceGroupEntry = 6;

path source_setting(int function, unsigned long leaf) {
  const unsigned long settings = function == 6 ? 207 : 2;
  return {0, 1, settings, 160, 46, 49, leaf};
}

constexpr long kLastFeeder = 5;

int read_source(int function, unsigned long leaf, long& value) {
  const path node = source_setting(function, leaf);
  return dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(node.data(), kSourceGroupEntry,
                                                       static_cast<unsigned>(node.size()), value);
}

bool manual_tray_kind_of_function(long cassette, int function) {
  return cassette == 0 && (function == 1 || function == 6);
}

// Kind and quantity, the steps both cassette reads share.
int read_kind_and_quantity(long cassette, long& kind, long& quantity, int function, long msg_id) {
  int ret = DVC_PNL_CEH_RET_OK;
  if (msg_id == 190) {
    const path media_type_auto = {0, 230, 49, 368, 370};
    ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(
        media_type_auto.data(), 0, static_cast<unsigned>(media_type_auto.size()), kind);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("can not get media type auto ret_code = %d", ret);
      return ret;
    }
  } else if (manual_tray_kind_of_function(cassette, function)) {
    ret = read_source(function, kManualTrayKind, kind);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("can not get mp tray paper kind ret_code = %d", ret);
      return ret;
    }
  } else {
    ret = read_feeder(cassette, kFeederKind, kind);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("can not get cst paper kind ret_code = %d", ret);
      return ret;
    }
  }
  ret = read_feeder(cassette, kFeederQuantity, quantity);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("can not get cst quantity ret_code = %d", ret);
  return ret;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(long& cassette, int function) {
  long manual = 0;
  int ret = read_source(function, kManualSource, manual);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("retrieval of setting from cmm failed. ret_code = %d", ret);
    manual = 0;
  }
  if (manual == 1) {
    ret = read_source(function, kChosenCassette, cassette);
    if (ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("can not get current cassette ret_code = %d", ret);
  } else {
    // The machine chooses the cassette itself; ask which one it would take.
    cassette = 0;
    const path command = {0, 821, 2855};
    dvc_pnl_cmm_valueset response;
    ret = conditions::run_command(command, {{1035, function == 6 ? 5 : 1}}, response);
    if (ret == DVC_PNL_CEH_RET_UNKNOWN_TYPE) {
      CEH_TRC("invoke result : NG.");
    } else if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("invoke failed : ret_code = %d", ret);
    } else {
      CEH_TRC("invoke result : OK.");
      if (function == 1 || function == 6)
        conditions::response_int(command, 129, response, cassette);
    }
  }
  if (cassette > kLastFeeder) {
    CEH_ERR("the cassette name is not WSC_FEEDER_CASS1~4 or MP tray.");
    cassette = 0;
  }
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm_papersourceudpate(
    long cassette, long& size, long& kind, long& quantity, long& orientation, int function,
    long msg_id) {
  int ret = read_feeder(cassette, kFeederSize, size);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get cst paper size ret_code = %d", ret);
    return ret;
  }
  if (cassette == 0) {
    long setting = 0;
    ret = read_source(function, kManualTraySetting, setting);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("can not get mp tray paper setting ret_code = %d", ret);
      return ret;
    }
    if (setting == 1 || setting == 2) {
      ret = read_source(function, kManualTraySize, size);
      if (ret != DVC_PNL_CEH_RET_OK) {
        CEH_ERR("can not get mp tray paper size ret_code = %d", ret);
        return ret;
      }
    }
  }
  ret = read_kind_and_quantity(cassette, kind, quantity, function, msg_id);
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  if (manual_tray_kind_of_function(cassette, function)) {
    ret = read_source(function, kManualTrayOrientation, orientation);
    if (ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("can not get mp tray paper orientation. ret_code = %d", ret);
  } else {
    ret = read_feeder(cassette, kFeederOrientation, orientation);
    if (ret != DVC_PNL_CEH_RET_OK)
      CEH_ERR("can not get cst orientation ret_code = %d", ret);
  }
  return ret;
}

int dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm(long cassette, long& size,
                                                                long& kind, long& quantity,
                                                                int function, long msg_id) {
  int ret = DVC_PNL_CEH_RET_OK;
  if (cassette == 0) {
    ret = read_source(function, kManualTraySize, size);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("can not get mp tray paper size ret_code = %d", ret);
      return ret;
    }
  } else {
    ret = read_feeder(cassette, kFeederSize, size);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("can not get cst paper size ret_code = %d", ret);
      return ret;
    }
  }
  return read_kind_and_quantity(cassette, kind, quantity, function, msg_id);
}

// ---------------------------------------------------------------- paper weights

namespace {

constexpr ENV_PAPER_WEIGHT_VAL kLightest = 0;
constexpr ENV_PAPER_WEIGHT_VAL kHeaviest = 9;

struct weight_range {
  ENV_MEDIA_TYPE_VAL type;
  ENV_PAPER_WEIGHT_VAL min;
  ENV_PAPER_WEIGHT_VAL max;
};

// Weights each media type allows.
constexpr weight_range kTypeWeights[] = {
    {1, 1, 3},  {2, 9, 9},  {3, 1, 6},  {4, 1, 6},  {5, 1, 6},  {6, 1, 6},  {7, 1, 6},  {8, 1, 6},
    {9, 1, 6},  {10, 1, 6}, {11, 1, 6}, {14, 1, 6}, {17, 1, 6}, {12, 4, 6}, {13, 4, 6}, {16, 4, 6},
    {21, 0, 9}, {22, 0, 9}, {23, 0, 9}, {24, 0, 9}, {25, 0, 9}, {26, 0, 9}, {27, 0, 9}, {28, 0, 9},
};

bool custom_media_type(ENV_MEDIA_TYPE_VAL type) {
  return type >= 21 && type <= 28;
}

// The order of the weights; a value missing here is no weight at all.
const std::map<ENV_PAPER_WEIGHT_VAL, int>& weight_ranks() {
  static const std::map<ENV_PAPER_WEIGHT_VAL, int> ranks = {
      {0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 7}, {8, 8}, {9, 9},
  };
  return ranks;
}

}  // namespace

void dvc_pnl_ceh_contents_hdl_get_paper_type_weight_range(ENV_MEDIA_TYPE_VAL type,
                                                          ENV_PAPER_WEIGHT_VAL& min,
                                                          ENV_PAPER_WEIGHT_VAL& max) {
  for (const weight_range& row : kTypeWeights) {
    if (row.type == type) {
      min = row.min;
      max = row.max;
      return;
    }
  }
  min = kLightest;
  max = kHeaviest;
}

void dvc_pnl_ceh_contents_hdl_get_paper_source_weight_range(WSC_VAL_FEEDER source,
                                                            ENV_MEDIA_TYPE_VAL type,
                                                            ENV_PAPER_WEIGHT_VAL& min,
                                                            ENV_PAPER_WEIGHT_VAL& max) {
  if (custom_media_type(type)) {
    min = kLightest;
    max = kHeaviest;
  } else if (source == 0) {
    min = 1;
    max = 9;
  } else if (source >= 1 && source <= 3) {
    min = 1;
    max = 5;
  } else {
    min = kLightest;
    max = kHeaviest;
  }
}

int dvc_pnl_ceh_contents_hdl_paper_weight_limit_check(ENV_PAPER_WEIGHT_VAL min,
                                                      ENV_PAPER_WEIGHT_VAL max,
                                                      ENV_PAPER_WEIGHT_VAL weight) {
  const auto& ranks = weight_ranks();
  const auto lo = ranks.find(min);
  const auto hi = ranks.find(max);
  const auto w = ranks.find(weight);
  int status = 0;
  if (lo != ranks.end() && hi != ranks.end() && w != ranks.end())
    status = lo->second <= w->second && w->second <= hi->second ? 1 : 0;
  CEH_TRC("dvc_pnl_ceh_contents_hdl_paper_weight_limit_check min[%d] max[%d] w[%d] sts[%d].", min,
          max, weight, status);
  return status;
}

// ---------------------------------------------------------------- documents

int dvc_pnl_ceh_contents_hdl_is_color_document(int box, int file) {
  // ROOT.BOX.FILE_OPERATION.COLOR_CONFIRMATION
  const path command = {0, 857, 866, 2885};
  dvc_pnl_cmm_key key;
  dvc_pnl_ceh_contents_hdl_build_key(key, command.data(), static_cast<unsigned>(command.size()));

  // The file goes in entry 0 of the file list at 1342.
  const unsigned long file_node[] = {0, 857, 866, 2885, 1342, 0, 1336};
  dvc_pnl_cmm_valueset entry;
  dvc_pnl_ceh_contents_hdl_set_int_to_valueset(file_node, 0, 7, entry, static_cast<long>(file));
  dvc_pnl_cmm_valueset files;
  dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(file_node, 0, 6, files, entry);

  dvc_pnl_cmm_valueset request;
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, DVC_PNL_CEH_NODE_REQUEST_KIND, 1);
  dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, key, 1301, box);
  dvc_pnl_ceh_contents_hdl_set_valueset_to_request_node(request, key, 1342, files);

  dvc_pnl_cmm_valueset response;
  int ret = conditions::run_command(command, request, response);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("ROOT.BOX.FILE_OPERATION.COLOR_CONFIRMATION Error rc = %d", ret);
    return 0;
  }
  // The answer: entry 0 of the set at 1541, and in it the colour mode at 1518.
  const unsigned long mode_node[] = {0, 857, 866, 2885, 1541, 0, 1518};
  long mode = 0;
  ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(mode_node, 5, 7, response, mode);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("ROOT.BOX.FILE_OPERATION.COLOR_CONFIRMATION Error rc = %d", ret);
    return 0;
  }
  return mode == 2 || mode == 3 ? 0 : 1;
}

int dvc_pnl_ceh_contents_hdl_is_paper_set_on_dp(const dvc_pnl_evh_panel_event* event) {
  dvc_pnl_cmm_valueset status;
  int ret = DVC_PNL_CEH_RET_OK;
  if (event == nullptr) {
    ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_application_scope(
        DVC_PNL_PDM_ORIGINAL_STATUS_UPDATE, status);
  } else if (event->dvc_pnl_evh_get_event_source_valueset(status) != 0) {
    ret = DVC_PNL_CEH_RET_PLATFORM;
  }
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("failed dvc_pnl_cmm_get_int. ret_code = %d", ret);
    return 0;
  }
  // Both sensors of the group 0.1210 must report originals.
  const unsigned long sensors[][3] = {{0, 1210, 1211}, {0, 1210, 1212}};
  long values[2] = {-1, -1};
  for (int i = 0; i < 2; ++i) {
    ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(sensors[i], 2, 3, status, values[i]);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("failed dvc_pnl_cmm_get_int. ret_code = %d", ret);
      return 0;
    }
  }
  const int set = values[0] == 1 && values[1] == 1 ? 1 : 0;
  CEH_TRC("is_set_dp = %d", set);
  return set;
}

}  // namespace orvanta
