// Panel resources: the texts that resource ids stand for.
#pragma once

#include <string>

namespace orvanta {

class dvu_pnl_gcp_resource {
 public:
  // The text of resource `rid` in the language in use; a resource without a text reads as its
  // number in decimal.
  static std::string get_text_resource(int rid);
};

}  // namespace orvanta
