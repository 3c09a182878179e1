// Renderings of the 128x64 LCD frame: terminal text, PBM and PNG images.
#pragma once

#include <array>
#include <string>

namespace orvanta::sim {

// The LCD frame as the panel sends it: 128x64 pixels, row-major, 16 bytes a row, most
// significant bit leftmost, 1 = dark.
using lcd_frame = std::array<unsigned char, 1024>;

inline constexpr int kLcdWidth = 128;
inline constexpr int kLcdHeight = 64;

bool dark(const lcd_frame& frame, int x, int y);

// Unicode half blocks: one character holds two pixels one above the other, so the 128x64
// frame takes 32 lines of 128 characters and keeps its aspect on a terminal whose cells are
// twice as high as wide. Dark pixels are drawn, pale ones left blank.
std::string render_half_blocks(const lcd_frame& frame);
// The half-block rendering inside an ASCII box, so that a blank frame still shows its edges.
std::string render_boxed(const lcd_frame& frame);
// Braille patterns: one character holds 2x4 pixels, 16 lines of 64 characters.
std::string render_braille(const lcd_frame& frame);

// A picture of where two frames differ, for a reader: the rows from the first to the last that
// differ, each as its number and 128 characters: '#' dark in both, '.' pale in both, '+' dark
// only in `have`, '-' dark only in `want`. Empty when the frames are equal.
std::string render_diff(const lcd_frame& have, const lcd_frame& want);

// A binary PBM (P4) of the frame, which has the frame's own bit layout.
std::string to_pbm(const lcd_frame& frame);
// Reads a PBM, binary (P4) or plain (P1), of exactly 128x64; answers an error text, empty on
// success.
std::string from_pbm(const std::string& bytes, lcd_frame& out);

// Each pixel a 4x4 square, dark pixels in the panel's ink colour on its pale background.
inline constexpr int kPngScale = 4;
// Writes a PNG file; answers an error text, empty on success.
std::string write_png(const lcd_frame& frame, const std::string& path);

}  // namespace orvanta::sim
