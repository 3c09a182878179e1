// The placeholder parts of a page: a title text until real layouts exist.
#include "placeholder_layout.h"

#include <memory>

#include "orvanta/host/panel_host.h"

namespace orvanta::sim {
namespace {

constexpr int kPartTitle = 123;

}  // namespace

void add_placeholder_layout(dvu_pnl_gcp_components* gui) {
  host::add_part(gui, kPartTitle, std::make_unique<dvu_pnl_gcp_parts>(dvu_pnl_gcp_part_kind::text));
}

}  // namespace orvanta::sim
