// Contents ids and their trace names: enumerator values, the name table and the code texts.
#include <gtest/gtest.h>

#include <climits>
#include <set>
#include <string>
#include <vector>

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "contents/dvc_pnl_ceh_logger.h"

namespace orvanta {
namespace {

constexpr const char* kNotFound = "CID_EMPTY_OR_NOT_FOUND";

struct named_id {
  int id;
  const char* name;
};

// First and last id of every area, every kind of variant tail, and the last name of every ninth
// line of the id list (a name shifted inside a line shows there).
const named_id kSample[] = {
    {0, "CID_01_01_N1"},
    {1, "CID_01_01_N2"},
    {7, "CID_01_02_03_N2"},
    {8, "CID_02_01_N1"},
    {32, "CID_02_05_N13"},
    {67, "CID_02_10_N6"},
    {88, "CID_02_28_N3"},
    {115, "CID_02_44_N1"},
    {132, "CID_02_54_N3"},
    {156, "CID_02_65_N1"},
    {157, "CID_03_01_02_N1"},
    {190, "CID_03_01_05_02_N4"},
    {263, "CID_03_02_07_N12"},
    {291, "CID_03_06_N12"},
    {292, "CID_04_01_N1"},
    {305, "CID_04_02_N17_B"},
    {323, "CID_04_03_N18"},
    {392, "CID_04_13_N18"},
    {417, "CID_04_26_N1"},
    {418, "CID_05_01_N1"},
    {466, "CID_05_18_N8"},
    {533, "CID_05_22_05_N4"},
    {570, "CID_05_23_03_N1"},
    {579, "CID_05_23_09_N1"},
    {580, "CID_06_01_N2"},
    {581, "CID_06_01_N5"},
    {582, "CID_07_01_01_N1"},
    {586, "CID_07_01_02_N10"},
    {623, "CID_07_01_13_N1"},
    {634, "CID_07_01_22_N1"},
    {663, "CID_07_01_31_N2"},
    {686, "CID_07_01_43_N1"},
    {703, "CID_07_01_54_N4"},
    {720, "CID_07_01_65_N1"},
    {738, "CID_07_01_78_N4"},
    {760, "CID_07_01_88_N4"},
    {825, "CID_07_01_103_N20_2"},
    {831, "CID_07_01_104_N1"},
    {850, "CID_07_02_12_N1"},
    {875, "CID_07_02_27_N1"},
    {907, "CID_07_02_41_N1"},
    {923, "CID_07_02_56_N4_2"},
    {924, "CID_07_02_56_N4_3"},
    {929, "CID_07_02_56_N7_3"},
    {940, "CID_07_02_57_N3_3"},
    {976, "CID_07_02_70_N1"},
    {994, "CID_07_02_80_N15"},
    {1042, "CID_07_02_91_N1"},
    {1219, "CID_07_02_207_N1"},
    {1671, "CID_07_02_472_N6"},
    {1691, "CID_07_02_490_N8"},
    {1692, "CID_08_01_N6"},
    {1713, "CID_08_07_02_N6"},
    {1754, "CID_08_20_N8"},
    {1764, "CID_08_24_N4"},
    {1765, "CID_09_01_N1"},
    {1809, "CID_09_01_02_N21_3"},
    {1836, "CID_09_04_N5"},
    {1897, "CID_09_19_03_N4"},
    {1916, "CID_09_19_06_N3"},
    {1917, "CID_10_01_N1"},
    {2025, "CID_10_05_N26"},
    {2096, "CID_10_09_N24_RMT"},
    {2101, "CID_10_09_N28_2"},
    {2102, "CID_10_09_N29"},
    {2134, "CID_11_01_N1"},
    {2155, "CID_11_04_N14_PL_DC"},
    {2156, "CID_11_04_N14_KB_DC"},
    {2157, "CID_11_04_N16_ID_DC"},
    {2158, "CID_11_04_N18_RMT"},
    {2159, "CID_11_04_N14_PL_DC_RMT"},
    {2160, "CID_11_04_N14_KB_DC_RMT"},
    {2161, "CID_11_04_N16_ID_DC_RMT"},
    {2166, "CID_11_05_N6"},
    {2209, "CID_11_14_N9"},
    {2213, "CID_10_12_N1"},
    {2223, "CID_11_04_N17_RMT"},
    {2234, "CID_11_09_N1_RMT"},
    {2242, "CID_11_04_N14_RMT"},
    {2243, "CID_MNT_000"},
    {2249, "CID_MNT_006"},
};

// Ids that screens route to a class but that have no name.
const int kUnnamed[] = {1169, 1482, 1672, 1874, 2058, 2081, 2174};

TEST(ContentsNames, SampleAcrossAreasAnswersItsName) {
  for (const named_id& n : kSample)
    EXPECT_STREQ(dvc_pnl_ceh_logger::get_cid(n.id), n.name) << "id " << n.id;
}

TEST(ContentsNames, DoubledNameAnswersForBothIds) {
  EXPECT_STREQ(dvc_pnl_ceh_logger::get_cid(1702), "CID_08_05_N1");
  EXPECT_STREQ(dvc_pnl_ceh_logger::get_cid(1703), "CID_08_05_N1");
  EXPECT_EQ(CID_08_05_N1, 1703);
  // The neighbours keep their own names.
  EXPECT_STREQ(dvc_pnl_ceh_logger::get_cid(1701), "CID_08_04_N1");
  EXPECT_STREQ(dvc_pnl_ceh_logger::get_cid(1704), "CID_08_07_01_N5");
}

TEST(ContentsNames, RoutedIdsWithoutNameAreNotFound) {
  for (int id : kUnnamed)
    EXPECT_STREQ(dvc_pnl_ceh_logger::get_cid(id), kNotFound) << "id " << id;
  const DVC_PNL_CEH_CONTENTS_ID constants[] = {CID_UNNAMED_1169, CID_UNNAMED_1482, CID_UNNAMED_1672,
                                               CID_UNNAMED_1874, CID_UNNAMED_2058, CID_UNNAMED_2081,
                                               CID_UNNAMED_2174};
  ASSERT_EQ(std::size(constants), std::size(kUnnamed));
  for (std::size_t i = 0; i < std::size(kUnnamed); ++i)
    EXPECT_EQ(constants[i], kUnnamed[i]);
}

TEST(ContentsNames, IdsOutsideTheListAreNotFound) {
  // Gaps of the numbering, the ends, and the pseudo ids.
  for (int id : {-1,
                 13,
                 34,
                 127,
                 128,
                 129,
                 133,
                 587,
                 733,
                 784,
                 1718,
                 1876,
                 2076,
                 2250,
                 2251,
                 static_cast<int>(CID_TOP),
                 static_cast<int>(CID_PARENT),
                 static_cast<int>(CID_NONE),
                 INT_MIN,
                 INT_MAX})
    EXPECT_STREQ(dvc_pnl_ceh_logger::get_cid(id), kNotFound) << "id " << id;
}

TEST(ContentsNames, CountsOfNamedIdsAndNames) {
  int named = 0;
  std::set<std::string> names;
  for (int id = -10; id <= DVC_PNL_CEH_CONTENTS_ID_MAX + 10; ++id) {
    std::string name = dvc_pnl_ceh_logger::get_cid(id);
    if (name == kNotFound)
      continue;
    ++named;
    names.insert(name);
  }
  EXPECT_EQ(named, 2197);
  // One name stands for two ids.
  EXPECT_EQ(names.size(), 2196u);
}

// CID_MNT_00<k>, or CID_ with a two-digit area, one to three more numbers, N<k>, and at most one
// variant tail, optionally followed by _RMT.
bool follows_scheme(const std::string& name) {
  if (name.rfind("CID_", 0) != 0)
    return false;
  std::vector<std::string> parts;
  std::size_t start = 4;
  for (std::size_t end; (end = name.find('_', start)) != std::string::npos; start = end + 1)
    parts.push_back(name.substr(start, end - start));
  parts.push_back(name.substr(start));
  auto digits = [](const std::string& s) {
    return !s.empty() && s.find_first_not_of("0123456789") == std::string::npos;
  };
  if (parts[0] == "MNT")
    return parts.size() == 2 && parts[1].size() == 3 && digits(parts[1]);
  std::size_t i = 0;
  while (i < parts.size() && digits(parts[i]) && parts[i].size() <= 3 &&
         (i > 0 || parts[i].size() == 2))
    ++i;
  if (i < 2 || i > 4 || i == parts.size())
    return false;
  if (parts[i].size() < 2 || parts[i][0] != 'N' || !digits(parts[i].substr(1)))
    return false;
  std::string tail;
  for (++i; i < parts.size(); ++i)
    tail += "_" + parts[i];
  static const std::set<std::string> tails = {"",           "_B",         "_2",        "_3",
                                              "_KB_DC",     "_PL_DC",     "_ID_DC",    "_RMT",
                                              "_KB_DC_RMT", "_PL_DC_RMT", "_ID_DC_RMT"};
  return tails.count(tail) == 1;
}

TEST(ContentsNames, EveryNameFollowsTheNamingScheme) {
  EXPECT_FALSE(follows_scheme("CID_01_N1"));
  EXPECT_FALSE(follows_scheme("CID_07_02_356_N"));
  EXPECT_FALSE(follows_scheme("CID_11_04_N14_XX"));
  for (int id = 0; id <= DVC_PNL_CEH_CONTENTS_ID_MAX; ++id) {
    std::string name = dvc_pnl_ceh_logger::get_cid(id);
    if (name != kNotFound) {
      EXPECT_TRUE(follows_scheme(name)) << id << " " << name;
    }
  }
}

TEST(ContentsIds, EnumeratorsCarryTheirIds) {
  EXPECT_EQ(CID_01_01_N1, 0);
  EXPECT_EQ(CID_02_01_N3, 10);
  EXPECT_EQ(CID_03_01_02_N6, 158);
  EXPECT_EQ(CID_05_22_08_N2, 537);
  EXPECT_EQ(CID_07_01_01_N1, 582);
  EXPECT_EQ(CID_07_01_103_N1, 805);
  EXPECT_EQ(CID_07_01_103_N28, 830);
  EXPECT_EQ(CID_08_19_N1, 1746);
  EXPECT_EQ(CID_08_20_N8, 1754);
  EXPECT_EQ(CID_08_24_N4, 1764);
  EXPECT_EQ(CID_10_02_N11_2, 1948);
  EXPECT_EQ(CID_10_09_N24_RMT, 2096);
  EXPECT_EQ(CID_11_02_N1, 2142);
  EXPECT_EQ(CID_11_12_01_N1, 2179);
  EXPECT_EQ(CID_11_12_01_N12, 2190);
  EXPECT_EQ(CID_11_14_N9, 2209);
  EXPECT_EQ(CID_MNT_000, 2243);
  EXPECT_EQ(CID_MNT_006, DVC_PNL_CEH_CONTENTS_ID_MAX);
  EXPECT_EQ(CID_TOP, 900001);
  EXPECT_EQ(CID_PARENT, 900002);
  EXPECT_EQ(CID_NONE, 900003);
}

TEST(Logger, ReturnBooleanIsTrueOnlyForOne) {
  EXPECT_STREQ(dvc_pnl_ceh_logger::return_boolean(1), "TRUE");
  for (int v : {0, 2, -1, INT_MAX})
    EXPECT_STREQ(dvc_pnl_ceh_logger::return_boolean(v), "FALSE") << v;
}

TEST(Logger, CodesPrintAsDecimalText) {
  using code_text = std::string (*)(int);
  const code_text all[] = {
      dvc_pnl_ceh_logger::get_fid,
      dvc_pnl_ceh_logger::get_icon_by_code,
      dvc_pnl_ceh_logger::get_command_node_by_code,
      dvc_pnl_ceh_logger::get_event_by_code,
      dvc_pnl_ceh_logger::get_msg_by_code,
      dvc_pnl_ceh_logger::get_type_by_code,
      dvc_pnl_ceh_logger::get_gui_id_by_code,
      dvc_pnl_ceh_logger::get_key_command_by_code,
  };
  for (code_text f : all) {
    EXPECT_EQ(f(0), "0");
    EXPECT_EQ(f(1484), "1484");
    EXPECT_EQ(f(-7), "-7");
  }
  EXPECT_EQ(dvc_pnl_ceh_logger::get_s_std_language(999, 3), "999");
  EXPECT_EQ(dvc_pnl_ceh_logger::get_s_std_language(-1, 0), "-1");
}

}  // namespace
}  // namespace orvanta
