// What the top screen's parts show as texts and icons, with resource ids resolved to words.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta::sim {

// Texts and icon names by resource id. Texts live in the host's resource table, which the panel
// library reads as well (dvu_pnl_gcp_resource); icon names are the simulator's own. Both start
// empty, so every id shows as its number, and entries can be added as resources become known.
class resource_table {
 public:
  void add_text(int id, const std::string& text);
  void add_icon(int id, std::string name) { icons_[id] = std::move(name); }
  // The entry for `id`, or the id as a decimal number.
  std::string text(int id) const;
  std::string icon(int id) const;

 private:
  std::map<int, std::string> icons_;
};

// One text or icon that a part shows.
struct shown_item {
  int part;
  int row;  // the list row, or -1 for a part that is not a list
  bool is_icon;
  std::string text;  // the text, or the icon's name
};

// What visible parts show, by ascending part id: an icon part its icon (attribute 0); a text
// part its text resource (attribute 1), or its literal string (string attribute 0) when that
// resource is -1 or unset; a label its items; a list part the items of each row.
std::vector<shown_item> shown_items(const std::vector<std::pair<int, dvu_pnl_gcp_parts*>>& parts,
                                    const resource_table& resources);
// One line per item: `<part> text "<text>"`, `<part> icon <name>`, rows as `<part>.<row>`.
std::string format_items(const std::vector<shown_item>& items);

}  // namespace orvanta::sim
