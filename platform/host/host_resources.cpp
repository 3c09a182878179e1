// Host resource table: the texts and icon bitmaps of resource ids, from the compiled-in resource
// file or one loaded at run time.
#include <map>
#include <mutex>
#include <sstream>
#include <stdexcept>
#include <string>

#include "host_internal.h"
#include "orvanta/platform/dvu_pnl_gcp_resource.h"

namespace orvanta {
namespace host {

extern const char kDefaultResources[];

namespace {

struct resource_data {
  std::map<int, std::string> texts;
  std::map<int, icon_bitmap> icons;
};

resource_data parse(const std::string& content);

struct resource_table : resource_data {
  std::mutex lock;
};

resource_table& table() {
  static resource_table t;
  static const bool loaded = [] {
    static_cast<resource_data&>(t) = parse(kDefaultResources);
    return true;
  }();
  (void)loaded;
  return t;
}

[[noreturn]] void fail(int line, const std::string& what) {
  throw std::invalid_argument("resources line " + std::to_string(line) + ": " + what);
}

int parse_number(const std::string& token, int line, const char* what) {
  std::size_t used = 0;
  int value = 0;
  try {
    value = std::stoi(token, &used);
  } catch (const std::exception&) {
    fail(line, std::string("bad ") + what + " \"" + token + "\"");
  }
  if (used != token.size() || value < 0)
    fail(line, std::string("bad ") + what + " \"" + token + "\"");
  return value;
}

resource_data parse(const std::string& content) {
  resource_data out;
  std::istringstream in(content);
  std::string text;
  int line = 0;
  while (std::getline(in, text)) {
    ++line;
    if (text.empty() || text[0] == '#')
      continue;
    std::istringstream words(text);
    std::string kind, id_token;
    words >> kind >> id_token;
    if (kind == "text") {
      const int id = parse_number(id_token, line, "resource id");
      std::string rest;
      std::getline(words, rest);
      out.texts[id] = rest.empty() ? rest : rest.substr(1);
    } else if (kind == "icon") {
      const int id = parse_number(id_token, line, "resource id");
      std::string w, h, extra;
      words >> w >> h >> extra;
      icon_bitmap icon;
      icon.width = parse_number(w, line, "width");
      icon.height = parse_number(h, line, "height");
      if (icon.width == 0 || icon.width > kFrameWidth || icon.height == 0 ||
          icon.height > kFrameHeight || !extra.empty())
        fail(line, "an icon is \"icon <id> <width> <height>\" within 128x64");
      const int head = line;
      for (int y = 0; y < icon.height; ++y) {
        if (!std::getline(in, text))
          fail(head, "icon " + std::to_string(id) + " has fewer rows than its height");
        ++line;
        if (static_cast<int>(text.size()) != icon.width ||
            text.find_first_not_of("#.") != std::string::npos)
          fail(line, "an icon row is " + std::to_string(icon.width) + " of \"#\" and \".\"");
        icon.rows.push_back(text);
      }
      out.icons[id] = std::move(icon);
    } else {
      fail(line, "expected \"text\" or \"icon\", found \"" + kind + "\"");
    }
  }
  return out;
}

}  // namespace

void load_resources(const std::string& content) {
  resource_data loaded = parse(content);
  std::lock_guard<std::mutex> guard(table().lock);
  table().texts = std::move(loaded.texts);
  table().icons = std::move(loaded.icons);
}

void restore_default_resources() {
  load_resources(kDefaultResources);
}

void set_text_resource(int rid, const std::string& text) {
  std::lock_guard<std::mutex> guard(table().lock);
  table().texts[rid] = text;
}

void clear_text_resources() {
  std::lock_guard<std::mutex> guard(table().lock);
  table().texts.clear();
}

bool icon_of(int rid, icon_bitmap& out) {
  std::lock_guard<std::mutex> guard(table().lock);
  auto it = table().icons.find(rid);
  if (it == table().icons.end())
    return false;
  out = it->second;
  return true;
}

}  // namespace host

std::string dvu_pnl_gcp_resource::get_text_resource(int rid) {
  std::lock_guard<std::mutex> guard(host::table().lock);
  auto it = host::table().texts.find(rid);
  return it == host::table().texts.end() ? std::to_string(rid) : it->second;
}

}  // namespace orvanta
