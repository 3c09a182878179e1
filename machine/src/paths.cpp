// Dotted node paths of the simulated machine, their keys, and the check that the entries of a
// fixed answer fit in one response.
#include <algorithm>
#include <charconv>
#include <map>

#include "machine_internal.h"

namespace orvanta::machine::detail {

std::optional<path> parse_path(std::string_view dotted) {
  path p;
  std::size_t pos = 0;
  while (true) {
    const std::size_t dot = dotted.find('.', pos);
    const std::string_view part =
        dotted.substr(pos, dot == std::string_view::npos ? dot : dot - pos);
    unsigned long id = 0;
    const char* end = part.data() + part.size();
    // from_chars takes no sign and no blanks, so only plain decimal digits pass.
    auto [ptr, ec] = std::from_chars(part.data(), end, id);
    if (part.empty() || ec != std::errc{} || ptr != end)
      return std::nullopt;
    p.push_back(id);
    if (dot == std::string_view::npos)
      return p;
    pos = dot + 1;
  }
}

std::string to_dotted(const path& p) {
  std::string s;
  for (std::size_t i = 0; i < p.size(); ++i) {
    if (i != 0)
      s += '.';
    s += std::to_string(p[i]);
  }
  return s;
}

int make_key(const path& p, dvc_pnl_cmm_key& out) {
  out.dvc_pnl_cmm_clear();
  for (unsigned long id : p) {
    if (int ret = out.dvc_pnl_cmm_add_key(id); ret != 0)
      return ret;
  }
  return 0;
}

std::string answer_overlap(const answer_data& entries) {
  for (std::size_t i = 0; i < entries.size(); ++i) {
    for (std::size_t j = 0; j < entries.size(); ++j) {
      const path& inner = entries[i].first;
      const path& outer = entries[j].first;
      if (i == j || inner.size() < outer.size() ||
          !std::equal(outer.begin(), outer.end(), inner.begin()))
        continue;
      // A leaf cannot also be the group that holds another entry.
      if (inner.size() == outer.size())
        return "\"" + to_dotted(inner) + "\" is given twice";
      return "\"" + to_dotted(inner) + "\" lies below the value \"" + to_dotted(outer) + "\"";
    }
  }
  return {};
}

int put_value(dvc_pnl_cmm_valueset& set, const path& p, const dvc_pnl_cmm_value& value) {
  dvc_pnl_cmm_key key;
  int ret = make_key(p, key);
  if (ret == 0)
    ret = set.dvc_pnl_cmm_set_value(key, value);
  return ret;
}

int put_set(dvc_pnl_cmm_valueset& set, const path& p, const dvc_pnl_cmm_valueset& inner) {
  dvc_pnl_cmm_value value;
  int ret = value.dvc_pnl_cmm_set_valueset(inner);
  if (ret == 0)
    ret = put_value(set, p, value);
  return ret;
}

int nested_set(const std::vector<std::pair<path, dvc_pnl_cmm_value>>& leaves, std::size_t top,
               dvc_pnl_cmm_valueset& out) {
  // Leaves grouped by their first `top` nodes: a leaf of that length is stored as it is, the
  // longer ones go into one set under the prefix, one level deeper.
  std::map<path, std::vector<std::pair<path, dvc_pnl_cmm_value>>> deeper;
  for (const auto& [p, value] : leaves) {
    if (p.size() < top)
      return kBadValue;
    const path prefix(p.begin(), p.begin() + static_cast<std::ptrdiff_t>(top));
    if (p.size() == top) {
      if (int ret = put_value(out, prefix, value); ret != 0)
        return ret;
    } else {
      deeper[prefix].emplace_back(p, value);
    }
  }
  for (const auto& [prefix, members] : deeper) {
    dvc_pnl_cmm_valueset inner;
    if (int ret = nested_set(members, top + 1, inner); ret != 0)
      return ret;
    if (int ret = put_set(out, prefix, inner); ret != 0)
      return ret;
  }
  return 0;
}

}  // namespace orvanta::machine::detail
