// The panel font: 6x12 glyphs for printable ASCII and Latin-1, and text drawn with them.
#pragma once

#include <string>

namespace orvanta::host {

inline constexpr int kGlyphWidth = 6;
inline constexpr int kGlyphHeight = 12;

// The twelve rows of the glyph of `code` (a Latin-1 byte), top first, its pixels in the six
// leftmost bits of each byte; nullptr for a control code, which has no glyph.
const unsigned char* glyph(unsigned char code);

// Draws `text` (Latin-1 bytes) into the 128x64 frame `img` with its first cell's top left corner at
// (x, y), one cell of kGlyphWidth pixels a character; bytes without a glyph leave their cell blank.
// Pixels outside the frame are dropped. Answers the x just after the text.
int draw_text(unsigned char* img, int x, int y, const std::string& text);

}  // namespace orvanta::host
