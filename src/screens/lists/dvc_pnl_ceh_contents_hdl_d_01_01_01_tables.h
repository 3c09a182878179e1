// The per-contents facts of the option lists that are not part of a row: hard key words,
// prohibition items and bits, the lists that wait for the machine's verdict, and the lists that
// open a transaction level of their own.
#pragma once

#include <algorithm>
#include <iterator>

#include "contents/dvc_pnl_ceh_contents_id.h"

namespace orvanta::option_list_tables {

template <class T, std::size_t N>
bool in(int id, const T (&set)[N]) {
  return std::find(std::begin(set), std::end(set), id) != std::end(set);
}

inline constexpr int kKeyEnter = 40;
inline constexpr int kKeyStart = 41;
inline constexpr int kKeyBack = 61;

// Hard key words held while these lists are active.
inline constexpr long kLockD00 = 0x80000d00;
inline constexpr long kUnlockD00 = 0x40000d00;
inline constexpr long kLock800 = 0x80000800;
inline constexpr long kUnlock800 = 0x40000800;
// Every hard key, while a list waits for the verdict; 0 releases them.
inline constexpr long kLockAll = 0x1ffff;
inline constexpr long kReleaseAll = 0;
// The polling LED word that the polling list and the stop list send.
inline constexpr long kLedOn = 0x80000001;
inline constexpr long kLedOff = 0x40000001;

inline constexpr int kLockD00Contents[] = {
    CID_03_02_01_N3, CID_03_02_01_N10, CID_03_02_06_N6, CID_03_02_06_N7,
    CID_03_02_06_N8, CID_03_02_08_N3,  CID_03_05_N7,
};
inline constexpr int kLock800Contents[] = {
    CID_02_26_N2,  CID_02_26_N11, CID_02_26_N12, CID_02_26_N13, CID_02_26_N14,
    CID_02_60_N1,  CID_02_60_N2,  CID_02_60_N5,  CID_02_60_N8,  CID_02_60_N9,
    CID_02_60_N10, CID_02_60_N11, CID_02_60_N12,
};
// The counter pages hide the counter window while they are open.
inline constexpr int kCounterWindowContents[] = {CID_11_04_N6, CID_11_05_N3, CID_11_06_N3};

// The contents that redraw themselves after a reload, by contents id.
inline constexpr int kFocusContents[] = {
    8,   11,  12,  14,  15,  17,  18,  19,  20,  21,  23,  25,  26,  28,  30,  31,  32,
    33,  45,  46,  47,  48,  57,  58,  59,  60,  63,  68,  70,  71,  73,  78,  80,  81,
    82,  83,  84,  85,  86,  89,  94,  102, 105, 106, 107, 108, 109, 110, 111, 120, 130,
    131, 132, 134, 135, 139, 140, 143, 146, 147, 148, 149, 150, 151, 153, 516,
};

// The prohibition item each list reads at load.
struct prohibition_item {
  int contents;
  unsigned item;
};
inline constexpr prohibition_item kProhibitionItems[] = {
    {CID_02_02_N3, 9},  {CID_02_05_N1, 45},  {CID_02_05_N3, 57}, {CID_02_05_N13, 57},
    {CID_02_06_N1, 42}, {CID_02_09_N1, 46},  {CID_02_09_N2, 46}, {CID_02_09_N3, 46},
    {CID_02_09_N5, 46}, {CID_02_10_N1, 16},  {CID_02_17_N1, 10}, {CID_02_24_N1, 52},
    {CID_02_29_N1, 2},  {CID_02_37_N1, 17},  {CID_02_38_N1, 50}, {CID_02_39_N1, 53},
    {CID_02_41_N1, 49}, {CID_02_42_N1, 58},  {CID_02_42_N2, 58}, {CID_02_42_N3, 58},
    {CID_02_42_N5, 58}, {CID_02_58_N1, 104},
};

// A row's bit in the prohibit value, by row (0: the row has no bit); `every` gives the same bit
// to every row from row `from` on.
struct row_bits {
  int contents;
  long bits[6];
  long every;
  int from;
};
inline constexpr row_bits kRowBits[] = {
    {CID_02_02_N3, {64, 8, 32, 1}, 0, -1},
    {CID_02_05_N3, {1, 2, 4, 8, 16, 32}, 0, -1},
    {CID_02_05_N13, {1, 2, 4, 16}, 0, -1},
    {CID_02_05_N1, {1, 2, 4, 8}, 0, -1},
    {CID_02_06_N1, {32, 0x200, 8, 4, 128}, 0, -1},
    {CID_02_37_N1, {8, 128}, 0, -1},
    {CID_02_38_N1, {1, 2}, 0, -1},
    {CID_02_58_N1, {2, 1, 4}, 0, -1},
    {CID_02_09_N5, {}, 2, 0},
    {CID_02_39_N1, {0, 2}, 0, -1},
    {CID_02_24_N1, {1, 2}, 0, -1},
    {CID_02_17_N1, {1, 16}, 0, -1},
    {CID_02_41_N1, {1, 2}, 0, -1},
    {CID_02_10_N1, {}, 2, 1},
    {CID_02_46_N1, {}, 2, 1},
    {CID_02_42_N5, {}, 2, 0},
};

// The bit of row `index` of `contents`, 0 when the row has none.
inline long bit_of_row(int contents, int index) {
  for (const row_bits& r : kRowBits) {
    if (r.contents != contents)
      continue;
    if (r.from >= 0)
      return index >= r.from ? r.every : 0;
    return index >= 0 && index < 6 ? r.bits[index] : 0;
  }
  return 0;
}

// The lists whose Enter waits for the machine's verdict instead of opening the child.
inline constexpr int kVerdictContents[] = {
    CID_02_02_N1,    CID_02_02_N3,    CID_02_06_N1,    CID_02_37_N1,
    CID_02_39_N1,    CID_02_57_N1,    CID_02_64_N1,    CID_02_65_N1,
    CID_02_10_N1,    CID_02_03_01_N1, CID_02_03_01_N3, CID_02_03_01_N5,
    CID_02_03_01_N6, CID_02_03_01_N7, CID_02_03_01_N8, CID_02_03_01_N9,
};
// The lists that take the verdict event.
inline constexpr int kVerdictHandlers[] = {
    CID_02_02_N1,    CID_02_02_N3,    CID_02_03_01_N1, CID_02_03_01_N3, CID_02_03_01_N5,
    CID_02_03_01_N6, CID_02_03_01_N7, CID_02_03_01_N8, CID_02_03_01_N9, CID_02_06_N1,
    CID_02_10_N1,    CID_02_36_01_N1, CID_02_37_N1,    CID_02_39_N1,    CID_02_57_N1,
    CID_02_64_N1,    CID_02_65_N1,
};
// The lists that open a transaction level of their own at load (when their row says so).
inline constexpr int kOwnTransactionContents[] = {
    CID_02_08_01_N6, CID_02_08_01_N7, CID_02_08_01_N8, CID_02_08_02_N1, CID_02_10_N1, CID_02_24_N1,
    CID_02_29_N1,    CID_02_36_01_N1, CID_02_37_N1,    CID_02_46_N1,    CID_02_54_N1, CID_02_63_N1,
};
// The lists that load again whenever they come back on top.
inline constexpr int kReloadedOnActivate[] = {
    CID_02_02_N1,    CID_02_08_02_N1, CID_02_37_N1,    CID_02_08_01_N6, CID_02_08_01_N7,
    CID_02_08_01_N8, CID_02_08_01_N5, CID_02_03_01_N1, CID_02_03_01_N3, CID_02_03_01_N6,
    CID_02_03_01_N8, CID_02_10_N1,    CID_02_36_01_N1,
};
// The pages that load again on their return while a remote panel is connected.
inline constexpr int kReloadedInRemoteSession[] = {
    CID_11_04_N6, CID_11_04_N7, CID_11_04_N14, CID_11_04_N16,
    CID_11_05_N3, CID_11_05_N4, CID_11_06_N3,  CID_11_08_N4,
};
// The destination edit pages: keys held with 0x80000800 while on top, released at close.
inline constexpr int kDestinationEditContents[] = {
    CID_03_02_07_N7, CID_03_02_07_N8, CID_03_02_07_N9, CID_03_02_07_N10, CID_03_02_07_N11,
};
// The lists whose Enter sends a guest to the function login first.
inline constexpr int kLoginContents[] = {CID_02_06_N1, CID_02_10_N1, CID_02_25_N1, CID_02_46_N1};

}  // namespace orvanta::option_list_tables
