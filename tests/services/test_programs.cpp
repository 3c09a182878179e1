// Programs and one touch keys: each operation's command and request, the answers it reads, its
// RESULT handling and mediator failures, the pressed-key records in the data manager, and the
// flows of the screens against the default machine's stores.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "orvanta/machine/program_services.h"
#include "services/dvc_pnl_ceh_contents_hdl_one_touch.h"
#include "services/dvc_pnl_ceh_contents_hdl_pg.h"
#include "support/machine_test.h"
#include "support/trace_expect.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"

namespace orvanta::test {
namespace {

using machine::call_record;
using machine::verb;
using Pg = dvc_pnl_ceh_contents_hdl_pg;
using OneTouch = dvc_pnl_ceh_contents_hdl_one_touch;

constexpr const char* kAquireProgram = "0.865.584";
constexpr const char* kConfirmProgram = "0.865.2074";
constexpr const char* kRegisterProgram = "0.865.351";
constexpr const char* kDeleteProgram = "0.865.862";
constexpr const char* kCallProgram = "0.865.919";
constexpr const char* kAquireKey = "0.503.990.584";
constexpr const char* kRegisterKey = "0.503.990.351";
constexpr const char* kOverwriteKey = "0.503.990.583";
constexpr const char* kDeleteKey = "0.503.990.862";
constexpr const char* kCallKey = "0.896.351.2033";

constexpr int kFunction = 3;

ONE_TOUCH_KEY_DETAIL key_detail(std::int32_t number, std::int32_t mode, std::int32_t kind,
                                std::int32_t destination, std::int32_t sub_number) {
  ONE_TOUCH_KEY_DETAIL d{};
  d.number = number;
  d.mode = mode;
  d.reserved = 77;
  d.destination_kind = kind;
  d.destination_number = destination;
  d.destination_sub_number = sub_number;
  return d;
}

bool same(const ONE_TOUCH_KEY_DETAIL& a, const ONE_TOUCH_KEY_DETAIL& b) {
  return std::memcmp(&a, &b, sizeof a) == 0;
}

class Programs : public MachineTest {
 protected:
  // The invokes made, oldest first.
  static std::vector<call_record> invokes() {
    std::vector<call_record> out;
    for (const call_record& c : machine().log()) {
      if (c.kind == verb::invoke)
        out.push_back(c);
    }
    return out;
  }

  // Answers the next invoke of `command` with exactly the given fields below it.
  static void script(const std::string& command, const std::map<unsigned long, leaf>& fields) {
    std::vector<entry> entries;
    for (const auto& [node, value] : fields)
      entries.push_back({command + "." + std::to_string(node), value});
    machine().script_next_response(command, make_valueset(entries));
  }

  static void authentication(int mode, int id) {
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_MODE, mode);
    dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(DVC_PNL_PDM_AUTHENTICATION_ID, id);
  }
};

// ---------------------------------------------------------------- commands and requests

struct request_case {
  const char* name;
  std::function<int()> run;
  const char* command;
  std::map<unsigned long, leaf> request;  // below the command, 1320 included
};

TEST_F(Programs, EachOperationSendsItsCommandAndRequest) {
  long kind = 0, state = 1, status = 0, result = 0;
  PROGRAM_ELEMENT element{};
  ONE_TOUCH_KEY_DETAIL detail{};
  const request_case cases[] = {
      {"aquire_program",
       [&] { return Pg().aquire_program(3, kind, state); },
       kAquireProgram,
       {{1320, 1}, {1259, 3}}},
      {"confirm_program without user management",
       [&] {
         authentication(0, 5);
         return Pg().confirm_program({2, 1, 0}, status);
       },
       kConfirmProgram,
       {{1320, 1}, {1259, 2}, {1327, 0}}},
      {"confirm_program names the user when users are managed",
       [&] {
         authentication(1, 5);
         return Pg().confirm_program({2, 1, 0}, status);
       },
       kConfirmProgram,
       {{1320, 1}, {1259, 2}, {1327, 1}, {1012, 5}}},
      {"register_program of a copy program sends the preset",
       [&] {
         return Pg().register_program({2, 1, 1});
       },
       kRegisterProgram,
       {{1320, 1}, {1259, 2}, {1180, 1}, {9, ""}, {1326, 1}}},
      {"register_program of a send program sends no preset",
       [&] {
         return Pg().register_program({3, 2, 7});
       },
       kRegisterProgram,
       {{1320, 1}, {1259, 3}, {1180, 2}, {9, ""}}},
      {"delete_program",
       [&] {
         return Pg().delete_program({4, 1, 1});
       },
       kDeleteProgram,
       {{1320, 1}, {1259, 4}}},
      {"call_program",
       [&] {
         element = {1, 0, 0};
         return Pg().call_program(element);
       },
       kCallProgram,
       {{1320, 1}, {1259, 1}}},
      {"aquire_one_touch_key",
       [&] {
         detail = key_detail(5, 0, 0, 0, 0);
         return OneTouch().aquire_one_touch_key(detail);
       },
       kAquireKey,
       {{1320, 1}, {1488, 5}}},
      {"register_one_touch_key mode 1, a contact",
       [&] { return OneTouch().register_one_touch_key(key_detail(3, 1, 1, 2, 3)); },
       kRegisterKey,
       {{1320, 1}, {1488, 3}, {1489, ""}, {1491, 1}, {8, 2}, {1463, 3}}},
      {"register_one_touch_key mode 0, the same contact",
       [&] { return OneTouch().register_one_touch_key(key_detail(3, 0, 1, 2, 3)); },
       kOverwriteKey,
       {{1320, 1}, {1488, 3}, {1489, ""}, {1491, 1}, {8, 2}, {1463, 3}}},
      {"register_one_touch_key mode 2, a group sends no sub number",
       [&] { return OneTouch().register_one_touch_key(key_detail(4, 2, 2, 1, 9)); },
       kOverwriteKey,
       {{1320, 1}, {1488, 4}, {1489, ""}, {1491, 2}, {8, 1}}},
      {"delete_one_touch_key",
       [&] { return OneTouch().delete_one_touch_key(key_detail(6, 0, 1, 2, 3)); },
       kDeleteKey,
       {{1320, 1}, {1488, 6}}},
      {"call_one_touch_key",
       [&] { return OneTouch().call_one_touch_key(key_detail(7, 0, 1, 2, 3), 4, result); },
       kCallKey,
       {{1320, 1}, {1035, 4}, {1488, 7}}},
  };
  for (const request_case& c : cases) {
    SCOPED_TRACE(c.name);
    machine().clear_log();
    EXPECT_EQ(0, c.run());
    const std::vector<call_record> made = invokes();
    ASSERT_EQ(1u, made.size());
    EXPECT_EQ(c.command, made[0].key);
    std::vector<entry> expected;
    for (const auto& [node, value] : c.request)
      expected.push_back({std::string(c.command) + "." + std::to_string(node), value});
    EXPECT_TRUE(sets_equal(made[0].request, make_valueset(expected)));
  }
}

TEST_F(Programs, TheNameOfAKeyGoesOutAsTheRecordHoldsIt) {
  ONE_TOUCH_KEY_DETAIL detail = key_detail(3, 1, 2, 1, 0);
  std::memcpy(detail.name, "ABCD", sizeof detail.name);  // full, without terminator
  EXPECT_EQ(0, OneTouch().register_one_touch_key(detail));
  const std::vector<call_record> made = invokes();
  ASSERT_EQ(1u, made.size());
  const char* name = nullptr;
  ASSERT_EQ(0, made[0].request.dvc_pnl_cmm_get_string(key_of("0.503.990.351.1489"), name));
  EXPECT_STREQ("ABCD", name);
}

// ---------------------------------------------------------------- answers

TEST_F(Programs, AquireProgramReadsTheSlotOnlyWithResult0) {
  long kind = 0, state = 1;
  script(kAquireProgram, {{1484, 0}, {1180, 3}, {2039, 2}});
  EXPECT_EQ(0, Pg().aquire_program(2, kind, state));
  EXPECT_EQ(3, kind);
  EXPECT_EQ(2, state);

  for (long refused : {1L, 2L, -1L}) {
    kind = 0;
    state = 1;
    script(kAquireProgram, {{1484, refused}, {1180, 3}, {2039, 2}});
    EXPECT_EQ(0, Pg().aquire_program(2, kind, state)) << refused;
    EXPECT_EQ(0, kind) << refused;
    EXPECT_EQ(1, state) << refused;
  }
}

TEST_F(Programs, ConfirmProgramReadsTheStatusOnlyWithResult0) {
  long status = -7;
  script(kConfirmProgram, {{1484, 0}, {2092, 13}});
  EXPECT_EQ(0, Pg().confirm_program({1, 1, 0}, status));
  EXPECT_EQ(13, status);
  status = -7;
  script(kConfirmProgram, {{1484, 1}, {2092, 13}});
  EXPECT_EQ(0, Pg().confirm_program({1, 1, 0}, status));
  EXPECT_EQ(-7, status);
}

struct call_case {
  const char* name;
  std::map<unsigned long, leaf> answer;
  PROGRAM_ELEMENT expected;  // from {1, 9, 9}
};

TEST_F(Programs, CallProgramFillsTheElementFromASuccessfulAnswer) {
  const call_case cases[] = {
      {"copy program", {{1484, 1}, {1180, 1}, {1326, 5}}, {1, 1, 5}},
      {"send program leaves the preset", {{1484, 1}, {1180, 2}, {1326, 5}}, {1, 2, 9}},
      {"RESULT 0 is no success here", {{1484, 0}, {1180, 1}, {1326, 5}}, {1, 9, 9}},
      {"no RESULT", {{1180, 1}, {1326, 5}}, {1, 9, 9}},
  };
  for (const call_case& c : cases) {
    SCOPED_TRACE(c.name);
    PROGRAM_ELEMENT element{1, 9, 9};
    script(kCallProgram, c.answer);
    EXPECT_EQ(0, Pg().call_program(element));
    EXPECT_EQ(c.expected.number, element.number);
    EXPECT_EQ(c.expected.kind, element.kind);
    EXPECT_EQ(c.expected.preset, element.preset);
  }
}

struct aquire_key_case {
  const char* name;
  std::map<unsigned long, leaf> answer;
  ONE_TOUCH_KEY_DETAIL expected;  // from key_detail(9, 0, 9, 9, 9)
};

TEST_F(Programs, AquireOneTouchKeyReadsAUsedKeyAndMarksAFreeOne) {
  const aquire_key_case cases[] = {
      {"a contact", {{1484, 1}, {1491, 1}, {1463, 3}, {8, 2}}, key_detail(9, 0, 1, 2, 3)},
      {"a group: sub number 0 whatever the answer holds",
       {{1484, 1}, {1491, 2}, {1463, 3}, {8, 4}},
       key_detail(9, 0, 2, 4, 0)},
      {"free: only the mode", {{1484, 5}, {1491, 1}, {1463, 3}, {8, 2}}, key_detail(9, 1, 9, 9, 9)},
      {"another RESULT: nothing",
       {{1484, 2}, {1491, 1}, {1463, 3}, {8, 2}},
       key_detail(9, 0, 9, 9, 9)},
      {"RESULT 0: nothing", {{1484, 0}, {1491, 1}, {8, 2}}, key_detail(9, 0, 9, 9, 9)},
  };
  for (const aquire_key_case& c : cases) {
    SCOPED_TRACE(c.name);
    ONE_TOUCH_KEY_DETAIL detail = key_detail(9, 0, 9, 9, 9);
    script(kAquireKey, c.answer);
    EXPECT_EQ(0, OneTouch().aquire_one_touch_key(detail));
    EXPECT_TRUE(same(c.expected, detail))
        << detail.mode << " " << detail.destination_kind << " " << detail.destination_number << " "
        << detail.destination_sub_number;
  }
}

TEST_F(Programs, CallOneTouchKeyPassesOnResult) {
  long result = 0;
  for (long answer : {1L, 2L, 3L, 4L}) {
    script(kCallKey, {{1484, answer}});
    EXPECT_EQ(0, OneTouch().call_one_touch_key(key_detail(1, 0, 1, 2, 3), kFunction, result));
    EXPECT_EQ(answer, result);
  }
  // An answer without RESULT never reads as success.
  script(kCallKey, {{8, 1}});
  EXPECT_EQ(0, OneTouch().call_one_touch_key(key_detail(1, 0, 1, 2, 3), kFunction, result));
  EXPECT_EQ(-1, result);
}

TEST_F(Programs, RefusedChangesStillGiveZero) {
  const std::vector<std::pair<const char*, std::function<int()>>> changes = {
      {kRegisterProgram,
       [] {
         return Pg().register_program({1, 1, 0});
       }},
      {kDeleteProgram,
       [] {
         return Pg().delete_program({1, 1, 0});
       }},
      {kRegisterKey, [] { return OneTouch().register_one_touch_key(key_detail(1, 1, 1, 2, 3)); }},
      {kOverwriteKey, [] { return OneTouch().register_one_touch_key(key_detail(1, 0, 1, 2, 3)); }},
      {kDeleteKey, [] { return OneTouch().delete_one_touch_key(key_detail(1, 0, 1, 2, 3)); }},
  };
  for (const auto& [command, run] : changes) {
    machine().fail_next_result(command, 9);
    EXPECT_EQ(0, run()) << command;
  }
}

// ---------------------------------------------------------------- mediator failures

TEST_F(Programs, AMediatorFailureIsTheResultAndTouchesNothing) {
  long kind = 4, state = 4, status = 4, result = 4;
  PROGRAM_ELEMENT element{1, 4, 4};
  ONE_TOUCH_KEY_DETAIL detail = key_detail(1, 1, 4, 4, 4);  // mode 1: the register command
  const ONE_TOUCH_KEY_DETAIL untouched = detail;
  const std::vector<std::pair<const char*, std::function<int()>>> operations = {
      {kAquireProgram, [&] { return Pg().aquire_program(1, kind, state); }},
      {kConfirmProgram, [&] { return Pg().confirm_program(element, status); }},
      {kRegisterProgram, [&] { return Pg().register_program(element); }},
      {kDeleteProgram, [&] { return Pg().delete_program(element); }},
      {kCallProgram, [&] { return Pg().call_program(element); }},
      {kAquireKey, [&] { return OneTouch().aquire_one_touch_key(detail); }},
      {kRegisterKey, [&] { return OneTouch().register_one_touch_key(detail); }},
      {kDeleteKey, [&] { return OneTouch().delete_one_touch_key(detail); }},
      {kCallKey, [&] { return OneTouch().call_one_touch_key(detail, kFunction, result); }},
  };
  for (const auto& [command, run] : operations) {
    SCOPED_TRACE(command);
    host::trace_sink::instance().clear();
    machine().fail_next(verb::invoke, command, 3);
    EXPECT_EQ(3, run());
    EXPECT_TRUE(traced("invoke failed : ret_code = 3")) << trace_dump();
  }
  EXPECT_EQ(4, kind);
  EXPECT_EQ(4, state);
  EXPECT_EQ(4, status);
  EXPECT_EQ(4, result);
  EXPECT_EQ(4, element.kind);
  EXPECT_EQ(4, element.preset);
  EXPECT_TRUE(same(untouched, detail));
}

// ---------------------------------------------------------------- the pressed-key records

TEST_F(Programs, PressedRecordsTravelThroughTheDataManager) {
  const PROGRAM_ELEMENT program{2, 1, 1};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_store_program_pressed(program, kFunction));
  ONE_TOUCH_KEY_DETAIL key = key_detail(14, 1, 1, 2, 3);
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_store_one_touch_pressed(key, kFunction));

  // The entries are the fixed-size records, in function scope.
  dvc_pnl_cmm_value stored;
  dvc_pnl_cmm_binary blob;
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_value_from_dm(DVC_PNL_PDM_CEH_PROGRAM_PRESSED, stored,
                                                          kFunction));
  ASSERT_EQ(0, stored.dvc_pnl_cmm_get_binary(blob));
  EXPECT_EQ(12u, blob.bytes().size());
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_value_from_dm(DVC_PNL_PDM_CEH_ONE_TOUCH_PRESSED, stored,
                                                          kFunction));
  ASSERT_EQ(0, stored.dvc_pnl_cmm_get_binary(blob));
  EXPECT_EQ(28u, blob.bytes().size());

  PROGRAM_ELEMENT program_read{};
  ONE_TOUCH_KEY_DETAIL key_read{};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_read_program_pressed(program_read, kFunction));
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_read_one_touch_pressed(key_read, kFunction));
  EXPECT_EQ(0, std::memcmp(&program, &program_read, sizeof program));
  EXPECT_TRUE(same(key, key_read));
  EXPECT_NE(0, dvc_pnl_ceh_contents_hdl_read_program_pressed(program_read, kFunction + 1));

  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_remove_program_pressed(kFunction));
  EXPECT_EQ(0, dvc_pnl_ceh_contents_hdl_remove_one_touch_pressed(kFunction));
  EXPECT_NE(0, dvc_pnl_ceh_contents_hdl_read_program_pressed(program_read, kFunction));
  EXPECT_NE(0, dvc_pnl_ceh_contents_hdl_read_one_touch_pressed(key_read, kFunction));
}

// ---------------------------------------------------------------- flows on the default machine

TEST_F(Programs, ProgramLongPressRegistersAFreeSlotAndTheShortPressCallsIt) {
  // Long press of program key 2: the slot is free, so it is registered from the stored record.
  long kind = 0, state = 1;
  ASSERT_EQ(0, Pg().aquire_program(2, kind, state));
  EXPECT_EQ(machine::kProgramFree, state);
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_store_program_pressed({2, 1, 1}, kFunction));
  PROGRAM_ELEMENT pressed{};
  ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_read_program_pressed(pressed, kFunction));
  ASSERT_EQ(0, Pg().register_program(pressed));

  // Short press: in use, allowed, called.
  ASSERT_EQ(0, Pg().aquire_program(2, kind, state));
  EXPECT_EQ(machine::kProgramInUse, state);
  EXPECT_EQ(1, kind);
  long status = 0;
  ASSERT_EQ(0, Pg().confirm_program(pressed, status));
  EXPECT_EQ(machine::kProgramCallAllowed, status);
  PROGRAM_ELEMENT called{2, 0, 0};
  ASSERT_EQ(0, Pg().call_program(called));
  EXPECT_EQ(1, called.kind);
  EXPECT_EQ(1, called.preset);

  // Deleted, it reads as free again and cannot be called.
  ASSERT_EQ(0, Pg().delete_program(pressed));
  ASSERT_EQ(0, Pg().aquire_program(2, kind, state));
  EXPECT_EQ(machine::kProgramFree, state);
  called = {2, 0, 0};
  ASSERT_EQ(0, Pg().call_program(called));
  EXPECT_EQ(0, called.kind);
}

TEST_F(Programs, OneTouchKeyRegisteredOnAFreeKeyIsReadAndCalled) {
  ONE_TOUCH_KEY_DETAIL detail = key_detail(5, 0, 0, 0, 0);
  ASSERT_EQ(0, OneTouch().aquire_one_touch_key(detail));
  EXPECT_EQ(DVC_PNL_CEH_ONE_TOUCH_MODE_NEW, detail.mode);  // a free key

  detail.destination_kind = DVC_PNL_CEH_DESTINATION_CONTACT;
  detail.destination_number = 3;
  detail.destination_sub_number = DVC_PNL_CEH_DESTINATION_MAIL_ADDRESS;
  ASSERT_EQ(0, OneTouch().register_one_touch_key(detail));

  ONE_TOUCH_KEY_DETAIL read = key_detail(5, 0, 0, 0, 0);
  ASSERT_EQ(0, OneTouch().aquire_one_touch_key(read));
  EXPECT_EQ(0, read.mode);  // used: not marked new
  EXPECT_EQ(1, read.destination_kind);
  EXPECT_EQ(3, read.destination_number);
  EXPECT_EQ(3, read.destination_sub_number);

  long result = 0;
  ASSERT_EQ(0, OneTouch().call_one_touch_key(read, kFunction, result));
  EXPECT_EQ(machine::kStoreDone, result);
  ASSERT_EQ(0, OneTouch().delete_one_touch_key(read));
  ASSERT_EQ(0, OneTouch().call_one_touch_key(read, kFunction, result));
  EXPECT_EQ(machine::kStoreRefused, result);
}

}  // namespace
}  // namespace orvanta::test
