// Messages of the remote device management service: the error table rows and their lookup.
#include "util/dvc_pnl_ceh_contents_hdl_util_vexl.h"

namespace orvanta {

// Keys: operation 0 to 3 (4 any), detail 0 to 9 (10 any), status 0 to 6 (7 any). The order
// matters: the first match wins, so the specific rows stand above the catch-alls.
const vexl_error_row vexl_register_error_table[VEXL_REGISTER_ERROR_TABLE_ROWS] = {
    {VEXL_ANY_OPERATION, VEXL_ANY_DETAIL, 3, 3589},
    {VEXL_ANY_OPERATION, VEXL_ANY_DETAIL, 2, 3590},
    {VEXL_ANY_OPERATION, 5, 0, 3591},
    {VEXL_ANY_OPERATION, 3, 0, 3594},
    {VEXL_ANY_OPERATION, 7, 0, 3592},
    {VEXL_ANY_OPERATION, 6, 0, 3595},
    {VEXL_ANY_OPERATION, 4, 0, 3593},
    {VEXL_ANY_OPERATION, 2, 0, 3593},
    {VEXL_ANY_OPERATION, 8, 0, 3593},
    {VEXL_ANY_OPERATION, 6, 1, 3595},
    {VEXL_ANY_OPERATION, 9, 1, 3593},
    {VEXL_ANY_OPERATION, 2, 1, 3593},
    {VEXL_ANY_OPERATION, 2, 4, 3593},
    {0, VEXL_ANY_DETAIL, 0, 3593},
    {0, VEXL_ANY_DETAIL, 1, 3593},
    {0, VEXL_ANY_DETAIL, 4, 3593},
    {0, VEXL_ANY_DETAIL, 5, 3593},
    {0, VEXL_ANY_DETAIL, 6, 3588},
    {1, VEXL_ANY_DETAIL, VEXL_ANY_STATUS, 3596},
    {2, VEXL_ANY_DETAIL, VEXL_ANY_STATUS, 3597},
    {3, VEXL_ANY_DETAIL, VEXL_ANY_STATUS, 3588},
};

namespace {

bool matches(int cell, long key, int wildcard) {
  return cell == wildcard || cell == key;
}

}  // namespace

int vexl_find_error_message(long operation, long detail, long status) {
  for (const vexl_error_row& row : vexl_register_error_table) {
    if (matches(row.operation, operation, VEXL_ANY_OPERATION) &&
        matches(row.detail, detail, VEXL_ANY_DETAIL) &&
        matches(row.status, status, VEXL_ANY_STATUS))
      return row.message;
  }
  return VEXL_DEFAULT_MESSAGE;
}

// PLACEHOLDER TEXTS. The panel's text resources are not available to this library yet, so every
// message resource reads as its number followed by the one "%d" that the real text carries, e.g.
// "[3589] %d". Replace this function with the resource lookup once the texts are there.
std::string vexl_message_format(int message) {
  return "[" + std::to_string(message) + "] %d";
}

}  // namespace orvanta
