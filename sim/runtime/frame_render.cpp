// Terminal, PBM and PNG renderings of the LCD frame.
#include "orvanta/sim/frame_render.h"

#include <png.h>

#include <cctype>
#include <cstdio>
#include <memory>
#include <vector>

namespace orvanta::sim {
namespace {

constexpr int kStride = kLcdWidth / 8;

// Colours of the PNG: a dark ink on a pale, slightly green LCD background.
constexpr unsigned char kInk[3] = {0x1f, 0x2a, 0x1c};
constexpr unsigned char kPanel[3] = {0xc7, 0xd6, 0xb4};

void append_utf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xc0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3f));
  } else {
    out += static_cast<char>(0xe0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3f));
    out += static_cast<char>(0x80 | (c & 0x3f));
  }
}

}  // namespace

bool dark(const lcd_frame& frame, int x, int y) {
  if (x < 0 || x >= kLcdWidth || y < 0 || y >= kLcdHeight)
    return false;
  return (frame[static_cast<std::size_t>(y * kStride + x / 8)] & (0x80 >> (x % 8))) != 0;
}

std::string render_half_blocks(const lcd_frame& frame) {
  std::string out;
  for (int y = 0; y < kLcdHeight; y += 2) {
    for (int x = 0; x < kLcdWidth; ++x) {
      const bool top = dark(frame, x, y);
      const bool bottom = dark(frame, x, y + 1);
      append_utf8(out, top && bottom ? U'\u2588' : top ? U'\u2580' : bottom ? U'\u2584' : U' ');
    }
    out += '\n';
  }
  return out;
}

std::string render_boxed(const lcd_frame& frame) {
  const std::string edge = "+" + std::string(kLcdWidth, '-') + "+\n";
  std::string out = edge;
  const std::string blocks = render_half_blocks(frame);
  std::size_t start = 0;
  for (std::size_t end; (end = blocks.find('\n', start)) != std::string::npos; start = end + 1)
    out += "|" + blocks.substr(start, end - start) + "|\n";
  return out + edge;
}

std::string render_braille(const lcd_frame& frame) {
  // Dot bits of a braille cell by (column, row).
  static constexpr int kDot[2][4] = {{0x01, 0x02, 0x04, 0x40}, {0x08, 0x10, 0x20, 0x80}};
  std::string out;
  for (int y = 0; y < kLcdHeight; y += 4) {
    for (int x = 0; x < kLcdWidth; x += 2) {
      int bits = 0;
      for (int dx = 0; dx < 2; ++dx) {
        for (int dy = 0; dy < 4; ++dy) {
          if (dark(frame, x + dx, y + dy))
            bits |= kDot[dx][dy];
        }
      }
      append_utf8(out, static_cast<char32_t>(0x2800 + bits));
    }
    out += '\n';
  }
  return out;
}

std::string render_diff(const lcd_frame& have, const lcd_frame& want) {
  int first = -1;
  int last = -1;
  for (int y = 0; y < kLcdHeight; ++y) {
    for (int x = 0; x < kLcdWidth; ++x) {
      if (dark(have, x, y) != dark(want, x, y)) {
        first = first < 0 ? y : first;
        last = y;
      }
    }
  }
  std::string out;
  for (int y = first; first >= 0 && y <= last; ++y) {
    char number[16];
    std::snprintf(number, sizeof number, "%2d ", y);
    out += number;
    for (int x = 0; x < kLcdWidth; ++x) {
      const bool h = dark(have, x, y);
      const bool w = dark(want, x, y);
      out += h && w ? '#' : h ? '+' : w ? '-' : '.';
    }
    out += '\n';
  }
  return out;
}

std::string to_pbm(const lcd_frame& frame) {
  std::string out = "P4\n128 64\n";
  out.append(reinterpret_cast<const char*>(frame.data()), frame.size());
  return out;
}

std::string from_pbm(const std::string& bytes, lcd_frame& out) {
  std::size_t pos = 0;
  // The header: magic, width, height, each after blanks and comments; one blank ends it.
  auto next_token = [&]() -> std::string {
    for (;;) {
      while (pos < bytes.size() && std::isspace(static_cast<unsigned char>(bytes[pos])))
        ++pos;
      if (pos < bytes.size() && bytes[pos] == '#') {
        while (pos < bytes.size() && bytes[pos] != '\n')
          ++pos;
        continue;
      }
      break;
    }
    std::string token;
    while (pos < bytes.size() && !std::isspace(static_cast<unsigned char>(bytes[pos])))
      token += bytes[pos++];
    return token;
  };
  const std::string magic = next_token();
  if (magic != "P4" && magic != "P1")
    return "not a PBM file";
  const std::string width = next_token();
  const std::string height = next_token();
  if (width != "128" || height != "64")
    return "the image is " + width + "x" + height + ", not 128x64";
  out.fill(0);
  if (magic == "P4") {
    ++pos;  // the single blank after the height
    if (bytes.size() < pos + out.size())
      return "the image data is cut short";
    for (std::size_t i = 0; i < out.size(); ++i)
      out[i] = static_cast<unsigned char>(bytes[pos + i]);
    return {};
  }
  int pixel = 0;
  for (; pos < bytes.size() && pixel < kLcdWidth * kLcdHeight; ++pos) {
    const char c = bytes[pos];
    if (c == '#') {
      while (pos < bytes.size() && bytes[pos] != '\n')
        ++pos;
      continue;
    }
    if (c != '0' && c != '1')
      continue;
    if (c == '1')
      out[static_cast<std::size_t>(pixel / 8)] |= static_cast<unsigned char>(0x80 >> (pixel % 8));
    ++pixel;
  }
  if (pixel < kLcdWidth * kLcdHeight)
    return "the image data is cut short";
  return {};
}

std::string write_png(const lcd_frame& frame, const std::string& path) {
  std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "wb"), std::fclose);
  if (!file)
    return "cannot write " + path;
  png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
  png_infop info = png != nullptr ? png_create_info_struct(png) : nullptr;
  if (png == nullptr || info == nullptr) {
    png_destroy_write_struct(&png, nullptr);
    return "libpng could not start";
  }
  constexpr int kWidth = kLcdWidth * kPngScale;
  constexpr int kHeight = kLcdHeight * kPngScale;
  std::vector<unsigned char> row(static_cast<std::size_t>(kWidth) * 3);
  // libpng reports errors by longjmp; nothing with a destructor is created below this point.
  if (setjmp(png_jmpbuf(png))) {
    png_destroy_write_struct(&png, &info);
    return "libpng failed to write " + path;
  }
  png_init_io(png, file.get());
  png_set_IHDR(png, info, kWidth, kHeight, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
               PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
  png_write_info(png, info);
  for (int y = 0; y < kHeight; ++y) {
    for (int x = 0; x < kWidth; ++x) {
      const unsigned char* colour = dark(frame, x / kPngScale, y / kPngScale) ? kInk : kPanel;
      for (int c = 0; c < 3; ++c)
        row[static_cast<std::size_t>(x) * 3 + static_cast<std::size_t>(c)] = colour[c];
    }
    png_write_row(png, row.data());
  }
  png_write_end(png, nullptr);
  png_destroy_write_struct(&png, &info);
  return {};
}

}  // namespace orvanta::sim
