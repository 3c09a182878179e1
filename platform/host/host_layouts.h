// Host layouts: the parts each family of screens has and where they stand in the frame.
#pragma once

#include <cstddef>
#include <span>

#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta::host {

// The contents ids first to last belong to the screen family `family`.
struct layout_id_range {
  int first;
  int last;
  const char* family;
};
extern const layout_id_range kLayoutIdRanges[];
extern const std::size_t kLayoutIdRangeCount;

// One part of a layout: its GUI id, kind and rectangle in the frame.
struct layout_part {
  int id;
  dvu_pnl_gcp_part_kind kind;
  int x, y, width, height;
};

// A layout: its name and its parts in drawing order.
struct layout {
  const char* name;
  std::span<const layout_part> parts;
};

// The family of a contents id, or nullptr when no family serves it.
const char* family_of(int contents_id);
// The layout of a family, or nullptr for an unknown family.
const layout* layout_of_family(const char* family);

}  // namespace orvanta::host
