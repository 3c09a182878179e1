// Trace texts: the name of a contents id, yes/no words and codes printed as decimal text.
#pragma once

#include <string>

namespace orvanta {

// A class without state, used only to print values in trace lines. The operations are static so
// that a caller may also use them on a temporary object.
class dvc_pnl_ceh_logger {
 public:
  // "TRUE" for 1, "FALSE" for any other value.
  static const char* return_boolean(int value);
  // The enumerator name of a named contents id, or "CID_EMPTY_OR_NOT_FOUND". The text lives in
  // static storage.
  static const char* get_cid(int contents_id);

  // Codes printed as decimal text; there are no name tables behind them.
  static std::string get_fid(int code);
  static std::string get_icon_by_code(int code);
  static std::string get_command_node_by_code(int code);
  static std::string get_event_by_code(int code);
  static std::string get_msg_by_code(int code);
  static std::string get_type_by_code(int code);
  static std::string get_gui_id_by_code(int code);
  static std::string get_key_command_by_code(int code);
  // Prints the language; the second argument is not part of the text.
  static std::string get_s_std_language(int language, int option);

 private:
  // Looks `contents_id` up in the name table (its own source file); nullptr when it has no name.
  static const char* find_cid_name(int contents_id);
};

}  // namespace orvanta
