// The requests of the record writes as ordered lists of words, built before they go out.
#pragma once

#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "util/dvc_pnl_ceh_contents_hdl_util_records.h"

namespace orvanta::record_writes {

// One request word: the node below the command and its integer or text.
struct request_word {
  // Constructors, so that a word is built where it is stored: moving a temporary one made GCC's
  // 32-bit optimiser warn about the string alternative it does not hold.
  request_word(unsigned long n, long number) : node(n), value(std::in_place_index<0>, number) {}
  request_word(unsigned long n, std::string text)
      : node(n), value(std::in_place_index<1>, std::move(text)) {}

  unsigned long node;
  std::variant<long, std::string> value;
  friend bool operator==(const request_word&, const request_word&) = default;
};
// The words of one request, in the order they are written.
using request_words = std::vector<request_word>;

// The change of `user` by the user `actor` (0.681.843.583).
request_words user_property_request(const USER_LOGIN& user, long actor);
// The change of `account` (0.679.843.583).
request_words job_accounting_request(const ACCOUNT_DETAIL& account);
// The new box or the change of `box` (0.857.860.351 or .583). An empty domain takes the one the
// machine stores; 0, or the code of that read when it fails (`words` then incomplete).
int custom_box_request(const BOX_INFO& box, request_words& words);

}  // namespace orvanta::record_writes
