// Remote device management errors: the error table lookup and the message keys of the timed
// message screen.
#include <gtest/gtest.h>

#include <string>

#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_01.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_vexl.h"

namespace orvanta {
namespace {

struct lookup_case {
  long operation;
  long detail;
  long status;
  int message;
};

// One concrete key triple per row that reaches that row first, plus the wildcard fallbacks.
// Each triple is chosen so that no row above the intended one matches it.
const lookup_case kRows[] = {
    {0, 0, 3, 3589},                   // row 1: any operation, any detail, status 3
    {3, 9, 3, 3589}, {1, 4, 2, 3590},  // row 2
    {0, 5, 0, 3591},                   // row 3
    {2, 3, 0, 3594},                   // row 4
    {3, 7, 0, 3592},                   // row 5
    {1, 6, 0, 3595},                   // row 6
    {0, 4, 0, 3593},                   // row 7
    {3, 2, 0, 3593},                   // row 8
    {2, 8, 0, 3593},                   // row 9
    {0, 6, 1, 3595},                   // row 10
    {2, 9, 1, 3593},                   // row 11
    {3, 2, 1, 3593},                   // row 12
    {1, 2, 4, 3593},                   // row 13
    {0, 0, 0, 3593},                   // row 14: operation 0, a detail no earlier row names
    {0, 1, 1, 3593},                   // row 15
    {0, 7, 4, 3593},                   // row 16
    {0, 3, 5, 3593},                   // row 17
    {0, 9, 6, 3588},                   // row 18
    {1, 0, 6, 3596},                   // row 19: operation 1, anything the rows above leave
    {1, 9, 5, 3596}, {2, 1, 0, 3597},  // row 20
    {2, 5, 6, 3597}, {3, 1, 0, 3588},  // row 21
};

TEST(VexlTable, EveryRowIsReachedByItsKeys) {
  for (const lookup_case& c : kRows) {
    SCOPED_TRACE(testing::Message() << c.operation << "/" << c.detail << "/" << c.status);
    EXPECT_EQ(c.message, vexl_find_error_message(c.operation, c.detail, c.status));
  }
}

TEST(VexlTable, FirstMatchFromTheTopWins) {
  // Status 3 and 2 rows stand above everything: they beat the operation rows.
  EXPECT_EQ(3589, vexl_find_error_message(1, 5, 3));
  EXPECT_EQ(3590, vexl_find_error_message(2, 5, 2));
  // Detail 5 with status 0 is row 3, although operation 0 status 0 (row 14) matches too.
  EXPECT_EQ(3591, vexl_find_error_message(0, 5, 0));
  // Detail 6 with status 1 is row 10 before operation 0 status 1 (row 15).
  EXPECT_EQ(3595, vexl_find_error_message(0, 6, 1));
}

TEST(VexlTable, NoMatchFallsBackTo3588) {
  // Operation 0 with a status no operation-0 row names.
  EXPECT_EQ(3588, vexl_find_error_message(0, 0, 9));
  // An operation key no row names, with keys no wildcard row catches.
  EXPECT_EQ(3588, vexl_find_error_message(5, 0, 0));
  EXPECT_EQ(3588, vexl_find_error_message(-1, 1, 6));
  // Wildcard values as keys only match rows that hold the same value or a wildcard.
  EXPECT_EQ(3588, vexl_find_error_message(4, 10, 7));
}

TEST(VexlTable, HoldsTwentyOneRowsWithTheWildcardsInTheirColumns) {
  ASSERT_EQ(21, VEXL_REGISTER_ERROR_TABLE_ROWS);
  for (const vexl_error_row& row : vexl_register_error_table) {
    EXPECT_TRUE(row.operation == VEXL_ANY_OPERATION || (row.operation >= 0 && row.operation <= 3));
    EXPECT_TRUE(row.detail == VEXL_ANY_DETAIL || (row.detail >= 0 && row.detail <= 9));
    EXPECT_TRUE(row.status == VEXL_ANY_STATUS || (row.status >= 0 && row.status <= 6));
  }
}

// ---- the keys formed from the service's error ----

struct parse_case {
  long operation;
  long detail;
  long http_status;
  int message;
};

// The message resource's text carries the status in decimal.
std::string expected_text(int message, long http_status) {
  std::string text = vexl_message_format(message);
  const auto at = text.find("%d");
  return text.replace(at, 2, std::to_string(http_status));
}

TEST(VexlMessage, OperationDetailAndStatusPickTheMessage) {
  const parse_case cases[] = {
      // Status keys: 407 -> 3 and 404 -> 2 win whatever the rest.
      {6, 0, 407, 3589},
      {30, 1, 407, 3589},
      {7, 0, 404, 3590},
      // 401 -> 0: detail 5 row; 403 -> 1: detail 6 row; 500 -> 4: detail 2 row.
      {8, 5, 401, 3591},
      {8, 6, 403, 3595},
      {8, 2, 500, 3593},
      // Neighbours of those statuses are "other error" (5): group 1 then only matches row 19.
      {8, 5, 400, 3596},
      {8, 6, 402, 3596},
      {8, 2, 501, 3596},
      // Operation groups (operation - 6 indexes 0,2,1,3,2,2,2,3,3,0,3,3,1,1), detail 0 status 401.
      {6, 0, 401, 3593},   // group 0: row 14
      {15, 0, 401, 3593},  // group 0
      {7, 1, 401, 3597},   // group 2: row 20
      {10, 1, 401, 3597},
      {11, 1, 401, 3597},
      {12, 1, 401, 3597},
      {8, 1, 401, 3596},  // group 1: row 19
      {18, 1, 401, 3596},
      {19, 1, 401, 3596},
      {9, 1, 401, 3588},  // group 3: row 21
      {13, 1, 401, 3588},
      {14, 1, 401, 3588},
      {16, 1, 401, 3588},
      {17, 1, 401, 3588},
      // Outside 6 to 19 the first key is 3.
      {5, 1, 401, 3588},
      {20, 1, 401, 3588},
      {-100, 1, 401, 3588},
      // Other statuses from 400 to 599 give 5; everything else 6.
      {6, 1, 400, 3593},  // group 0, status 5: row 17
      {6, 1, 599, 3593},
      {6, 1, 502, 3593},
      {6, 1, 399, 3588},  // group 0, status 6: row 18
      {6, 1, 600, 3588},
      {6, 1, 200, 3588},
      {6, 1, 0, 3588},
      {8, 1, 200, 3596},  // group 1 takes any status
  };
  for (const parse_case& c : cases) {
    SCOPED_TRACE(testing::Message() << c.operation << "/" << c.detail << "/" << c.http_status);
    std::string message = "old";
    dvc_pnl_ceh_contents_hdl_d_03_01::parse_vexl_error_message(c.operation, c.detail, c.http_status,
                                                               message);
    EXPECT_EQ(expected_text(c.message, c.http_status), message);
  }
}

TEST(VexlMessage, StatusFillsTheFormatInDecimal) {
  std::string message;
  dvc_pnl_ceh_contents_hdl_d_03_01::parse_vexl_error_message(6, 1, 404, message);
  EXPECT_NE(std::string::npos, message.find("404"));
  EXPECT_EQ(std::string::npos, message.find("%d"));
}

}  // namespace
}  // namespace orvanta
