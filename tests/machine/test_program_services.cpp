// The simulated program and one touch key stores: the sample slots and keys, changes that later
// reads see, and the refusals of numbers outside the stores, free slots and mismatched modes.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "orvanta/machine/program_services.h"
#include "orvanta/machine/simulated_machine.h"
#include "support/machine_test.h"
#include "support/valueset_builder.h"

namespace orvanta::test {
namespace {

using machine::kOneTouchKeyFree;
using machine::kProgramFree;
using machine::kProgramInUse;
using machine::kProgramQueryDone;
using machine::kStoreDone;
using machine::kStoreRefused;

constexpr long kAbsent = -12345;

class ProgramServices : public MachineTest {
 protected:
  // Invokes `command` with 1320 = 1 and `fields` below it; the answer's integer fields by node
  // (RESULT at 1484), strings left out.
  static std::map<unsigned long, long> ask(const std::string& command,
                                           const std::map<unsigned long, leaf>& fields) {
    std::vector<entry> entries = {{command + ".1320", 1}};
    for (const auto& [node, value] : fields)
      entries.push_back({command + "." + std::to_string(node), value});
    dvc_pnl_cmm_valueset response;
    EXPECT_EQ(0, machine().dvc_pnl_cmm_invoke(key_of(command), make_valueset(entries), response));
    std::map<unsigned long, long> out;
    for (unsigned long node : {1484UL, 1180UL, 1326UL, 2039UL, 2092UL, 1491UL, 8UL, 1463UL}) {
      long v = kAbsent;
      if (response.dvc_pnl_cmm_get_int(key_of(command + "." + std::to_string(node)), v) == 0)
        out[node] = v;
    }
    return out;
  }
  static long result(const std::string& command, const std::map<unsigned long, leaf>& fields) {
    const auto answer = ask(command, fields);
    const auto it = answer.find(1484);
    return it == answer.end() ? kAbsent : it->second;
  }
};

using Answer = std::map<unsigned long, long>;

TEST_F(ProgramServices, SampleProgramsAreReadConfirmedAndCalled) {
  EXPECT_EQ((Answer{{1484, kProgramQueryDone}, {1180, 1}, {2039, kProgramInUse}}),
            ask("0.865.584", {{1259, 1}}));
  EXPECT_EQ((Answer{{1484, kProgramQueryDone}, {1180, 0}, {2039, kProgramFree}}),
            ask("0.865.584", {{1259, 2}}));
  EXPECT_EQ((Answer{{1484, kProgramQueryDone}, {2092, machine::kProgramCallAllowed}}),
            ask("0.865.2074", {{1259, 1}, {1327, 0}}));
  EXPECT_EQ((Answer{{1484, kStoreDone}, {1180, 1}, {1326, 1}}), ask("0.865.919", {{1259, 1}}));
}

TEST_F(ProgramServices, ProgramRequestsTheStoreRefuses) {
  const std::vector<std::pair<std::string, std::map<unsigned long, leaf>>> refused = {
      {"0.865.584", {{1259, 0}}},
      {"0.865.584", {{1259, 5}}},
      {"0.865.584", {}},
      {"0.865.2074", {{1259, 2}, {1327, 0}}},  // free
      {"0.865.919", {{1259, 3}}},              // free
      {"0.865.351", {{1259, 5}, {1180, 2}, {9, ""}}},
      {"0.865.351", {{1259, 2}, {9, ""}}},             // no kind
      {"0.865.351", {{1259, 2}, {1180, 1}, {9, ""}}},  // a copy program without its preset
      {"0.865.862", {{1259, 9}}},
  };
  for (const auto& [command, fields] : refused)
    EXPECT_EQ(kStoreRefused, result(command, fields)) << command;
  // Nothing was stored by the refused registers.
  EXPECT_EQ(kProgramFree, ask("0.865.584", {{1259, 2}}).at(2039));
}

TEST_F(ProgramServices, RegisteredAndDeletedProgramsAreSeenByLaterReads) {
  EXPECT_EQ(kStoreDone, result("0.865.351", {{1259, 3}, {1180, 2}, {9, ""}, {1326, 1}}));
  EXPECT_EQ((Answer{{1484, kProgramQueryDone}, {1180, 2}, {2039, kProgramInUse}}),
            ask("0.865.584", {{1259, 3}}));
  // A send program answers no preset, whatever the register sent.
  EXPECT_EQ((Answer{{1484, kStoreDone}, {1180, 2}}), ask("0.865.919", {{1259, 3}}));
  // Registering over a used slot replaces it.
  EXPECT_EQ(kStoreDone, result("0.865.351", {{1259, 1}, {1180, 1}, {9, ""}, {1326, 0}}));
  EXPECT_EQ((Answer{{1484, kStoreDone}, {1180, 1}, {1326, 0}}), ask("0.865.919", {{1259, 1}}));

  EXPECT_EQ(kStoreDone, result("0.865.862", {{1259, 1}}));
  EXPECT_EQ(kProgramFree, ask("0.865.584", {{1259, 1}}).at(2039));
  EXPECT_EQ(kStoreRefused, result("0.865.919", {{1259, 1}}));
  // Reset brings the sample back.
  machine().reset();
  EXPECT_EQ(kProgramInUse, ask("0.865.584", {{1259, 1}}).at(2039));
  EXPECT_EQ(kProgramFree, ask("0.865.584", {{1259, 3}}).at(2039));
}

TEST_F(ProgramServices, SampleOneTouchKeys) {
  EXPECT_EQ((Answer{{1484, kStoreDone}, {1491, 1}, {8, 2}, {1463, 3}}),
            ask("0.503.990.584", {{1488, 1}}));
  EXPECT_EQ((Answer{{1484, kStoreDone}, {1491, 2}, {8, 1}}), ask("0.503.990.584", {{1488, 2}}));
  for (long free_key : {3L, 22L})
    EXPECT_EQ((Answer{{1484, kOneTouchKeyFree}}), ask("0.503.990.584", {{1488, free_key}}));
  for (long outside : {0L, 23L})
    EXPECT_EQ(kStoreRefused, result("0.503.990.584", {{1488, outside}}));
  EXPECT_EQ(kStoreDone, result("0.896.351.2033", {{1035, 3}, {1488, 1}}));
  EXPECT_EQ(kStoreRefused, result("0.896.351.2033", {{1035, 3}, {1488, 3}}));
}

TEST_F(ProgramServices, NewKeysGoToFreeKeysAndOverwritesToUsedOnes) {
  const std::map<unsigned long, leaf> group = {{1489, ""}, {1491, 2}, {8, 4}};
  auto with_number = [](std::map<unsigned long, leaf> fields, long number) {
    fields.emplace(1488, number);
    return fields;
  };
  EXPECT_EQ(kStoreRefused, result("0.503.990.351", with_number(group, 1)));  // used
  EXPECT_EQ(kStoreRefused, result("0.503.990.583", with_number(group, 3)));  // free
  EXPECT_EQ(kStoreRefused, result("0.503.990.351", with_number(group, 23)));
  // A contact without its address, and a key without a name, are refused.
  EXPECT_EQ(kStoreRefused, result("0.503.990.351", {{1488, 3}, {1489, ""}, {1491, 1}, {8, 2}}));
  EXPECT_EQ(kStoreRefused, result("0.503.990.351", {{1488, 3}, {1491, 2}, {8, 4}}));
  EXPECT_EQ((Answer{{1484, kOneTouchKeyFree}}), ask("0.503.990.584", {{1488, 3}}));

  EXPECT_EQ(kStoreDone, result("0.503.990.351", with_number(group, 3)));
  EXPECT_EQ((Answer{{1484, kStoreDone}, {1491, 2}, {8, 4}}), ask("0.503.990.584", {{1488, 3}}));
  EXPECT_EQ(kStoreDone,
            result("0.503.990.583", {{1488, 3}, {1489, ""}, {1491, 1}, {8, 2}, {1463, 1}}));
  EXPECT_EQ((Answer{{1484, kStoreDone}, {1491, 1}, {8, 2}, {1463, 1}}),
            ask("0.503.990.584", {{1488, 3}}));

  EXPECT_EQ(kStoreDone, result("0.503.990.862", {{1488, 3}}));
  EXPECT_EQ((Answer{{1484, kOneTouchKeyFree}}), ask("0.503.990.584", {{1488, 3}}));
  EXPECT_EQ(kStoreRefused, result("0.503.990.862", {{1488, 0}}));
}

}  // namespace
}  // namespace orvanta::test
