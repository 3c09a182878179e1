// Finds data manager key objects by their name, with the scope and kind each key is used in.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace orvanta::host {

enum class dm_scope { page, function, application, cross_function };
// `any`: the kind is fixed by the screen that uses the key.
enum class dm_kind { integer, string, binary, valueset, any };

struct dm_key_info {
  std::string_view name;
  const std::string* key;  // the key object itself
  dm_scope scope;          // the scope the key belongs to
  dm_scope also;           // a second scope it is used in (equal to `scope` when none)
  dm_kind kind;
};

// Every known key, sorted by name.
const std::vector<dm_key_info>& dm_keys();
// The key named `name`, or nullptr.
const dm_key_info* find_dm_key(std::string_view name);

}  // namespace orvanta::host
