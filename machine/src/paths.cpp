// Dotted node paths of the simulated machine and their keys.
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

}  // namespace orvanta::machine::detail
