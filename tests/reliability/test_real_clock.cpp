// The real clock's two threads at once: the timer thread expires timers and posts their events
// while the panel thread presses keys and delivers; run under ThreadSanitizer by its preset.
#include <gtest/gtest.h>

#include <chrono>
#include <mutex>
#include <thread>

#include "sim/scripted_screen.h"

namespace orvanta::test {
namespace {

using RealClock = SimFixture;

TEST_F(RealClock, TimerThreadPostsWhileThePanelThreadDispatches) {
  make_runtime(sim::clock_mode::real_time);
  int keys = 0;
  // Two short timers that restart themselves, and keys that restart one of them.
  scripted_screen::hooks()[kScriptedFirst].load = [](scripted_screen& s) {
    s.set_timer(1, 2);
    s.set_timer(2, 3);
  };
  scripted_screen::hooks()[kScriptedFirst].timer = [](scripted_screen& s, int id) {
    s.set_timer(id, id + 1);
  };
  scripted_screen::hooks()[kScriptedFirst].key = [&keys](scripted_screen& s, int) {
    ++keys;
    s.set_timer(1, 1);
    return 1;
  };
  ASSERT_TRUE(rt->open(kScriptedFirst));

  const auto give_up = std::chrono::steady_clock::now() + std::chrono::seconds(20);
  std::size_t expiries = 0;
  int presses = 0;
  while (std::chrono::steady_clock::now() < give_up) {
    rt->press(40);
    ++presses;
    rt->drain();
    {
      std::lock_guard<std::recursive_mutex> guard(rt->lock());
      expiries = scripted_screen::journal().size();
    }
    if (presses >= 200 && expiries >= 50)
      break;
    std::this_thread::sleep_for(std::chrono::microseconds(500));
  }
  std::lock_guard<std::recursive_mutex> guard(rt->lock());
  EXPECT_EQ(keys, presses);
  EXPECT_GE(expiries, 50u) << "the timer thread delivered too few expiries in 20 s";
  ASSERT_TRUE(rt->top().has_value());
  EXPECT_EQ(rt->top()->contents_id, kScriptedFirst);
}

}  // namespace
}  // namespace orvanta::test
