// Messages of the remote device management service: the error table and its lookup.
#pragma once

#include <string>

namespace orvanta {

// Wildcards of the three key columns: a row holding one matches any key in that column.
inline constexpr int VEXL_ANY_OPERATION = 4;
inline constexpr int VEXL_ANY_DETAIL = 10;
inline constexpr int VEXL_ANY_STATUS = 7;
// The message resource when no row matches.
inline constexpr int VEXL_DEFAULT_MESSAGE = 3588;

inline constexpr int VEXL_REGISTER_ERROR_TABLE_ROWS = 21;

// One row: operation key, detail key, status key, message resource.
struct vexl_error_row {
  int operation;
  int detail;
  int status;
  int message;
};

extern const vexl_error_row vexl_register_error_table[VEXL_REGISTER_ERROR_TABLE_ROWS];

// The message resource of the first row from the top that matches all three keys, or
// VEXL_DEFAULT_MESSAGE.
int vexl_find_error_message(long operation, long detail, long status);

// The format text of a message resource, with one "%d" for the HTTP status.
std::string vexl_message_format(int message);

}  // namespace orvanta
