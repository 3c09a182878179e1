// One touch keys: the four commands of the one touch key store and the hand-over of the pressed
// key.
#include "services/dvc_pnl_ceh_contents_hdl_one_touch.h"

#include <cstring>
#include <string>

#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "services/dvc_pnl_ceh_contents_hdl_store_command.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"

namespace orvanta {

namespace {

using command = dvc_pnl_ceh_contents_hdl_store_command;

command key_command(unsigned long leaf, const ONE_TOUCH_KEY_DETAIL& detail) {
  command c({0, DVC_PNL_CEH_NODE_OTHER, DVC_PNL_CEH_ONE_TOUCH, leaf});
  c.add_int(DVC_PNL_CEH_NODE_ONE_TOUCH_NUMBER, detail.number);
  return c;
}

// A full name field need not be terminated: it goes out up to its size.
std::string name_of(const ONE_TOUCH_KEY_DETAIL& detail) {
  return std::string(detail.name, strnlen(detail.name, sizeof detail.name));
}

}  // namespace

dvc_pnl_ceh_contents_hdl_one_touch::~dvc_pnl_ceh_contents_hdl_one_touch() = default;

int dvc_pnl_ceh_contents_hdl_one_touch::aquire_one_touch_key(ONE_TOUCH_KEY_DETAIL& detail) {
  command c = key_command(DVC_PNL_CEH_ONE_TOUCH_AQUIRE, detail);
  const int ret = c.invoke();
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  const long result = c.result();
  if (result == DVC_PNL_CEH_ONE_TOUCH_FREE) {
    detail.mode = DVC_PNL_CEH_ONE_TOUCH_MODE_NEW;
  } else if (result == DVC_PNL_CEH_ONE_TOUCH_IN_USE) {
    long kind = detail.destination_kind;
    c.read_int(DVC_PNL_CEH_NODE_DESTINATION_KIND, kind);
    detail.destination_kind = static_cast<std::int32_t>(kind);
    long sub_number = 0;
    if (kind == DVC_PNL_CEH_DESTINATION_CONTACT) {
      sub_number = detail.destination_sub_number;
      c.read_int(DVC_PNL_CEH_NODE_DESTINATION_SUB_NUMBER, sub_number);
    }
    detail.destination_sub_number = static_cast<std::int32_t>(sub_number);
    long number = detail.destination_number;
    c.read_int(DVC_PNL_CEH_NODE_DESTINATION_NUMBER, number);
    detail.destination_number = static_cast<std::int32_t>(number);
  }
  return ret;
}

int dvc_pnl_ceh_contents_hdl_one_touch::register_one_touch_key(ONE_TOUCH_KEY_DETAIL detail) {
  command c =
      key_command(detail.mode == DVC_PNL_CEH_ONE_TOUCH_MODE_NEW ? DVC_PNL_CEH_ONE_TOUCH_REGISTER
                                                                : DVC_PNL_CEH_ONE_TOUCH_OVERWRITE,
                  detail);
  c.add_string(DVC_PNL_CEH_NODE_ONE_TOUCH_NAME, name_of(detail).c_str());
  c.add_int(DVC_PNL_CEH_NODE_DESTINATION_KIND, detail.destination_kind);
  c.add_int(DVC_PNL_CEH_NODE_DESTINATION_NUMBER, detail.destination_number);
  if (detail.destination_kind == DVC_PNL_CEH_DESTINATION_CONTACT)
    c.add_int(DVC_PNL_CEH_NODE_DESTINATION_SUB_NUMBER, detail.destination_sub_number);
  // The machine's refusal is not the screen's concern: it sees only whether the command got
  // through.
  return c.invoke();
}

int dvc_pnl_ceh_contents_hdl_one_touch::delete_one_touch_key(ONE_TOUCH_KEY_DETAIL detail) {
  return key_command(DVC_PNL_CEH_ONE_TOUCH_DELETE, detail).invoke();
}

int dvc_pnl_ceh_contents_hdl_one_touch::call_one_touch_key(ONE_TOUCH_KEY_DETAIL detail,
                                                           int function, long& result) {
  command c({0, DVC_PNL_CEH_NODE_SEND, DVC_PNL_CEH_SEND_DESTINATION, DVC_PNL_CEH_ONE_TOUCH_CALL});
  c.add_int(DVC_PNL_CEH_NODE_ONE_TOUCH_FUNCTION, function);
  c.add_int(DVC_PNL_CEH_NODE_ONE_TOUCH_NUMBER, detail.number);
  const int ret = c.invoke();
  if (ret == DVC_PNL_CEH_RET_OK)
    result = c.result();
  return ret;
}

int dvc_pnl_ceh_contents_hdl_store_one_touch_pressed(const ONE_TOUCH_KEY_DETAIL& detail,
                                                     int function) {
  return dvc_pnl_ceh_contents_hdl_set_binary_to_dm(DVC_PNL_PDM_CEH_ONE_TOUCH_PRESSED, &detail,
                                                   sizeof detail, function);
}

int dvc_pnl_ceh_contents_hdl_read_one_touch_pressed(ONE_TOUCH_KEY_DETAIL& detail, int function) {
  return dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_CEH_ONE_TOUCH_PRESSED, &detail,
                                                     sizeof detail, function);
}

int dvc_pnl_ceh_contents_hdl_remove_one_touch_pressed(int function) {
  return dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_CEH_ONE_TOUCH_PRESSED, function);
}

}  // namespace orvanta
