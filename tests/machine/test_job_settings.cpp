// The default machine's job settings trees and the setting transaction service over them.
#include <gtest/gtest.h>

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "orvanta/machine/simulated_machine.h"
#include "orvanta/machine/transaction_service.h"
#include "support/machine_test.h"
#include "support/valueset_builder.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"

namespace orvanta::test {
namespace {

using machine::kSettingCancelled;
using machine::kSettingCommitted;
using machine::kSettingRefused;
using machine::kSettingStarted;
using machine::open_setting_levels;

constexpr const char* kStartup = "0.821.822.823";
constexpr const char* kCommit = "0.821.822.824";
constexpr const char* kCancel = "0.821.822.825";

// Common function ids of the requests.
constexpr long kCopy = 1;
constexpr long kSend = 3;
constexpr long kFax = 4;
constexpr long kBoxPrint = 5;
constexpr long kBoxStore = 6;

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

// ---------------------------------------------------------------- the transaction service

class SettingTransaction : public MachineTest {
 protected:
  // RESULT of `command` asked for `function` with a well-formed request.
  static long ask(const std::string& command, long function) {
    return ask_with(command,
                    make_valueset({{command + ".1320", 1L}, {command + ".1035", function}}));
  }

  static long ask_with(const std::string& command, const dvc_pnl_cmm_valueset& request) {
    dvc_pnl_cmm_valueset response;
    EXPECT_EQ(0, machine().dvc_pnl_cmm_invoke(key_of(command), request, response)) << command;
    long result = -99;
    EXPECT_EQ(0, response.dvc_pnl_cmm_get_int(key_of(command + ".1484"), result)) << dump(response);
    EXPECT_EQ(1u, response.dvc_pnl_cmm_size()) << "RESULT alone: " << dump(response);
    return result;
  }

  // Writes through the mediator, as the panel does.
  static void write(const std::string& path, long value) {
    dvc_pnl_cmm_value v;
    ASSERT_EQ(0, v.dvc_pnl_cmm_set_int(value));
    ASSERT_EQ(0, machine().dvc_pnl_cmm_set_value(key_of(path), v, 0)) << path;
  }

  static long read(const std::string& path) { return machine().int_at(path).value_or(-99); }

  // The whole tree of a function, printed, to compare before and after.
  static std::string tree(const char* root) {
    const std::optional<dvc_pnl_cmm_value> v = machine().node(root);
    return v ? dump(*v) : "(none)";
  }
};

TEST_F(SettingTransaction, EachCommandAnswersItsOwnResultForSuccess) {
  // The values the panel compares with, written out: startup 0, commit 1, cancel 3, refusal 2.
  EXPECT_EQ(0, ask(kStartup, kCopy));
  EXPECT_EQ(1, ask(kCommit, kCopy));
  EXPECT_EQ(0, ask(kStartup, kCopy));
  EXPECT_EQ(3, ask(kCancel, kCopy));
  EXPECT_EQ(2, ask(kCancel, kCopy));
}

TEST_F(SettingTransaction, CancelRestoresTheTreeAsItWasAndCommitKeepsTheChanges) {
  const std::string before = tree("0.1.2");
  ASSERT_EQ(kSettingStarted, ask(kStartup, kCopy));
  write("0.1.2.160.148.149", 0);
  write("0.1.2.3.12.28", 5);      // the default scope is covered too
  write("0.1.2.160.12.9999", 7);  // a node the level did not see
  machine().remove_node("0.1.2.160.46.49.51");
  ASSERT_EQ(kSettingCancelled, ask(kCancel, kCopy));
  EXPECT_EQ(before, tree("0.1.2"));
  EXPECT_FALSE(machine().node("0.1.2.160.12.9999").has_value());

  ASSERT_EQ(kSettingStarted, ask(kStartup, kCopy));
  write("0.1.2.160.148.149", 0);
  write("0.1.2.160.12.9999", 7);
  ASSERT_EQ(kSettingCommitted, ask(kCommit, kCopy));
  EXPECT_EQ(0, read("0.1.2.160.148.149"));
  EXPECT_EQ(7, read("0.1.2.160.12.9999"));
}

TEST_F(SettingTransaction, NestedLevelsCloseInnermostFirst) {
  // Inner commit, outer cancel: the outer level rolls back both changes.
  const std::string before = tree("0.1.2");
  ask(kStartup, kCopy);
  write("0.1.2.160.148.149", 0);
  ask(kStartup, kCopy);
  write("0.1.2.160.12.28", 2);
  EXPECT_EQ(kSettingCommitted, ask(kCommit, kCopy));
  EXPECT_EQ(2, read("0.1.2.160.12.28"));
  EXPECT_EQ(kSettingCancelled, ask(kCancel, kCopy));
  EXPECT_EQ(before, tree("0.1.2"));

  // Inner cancel, outer commit: only the outer change stays.
  ask(kStartup, kCopy);
  write("0.1.2.160.148.149", 0);
  ask(kStartup, kCopy);
  write("0.1.2.160.12.28", 2);
  write("0.1.2.160.148.149", 5);
  EXPECT_EQ(kSettingCancelled, ask(kCancel, kCopy));
  EXPECT_EQ(0, read("0.1.2.160.148.149"));
  EXPECT_EQ(kSettingCommitted, ask(kCommit, kCopy));
  EXPECT_EQ(0, read("0.1.2.160.148.149"));
  EXPECT_EQ(0, read("0.1.2.160.12.28"));
  EXPECT_EQ(0u, open_setting_levels(kCopy));
}

TEST_F(SettingTransaction, FunctionsKeepTheirOwnLevelsAndTrees) {
  struct function_case {
    long function;
    const char* root;
  };
  const function_case functions[] = {{kCopy, "0.1.2"},
                                     {kSend, "0.1.161"},
                                     {kFax, "0.1.206"},
                                     {kBoxPrint, "0.1.207"},
                                     {kBoxStore, "0.1.214"}};
  for (const function_case& cancelled : functions) {
    machine().reset();
    const std::string before = tree(cancelled.root);
    for (const function_case& f : functions) {
      ASSERT_EQ(kSettingStarted, ask(kStartup, f.function));
      write(std::string(f.root) + ".160.1.11", 9);
    }
    EXPECT_EQ(kSettingCancelled, ask(kCancel, cancelled.function));
    EXPECT_EQ(before, tree(cancelled.root)) << cancelled.root;
    for (const function_case& f : functions) {
      const bool is_cancelled = f.function == cancelled.function;
      EXPECT_EQ(is_cancelled ? 0 : 9, read(std::string(f.root) + ".160.1.11"))
          << f.root << " after cancelling " << cancelled.root;
      EXPECT_EQ(is_cancelled ? 0u : 1u, open_setting_levels(f.function)) << f.root;
    }
  }
}

TEST_F(SettingTransaction, CancelRemovesATreeThatDidNotExistWhenTheLevelOpened) {
  machine().remove_node("0.1.214");
  ask(kStartup, kBoxStore);
  write("0.1.214.160.216.217", 3);
  EXPECT_EQ(kSettingCancelled, ask(kCancel, kBoxStore));
  EXPECT_FALSE(machine().node("0.1.214").has_value());
}

TEST_F(SettingTransaction, AFunctionWithoutATreeOpensLevelsThatCoverNothing) {
  const std::string before = tree("0.1");
  EXPECT_EQ(kSettingStarted, ask(kStartup, 9));
  EXPECT_EQ(1u, open_setting_levels(9));
  EXPECT_EQ(0u, open_setting_levels(kCopy));
  write("0.1.2.160.148.149", 0);
  EXPECT_EQ(kSettingCancelled, ask(kCancel, 9));
  EXPECT_EQ(0, read("0.1.2.160.148.149")) << "function 9 covers no tree";
  EXPECT_EQ(0u, open_setting_levels(9));
  write("0.1.2.160.148.149", 1);
  EXPECT_EQ(before, tree("0.1"));
}

TEST_F(SettingTransaction, CommitOrCancelWithoutAnOpenLevelIsRefused) {
  const std::string before = tree("0.1");
  EXPECT_EQ(kSettingRefused, ask(kCommit, kCopy));
  EXPECT_EQ(kSettingRefused, ask(kCancel, kCopy));
  // A level of another function is not one of copy's.
  ask(kStartup, kSend);
  write("0.1.2.160.148.149", 0);
  EXPECT_EQ(kSettingRefused, ask(kCancel, kCopy));
  EXPECT_EQ(0, read("0.1.2.160.148.149"));
  EXPECT_EQ(1u, open_setting_levels(kSend));
  // Closing more levels than were opened.
  EXPECT_EQ(kSettingCommitted, ask(kCommit, kSend));
  EXPECT_EQ(kSettingRefused, ask(kCommit, kSend));
  write("0.1.2.160.148.149", 1);
  EXPECT_EQ(before, tree("0.1"));
}

TEST_F(SettingTransaction, BadRequestsAreRefusedAndChangeNothing) {
  struct bad_case {
    const char* what;
    std::vector<entry> words;  // below the command
  };
  const bad_case cases[] = {
      {"no request kind", {{"1035", 1L}}},
      {"request kind 2", {{"1320", 2L}, {"1035", 1L}}},
      {"no common function", {{"1320", 1L}}},
      {"common function as text", {{"1320", 1L}, {"1035", "1"}}},
  };
  for (const char* command : {kStartup, kCommit, kCancel}) {
    for (const bad_case& c : cases) {
      machine().reset();
      ask(kStartup, kCopy);  // an open level that a bad commit or cancel must leave alone
      write("0.1.2.160.148.149", 0);
      std::vector<entry> words;
      for (const entry& e : c.words)
        words.push_back({std::string(command) + "." + e.path, e.value});
      dvc_pnl_cmm_valueset request = words.empty() ? dvc_pnl_cmm_valueset{} : make_valueset(words);
      EXPECT_EQ(kSettingRefused, ask_with(command, request)) << command << ": " << c.what;
      EXPECT_EQ(1u, open_setting_levels(kCopy)) << command << ": " << c.what;
      EXPECT_EQ(0, read("0.1.2.160.148.149")) << command << ": " << c.what;
    }
  }
  machine().reset();
  EXPECT_EQ(kSettingRefused, ask_with(kStartup, dvc_pnl_cmm_valueset{})) << "an empty request";
  EXPECT_EQ(0u, open_setting_levels(kCopy));
}

TEST_F(SettingTransaction, LevelsAreCountedPerFunctionAndResetDropsThem) {
  for (int i = 0; i < 3; ++i)
    ask(kStartup, kCopy);
  ask(kStartup, kFax);
  EXPECT_EQ(3u, open_setting_levels(kCopy));
  EXPECT_EQ(1u, open_setting_levels(kFax));
  EXPECT_EQ(0u, open_setting_levels(kSend));
  ask(kCancel, kCopy);
  ask(kCommit, kCopy);
  EXPECT_EQ(1u, open_setting_levels(kCopy));

  write("0.1.2.160.148.149", 0);
  machine().reset();
  EXPECT_EQ(0u, open_setting_levels(kCopy));
  EXPECT_EQ(0u, open_setting_levels(kFax));
  EXPECT_EQ(kSettingRefused, ask(kCancel, kCopy));
  EXPECT_EQ(1, read("0.1.2.160.148.149")) << "the default model again";
}

}  // namespace
}  // namespace orvanta::test
