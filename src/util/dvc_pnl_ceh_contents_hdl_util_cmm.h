// Command mediator access: reads, writes and commands on the machine's node tree, event
// subscriptions, and the user list read.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta {

// The mode every get and set of the mediator is called with.
inline constexpr int DVC_PNL_CEH_CMM_MODE = 1;

// Common nodes of command requests and responses.
inline constexpr unsigned long DVC_PNL_CEH_NODE_REQUEST_KIND = 1320;
inline constexpr unsigned long DVC_PNL_CEH_NODE_RESULT = 1484;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_REQUEST = 938;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_SORT_KEY = 1475;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_COUNT = 1476;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_METHOD = 1477;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_START = 1478;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_SEARCH_TEXT = 1479;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_TOTAL_SIZE = 1592;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_HEAD_1337 = 1337;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_HEAD_1524 = 1524;
inline constexpr unsigned long DVC_PNL_CEH_NODE_LIST_BODY = 1501;

// ---- the three verbs ----

// Runs `command`; 0 when it got through, 3 when the mediator could not deliver it. The response
// is whatever the mediator left in it: on failure the caller must not read it.
int dvc_pnl_ceh_contents_hdl_invoke_cmm(dvc_pnl_cmm_key command, dvc_pnl_cmm_valueset request,
                                        dvc_pnl_cmm_valueset& response);

// Reads and writes addressed by `node_name` and `nsize`. `vs_start_pos` 0: the mediator resolves
// all `nsize` elements. A positive n: the mediator is asked for the group at the first n elements
// and the entry is picked out of (or, for writes, replaced inside) that group, so a group write
// sends the whole group back.

// The common read: `value` receives the entry in the kind `type` names.
int dvc_pnl_ceh_contents_hdl_get_data_from_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                   unsigned nsize, dvc_pnl_cmm_value& value,
                                                   const NAME_SPACE_NODE_TYPE& type);
// `value` is 0 when the read fails after the argument checks.
int dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                  unsigned nsize, long& value);
// A NULL string reads as an empty one.
int dvc_pnl_ceh_contents_hdl_get_string_from_pnl_cmm(const unsigned long* node_name,
                                                     int vs_start_pos, unsigned nsize,
                                                     std::string& value);
int dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm(const unsigned long* node_name,
                                                       int vs_start_pos, unsigned nsize,
                                                       dvc_pnl_cmm_valueset& value);

// The common write: `value` holds the datum in the kind `type` names.
int dvc_pnl_ceh_contents_hdl_set_data_to_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                 unsigned nsize, const dvc_pnl_cmm_value& value,
                                                 const NAME_SPACE_NODE_TYPE& type);
int dvc_pnl_ceh_contents_hdl_set_int_to_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                unsigned nsize, const long& value);
int dvc_pnl_ceh_contents_hdl_set_string_to_pnl_cmm(const unsigned long* node_name, int vs_start_pos,
                                                   unsigned nsize, const char* value);
int dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm(const unsigned long* node_name,
                                                     int vs_start_pos, unsigned nsize,
                                                     const dvc_pnl_cmm_valueset& value);

// Tables whose rows are keyed by position (entry 0 current values, entry 1 defaults). Only
// `vs_start_pos` 0 is served; any other start position in range does nothing and answers 0.
int dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(const unsigned long* node_name,
                                                                int vs_start_pos, unsigned nsize,
                                                                unsigned index,
                                                                dvc_pnl_cmm_valueset& value);
// Replaces entry `index` of the table, or adds it when the table has none yet, and writes the
// whole table back.
int dvc_pnl_ceh_contents_hdl_set_valueset_to_pnl_cmm_by_index(const unsigned long* node_name,
                                                              int vs_start_pos, unsigned nsize,
                                                              unsigned index,
                                                              const dvc_pnl_cmm_valueset& value);

// ---- event subscriptions of the event proxy beyond its fixed set ----

// Both go to the dispatcher every time; nothing here counts subscriptions.
int dvc_pnl_ceh_contents_hdl_register_event(unsigned long event_id);
int dvc_pnl_ceh_contents_hdl_remove_event(unsigned long event_id);

// ---- the user list, 0.938.959 ----

inline constexpr unsigned long DVC_PNL_CEH_NODE_USER_LIST = 959;
// Size of the name buffer of a user row, terminator included.
inline constexpr std::size_t DVC_PNL_CEH_USER_NAME_SIZE = 1153;

// The request words, in the order they are written: nodes 1320, 1475, 1476, 1477, 1478, 2054,
// 3620.
struct DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_REQUEST {
  long request_kind;  // 1320, 1 in nearly every command
  long sort_key;      // 1475
  long count;         // 1476, rows wanted
  long method;        // 1477, 1 by position, 3 by number, 4 by text
  long start;         // 1478, first row wanted (counted from 0) or the number looked for
  long filter_2054;   // 2054
  long filter_3620;   // 3620
};

// One row, copied out of the response at once.
struct DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_LIST_STATUS {
  long id;                                // 1365
  char name[DVC_PNL_CEH_USER_NAME_SIZE];  // 1037, always terminated
  long role;                              // 1561, 1 administrator, 3 machine administrator
};

struct DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_RESPONSE {
  long result;           // RESULT, 1484
  long list_total_size;  // 1592, rows in the whole list
  long value_1337;       // 1337
  long value_1524;       // 1524
  std::vector<DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_LIST_STATUS> list_status;
};

// Asks for the users and copies the answer out. 0, or the code of the step that failed; the head
// and the rows are read whatever RESULT holds, so the caller looks at `response.result`.
int dvc_pnl_ceh_contents_hdl_get_user_list_from_cmm(
    const DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_REQUEST& request,
    DVC_PNL_CEH_CONTENTS_HDL_USER_LIST_RESPONSE& response);

}  // namespace orvanta
