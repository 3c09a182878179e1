// Trace texts: yes/no words, contents id names and codes as decimal text.
#include "contents/dvc_pnl_ceh_logger.h"

namespace orvanta {

const char* dvc_pnl_ceh_logger::return_boolean(int value) {
  return value == 1 ? "TRUE" : "FALSE";
}

const char* dvc_pnl_ceh_logger::get_cid(int contents_id) {
  const char* name = find_cid_name(contents_id);
  return name != nullptr ? name : "CID_EMPTY_OR_NOT_FOUND";
}

std::string dvc_pnl_ceh_logger::get_fid(int code) {
  return std::to_string(code);
}

std::string dvc_pnl_ceh_logger::get_icon_by_code(int code) {
  return std::to_string(code);
}

std::string dvc_pnl_ceh_logger::get_command_node_by_code(int code) {
  return std::to_string(code);
}

std::string dvc_pnl_ceh_logger::get_event_by_code(int code) {
  return std::to_string(code);
}

std::string dvc_pnl_ceh_logger::get_msg_by_code(int code) {
  return std::to_string(code);
}

std::string dvc_pnl_ceh_logger::get_type_by_code(int code) {
  return std::to_string(code);
}

std::string dvc_pnl_ceh_logger::get_gui_id_by_code(int code) {
  return std::to_string(code);
}

std::string dvc_pnl_ceh_logger::get_key_command_by_code(int code) {
  return std::to_string(code);
}

std::string dvc_pnl_ceh_logger::get_s_std_language(int language, int /*option*/) {
  return std::to_string(language);
}

}  // namespace orvanta
