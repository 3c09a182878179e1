// The simulated record services: reads of the stored users, accounts and boxes, changes that the
// reads see afterwards, new boxes and their ids, and refusals of records the machine lacks.
#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "orvanta/host/panel_host.h"
#include "orvanta/machine/record_services.h"
#include "orvanta/machine/simulated_machine.h"
#include "support/machine_test.h"
#include "support/valueset_builder.h"

namespace orvanta::test {
namespace {

using machine::kRecordUnknown;
using machine::simulated_machine;

class RecordServices : public MachineTest {
 protected:
  // Invokes `command` with `fields` below it and answers the response.
  static dvc_pnl_cmm_valueset ask(const std::string& command,
                                  const std::map<unsigned long, leaf>& fields) {
    std::vector<entry> entries;
    for (const auto& [node, value] : fields)
      entries.push_back({command + "." + std::to_string(node), value});
    dvc_pnl_cmm_valueset response;
    EXPECT_EQ(0, machine().dvc_pnl_cmm_invoke(key_of(command), make_valueset(entries), response));
    return response;
  }

  static long result_of(const std::string& command, const dvc_pnl_cmm_valueset& response) {
    return int_of(command, 1484, response);
  }
  static long int_of(const std::string& command, unsigned long node,
                     const dvc_pnl_cmm_valueset& response) {
    long v = -12345;
    response.dvc_pnl_cmm_get_int(key_of(command + "." + std::to_string(node)), v);
    return v;
  }
  static std::string text_of(const std::string& command, unsigned long node,
                             const dvc_pnl_cmm_valueset& response) {
    const char* v = nullptr;
    if (response.dvc_pnl_cmm_get_string(key_of(command + "." + std::to_string(node)), v) != 0)
      return "<none>";
    return v;
  }
  static bool holds(const std::string& command, unsigned long node,
                    const dvc_pnl_cmm_valueset& response) {
    return response.dvc_pnl_cmm_is_contain(key_of(command + "." + std::to_string(node))) != 0;
  }
};

constexpr const char* kUserRead = "0.681.843.584";
constexpr const char* kUserChange = "0.681.843.583";
constexpr const char* kUserCard = "0.681.843.2394.2499";
constexpr const char* kAccountRead = "0.679.843.584";
constexpr const char* kAccountChange = "0.679.843.583";
constexpr const char* kBoxRead = "0.857.860.584";
constexpr const char* kBoxNew = "0.857.860.351";
constexpr const char* kBoxChange = "0.857.860.583";

TEST_F(RecordServices, SampleUsersAndTheGuestAreRead) {
  const dvc_pnl_cmm_valueset guest = ask(kUserRead, {{1320, 1}, {1365, 102}, {1012, 9001}});
  EXPECT_EQ(0, result_of(kUserRead, guest));
  EXPECT_EQ("Guest", text_of(kUserRead, 504, guest));
  EXPECT_EQ(1, int_of(kUserRead, 1362, guest));
  // Every field the user record read takes is there.
  for (unsigned long node : {504UL, 1360UL, 1037UL, 1361UL, 1362UL, 1367UL, 10UL, 1363UL, 3060UL,
                             3061UL, 3062UL, 3064UL, 3065UL, 3066UL, 3067UL, 3068UL})
    EXPECT_TRUE(holds(kUserRead, node, guest)) << node;

  const dvc_pnl_cmm_valueset anna = ask(kUserRead, {{1320, 1}, {1365, 2}});
  EXPECT_EQ("Anna", text_of(kUserRead, 1037, anna));
}

TEST_F(RecordServices, UserChangeIsSeenByReadsAndTheUserList) {
  const dvc_pnl_cmm_valueset changed =
      ask(kUserChange, {{1320, 1}, {1365, 2}, {1012, 1}, {1037, "Hanna"}, {3060, 1}, {3616, "x"}});
  EXPECT_EQ(0, result_of(kUserChange, changed));

  const dvc_pnl_cmm_valueset read = ask(kUserRead, {{1320, 1}, {1365, 2}});
  EXPECT_EQ("Hanna", text_of(kUserRead, 1037, read));
  EXPECT_EQ(1, int_of(kUserRead, 3060, read));
  EXPECT_EQ("x", text_of(kUserRead, 3616, read));
  EXPECT_EQ("Anna", text_of(kUserRead, 504, read)) << "what the change leaves out stays";
  EXPECT_FALSE(holds(kUserRead, 1012, read)) << "who changed the user is not part of it";

  const std::vector<machine::list_row>* rows = machine().list_rows("0.938.959");
  ASSERT_NE(nullptr, rows);
  const char* name = nullptr;
  ASSERT_EQ(0, (*rows)[1].fields.at(1037).dvc_pnl_cmm_get_string(name));
  EXPECT_STREQ("Hanna", name);

  const dvc_pnl_cmm_valueset card = ask(kUserCard, {{1320, 1}, {1365, 2}, {1012, 1}});
  EXPECT_EQ(0, result_of(kUserCard, card));
}

TEST_F(RecordServices, AccountChangeIsSeenByReads) {
  const dvc_pnl_cmm_valueset changed =
      ask(kAccountChange, {{1320, 1}, {1362, 1}, {1367, "Sales"}, {1369, 1}, {1377, 500}});
  EXPECT_EQ(0, result_of(kAccountChange, changed));
  const dvc_pnl_cmm_valueset read = ask(kAccountRead, {{1320, 1}, {1362, 1}});
  EXPECT_EQ("Sales", text_of(kAccountRead, 1367, read));
  EXPECT_EQ(1, int_of(kAccountRead, 1369, read));
  EXPECT_EQ(500, int_of(kAccountRead, 1377, read));
  EXPECT_EQ("0001", text_of(kAccountRead, 1366, read));
}

TEST_F(RecordServices, NewBoxesGetTheLowestFreeIdAndChangesAnswerIt) {
  const dvc_pnl_cmm_valueset first =
      ask(kBoxNew, {{1180, 1}, {1320, 1}, {1327, 0}, {1347, "Reports"}, {1346, 46}});
  EXPECT_EQ(0, result_of(kBoxNew, first));
  EXPECT_EQ(1, int_of(kBoxNew, 197, first));
  const dvc_pnl_cmm_valueset second = ask(kBoxNew, {{1180, 1}, {1320, 1}, {1347, "Scans"}});
  EXPECT_EQ(2, int_of(kBoxNew, 197, second));

  // A new box is empty; the read gives every field of the box record.
  dvc_pnl_cmm_valueset read = ask(kBoxRead, {{1320, 1}, {1301, 1}, {197, 1}, {1327, 0}});
  EXPECT_EQ(0, result_of(kBoxRead, read));
  EXPECT_EQ("Reports", text_of(kBoxRead, 1347, read));
  EXPECT_EQ(46, int_of(kBoxRead, 1346, read));
  EXPECT_EQ(1, int_of(kBoxRead, 1180, read));
  EXPECT_EQ("", text_of(kBoxRead, 1350, read));
  EXPECT_EQ((std::vector<long>{0, 0, 1, 0, 0}),
            (std::vector<long>{int_of(kBoxRead, 1351, read), int_of(kBoxRead, 1352, read),
                               int_of(kBoxRead, 1114, read), int_of(kBoxRead, 1529, read),
                               int_of(kBoxRead, 1887, read)}));

  const dvc_pnl_cmm_valueset changed =
      ask(kBoxChange, {{197, 2}, {1320, 1}, {1347, "Old scans"}, {1355, 10}});
  EXPECT_EQ(0, result_of(kBoxChange, changed));
  EXPECT_EQ(2, int_of(kBoxChange, 197, changed));
  EXPECT_EQ(2, int_of(kBoxChange, 1114, changed));
  read = ask(kBoxRead, {{1320, 1}, {1301, 1}, {197, 2}});
  EXPECT_EQ("Old scans", text_of(kBoxRead, 1347, read));
  EXPECT_EQ(10, int_of(kBoxRead, 1355, read));
}

TEST_F(RecordServices, RecordsTheMachineLacksAreRefused) {
  struct refusal_case {
    const char* command;
    std::map<unsigned long, leaf> request;
  };
  const refusal_case cases[] = {
      {kUserRead, {{1320, 1}, {1365, 77}}},   {kUserRead, {{1320, 1}}},
      {kUserChange, {{1320, 1}, {1365, 77}}}, {kUserCard, {{1320, 1}, {1365, 77}}},
      {kAccountRead, {{1320, 1}, {1362, 9}}}, {kAccountChange, {{1320, 1}, {1362, 9}}},
      {kBoxRead, {{1320, 1}, {197, 3}}},      {kBoxChange, {{1320, 1}, {197, 3}}},
  };
  for (const refusal_case& c : cases) {
    SCOPED_TRACE(c.command);
    const dvc_pnl_cmm_valueset response = ask(c.command, c.request);
    EXPECT_EQ(kRecordUnknown, result_of(c.command, response));
    EXPECT_EQ(1UL, response.dvc_pnl_cmm_size()) << "a refusal carries RESULT alone";
  }
}

TEST_F(RecordServices, ResetBringsBackTheSampleRecords) {
  ask(kUserChange, {{1320, 1}, {1365, 102}, {504, "visitor"}});
  ask(kBoxNew, {{1180, 1}, {1320, 1}, {1347, "Reports"}});
  machine().reset();
  EXPECT_EQ("Guest", text_of(kUserRead, 504, ask(kUserRead, {{1320, 1}, {1365, 102}})));
  EXPECT_EQ(kRecordUnknown, result_of(kBoxRead, ask(kBoxRead, {{1320, 1}, {197, 1}})));
}

}  // namespace
}  // namespace orvanta::test
