// Dotted node paths of the simulated machine, their keys, and the check that the entries of a
// fixed answer fit in one response.
#include <algorithm>
#include <charconv>

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

}  // namespace orvanta::machine::detail
