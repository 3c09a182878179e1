// Renderings of the LCD frame: terminal text, PBM both ways, PNG.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "orvanta/sim/frame_render.h"
#include "orvanta/sim/panel_runtime.h"

namespace orvanta::sim {
namespace {

void set(lcd_frame& f, int x, int y) {
  f[static_cast<std::size_t>(y * 16 + x / 8)] |= static_cast<unsigned char>(0x80 >> (x % 8));
}

// The lines of a rendering, each split into its UTF-8 characters.
std::vector<std::vector<std::string>> cells(const std::string& text) {
  std::vector<std::vector<std::string>> lines(1);
  for (std::size_t i = 0; i < text.size();) {
    if (text[i] == '\n') {
      lines.emplace_back();
      ++i;
      continue;
    }
    const unsigned char c = static_cast<unsigned char>(text[i]);
    const std::size_t len = c < 0x80 ? 1 : c < 0xe0 ? 2 : c < 0xf0 ? 3 : 4;
    lines.back().push_back(text.substr(i, len));
    i += len;
  }
  lines.pop_back();  // after the last newline
  return lines;
}

class FrameRender : public ::testing::Test {
 protected:
  lcd_frame frame{};
};

TEST_F(FrameRender, PixelsFollowTheFrameLayout) {
  set(frame, 0, 0);
  set(frame, 9, 1);
  set(frame, 127, 63);
  EXPECT_EQ(frame[0], 0x80);
  EXPECT_EQ(frame[16 + 1], 0x40);
  EXPECT_EQ(frame[1023], 0x01);
  EXPECT_TRUE(dark(frame, 9, 1));
  EXPECT_FALSE(dark(frame, 8, 1));
  EXPECT_FALSE(dark(frame, 128, 0)) << "outside the frame";
}

TEST_F(FrameRender, DiffShowsTheRowsThatDifferAndWhichSideIsDark) {
  EXPECT_EQ(render_diff(frame, frame), "");
  lcd_frame other = frame;
  set(frame, 0, 3);  // both
  set(other, 0, 3);
  set(frame, 1, 3);  // only the first
  set(other, 2, 5);  // only the second
  const std::string diff = render_diff(frame, other);
  const auto lines = cells(diff);
  ASSERT_EQ(lines.size(), 3u) << "rows 3 to 5";
  EXPECT_EQ(diff.substr(0, 7), " 3 #+..");
  EXPECT_EQ(diff.substr(diff.find(" 4 "), 6), " 4 ...");
  EXPECT_EQ(diff.substr(diff.find(" 5 "), 6), " 5 ..-");
  EXPECT_EQ(lines[0].size(), 3u + 128u);
}

TEST_F(FrameRender, HalfBlocksHoldTwoRowsPerLine) {
  set(frame, 0, 0);  // top half of line 0, column 0
  set(frame, 1, 1);  // bottom half of line 0, column 1
  set(frame, 2, 0);  // both halves of column 2
  set(frame, 2, 1);
  set(frame, 127, 63);  // bottom half of the last line
  const auto lines = cells(render_half_blocks(frame));
  ASSERT_EQ(lines.size(), 32u);
  ASSERT_EQ(lines[0].size(), 128u);
  EXPECT_EQ(lines[0][0], "\u2580");
  EXPECT_EQ(lines[0][1], "\u2584");
  EXPECT_EQ(lines[0][2], "\u2588");
  EXPECT_EQ(lines[0][3], " ");
  EXPECT_EQ(lines[31][127], "\u2584");
}

TEST_F(FrameRender, BrailleHoldsTwoByFourPixelsPerCharacter) {
  set(frame, 0, 0);  // dot 1
  set(frame, 1, 3);  // dot 8
  set(frame, 126, 60);
  const auto lines = cells(render_braille(frame));
  ASSERT_EQ(lines.size(), 16u);
  ASSERT_EQ(lines[0].size(), 64u);
  EXPECT_EQ(lines[0][0], "\u2881");
  EXPECT_EQ(lines[0][1], "\u2800");
  EXPECT_EQ(lines[15][63], "\u2801");
}

TEST_F(FrameRender, BoxedFrameKeepsItsEdgesWhenBlank) {
  const auto lines = cells(render_boxed(frame));
  ASSERT_EQ(lines.size(), 34u);
  EXPECT_EQ(lines.front().size(), 130u);
  EXPECT_EQ(lines[1].front(), "|");
  EXPECT_EQ(lines[1].back(), "|");
}

TEST_F(FrameRender, PbmRoundTripsInBothForms) {
  set(frame, 5, 7);
  set(frame, 100, 50);
  lcd_frame back{};
  ASSERT_EQ(from_pbm(to_pbm(frame), back), "");
  EXPECT_EQ(back, frame);

  std::string plain = "P1\n# a comment\n128 64\n";
  for (int y = 0; y < 64; ++y) {
    for (int x = 0; x < 128; ++x)
      plain += dark(frame, x, y) ? "1 " : "0 ";
    plain += "\n";
  }
  back.fill(0xff);
  ASSERT_EQ(from_pbm(plain, back), "");
  EXPECT_EQ(back, frame);
}

TEST_F(FrameRender, PbmErrorsNameTheProblem) {
  lcd_frame out{};
  EXPECT_EQ(from_pbm("P5\n128 64\n", out), "not a PBM file");
  EXPECT_EQ(from_pbm("P4\n64 64\n", out), "the image is 64x64, not 128x64");
  EXPECT_EQ(from_pbm("P4\n128 64\nabc", out), "the image data is cut short");
  EXPECT_EQ(from_pbm("P1\n128 64\n0 1", out), "the image data is cut short");
}

TEST_F(FrameRender, PngIsFourTimesTheFrame) {
  set(frame, 0, 0);
  const std::string path =
      (std::filesystem::temp_directory_path() / "orvanta_frame_render_test.png").string();
  ASSERT_EQ(write_png(frame, path), "");
  std::string bytes;
  ASSERT_EQ(read_file(path, bytes), "");
  std::filesystem::remove(path);
  ASSERT_GT(bytes.size(), 24u);
  EXPECT_EQ(bytes.substr(1, 3), "PNG");
  auto be32 = [&](std::size_t at) {
    return (static_cast<unsigned char>(bytes[at]) << 24) |
           (static_cast<unsigned char>(bytes[at + 1]) << 16) |
           (static_cast<unsigned char>(bytes[at + 2]) << 8) |
           static_cast<unsigned char>(bytes[at + 3]);
  };
  EXPECT_EQ(be32(16), 128 * kPngScale);  // IHDR width
  EXPECT_EQ(be32(20), 64 * kPngScale);   // IHDR height
  EXPECT_NE(write_png(frame, "/no/such/dir/x.png"), "");
}

}  // namespace
}  // namespace orvanta::sim
