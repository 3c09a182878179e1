// Condition queries about what is barred: setting value masks, notices after setting changes,
// the job prohibition period and its clock, pull print, location usage; and the record page sets.
#include <cstring>
#include <iterator>
#include <string>
#include <vector>

#include "orvanta/platform/dvu_pnl_gcp_resource.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_cmm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions_internal.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

using conditions::path;

// ---------------------------------------------------------------- setting value masks

unsigned long dvc_pnl_ceh_contents_hdl_settings_node_of(int function) {
  switch (function) {
    case 1:
    case 24:
      return 2;  // copy
    case 3:
      return 161;  // send
    case 4:
      return 206;  // fax
    case 6:
      return 207;  // box print
    case 7:
      return 214;  // box store
    default:
      return DVC_PNL_CEH_FUNC_NODE_NONE;
  }
}

int dvc_pnl_ceh_contents_hdl_get_prohibit_value(int function, DVC_PNL_CMN_ENUM_SETTING_ITEM_ID item,
                                                long& value) {
  const unsigned long settings = dvc_pnl_ceh_contents_hdl_settings_node_of(function);
  if (settings == DVC_PNL_CEH_FUNC_NODE_NONE)
    return DVC_PNL_CEH_RET_OK;
  const path table = {0, 223, 224, settings};
  dvc_pnl_cmm_valueset row;
  const int ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(
      table.data(), 0, static_cast<unsigned>(table.size()), item, row);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("retrieval of setting from cmm failed. ret_code = %d", ret);
    return ret;
  }
  // The mask lies in the row under the row's own key.
  const unsigned long mask_node[] = {0, 223, 224, settings, item, 225};
  long mask = 0;
  const int read = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(mask_node, 0, 6, row, mask);
  if (read == DVC_PNL_CEH_RET_OK)
    value = mask;
  else
    CEH_ERR("Cannot get cmm value ret_code = %d", read);
  return ret;
}

// ---------------------------------------------------------------- notices after setting changes

namespace {

// A changed setting that calls for a notice: its path below ROOT and the notice.
struct prohibition_row {
  std::vector<unsigned long> path;
  DVC_PNL_CEH_CONTENTS_ID notice;
};

const std::vector<prohibition_row>& prohibition_rows() {
  static const std::vector<prohibition_row> rows = {
      {{1, 2, 160, 12, 29, 164}, CID_10_01_N17},    {{1, 2, 160, 12, 29, 30, 32, 33}, CID_10_01_N2},
      {{1, 2, 160, 166, 166, 167}, CID_10_01_N7},   {{1, 2, 160, 12, 104, 165}, CID_10_03_N15},
      {{1, 161, 160, 185, 194}, CID_10_05_N10},     {{1, 2, 160, 12, 29, 34}, CID_10_05_N11},
      {{1, 2, 160, 198, 199}, CID_10_05_N9},        {{1, 2, 160, 12, 13, 14}, CID_10_01_N4},
      {{1, 2, 160, 46, 49, 51}, CID_10_01_N3},      {{1, 2, 160, 46, 49, 50}, CID_10_01_N3},
      {{1, 161, 160, 1, 6, 6}, CID_10_07_N19},      {{1, 161, 160, 185, 188}, CID_10_01_N10},
      {{1, 214, 160, 216, 217}, CID_10_08_N7},      {{1, 161, 160, 166, 184}, CID_10_08_N9},
      {{1, 161, 160, 411}, CID_10_10_N1},           {{1, 2, 160, 12, 2997}, CID_10_10_N2},
      {{1, 2, 160, 12, 3686, 3687}, CID_10_03_N30}, {{1, 161, 160, 12, 3686, 3687}, CID_10_03_N30},
      {{1, 161, 160, 12, 782}, CID_10_01_N25},      {{1, 214, 160, 12, 782}, CID_10_01_N25},
      {{1, 161, 160, 12, 23, 24}, CID_10_13_N5},
  };
  return rows;
}

constexpr int kChangeGroups = 8;
constexpr unsigned long kChanges = 1255;
constexpr unsigned long kChangedSetting = 1256;

// The event node of the changes of a function; fax, fax server, box and send have their own.
unsigned long change_event_node(int function) {
  switch (function) {
    case 3:
      return 1265;
    case 4:
      return 1266;
    case 6:
      return 1267;
    case 7:
      return 1269;
    default:
      return 1253;
  }
}

// The settings node that takes the place of the second element of each path, 0 to keep it.
unsigned long replaced_settings_node(int function) {
  switch (function) {
    case 3:
    case 4:
    case 6:
    case 7:
      return dvc_pnl_ceh_contents_hdl_settings_node_of(function);
    default:
      return 0;
  }
}

bool already_queued(const DVC_PNL_CEH_PROHIBITION_WINDOWS& queue, int count, long change_value,
                    DVC_PNL_CEH_CONTENTS_ID notice) {
  for (int i = 0; i < count; ++i) {
    if (queue.cid[i] == notice && queue.value[i] == change_value)
      return true;
  }
  return false;
}

}  // namespace

int dvc_pnl_ceh_contents_hdl_get_prohibit_cid(const dvc_pnl_evh_panel_event& event, long& cid,
                                              int function) {
  DVC_PNL_CEH_PROHIBITION_WINDOWS queue{};
  for (std::int32_t& place : queue.cid)
    place = CID_NONE;
  queue.index = -1;

  dvc_pnl_cmm_valueset changes;
  if (event.dvc_pnl_evh_get_event_source_valueset(changes) != 0) {
    CEH_ERR("dvc_pnl_evh_get_event_source_valueset ret_code = %d", DVC_PNL_CEH_RET_PLATFORM);
    return DVC_PNL_CEH_RET_PLATFORM;
  }

  const unsigned long event_node = change_event_node(function);
  const unsigned long replaced = replaced_settings_node(function);
  int queued = 0;
  for (int g = 0; g < kChangeGroups && queued < DVC_PNL_CEH_PROHIBITION_PLACES; ++g) {
    const auto& rows = prohibition_rows();
    for (std::size_t r = 0; r < rows.size(); ++r) {
      // 0.E.1255.g.1256.<path>, the path's second element replaced for some functions.
      std::vector<unsigned long> path = rows[r].path;
      if (replaced != 0)
        path[1] = replaced;
      std::vector<unsigned long> key = {0, event_node, kChanges, static_cast<unsigned long>(g),
                                        kChangedSetting};
      key.insert(key.end(), path.begin(), path.end());
      const int keyindex = static_cast<int>(r);

      dvc_pnl_cmm_valueset all;
      if (dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(key.data(), 0, 3, changes, all) !=
              DVC_PNL_CEH_RET_OK ||
          all.dvc_pnl_cmm_size() == 0) {
        CEH_TRC("CUST: dvc_pnl_ceh_contents_hdl_get_prohibit_cid for loop BREAK");
        break;
      }
      // The change group (elements 3 to 5), then the changed value under the full key.
      dvc_pnl_cmm_valueset group;
      long change_value = 0;
      if (dvc_pnl_ceh_contents_hdl_get_child_valueset(key.data(), 3, 5, all, group) !=
              DVC_PNL_CEH_RET_OK ||
          dvc_pnl_ceh_contents_hdl_get_int_from_valueset(key.data(), 6,
                                                         static_cast<unsigned>(key.size()), group,
                                                         change_value) != DVC_PNL_CEH_RET_OK) {
        CEH_TRC("keyindex= %d not ok", keyindex);
        continue;
      }
      if (already_queued(queue, queued, change_value, rows[r].notice))
        continue;

      queue.cid[queued] = rows[r].notice;
      queue.value[queued] = static_cast<std::int32_t>(change_value);
      for (int i = 0; i < DVC_PNL_CEH_PROHIBITION_ITEMS; ++i)
        queue.items[queued][i] =
            i < static_cast<int>(path.size()) ? static_cast<std::int32_t>(path[i]) : -1;
      CEH_TRC("open window cid= %ld", static_cast<long>(rows[r].notice));
      CEH_TRC("index= %d", queued);
      CEH_TRC("keyindex= %d ok", keyindex);
      CEH_TRC("change_value= %ld ", change_value);
      ++queued;
      break;  // one notice per change group
    }
  }

  // Where to go after the last notice: the contents the caller was going to.
  queue.next_cid = static_cast<std::int32_t>(cid);
  if (queued > 0) {
    queue.index = 0;
    cid = queue.cid[0];
  }
  const int ret = dvc_pnl_ceh_contents_hdl_set_binary_to_dm(DVC_PNL_PDM_COPY_PROHIBITION_WINDOWS,
                                                            &queue, sizeof queue, function);
  if (ret != DVC_PNL_CEH_RET_OK)
    CEH_ERR("dvc_pnl_ceh_contents_hdl_set_binary_to_dm ret_code = %d", ret);
  return ret;
}

// ---------------------------------------------------------------- clock and time zones

namespace {

// Text resources of the time zones, 0 for a zone without one.
constexpr int kTimeZones = 116;
constexpr long kTimeZoneResources[kTimeZones] = {
    3182, 3183, 3184, 3185, 3186, 3187, 3188, 3189, 3190, 3191,  //
    3192, 3193, 3194, 3195, 3815, 3196, 3197, 3198, 3199, 3200,  //
    3202, 3203, 3204, 3205, 3206, 3207, 3201, 3208, 3209, 3210,  //
    3211, 3213, 3214, 3215, 3216, 3217, 3218, 3219, 3224, 3220,  //
    3221, 3222, 3223, 3225, 3239, 3226, 3227, 3228, 3816, 3229,  //
    3817, 3230, 3231, 3232, 3233, 3235, 3237, 3238, 3234, 3245,  //
    3240, 3241, 3818, 3242, 3243, 3244, 3246, 3248, 3247, 3254,  //
    3249, 3250, 3251, 3252, 3253, 3257, 3255, 3263, 3256, 3266,  //
    3262, 3259, 3260, 3261, 3258, 3264, 3273, 3265, 3267, 3268,  //
    3275, 3269, 3270, 3271, 3272, 3278, 3274, 3819, 3820, 3276,  //
    3277, 3279, 3281, 3280, 3821, 0,    0,    0,    0,    0,     //
    0,    0,    0,    0,    0,    3236,
};

std::string time_zone_text(long resource) {
  return dvu_pnl_gcp_resource::get_text_resource(static_cast<int>(resource));
}

// The machine's clock: year, month, day, hour, minute and second at 0.4167.1499.
const path kClock = {0, 4167, 1499};
constexpr unsigned long kClockFields[] = {313, 314, 315, 201, 202, 317};

}  // namespace

std::string dvc_pnl_ceh_contents_hdl_get_timez_val_str(ENV_TIMEZ_VAL zone) {
  if (zone < 0 || zone >= kTimeZones || kTimeZoneResources[zone] == 0)
    return "NOT_FOUND";
  return time_zone_text(kTimeZoneResources[zone]);
}

int dvc_pnl_ceh_contents_hdl_get_date_time_setting(DATE_TIME& time) {
  long zone = 0;
  conditions::read_int({0, 230, 311, 320}, zone);
  const std::string text = dvc_pnl_ceh_contents_hdl_get_timez_val_str(static_cast<int>(zone));
  std::memset(time.time_zone, 0, sizeof time.time_zone);
  std::memcpy(time.time_zone, text.data(),
              text.size() < sizeof time.time_zone ? text.size() : sizeof time.time_zone - 1);

  dvc_pnl_cmm_valueset clock;
  int ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm(
      kClock.data(), 0, static_cast<unsigned>(kClock.size()), clock);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("retrieval of setting from cmm failed. ret_code = %d", ret);
    return ret;
  }
  std::int32_t* fields[] = {&time.year, &time.month,  &time.day,
                            &time.hour, &time.minute, &time.second};
  for (std::size_t i = 0; i < std::size(kClockFields); ++i) {
    const unsigned long node[] = {0, 4167, 1499, kClockFields[i]};
    long value = 0;
    ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(node, 0, 4, clock, value);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("retrieval of setting from cmm failed. ret_code = %d", ret);
      return ret;
    }
    *fields[i] = static_cast<std::int32_t>(value);
  }
  return DVC_PNL_CEH_RET_OK;
}

int dvc_pnl_ceh_contents_hdl_is_time_valid(int function) {
  struct entered {
    const std::string& key;
    DVC_PNL_CEH_CONTENTS_ID page;
    long value;
  };
  // The date comes from the date page, the hour from the hour page.
  entered date[] = {
      {DVC_PNL_PDM_CEH_DATA_SANITIZATION_YEAR, CID_07_02_472_N3, 0},
      {DVC_PNL_PDM_CEH_DATA_SANITIZATION_MONTH, CID_07_02_472_N3, 0},
      {DVC_PNL_PDM_CEH_DATA_SANITIZATION_DAY, CID_07_02_472_N3, 0},
      {DVC_PNL_PDM_CEH_DATA_SANITIZATION_HOUR, CID_07_02_472_N4, 0},
  };
  for (entered& e : date) {
    if (dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(e.key, function, e.page, e.value) !=
        DVC_PNL_CEH_RET_OK) {
      CEH_ERR("get int from dm failed. key = %s", e.key.c_str());
      return 0;
    }
  }
  DATE_TIME now{};
  if (dvc_pnl_ceh_contents_hdl_get_date_time_setting(now) != DVC_PNL_CEH_RET_OK)
    return 0;
  const long present[] = {now.year, now.month, now.day};
  for (int i = 0; i < 3; ++i) {
    if (date[i].value != present[i])
      return date[i].value > present[i] ? 1 : 0;
  }
  return now.hour + 1 <= date[3].value ? 1 : 0;
}

// ---------------------------------------------------------------- job prohibition period

int dvc_pnl_ceh_contents_hdl_is_job_prohibit_on() {
  const unsigned long nodes[] = {2361, 601, 602};  // the switch, start and end
  long values[3] = {0, 0, 0};
  for (int i = 0; i < 3; ++i) {
    const unsigned long node[] = {0, 230, 311, 599, nodes[i]};
    const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(node, 4, 5, values[i]);
    if (ret != DVC_PNL_CEH_RET_OK) {
      CEH_ERR("dvc_pnl_ceh_contents_hdl_is_job_prohibit_on ret_code = %d", ret);
      return 0;
    }
  }
  if (values[0] != 1)
    return 0;

  // Times as hour * 100 + minute; a period whose start lies above its end runs over midnight.
  const long start = values[1];
  const long end = values[2];
  DATE_TIME now_time{};
  if (dvc_pnl_ceh_contents_hdl_get_date_time_setting(now_time) != DVC_PNL_CEH_RET_OK)
    return 0;
  const long now = now_time.hour * 100L + now_time.minute;
  bool inside = false;
  if (start < end)
    inside = start <= now && now <= end;
  else if (start > end)
    inside = (start <= now && now <= 2359) || (0 <= now && now <= end);
  if (!inside)
    return 0;

  int released = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(
      DVC_PNL_PDM_RELEASED_FROM_PROHIBITION, released);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("get released from prohibition status from dm failed. ret_code = %d", ret);
    return 0;
  }
  return static_cast<unsigned>(released) > 1U ? 1 : 0;
}

// ---------------------------------------------------------------- pull print

namespace {

int pull_print_documents() {
  int documents = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_PULL_PRINT_DOCUMENT_NUM,
                                                          documents);
  return documents;
}

bool barred(unsigned long permission) {
  return dvc_pnl_ceh_contents_hdl_get_job_permission_state(permission) == 1;
}

}  // namespace

long dvc_pnl_ceh_contents_hdl_get_pull_print_prohibit_state() {
  long reasons = 0;
  const int documents = pull_print_documents();
  if (documents > 1000)
    reasons |= 1;
  if (documents < 1)
    reasons |= 16;
  if (dvc_pnl_ceh_contents_hdl_is_job_prohibit_on() == 1)
    reasons |= 2;
  if (barred(2749))
    reasons |= 4;
  if (barred(2176) || barred(2177))
    reasons |= 8;
  if (barred(2138))
    reasons |= 32;
  else if (barred(2139))
    reasons |= 64;
  else if (barred(2159))
    reasons |= 128;
  return reasons;
}

int dvc_pnl_ceh_contents_hdl_is_pull_print_prohibit_enable() {
  const int management = dvc_pnl_ceh_contents_hdl_get_management();
  if (!conditions::users_log_in(management) || dvc_pnl_ceh_contents_hdl_is_login() != 1)
    return 0;
  dvc_pnl_cmm_valueset response;
  if (dvc_pnl_ceh_contents_hdl_get_user_information(
          dvc_pnl_ceh_contents_hdl_get_authentication_id(), response) != DVC_PNL_CEH_RET_OK)
    return 0;
  long by = 0;
  dvc_pnl_ceh_contents_hdl_get_user_information_int(response, 536, by);
  long kind = 0;
  if (by != 1 || dvc_pnl_ceh_contents_hdl_get_auth_server_type(kind) != DVC_PNL_CEH_RET_OK ||
      kind != 2)
    return 0;
  int running = 0;
  dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_CEH_PULL_PRINT_RUNNING,
                                                          running);
  return pull_print_documents() > 0 && (running & 1) == 0 ? 1 : 0;
}

// ---------------------------------------------------------------- location usage

int is_location_usage_home() {
  const unsigned long node[] = {0, 2064, 4223};
  long usage = 0;
  const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_pnl_cmm(node, 0, 3, usage);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("fail command for management mode. ret_code = %d", ret);
    return ret;
  }
  if (usage != 1)
    return 0;
  return dvc_pnl_ceh_contents_hdl_get_panel_lock_status() == 0 ? 1 : 0;
}

int is_location_usage_home_bypass(long id) {
  if (is_location_usage_home() != 1)
    return 0;
  if (dvc_pnl_ceh_contents_hdl_get_panel_lock_status() != 0)
    return 0;
  // Pages that stay usable at home only through their own checks.
  for (long page : {CID_07_01_19_N1, CID_07_01_57_N2, CID_07_02_11_N1, CID_07_02_24_N1,
                    CID_07_02_266_N1, CID_07_02_343_N1}) {
    if (id == page)
      return 0;
  }
  return 1;
}

// ---------------------------------------------------------------- record detail page sets

void dvc_pnl_ceh_contents_hdl_get_unknown_user_auth_rules_pages(std::vector<long>& pages) {
  pages.push_back(1650);
}

void dvc_pnl_ceh_contents_hdl_get_unknown_user_property_pages(int a, long kind,
                                                              std::vector<long>& pages) {
  if (kind == 2) {
    pages.push_back(1646);
    if (a == 1)
      pages.push_back(1647);
    pages.push_back(1648);
  } else if (kind == 1) {
    pages.push_back(1648);
    pages.push_back(1646);
    if (a == 1)
      pages.push_back(1647);
  } else if (kind == 3) {
    pages.push_back(1648);
    pages.push_back(1649);
  }
}

void dvc_pnl_ceh_contents_hdl_get_local_user_setting_pages(int a, int b, int /*c*/,
                                                           std::vector<long>& pages) {
  pages.push_back(1237);
  if (a != 0)
    pages.push_back(1238);
  pages.insert(pages.end(), {1239, 1240, 1242, 1243});
  if (b != 0)
    pages.push_back(1244);
}

void dvc_pnl_ceh_contents_hdl_get_local_user_property_pages(int a, int b, int /*c*/,
                                                            std::vector<long>& pages) {
  dvc_pnl_cmm_valueset response;
  int ret = dvc_pnl_ceh_contents_hdl_get_user_information(
      dvc_pnl_ceh_contents_hdl_get_authentication_id(), response);
  if (ret != DVC_PNL_CEH_RET_OK) {
    CEH_ERR("dvc_pnl_ceh_contents_hdl_invoke_cmm ret_code = %d", ret);
    return;
  }
  long by = 0;
  dvc_pnl_ceh_contents_hdl_get_user_information_int(response, 536, by);
  const bool network = by == 1;
  long kind = 0;
  long network_only = 0;  // the integer at 0.2758.2758
  if (network) {
    ret = dvc_pnl_ceh_contents_hdl_get_auth_server_type(kind);
    if (ret == DVC_PNL_CEH_RET_OK)
      ret = conditions::read_int({0, 2758, 2758}, network_only);
    if (ret != DVC_PNL_CEH_RET_OK)
      return;
  }

  pages.push_back(591);
  if (a != 0)
    pages.push_back(592);
  pages.insert(pages.end(), {593, 594});
  if (dvc_pnl_ceh_contents_hdl_is_network_user() == 1)
    pages.push_back(595);
  pages.insert(pages.end(), {596, 597});
  if (b == 1 && !(network && kind != 2))
    pages.push_back(598);
  if (network && network_only == 1 && kind != 2)
    pages.insert(pages.end(), {608, 609});
  if (network) {
    pages.push_back(610);
    if (kind == 2)
      pages.push_back(611);
  }
}

}  // namespace orvanta
