// Main messages: reading the list from the acquire command or a refresh event, the table of
// message ids to text resources, the paper and function dependent messages, polling reception.
#include "services/dvc_pnl_ceh_contents_hdl_fd_msg.h"

#include <algorithm>
#include <array>
#include <vector>

#include "orvanta/platform/dvc_pnl_cmm_command_mediator.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions_internal.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

namespace {

using node_path = std::vector<unsigned long>;

// ---- where the messages come from ----

constexpr unsigned long kMessageRoot = 800;  // ROOT.MESSAGE: 0.800.<node> acquires a list
constexpr unsigned long kEventCount = 1059;  // 0.<group>.1059: number of messages of an event
constexpr unsigned long kEventList = 1060;   // 0.<group>.1060.<i>: one message of an event

struct message_source {
  int function;
  unsigned long acquire_node;
  unsigned long event_group;
};

// The first row serves every function not listed.
constexpr message_source kSources[] = {
    {1, 801, 1058}, {3, 802, 1074}, {4, 803, 1075}, {6, 805, 1077}, {7, 806, 1078},
};

const message_source& source_of(int function) {
  for (const message_source& s : kSources) {
    if (s.function == function)
      return s;
  }
  return kSources[0];
}

// ---- fields of one message ----

constexpr unsigned long kFieldId = 1061;
constexpr unsigned long kFieldParameter = 1062;
constexpr unsigned long kFieldFeeder = 3301;
constexpr unsigned long kFieldManualTrayMode = 1068;
constexpr unsigned long kFieldManualTrayKind = 2791;
constexpr unsigned long kFieldManualTraySize = 1071;
constexpr unsigned long kFieldGivenKind = 3306;
constexpr unsigned long kFieldGivenSize = 2063;

constexpr long kFeederGiven = 255;  // the message carries size and kind itself
constexpr long kFeederManualTray = 0;

// ---- the message ids with a meaning of their own ----

constexpr long kMsgSizeFromFeeder = 129;
constexpr long kMsgSizeOfFeeder = 132;
constexpr long kMsgKindOfFeeder = 133;
constexpr long kMsgPaperPair = 190;
constexpr long kMsgByFunction = 482;
constexpr long kMsgNumbered[] = {580, 583, 585, 586};  // events carry the number of 2920
constexpr long kMsgLowest = 4;
constexpr long kMsgHighest = 622;

// What a message id shows: up to two text resources, shown one after the other. Ids of a row
// end at the first 0; a second resource of -1 means none.
struct message_row {
  std::array<long, 2> resources;
  std::array<long, 12> ids;
};

constexpr long kNone = -1;

constexpr message_row kMessageTable[] = {
    {{3396, kNone}, {4}},
    {{2083, kNone}, {6}},
    {{960, kNone}, {9}},
    {{3395, kNone}, {10}},
    {{2480, kNone}, {20, 23}},
    {{858, kNone}, {35, 36, 65, 73, 74, 269, 270, 384, 386, 392, 429}},
    {{2483, kNone}, {41, 378, 423, 424, 425, 426, 427, 430, 431, 432, 433, 436}},
    {{2481, kNone}, {42, 383, 428, 577}},
    {{2485, kNone}, {62, 63, 64}},
    {{2484, kNone}, {67, 69}},
    {{3558, 3559}, {83}},
    {{2427, 2428}, {119}},
    {{1652, kNone}, {168, 169}},
    {{1646, kNone}, {170, 487}},
    {{1647, kNone}, {171}},
    {{1648, kNone}, {172}},
    {{1649, kNone}, {173}},
    {{1042, kNone}, {206, 214}},
    {{1043, kNone}, {207, 215}},
    {{1044, kNone}, {208, 216}},
    {{1644, kNone}, {209, 217}},
    {{1645, kNone}, {210, 218}},
    {{1045, kNone}, {213, 221}},
    {{934, kNone}, {222}},
    {{963, kNone}, {234, 255, 257}},
    {{800, 1560}, {237}},
    {{800, kNone}, {238}},
    {{803, 1560}, {263}},
    {{803, kNone}, {277}},
    {{3364, 3365}, {284, 285, 537}},
    {{799, 858}, {326}},
    {{799, 1651}, {333}},
    {{799, 2784}, {335}},
    {{799, kNone}, {337}},
    {{802, 858}, {343}},
    {{802, kNone}, {346}},
    {{801, 858}, {360}},
    {{801, kNone}, {366}},
    {{2482, kNone}, {373, 379, 385, 391}},
    {{803, 858}, {402, 403, 413, 437}},
    {{800, 858}, {438, 443}},
    {{799, 1046}, {474}},
    {{2705, kNone}, {479}},
    {{3649, 3365}, {480}},
    {{3324, kNone}, {492, 543}},
    {{3432, 3434}, {494, 497, 500, 502}},
    {{3433, 3434}, {495, 498, 501, 503}},
    {{1040, kNone}, {505, 542}},
    {{2425, 2426}, {509}},
    {{3086, kNone}, {527}},
    {{3091, kNone}, {549}},
    {{3538, 3540}, {558, 562}},
    {{3538, 3541}, {559, 563}},
    {{3538, 3539}, {560, 564}},
    {{3538, 3542}, {561, 565}},
    {{1650, kNone}, {576}},
    {{1040, 2920}, {580, 586}},
    {{2994, kNone}, {581}},
    {{3088, kNone}, {582, 584}},
    {{3088, 2920}, {583, 585}},
    {{799, 3321}, {593}},
    {{799, 3322}, {594}},
    {{803, 3321}, {595, 597}},
    {{803, 3322}, {596, 598}},
    {{802, 3321}, {599}},
    {{802, 3322}, {600}},
    {{991, kNone}, {622}},
};

const message_row* find_row(long id) {
  for (const message_row& row : kMessageTable) {
    for (long listed : row.ids) {
      if (listed == 0)
        break;
      if (listed == id)
        return &row;
    }
  }
  return nullptr;
}

// Messages whose first resource names the function, then fixed resources.
constexpr long kMsgsByFunctionPair[] = {493, 499, 578};
constexpr long kByFunctionSuffix = 2191;
constexpr long kByFunctionPairSuffix[] = {3076, 3077};

// The resource naming the function before message 482; -1 for a function without one.
long function_resource_482(int function) {
  switch (function) {
    case 1:
      return 799;
    case 3:
    case 4:
      return 803;
    case 7:
      return 802;
    case 6:
      return 801;
    default:
      return kNone;
  }
}

// The same before messages 493, 499 and 578.
long function_resource_pair(int function) {
  switch (function) {
    case 1:
      return 799;
    case 6:
      return 801;
    default:
      return kNone;
  }
}

// Messages after which a guest sees 3513.
constexpr long kGuestMessages[] = {23,  22,  20,  560, 558, 559, 561, 564, 562, 563, 565,
                                   24,  35,  36,  25,  37,  41,  423, 424, 378, 425, 436,
                                   426, 427, 430, 431, 432, 433, 42,  577, 383, 428, 373,
                                   379, 385, 391, 67,  68,  69,  62,  63,  64};
static_assert(std::size(kGuestMessages) == 42);

template <std::size_t N>
bool listed(const long (&ids)[N], long id) {
  return std::find(std::begin(ids), std::end(ids), id) != std::end(ids);
}

constexpr bool is_paper_message(long id) {
  return id == kMsgSizeFromFeeder || id == kMsgSizeOfFeeder || id == kMsgKindOfFeeder ||
         id == kMsgPaperPair;
}

// ---- paper of a feeder ----

constexpr long kLastFeeder = 5;

// The paper leaf of a feeder; `value` keeps its value when the read fails.
int read_feeder(WSC_VAL_FEEDER feeder, unsigned long leaf, long& value) {
  long read = 0;
  const int ret = conditions::read_feeder(feeder, leaf, read);
  if (ret == DVC_PNL_CEH_RET_OK)
    value = read;
  return ret;
}

// ---- reading one message ----

// The key of a message without its field, and the start position of the reads below it.
struct message_at {
  const dvc_pnl_cmm_valueset& set;
  node_path key;
  int start;
};

// Reads field `field` of the message into `value`, which keeps its value on failure.
int read_field(const message_at& at, unsigned long field, long& value) {
  node_path node = at.key;
  node.push_back(field);
  long read = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(
      node.data(), at.start, static_cast<unsigned>(node.size()), at.set, read);
  if (ret == DVC_PNL_CEH_RET_OK)
    value = read;
  return ret;
}

// Reads the parameters of message `id` into `kind` and `size`. Failed reads are not traced:
// the locals keep what the message before left in them.
void read_parameters(dvc_pnl_ceh_contents_hdl_fd_msg& msg, const message_at& at, long id,
                     long& kind, long& size) {
  if (id == kMsgPaperPair) {
    read_field(at, kFieldGivenKind, kind);
    read_field(at, kFieldGivenSize, size);
    return;
  }
  if (!is_paper_message(id)) {
    read_field(at, kFieldParameter, kind);
    return;
  }
  long feeder = kFeederManualTray;
  read_field(at, kFieldFeeder, feeder);
  if (feeder == kFeederGiven) {
    read_field(at, kFieldGivenKind, kind);
    read_field(at, kFieldGivenSize, size);
  } else if (feeder == kFeederManualTray) {
    long mode = 0;
    read_field(at, kFieldManualTrayMode, mode);
    if (mode == 0) {
      msg.get_paper_information(kind, size, kFeederManualTray);
    } else if (mode == 1 || mode == 2) {
      read_field(at, kFieldManualTrayKind, kind);
      read_field(at, kFieldManualTraySize, size);
    }
  } else {
    msg.get_paper_information(kind, size, static_cast<WSC_VAL_FEEDER>(feeder));
  }
}

int position(const std::vector<long>& list) {
  return static_cast<int>(list.size());
}

}  // namespace

dvc_pnl_ceh_contents_hdl_fd_msg::~dvc_pnl_ceh_contents_hdl_fd_msg() = default;

void dvc_pnl_ceh_contents_hdl_fd_msg::start_read(int function) {
  function_ = function;
  msg_res_list_.clear();
  msg_index_list_.clear();
  additional_msg_index_list_.clear();
}

void dvc_pnl_ceh_contents_hdl_fd_msg::get_main_msg_list_from_cmm(int function) {
  start_read(function);
  const unsigned long node = source_of(function).acquire_node;
  const unsigned long command_nodes[] = {0, kMessageRoot, node};
  const char* name = "ROOT.MESSAGE.XXX_MAIN_MESSAGE_ACQUIRE";

  dvc_pnl_cmm_key command;
  dvc_pnl_cmm_valueset request;
  dvc_pnl_cmm_valueset response;
  int ret = dvc_pnl_ceh_contents_hdl_build_key(command, command_nodes, 3);
  if (ret == DVC_PNL_CEH_RET_OK) {
    dvc_pnl_ceh_contents_hdl_set_int_to_request_node(request, command,
                                                     DVC_PNL_CEH_NODE_REQUEST_KIND, 1);
    ret = dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance().dvc_pnl_cmm_invoke(command, request,
                                                                                  response);
  }
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_PLATFORM_FAIL(ret, name);
    return;
  }

  const unsigned long result_node[] = {0, kMessageRoot, node, DVC_PNL_CEH_NODE_RESULT};
  long result = -1;
  ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(result_node, 4, 4, response, result);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("%s ret_code = %d", name, ret);
    return;
  }
  if (result != 0)
    return;

  const unsigned long body_node[] = {0, kMessageRoot, node, DVC_PNL_CEH_NODE_LIST_BODY};
  dvc_pnl_cmm_valueset body;
  ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(body_node, 4, 4, response, body);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("Can not get valueset from valueset. ret_code = %d", ret);
    return;
  }

  // Kind and size carry over from one message to the next.
  long id = -1;
  long kind = -1;
  long size = -1;
  const long count = body.dvc_pnl_cmm_size();
  for (long i = 0; i < count; ++i) {
    const message_at at{
        response,
        {0, kMessageRoot, node, DVC_PNL_CEH_NODE_LIST_BODY, static_cast<unsigned long>(i)},
        4};
    ret = read_field(at, kFieldId, id);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("Can not get msg id from cmm. ret_code = %d", ret);
      break;
    }
    read_parameters(*this, at, id, kind, size);
    convert_main_msg_from_cm_to_res(id, kind, size);
  }
}

int dvc_pnl_ceh_contents_hdl_fd_msg::on_panel_event_refresh_msg(int function,
                                                                dvc_pnl_cmm_valueset event) {
  start_read(function);
  const unsigned long group = source_of(function).event_group;
  const unsigned long count_node[] = {0, group, kEventCount};
  long count = -1;
  int ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(count_node, 2, 3, event, count);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("Can not get effective message num from valueset ret_code = %d", ret);
    return ret;
  }

  long id = -1;
  long kind = -1;
  long size = -1;
  for (long i = 0; i < count; ++i) {
    const message_at at{event, {0, group, kEventList, static_cast<unsigned long>(i)}, 2};
    ret = read_field(at, kFieldId, id);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("Can not get msg id from cmm  ret_code = %d", ret);
      return ret;
    }
    if (listed(kMsgNumbered, id)) {
      long number = -1;
      read_field(at, kFieldParameter, number);
      msg_number_value_ = number;
    } else {
      read_parameters(*this, at, id, kind, size);
    }
    convert_main_msg_from_cm_to_res(id, kind, size);
  }
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_fd_msg::get_curr_msg_cnt() {
  return position(msg_res_list_);
}

long dvc_pnl_ceh_contents_hdl_fd_msg::get_msg_res_by_index(int index) {
  if (msg_res_list_.empty())
    return -1;
  const int count = position(msg_res_list_);
  // A negative index counts back from the end, so the rotation may step either way.
  const int at = ((index % count) + count) % count;
  return msg_res_list_[static_cast<std::size_t>(at)];
}

int dvc_pnl_ceh_contents_hdl_fd_msg::check_msg_index_status(int index) {
  return std::find(msg_index_list_.begin(), msg_index_list_.end(), index) != msg_index_list_.end()
             ? 0
             : 1;
}

int dvc_pnl_ceh_contents_hdl_fd_msg::check_additional_msg_index_status(int index) {
  return std::find(additional_msg_index_list_.begin(), additional_msg_index_list_.end(), index) !=
                 additional_msg_index_list_.end()
             ? 0
             : 1;
}

void dvc_pnl_ceh_contents_hdl_fd_msg::add_remote_panel_message() {
  if (std::find(msg_res_list_.begin(), msg_res_list_.end(), DVC_PNL_CEH_MSG_RES_REMOTE_PANEL) ==
      msg_res_list_.end())
    msg_res_list_.insert(msg_res_list_.begin(), DVC_PNL_CEH_MSG_RES_REMOTE_PANEL);
}

void dvc_pnl_ceh_contents_hdl_fd_msg::remove_remote_panel_message() {
  std::erase(msg_res_list_, DVC_PNL_CEH_MSG_RES_REMOTE_PANEL);
}

int dvc_pnl_ceh_contents_hdl_fd_msg::get_paper_information(long& kind, long& size,
                                                           WSC_VAL_FEEDER feeder) {
  if (feeder < 0 || feeder > kLastFeeder)
    return 0;
  int ret = read_feeder(feeder, conditions::kFeederSize, size);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get cst paper size ret_code = %d", ret);
    return 0;
  }
  ret = read_feeder(feeder, conditions::kFeederKind, kind);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("can not get cst paper kind ret_code = %d", ret);
    return 0;
  }
  return 1;
}

void dvc_pnl_ceh_contents_hdl_fd_msg::append_paper_message(long id, long kind, long size) {
  long cassette = 0;
  dvc_pnl_ceh_contents_hdl_get_curr_cassette_id_from_cmm(cassette, function_);
  // Only the orientation of the cassette's paper is used; the size and kind shown are the
  // message's. Without a record the plain orientation stands.
  long record_size = 0;
  long record_kind = 0;
  long quantity = 0;
  long orientation = 0;
  dvc_pnl_ceh_contents_hdl_get_specify_cassette_info_from_cmm_papersourceudpate(
      cassette, record_size, record_kind, quantity, orientation, function_,
      id == kMsgPaperPair ? kMsgPaperPair : -1);
  long size_resource = kNone;
  long kind_resource = kNone;
  dvc_pnl_ceh_contents_hdl_get_cassette_paper_size_resource_id(size, orientation, size_resource);
  dvc_pnl_ceh_contents_hdl_get_cassette_paper_kind_resource_id(kind, kind_resource, 0);

  switch (id) {
    case kMsgSizeFromFeeder:
      msg_res_list_.push_back(2401);
      msg_res_list_.push_back(size_resource);
      break;
    case kMsgSizeOfFeeder:
      msg_res_list_.push_back(2400);
      msg_res_list_.push_back(size_resource);
      break;
    case kMsgKindOfFeeder:
      msg_res_list_.push_back(2400);
      msg_res_list_.push_back(kind_resource);
      break;
    default:  // kMsgPaperPair
      msg_res_list_.push_back(1047);
      msg_res_list_.push_back(size_resource);
      if (kind_resource != kNone) {
        additional_msg_index_list_.push_back(position(msg_res_list_) - 1);
        msg_res_list_.push_back(kind_resource);
      }
      break;
  }
}

void dvc_pnl_ceh_contents_hdl_fd_msg::convert_main_msg_from_cm_to_res(long id, long kind,
                                                                      long size) {
  if (is_remote_connected() == 1)
    msg_res_list_.push_back(DVC_PNL_CEH_MSG_RES_REMOTE_PANEL);

  if (id == kMsgByFunction) {
    if (const long first = function_resource_482(function_); first != kNone)
      msg_res_list_.push_back(first);
    msg_res_list_.push_back(kByFunctionSuffix);
  } else if (listed(kMsgsByFunctionPair, id)) {
    if (const long first = function_resource_pair(function_); first != kNone)
      msg_res_list_.push_back(first);
    msg_res_list_.insert(msg_res_list_.end(), std::begin(kByFunctionPairSuffix),
                         std::end(kByFunctionPairSuffix));
  } else if (is_paper_message(id)) {
    append_paper_message(id, kind, size);
  } else if (const message_row* row = id < kMsgLowest || id > kMsgHighest ? nullptr : find_row(id);
             row != nullptr) {
    for (long resource : row->resources) {
      if (resource != kNone)
        msg_res_list_.push_back(resource);
    }
  } else {
    // The screen shows the id's digits.
    msg_index_list_.push_back(position(msg_res_list_));
    msg_res_list_.push_back(id);
  }

  if (dvc_pnl_ceh_contents_hdl_is_guest_user() == 1 && listed(kGuestMessages, id))
    msg_res_list_.push_back(DVC_PNL_CEH_MSG_RES_GUEST);
}

int dvc_pnl_ceh_contents_hdl_fd_msg::get_polling_rx_status(int function) {
  // Polling reception is a setting of the fax job for the fax function, of the send job else.
  const unsigned long tree = dvc_pnl_ceh_contents_hdl_settings_node_of(function == 4 ? 4 : 3);
  const unsigned long node[] = {0, 1, tree, 160, 203, 204};
  long value = -1;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(node, 0, 6, value);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("Can not get polling status from cmm. ret_code = %d", ret);
    return 0;
  }
  polling_rx_status_ = value == 1 ? 1 : 0;
  return polling_rx_status_;
}

}  // namespace orvanta
