// The monkey and the fault sweep against screens with planted faults: each fault must be found,
// named and cut down, and a healthy screen must pass.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>

#include "fault_sweep.h"
#include "monkey.h"
#include "orvanta/platform/dvc_pnl_cmm_command_mediator.h"
#include "orvanta/platform/dvc_pnl_cmn_hardkey.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "orvanta/sim/names.h"
#include "orvanta/sim/scenario.h"
#include "sim/scripted_screen.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_dm.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_events.h"

namespace orvanta::test {
namespace {

class Harness : public SimFixture {
 protected:
  void SetUp() override {
    SimFixture::SetUp();
    dir = std::filesystem::temp_directory_path() /
          ("orvanta_harness_" + std::to_string(getpid()) + "_" +
           ::testing::UnitTest::GetInstance()->current_test_info()->name());
    std::filesystem::create_directories(dir);
  }
  void TearDown() override {
    std::filesystem::remove_all(dir);
    SimFixture::TearDown();
  }

  sim::monkey_options monkey(int events) const {
    sim::monkey_options o;
    o.ids = {kScriptedFirst};
    o.events = events;
    o.seed = 7;
    o.out_dir = dir.string();
    o.max_trials = 60;
    return o;
  }

  std::string write(const std::string& name, const std::string& text) const {
    const std::string path = (dir / name).string();
    std::ofstream(path) << text;
    return path;
  }

  // Sweeps one file: the `setup` lines, the scripted screen opened, Enter pressed, then `after`.
  int sweep_enter(const std::string& name, const std::string& setup, std::ostringstream& out,
                  const std::string& after = "") {
    sim::sweep_options o;
    o.files = {
        write(name, setup + "open " + std::to_string(kScriptedFirst) + "\nkey enter\n" + after)};
    return sim::run_faults(*rt, o, out);
  }

  static std::string read(const std::string& path) {
    std::ifstream in(path);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
  }

  static int count_lines(const std::string& text) {
    int n = 0;
    for (char c : text)
      n += c == '\n';
    return n;
  }

  std::filesystem::path dir;
};

TEST_F(Harness, MonkeyPassesAScreenThatHoldsUp) {
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen& s, int) {
    s.set_timer(1, 100);
    return 1;
  };
  std::ostringstream out;
  EXPECT_EQ(sim::run_monkey(*rt, monkey(50), out), 0) << out.str();
  EXPECT_NE(out.str().find("1 passed, 0 failed"), std::string::npos) << out.str();
  EXPECT_TRUE(std::filesystem::is_empty(dir));
}

TEST_F(Harness, MonkeyCutsATimerLoopDownToOneKeyAndTheScenarioReplaysIt) {
  // Any key starts a 0 ms timer that restarts itself for ever.
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen& s, int) {
    s.set_timer(7, 0);
    return 1;
  };
  scripted_screen::hooks()[kScriptedFirst].timer = [](scripted_screen& s, int id) {
    s.set_timer(id, 0);
  };
  std::ostringstream out;
  EXPECT_EQ(sim::run_monkey(*rt, monkey(40), out), 1);
  EXPECT_NE(out.str().find("seed 7: hang: the proxy stopped a 0 ms timer"), std::string::npos)
      << out.str();
  const std::string file =
      (dir / ("monkey-" + sim::contents_name(kScriptedFirst) + "-7.scn")).string();
  ASSERT_TRUE(std::filesystem::exists(file)) << out.str();
  const std::string text = read(file);
  // Two comment lines, function, the two opens, the one input, the trace comment and check.
  EXPECT_EQ(count_lines(text), 8) << text;
  EXPECT_NE(text.find("expect trace \"timer loop stopped\""), std::string::npos) << text;

  std::ostringstream replay_out;
  const sim::file_outcome replay = sim::run_scenario_file(*rt, file, {}, replay_out);
  EXPECT_TRUE(replay.passed) << replay.report;
}

TEST_F(Harness, MonkeyNamesAScreenThatHangs) {
  // Some keys never return.
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen&, int key) {
    if (key == 40 || key == 61)
      for (;;)
        pause();
    return 1;
  };
  sim::monkey_options o = monkey(30);
  o.hang_seconds = 1;
  o.max_trials = 4;
  std::ostringstream out;
  EXPECT_EQ(sim::run_monkey(*rt, o, out), 1);
  EXPECT_NE(out.str().find("hang: a dispatch did not return"), std::string::npos) << out.str();
}

TEST_F(Harness, MonkeyStopsAScreenThatKeepsOpeningPages) {
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen& s, int) {
    s.open_child_contents(static_cast<DVC_PNL_CEH_CONTENTS_ID>(kScriptedFirst));
    return 1;
  };
  sim::monkey_options o = monkey(50);
  o.stack_bound = 3;
  std::ostringstream out;
  EXPECT_EQ(sim::run_monkey(*rt, o, out), 1);
  EXPECT_NE(out.str().find("page stack grew past its bound"), std::string::npos) << out.str();
  // The base screen, the screen and one page more are within the bound: two keys are needed.
  EXPECT_NE(out.str().find("cut down to 2 of 50 steps"), std::string::npos) << out.str();
}

// A screen that, on a key, reads a machine node and a data manager entry, and takes a hard key
// lock it never gives back when a read fails.
void plant_lock_leak() {
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen&, int) {
    dvc_pnl_cmm_key key;
    for (unsigned long n : {0UL, 9UL, 9UL})
      key.dvc_pnl_cmm_add_key(n);
    dvc_pnl_cmm_value value;
    const int node =
        dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance().dvc_pnl_cmm_get_value(key, value, 1);
    int mode = 0;
    const int entry =
        dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_START_BOX_KIND, mode);
    if (node != 0 || entry != 0)
      dvc_pnl_ceh_contents_hdl_set_hardkey_lock(DVC_PNL_CMN_ENUM_HARDKEY_OPE_LOCK |
                                                DVC_PNL_CMN_ENUM_HARDKEY_TYPE_CURSOR_KEY);
    return 1;
  };
}

TEST_F(Harness, FaultSweepFindsTheLockThatAFailedReadLeaves) {
  plant_lock_leak();
  std::ostringstream out;
  // The expectation fails in a clean run too: under the sweep expectations are not run.
  EXPECT_EQ(sweep_enter("planted.scn", "machine 0.9.9 = 1\ndm app DVC_PNL_PDM_START_BOX_KIND = 1\n",
                        out, "expect top 1\n"),
            1)
      << out.str();
  const std::string text = out.str();
  EXPECT_NE(text.find("(mediator get 0.9.9 answers 3 (call 1 of input 2)): a hard key lock count "
                      "stayed"),
            std::string::npos)
      << text;
  EXPECT_NE(text.find("(DVC_PNL_PDM_START_BOX_KIND) fails): a hard key lock count stayed"),
            std::string::npos)
      << text;
  EXPECT_EQ(text.find("without injection"), std::string::npos) << text;
}

TEST_F(Harness, FaultSweepFailsEachCallOfARepeatedNodeInTurn) {
  // Three reads of one node in one input; only a failure of the second leaves the lock.
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen&, int) {
    dvc_pnl_cmm_command_mediator& mediator = dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance();
    dvc_pnl_cmm_key key;
    for (unsigned long n : {0UL, 9UL, 9UL})
      key.dvc_pnl_cmm_add_key(n);
    dvc_pnl_cmm_value value;
    int second = 0;
    for (int i = 0; i < 3; ++i) {
      const int ret = mediator.dvc_pnl_cmm_get_value(key, value, 1);
      if (i == 1)
        second = ret;
    }
    if (second != 0)
      dvc_pnl_ceh_contents_hdl_set_hardkey_lock(DVC_PNL_CMN_ENUM_HARDKEY_OPE_LOCK |
                                                DVC_PNL_CMN_ENUM_HARDKEY_TYPE_CURSOR_KEY);
    return 1;
  };
  std::ostringstream out;
  EXPECT_EQ(sweep_enter("repeated.scn", "machine 0.9.9 = 1\n", out), 1) << out.str();
  const std::string text = out.str();
  EXPECT_NE(text.find("(mediator get 0.9.9 answers 3 (call 2 of input 2)): a hard key lock"),
            std::string::npos)
      << text;
  EXPECT_EQ(text.find("(call 1 of input 2)): a"), std::string::npos) << text;
  EXPECT_EQ(text.find("(call 3 of input 2)): a"), std::string::npos) << text;
  EXPECT_NE(text.find("1 failed"), std::string::npos) << text;
}

TEST_F(Harness, FaultSweepNamesAPointThatLandsOnAnotherCall) {
  // A screen whose calls depend on how often it ran before: the children, forked after the clean
  // run, read another node than the clean run did at the same place.
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen&, int) {
    static int runs = 0;
    dvc_pnl_cmm_key key;
    for (unsigned long n : {0UL, 9UL, runs++ == 0 ? 9UL : 8UL})
      key.dvc_pnl_cmm_add_key(n);
    dvc_pnl_cmm_value value;
    dvc_pnl_cmm_command_mediator::dvc_pnl_cmm_instance().dvc_pnl_cmm_get_value(key, value, 1);
    return 1;
  };
  std::ostringstream out;
  EXPECT_EQ(sweep_enter("drifts.scn", "", out), 1) << out.str();
  EXPECT_NE(out.str().find("(mediator get 0.9.9 answers 3 (call 1 of input 2)): the fault hit "
                           "another call than the clean run made there"),
            std::string::npos)
      << out.str();
}

TEST_F(Harness, FaultSweepPassesWhenTheScreenCopes) {
  // Reads that fail are shrugged off.
  scripted_screen::hooks()[kScriptedFirst].key = [](scripted_screen&, int) {
    int mode = 0;
    dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(DVC_PNL_PDM_START_BOX_KIND, mode);
    return 1;
  };
  std::ostringstream out;
  EXPECT_EQ(sweep_enter("copes.scn", "dm app DVC_PNL_PDM_START_BOX_KIND = 1\n", out), 0)
      << out.str();
  EXPECT_NE(out.str().find("0 failed"), std::string::npos) << out.str();
}

}  // namespace
}  // namespace orvanta::test
