// Test support: a fixture that starts and ends every test with a fresh host and the default
// simulated machine.
#pragma once

#include <gtest/gtest.h>

#include "orvanta/host/panel_host.h"
#include "orvanta/machine/simulated_machine.h"

namespace orvanta::test {

class MachineTest : public ::testing::Test {
 protected:
  void SetUp() override {
    host::reset();
    machine().reset();
  }
  void TearDown() override {
    machine().reset();
    host::reset();
  }

  static ::orvanta::machine::simulated_machine& machine() {
    return ::orvanta::machine::simulated_machine::instance();
  }
};

}  // namespace orvanta::test
