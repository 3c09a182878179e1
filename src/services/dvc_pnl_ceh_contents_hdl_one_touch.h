// One touch keys: the client of the machine's one touch key store, and the record of a pressed
// one touch key.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orvanta {

// Commands under 0.503.990 (ROOT.OTHER.990), the call under 0.896.351, and their nodes.
inline constexpr unsigned long DVC_PNL_CEH_NODE_OTHER = 503;
inline constexpr unsigned long DVC_PNL_CEH_ONE_TOUCH = 990;
inline constexpr unsigned long DVC_PNL_CEH_ONE_TOUCH_AQUIRE = 584;
inline constexpr unsigned long DVC_PNL_CEH_ONE_TOUCH_REGISTER = 351;
inline constexpr unsigned long DVC_PNL_CEH_ONE_TOUCH_OVERWRITE = 583;
inline constexpr unsigned long DVC_PNL_CEH_ONE_TOUCH_DELETE = 862;
inline constexpr unsigned long DVC_PNL_CEH_NODE_SEND = 896;
inline constexpr unsigned long DVC_PNL_CEH_SEND_DESTINATION = 351;
inline constexpr unsigned long DVC_PNL_CEH_ONE_TOUCH_CALL = 2033;
inline constexpr unsigned long DVC_PNL_CEH_NODE_ONE_TOUCH_NUMBER = 1488;
inline constexpr unsigned long DVC_PNL_CEH_NODE_ONE_TOUCH_NAME = 1489;
inline constexpr unsigned long DVC_PNL_CEH_NODE_DESTINATION_KIND = 1491;
inline constexpr unsigned long DVC_PNL_CEH_NODE_DESTINATION_NUMBER = 8;
inline constexpr unsigned long DVC_PNL_CEH_NODE_DESTINATION_SUB_NUMBER = 1463;
inline constexpr unsigned long DVC_PNL_CEH_NODE_ONE_TOUCH_FUNCTION = 1035;

// RESULT of reading a key: in use, or free; and of calling a key that was added to the job.
inline constexpr long DVC_PNL_CEH_ONE_TOUCH_IN_USE = 1;
inline constexpr long DVC_PNL_CEH_ONE_TOUCH_FREE = 5;
inline constexpr long DVC_PNL_CEH_ONE_TOUCH_CALL_DONE = 1;

// `mode` that registers a new key; any other value overwrites.
inline constexpr std::int32_t DVC_PNL_CEH_ONE_TOUCH_MODE_NEW = 1;
// Kinds of destination (node 1491).
inline constexpr std::int32_t DVC_PNL_CEH_DESTINATION_CONTACT = 1;
inline constexpr std::int32_t DVC_PNL_CEH_DESTINATION_GROUP = 2;
// The address of a contact that is a mail address.
inline constexpr std::int32_t DVC_PNL_CEH_DESTINATION_MAIL_ADDRESS = 3;

// Size of the display name, terminator included: the record keeps its text in the 32-bit word
// of the name, so that it can be copied through the data manager. The panel's flows always pass
// the empty name.
inline constexpr std::size_t DVC_PNL_CEH_ONE_TOUCH_NAME_SIZE = 4;

// The one touch key that was pressed, as it travels between screens in the data manager
// (DVC_PNL_PDM_CEH_ONE_TOUCH_PRESSED, function scope) in seven 32-bit words.
struct ONE_TOUCH_KEY_DETAIL {
  std::int32_t number;                         // 1488, 1 to 22
  char name[DVC_PNL_CEH_ONE_TOUCH_NAME_SIZE];  // 1489, terminated
  std::int32_t mode;                           // 1 registers a new key, else overwrites
  std::int32_t reserved;                       // neither sent nor read
  std::int32_t destination_kind;               // 1491: 1 contact, 2 group
  std::int32_t destination_number;             // 8: the contact or group in the address book
  std::int32_t destination_sub_number;         // 1463, only with kind 1: the contact's address
};
static_assert(sizeof(ONE_TOUCH_KEY_DETAIL) == 28, "the stored entry is 28 bytes");

// Holds no state: screens hold one by value or make one for a call. Every operation answers the
// result of the command: 0 when it got through, whatever the machine answered; the mediator's
// code otherwise, and then nothing else is touched.
class dvc_pnl_ceh_contents_hdl_one_touch {
 public:
  dvc_pnl_ceh_contents_hdl_one_touch() = default;
  virtual ~dvc_pnl_ceh_contents_hdl_one_touch();

  // Reads the key at `detail.number`. In use (RESULT 1): the destination fields are filled, the
  // sub number 0 for a group. Free (RESULT 5): `mode` becomes 1. Otherwise nothing changes.
  int aquire_one_touch_key(ONE_TOUCH_KEY_DETAIL& detail);
  // Registers a new key with `mode` 1, overwrites the key otherwise.
  int register_one_touch_key(ONE_TOUCH_KEY_DETAIL detail);
  // Empties the key.
  int delete_one_touch_key(ONE_TOUCH_KEY_DETAIL detail);
  // Adds the key's destination to the job of `function`; `result` is RESULT, 1 on success (-1
  // when the answer holds none).
  int call_one_touch_key(ONE_TOUCH_KEY_DETAIL detail, int function, long& result);
};

// The hand-over of the pressed one touch key between screens, in function scope of `function`:
// the data manager's result.
int dvc_pnl_ceh_contents_hdl_store_one_touch_pressed(const ONE_TOUCH_KEY_DETAIL& detail,
                                                     int function);
int dvc_pnl_ceh_contents_hdl_read_one_touch_pressed(ONE_TOUCH_KEY_DETAIL& detail, int function);
int dvc_pnl_ceh_contents_hdl_remove_one_touch_pressed(int function);

}  // namespace orvanta
