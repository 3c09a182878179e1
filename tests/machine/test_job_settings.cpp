// The default machine's job settings trees.
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "orvanta/machine/simulated_machine.h"
#include "support/machine_test.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"

namespace orvanta::test {
namespace {

const std::vector<unsigned long> kFunctionNodes = {2, 161, 206, 207, 214};

std::string setting(unsigned long function_node, const char* scope, const std::string& path) {
  return "0.1." + std::to_string(function_node) + "." + scope + "." + path;
}

// The value of the leaf at `path`; nullopt when there is none, or a group stands there.
std::optional<dvc_pnl_cmm_value> leaf_at(const std::string& path) {
  std::optional<dvc_pnl_cmm_value> v = ::orvanta::machine::simulated_machine::instance().node(path);
  NAME_SPACE_NODE_TYPE type{};
  if (!v || v->dvc_pnl_cmm_get_type(type) != 0 || type == NODE_TYPE_VALUESET)
    return std::nullopt;
  return v;
}

// ---------------------------------------------------------------- the default trees

using JobSettings = MachineTest;

TEST_F(JobSettings, EachFunctionTreeHasItsSettingsInBothScopesAndNoOthers) {
  struct tree_case {
    const char* name;
    const char* path;  // below 0.1.F.S
    std::set<unsigned long> trees;
  };
  const std::set<unsigned long> scan = {2, 161, 206, 214};
  const std::set<unsigned long> print = {2, 207};
  const std::set<unsigned long> all = {2, 161, 206, 207, 214};
  const tree_case cases[] = {
      {"file_name_entry_setting", "1.4.4", all},
      {"job_end_report_setting", "1.6.6", all},
      {"print_override_setting", "1.11", all},
      {"auto_file_del", "1.208", all},
      {"quiet_mode_setting", "3796.3797", all},
      {"zoom_setting mode", "12.13.14", scan},
      {"zoom_setting ratio", "12.13.15.16", scan},
      {"original_size_setting", "12.18.20", scan},
      {"original_size_setting kind", "12.18.19", scan},
      {"original_orientation_setting", "12.22", scan},
      {"mixed_sized_originals", "12.23.24", scan},
      {"scan_duplex_setting", "12.28", scan},
      {"original_image_setting", "12.29.34", scan},
      {"scn_quality_setting", "12.29.3790", scan},
      {"density_adjustment_method_setting", "12.29.30.31", scan},
      {"density_setting", "12.29.30.32.33", scan},
      {"scan_resolution_setting", "12.29.164", scan},
      {"scancolor_setting", "12.104.165", scan},
      {"continuous_scan_setting as a group", "12.35.35", {2}},
      {"continuous_scan_setting as a value", "12.35", {161, 206, 214}},
      {"sharpness", "12.104.147", {161, 206, 214}},
      {"sharpness of copy", "99.147", {2}},
      {"background_dens_mode", "12.104.145.145", scan},
      {"background_dens", "12.104.145.146", scan},
      {"background_dens_mode of copy", "99.145.145", {2}},
      {"background_dens of copy", "99.145.146", {2}},
      {"prevent_bleed_through_setting", "12.2997", {2, 161, 214}},
      {"blank_skip_setting", "12.3686.3687", scan},
      {"contrast", "12.782", scan},
      {"ecoprint_setting of copy", "46.48", {2}},
      {"ecoprint_setting", "46.48.48", {207}},
      {"paper_source_setting", "46.49.51", print},
      {"paper source chosen by hand", "46.49.50", print},
      {"manual tray setting", "46.49.52", print},
      {"manual tray size", "46.49.53", print},
      {"manual tray kind", "46.49.55", print},
      {"manual tray orientation", "46.49.2382", print},
      {"combine_setting", "46.58.59.60", print},
      {"duplex_layout_setting", "46.58.59.61", print},
      {"duplex_border_line_setting", "46.58.59.62", print},
      {"print_duplex_setting", "46.63.64", print},
      {"duplex_copy_bind_setting", "46.63.66", print},
      {"encryption_pdf_setting", "46.176", {207}},
      {"jpeg_print_mode", "46.2743", {207}},
      {"xps_fit_to_page", "46.2747", {207}},
      {"collate_setting", "148.149", print},
      {"send_size_setting", "185.188", {161}},
      {"subject_entry_setting", "185.189.190", {161}},
      {"ftp_secure_tx_setting", "185.193", {161}},
      {"file_format_setting", "166.166.167", {161}},
      {"file_separation_setting", "166.184", {161}},
      {"fax server mode", "3985", {161}},
      {"fax_direct_tx_setting", "185.194", {206}},
      {"fax_resolution_setting", "185.186.187", {206}},
      {"fax_delayed_tx_setting", "198.199", {206}},
      {"fax_tx_report_setting", "411", {206}},
      {"fax_rx_polling_setting", "203.204", {161, 206}},
      {"storing_size_setting", "216.217", {214}},
  };
  for (const tree_case& c : cases) {
    for (unsigned long f : kFunctionNodes) {
      const std::optional<dvc_pnl_cmm_value> current = leaf_at(setting(f, "160", c.path));
      const std::optional<dvc_pnl_cmm_value> fallback = leaf_at(setting(f, "3", c.path));
      const bool wanted = c.trees.count(f) != 0;
      EXPECT_EQ(wanted, current.has_value()) << c.name << " current, function node " << f;
      EXPECT_EQ(wanted, fallback.has_value()) << c.name << " default, function node " << f;
      if (current && fallback) {
        EXPECT_EQ(dump(*current), dump(*fallback))
            << c.name << ": both scopes start equal, function node " << f;
      }
    }
  }
}

TEST_F(JobSettings, SettingsReadElsewhereKeepTheirValues) {
  struct value_case {
    const char* path;
    long value;
  };
  const value_case cases[] = {
      {"0.1.2.160.12.18.20", 4},   {"0.1.2.160.46.49.50", 0},   {"0.1.2.160.46.49.51", 1},
      {"0.1.2.160.46.49.52", 0},   {"0.1.2.160.46.49.53", 4},   {"0.1.2.160.46.49.55", 1},
      {"0.1.2.160.46.49.2382", 0}, {"0.1.207.160.46.49.50", 0}, {"0.1.207.160.46.49.51", 1},
      {"0.1.207.160.46.49.53", 4}, {"0.1.207.160.46.49.55", 1}, {"0.1.207.160.46.49.2382", 0},
      {"0.1.161.160.203.204", 0},  {"0.1.206.160.203.204", 0},  {"0.1.161.160.3985", 0},
      {"0.1.214.160.12.18.20", 4}, {"0.230.231.233.59.61", 0},  {"0.728.713.129", 2 | 4 | 8 | 16},
  };
  for (const value_case& c : cases)
    EXPECT_EQ(c.value, machine().int_at(c.path).value_or(-99)) << c.path;
}

TEST_F(JobSettings, TextSettingsHoldTexts) {
  for (const char* path : {"0.1.2.160.1.4.4", "0.1.161.160.185.189.190", "0.1.207.3.46.176"}) {
    const std::optional<dvc_pnl_cmm_value> value = machine().node(path);
    ASSERT_TRUE(value.has_value()) << path;
    const char* text = nullptr;
    EXPECT_EQ(0, value->dvc_pnl_cmm_get_string(text)) << path;
  }
}

TEST_F(JobSettings, AGroupReadGivesTheZoomModeAndTheNestedRatio) {
  dvc_pnl_cmm_value read;
  ASSERT_EQ(0, machine().dvc_pnl_cmm_get_value(key_of("0.1.2.160.12.13"), read, 0));
  dvc_pnl_cmm_valueset group;
  ASSERT_EQ(0, read.dvc_pnl_cmm_get_valueset(group));
  EXPECT_TRUE(sets_equal(
      group, make_valueset({{"0.1.2.160.12.13.14", 0L}, {"0.1.2.160.12.13.15.16", 1000L}})));
}

TEST_F(JobSettings, ContinuousScanIsAGroupForCopyAndAValueElsewhere) {
  dvc_pnl_cmm_value read;
  ASSERT_EQ(0, machine().dvc_pnl_cmm_get_value(key_of("0.1.2.160.12.35"), read, 0));
  dvc_pnl_cmm_valueset group;
  EXPECT_EQ(0, read.dvc_pnl_cmm_get_valueset(group));
  long mode = -1;
  EXPECT_EQ(0, group.dvc_pnl_cmm_get_int(key_of("0.1.2.160.12.35.35"), mode)) << dump(group);
  for (const char* plain : {"0.1.161.160.12.35", "0.1.206.3.12.35", "0.1.214.160.12.35"})
    EXPECT_TRUE(machine().int_at(plain).has_value()) << plain;
}

TEST_F(JobSettings, EveryCassetteHasAMediaTypeAndEveryTypeAWeight) {
  for (const char* cassette : {"372", "375", "376", "377"}) {
    const std::string path = std::string("0.230.49.371.") + cassette + ".374";
    EXPECT_TRUE(machine().int_at(path).has_value()) << path;
  }
  for (const char* type : {"383", "385", "386", "387", "388", "389", "390", "391", "392", "393",
                           "394", "395", "396", "397", "400", "399", "3748"}) {
    const std::string path = std::string("0.230.49.382.") + type + ".384";
    EXPECT_TRUE(machine().int_at(path).has_value()) << path;
  }
}

TEST_F(JobSettings, TheCustomPaperWeightsAreATableOfEightReadByIndex) {
  const std::vector<unsigned long> table = nodes_of("0.230.49.382.401.402");
  for (unsigned index = 0; index < 8; ++index) {
    dvc_pnl_cmm_valueset entry;
    ASSERT_EQ(0, dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(
                     table.data(), 0, static_cast<unsigned>(table.size()), index, entry))
        << index;
    long weight = -1;
    const std::string leaf = "0.230.49.382.401.402." + std::to_string(index) + ".384";
    EXPECT_EQ(0, entry.dvc_pnl_cmm_get_int(key_of(leaf), weight)) << dump(entry);
  }
  dvc_pnl_cmm_valueset beyond;
  EXPECT_NE(0, dvc_pnl_ceh_contents_hdl_get_valueset_from_pnl_cmm_by_index(
                   table.data(), 0, static_cast<unsigned>(table.size()), 8, beyond));
}

}  // namespace
}  // namespace orvanta::test
