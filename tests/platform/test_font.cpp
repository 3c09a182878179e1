// The panel font and text drawn with it into the LCD frame.
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "orvanta/host/font.h"
#include "orvanta/host/panel_host.h"

namespace orvanta::host {
namespace {

using frame = std::array<unsigned char, kFrameBytes>;

int dark_pixels(const frame& img) {
  int n = 0;
  for (int y = 0; y < kFrameHeight; ++y) {
    for (int x = 0; x < kFrameWidth; ++x)
      n += frame_pixel(img.data(), x, y) ? 1 : 0;
  }
  return n;
}

// The pixels of one glyph as rows of '#' and '.'.
std::string picture(unsigned char code) {
  std::string out;
  const unsigned char* rows = glyph(code);
  for (int y = 0; y < kGlyphHeight; ++y) {
    for (int x = 0; x < kGlyphWidth; ++x)
      out += (rows[y] & (0x80 >> x)) != 0 ? '#' : '.';
    out += '\n';
  }
  return out;
}

TEST(Font, EveryPrintableCodeHasAGlyphAndControlCodesNone) {
  for (int c = 0; c < 256; ++c) {
    const bool printable = (c >= 0x20 && c < 0x7F) || c >= 0xA0;
    EXPECT_EQ(glyph(static_cast<unsigned char>(c)) != nullptr, printable) << c;
  }
  // Letters keep the sixth column of their cell free, so that neighbouring letters stand apart.
  for (int c : {int{'A'}, int{'M'}, int{'W'}, int{'g'}, int{'|'}, 0xC9, 0xFF}) {
    const unsigned char* rows = glyph(static_cast<unsigned char>(c));
    for (int y = 0; y < kGlyphHeight; ++y)
      EXPECT_EQ(rows[y] & 0x07, 0) << c << " row " << y;
  }
}

TEST(Font, GlyphsHaveTheirShapes) {
  std::string blank;
  for (int y = 0; y < kGlyphHeight; ++y)
    blank += "......\n";
  EXPECT_EQ(picture(' '), blank);
  EXPECT_EQ(picture('A'),
            "......\n......\n......\n.###..\n#...#.\n#...#.\n#####.\n#...#.\n#...#.\n#...#.\n"
            "......\n......\n");
  // A descender reaches below the baseline.
  EXPECT_NE(glyph('g')[11] | glyph('g')[10], 0);
  // Latin-1 letters are not their base letters.
  EXPECT_NE(picture(0xE9), picture('e'));
}

TEST(Font, TextIsDrawnCellByCellAndClippedToTheFrame) {
  frame img{};
  EXPECT_EQ(draw_text(img.data(), 6, 2, "AA"), 18);
  // The bar of the first A: row 3 of the glyph, columns 1 to 3 of the cell at x = 6.
  for (int x = 7; x <= 9; ++x)
    EXPECT_TRUE(frame_pixel(img.data(), x, 2 + 3)) << x;
  EXPECT_FALSE(frame_pixel(img.data(), 6, 2 + 3));
  EXPECT_TRUE(frame_pixel(img.data(), 13, 2 + 3)) << "the second A starts 6 pixels on";
  const int two_as = dark_pixels(img);

  // Bytes without a glyph take their cell and draw nothing.
  frame blank{};
  EXPECT_EQ(draw_text(blank.data(), 0, 0, std::string("\x01\x7F", 2)), 12);
  EXPECT_EQ(dark_pixels(blank), 0);

  // Text running off any edge keeps the pixels inside and writes nothing outside.
  frame edge{};
  EXPECT_EQ(draw_text(edge.data(), 125, 60, "AA"), 137);
  EXPECT_EQ(draw_text(edge.data(), -4, -5, "A"), 2);
  EXPECT_GT(dark_pixels(edge), 0);
  EXPECT_LT(dark_pixels(edge), two_as);
  EXPECT_EQ(draw_text(nullptr, 0, 0, "A"), 6);
}

}  // namespace
}  // namespace orvanta::host
