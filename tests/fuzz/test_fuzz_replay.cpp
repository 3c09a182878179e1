// Replays the seed corpus of one fuzz target through its entry point, so every build runs it.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

std::vector<std::filesystem::path> corpus_files() {
  std::vector<std::filesystem::path> files;
  for (const auto& e : std::filesystem::directory_iterator(ORVANTA_FUZZ_CORPUS)) {
    if (e.is_regular_file())
      files.push_back(e.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

TEST(fuzz_replay, corpus_runs_clean) {
  const std::vector<std::filesystem::path> files = corpus_files();
  ASSERT_FALSE(files.empty()) << "no seed inputs in " << ORVANTA_FUZZ_CORPUS;
  for (const auto& file : files) {
    SCOPED_TRACE(file.string());
    std::ifstream in(file, std::ios::binary);
    ASSERT_TRUE(in) << "cannot read " << file;
    const std::vector<uint8_t> bytes((std::istreambuf_iterator<char>(in)),
                                     std::istreambuf_iterator<char>());
    // The target aborts on a broken invariant; the sanitizers catch memory and UB faults.
    EXPECT_EQ(LLVMFuzzerTestOneInput(bytes.data(), bytes.size()), 0);
  }
}

}  // namespace
