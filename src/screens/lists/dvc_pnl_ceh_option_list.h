// What the option lists and the system menu lists share: the list row, the start position of a
// setting's key, and the settings a list keeps back until its transaction is confirmed.
#pragma once

#include <cstdint>
#include <vector>

namespace orvanta {

// One list row: its text, the value it stands for (-1 none), the contents to open when chosen
// (CID_NONE none, CID_PARENT the parent) and a number carried along.
struct LIST_ELEMENT {
  int text_rid;
  int value;
  int child;
  int option;
};

// The start position to read or write a setting's key at: the part of the key fetched as a group.
int dvc_pnl_ceh_option_list_get_position(const std::vector<unsigned long>& key);

// A setting kept back: up to 10 key elements, an integer or a text. 312 bytes.
inline constexpr int DVC_PNL_CEH_TRANSACTION_KEY_SIZE = 10;
inline constexpr int DVC_PNL_CEH_TRANSACTION_TEXT_SIZE = 256;
struct T_TRANSACTION_STRUCT_INNER_ {
  std::uint32_t key[DVC_PNL_CEH_TRANSACTION_KEY_SIZE];
  std::int32_t value;
  std::int32_t kind;  // 0 an integer, otherwise the text
  std::int32_t start_position;
  std::int32_t count;
  char text[DVC_PNL_CEH_TRANSACTION_TEXT_SIZE];
};
static_assert(sizeof(T_TRANSACTION_STRUCT_INNER_) == 312);

// The settings kept back, in DVC_PNL_PDM_DVC_CEH_BINARY (function scope): up to 10 and their
// count. 3124 bytes.
inline constexpr int DVC_PNL_CEH_TRANSACTION_ENTRIES = 10;
struct DVC_PNL_CEH_TRANSACTION_RECORD {
  T_TRANSACTION_STRUCT_INNER_ entry[DVC_PNL_CEH_TRANSACTION_ENTRIES];
  std::int32_t count;
};
static_assert(sizeof(DVC_PNL_CEH_TRANSACTION_RECORD) == 3124);

// Keeps `entry` back for `function`: an entry of the same key is replaced, a full record refuses
// (3). A missing record counts as empty. Answers the data manager's code.
int dvc_pnl_ceh_store_pdm_transaction_data(const T_TRANSACTION_STRUCT_INNER_& entry, int function);
// Writes every setting kept back for `function` to the machine and removes the record. Answers
// the first failed write's code, 0 when all got through (or there was nothing).
int dvc_pnl_ceh_commit_pdm_transaction_data(int function);

}  // namespace orvanta
