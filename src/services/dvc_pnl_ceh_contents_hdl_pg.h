// Programs: the client of the machine's program store, and the record of a pressed program key.
#pragma once

#include <cstdint>

namespace orvanta {

// Commands under 0.865 and the request and answer nodes of the program store.
inline constexpr unsigned long DVC_PNL_CEH_PROGRAM = 865;
inline constexpr unsigned long DVC_PNL_CEH_PROGRAM_AQUIRE = 584;
inline constexpr unsigned long DVC_PNL_CEH_PROGRAM_CONFIRM = 2074;
inline constexpr unsigned long DVC_PNL_CEH_PROGRAM_REGISTER = 351;
inline constexpr unsigned long DVC_PNL_CEH_PROGRAM_DELETE = 862;
inline constexpr unsigned long DVC_PNL_CEH_PROGRAM_CALL = 919;
inline constexpr unsigned long DVC_PNL_CEH_NODE_PROGRAM_NUMBER = 1259;
inline constexpr unsigned long DVC_PNL_CEH_NODE_PROGRAM_KIND = 1180;
inline constexpr unsigned long DVC_PNL_CEH_NODE_PROGRAM_PRESET = 1326;
inline constexpr unsigned long DVC_PNL_CEH_NODE_PROGRAM_STATE = 2039;
inline constexpr unsigned long DVC_PNL_CEH_NODE_PROGRAM_STATUS = 2092;
inline constexpr unsigned long DVC_PNL_CEH_NODE_PROGRAM_NAME = 9;
inline constexpr unsigned long DVC_PNL_CEH_NODE_AUTHENTICATION_FUNCTION = 1327;
inline constexpr unsigned long DVC_PNL_CEH_NODE_AUTHENTICATION_ID = 1012;

// RESULT of the queries (acquire, confirm) and of calling a program when they succeed.
inline constexpr long DVC_PNL_CEH_PROGRAM_QUERY_DONE = 0;
inline constexpr long DVC_PNL_CEH_PROGRAM_CALL_DONE = 1;

// Kinds of program (node 1180) and states of a slot (node 2039).
inline constexpr long DVC_PNL_CEH_PROGRAM_KIND_COPY = 1;
inline constexpr long DVC_PNL_CEH_PROGRAM_KIND_SEND = 2;  // registered in function 3
inline constexpr long DVC_PNL_CEH_PROGRAM_KIND_FAX = 3;   // registered in any other send function
inline constexpr long DVC_PNL_CEH_PROGRAM_FREE = 1;
inline constexpr long DVC_PNL_CEH_PROGRAM_IN_USE = 2;

// The program of a pressed program key, as it travels between screens in the data manager
// (DVC_PNL_PDM_CEH_PROGRAM_PRESSED, function scope) in three 32-bit words.
struct PROGRAM_ELEMENT {
  std::int32_t number;  // 1259; the home screens use 1 to 4
  std::int32_t kind;    // 1180
  std::int32_t preset;  // 1326, only with kind 1: DVC_PNL_PDM_COPY_PRESET at registering
};
static_assert(sizeof(PROGRAM_ELEMENT) == 12, "the stored entry is 12 bytes");

// Holds no state: screens hold one by value or make one for a call. Every operation answers the
// result of the command: 0 when it got through, whatever the machine answered; the mediator's
// code otherwise, and then nothing else is touched.
class dvc_pnl_ceh_contents_hdl_pg {
 public:
  dvc_pnl_ceh_contents_hdl_pg() = default;
  virtual ~dvc_pnl_ceh_contents_hdl_pg();

  // Reads slot `number`: `kind` and `state` (1 free, 2 in use). Without RESULT 0 both keep what
  // the caller preset (0 and 1, so that the slot reads as free).
  int aquire_program(long number, long& kind, long& state);
  // Whether the current user may call the program: `status` from node 2092 with RESULT 0, else
  // kept. 1 and 7 allow the call.
  int confirm_program(PROGRAM_ELEMENT element, long& status);
  // Stores the job settings in force under `element.number`.
  int register_program(PROGRAM_ELEMENT element);
  // Empties the slot.
  int delete_program(PROGRAM_ELEMENT element);
  // Loads the program into the job settings. With RESULT 1 `kind` is filled, and for kind 1
  // `preset` too; otherwise `element` stays as it came.
  int call_program(PROGRAM_ELEMENT& element);
};

// The hand-over of the pressed program between screens, in function scope of `function`: the
// data manager's result.
int dvc_pnl_ceh_contents_hdl_store_program_pressed(const PROGRAM_ELEMENT& element, int function);
int dvc_pnl_ceh_contents_hdl_read_program_pressed(PROGRAM_ELEMENT& element, int function);
int dvc_pnl_ceh_contents_hdl_remove_program_pressed(int function);

}  // namespace orvanta
