// Text drawn into the LCD frame with the panel font.
#include "orvanta/host/font.h"

#include "orvanta/host/panel_host.h"

namespace orvanta::host {

int draw_text(unsigned char* img, int x, int y, const std::string& text) {
  for (unsigned char c : text) {
    if (const unsigned char* rows = glyph(c); rows != nullptr && img != nullptr) {
      for (int dy = 0; dy < kGlyphHeight; ++dy) {
        const int py = y + dy;
        if (py < 0 || py >= kFrameHeight)
          continue;
        for (int dx = 0; dx < kGlyphWidth; ++dx) {
          const int px = x + dx;
          if (px < 0 || px >= kFrameWidth || (rows[dy] & (0x80 >> dx)) == 0)
            continue;
          img[py * kFrameStride + px / 8] |= static_cast<unsigned char>(0x80 >> (px % 8));
        }
      }
    }
    x += kGlyphWidth;
  }
  return x;
}

}  // namespace orvanta::host
