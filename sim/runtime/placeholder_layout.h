// The parts every page starts with until the panel's layout files are part of the project.
#pragma once

#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta::sim {

// PLACEHOLDER LAYOUT. Layout files would give each contents its own parts; none exist yet, so
// every page gets the one part that screens with behaviour already fill: the title text
// (part 123). Replace with the real layouts when they come.
void add_placeholder_layout(dvu_pnl_gcp_components* gui);

}  // namespace orvanta::sim
