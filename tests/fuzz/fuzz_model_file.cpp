// Fuzz target: the model file loader of the simulated machine. Any text is either a model or an
// error text; neither may crash, and loading the same text twice must answer the same.
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "orvanta/machine/simulated_machine.h"

#ifndef ORVANTA_FUZZ_ENTRY
#define ORVANTA_FUZZ_ENTRY LLVMFuzzerTestOneInput
#endif

extern "C" int ORVANTA_FUZZ_ENTRY(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  orvanta::machine::simulated_machine& m = orvanta::machine::simulated_machine::instance();
  m.reset();
  const std::string first = m.load_model_json(text);
  m.reset();
  const std::string second = m.load_model_json(text);
  m.reset();
  if (first != second) {
    std::fprintf(stderr, "fuzz_model_file: the same text loads differently: \"%s\" then \"%s\"\n",
                 first.c_str(), second.c_str());
    std::abort();
  }
  return 0;
}
