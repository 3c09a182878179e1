// Test support: nested value sets built from dotted full paths, and readable prints of them.
#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta::test {

// The bytes of a binary leaf.
using bytes = std::vector<unsigned char>;

// What one entry of make_valueset holds: an integer, a string, a binary blob or a whole set
// (stored as given, e.g. an empty list body).
class leaf {
 public:
  // Implicit on purpose: table entries read like literals, {"0.938.959.1484", 0L}.
  leaf(long v);
  leaf(int v);
  leaf(const char* v);
  leaf(const std::string& v);
  leaf(const bytes& v);
  leaf(const dvc_pnl_cmm_valueset& v);

  const dvc_pnl_cmm_value& value() const { return value_; }

 private:
  dvc_pnl_cmm_value value_;
};

struct entry {
  std::string path;  // full dotted path from ROOT, "0.938.959.1484"
  leaf value;
};

// The key of a dotted path, "0.896.901". Throws std::invalid_argument for anything but
// dot-separated decimal numbers.
dvc_pnl_cmm_key key_of(std::string_view dotted);
// The node ids of a dotted path, for the node arrays of the path forms.
std::vector<unsigned long> nodes_of(std::string_view dotted);

// Builds a set the way the machine nests its answers: every entry at every level is stored under
// its full path. The returned set holds keys of `top_len` elements; a longer path goes into a
// nested set under its first `top_len` elements, that set holds keys one element longer, and so
// on down to the leaf. `top_len` 0 means the length of the shortest path given, so
// {"0.938.959.1484", "0.938.959.1501.0.1365"} gives a response: RESULT and the list body at the
// top, element 0 inside the body, the field inside the element.
// Throws std::invalid_argument for a bad path, a path shorter than `top_len`, a path given twice,
// and a path that is both a leaf and the prefix of another path.
// Goes through the value layer: build sets before arming injected failures.
dvc_pnl_cmm_valueset make_valueset(const std::vector<entry>& entries, std::size_t top_len = 0);

// One entry per line, full dotted key and value, nested sets indented under their key:
//   0.938.959.1501 = {
//     0.938.959.1501.0 = {
//       0.938.959.1501.0.1365 = "abc"
//     }
//   }
// Reads through the value layer, so it consumes injected read failures that are still armed.
std::string dump(const dvc_pnl_cmm_valueset& set);
std::string dump(const dvc_pnl_cmm_value& value);

// Deep equality with both sets printed on a mismatch: EXPECT_TRUE(sets_equal(actual, expected)).
::testing::AssertionResult sets_equal(const dvc_pnl_cmm_valueset& actual,
                                      const dvc_pnl_cmm_valueset& expected);

}  // namespace orvanta::test

namespace orvanta {

// GoogleTest prints values of these types with these.
void PrintTo(const dvc_pnl_cmm_valueset& set, std::ostream* os);
void PrintTo(const dvc_pnl_cmm_value& value, std::ostream* os);
void PrintTo(const dvc_pnl_cmm_key& key, std::ostream* os);

}  // namespace orvanta
