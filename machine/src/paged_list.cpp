// The paged list service: rows by position, by number or by leading text, a page at a time.
#include <string>
#include <string_view>

#include "machine_internal.h"

namespace orvanta::machine::detail {
namespace {

// Request and response nodes below the command key.
constexpr unsigned long kCount = 1476;
constexpr unsigned long kMethod = 1477;
constexpr unsigned long kStart = 1478;
constexpr unsigned long kText = 1479;
constexpr unsigned long kResult = 1484;
constexpr unsigned long kTotal = 1592;
constexpr unsigned long kHeader1337 = 1337;
constexpr unsigned long kHeader1524 = 1524;
constexpr unsigned long kBody = 1501;

// Row fields the searches look at.
constexpr unsigned long kNumberField = 1365;
constexpr unsigned long kNameField = 1037;

constexpr long kByPosition = 1;
constexpr long kByNumber = 3;
constexpr long kByText = 4;

// Builds the keys below one command and stores into a set under them.
class writer {
 public:
  explicit writer(const dvc_pnl_cmm_key& command) : base_(command.nodes()) {}

  int key(std::initializer_list<unsigned long> tail, dvc_pnl_cmm_key& out) const {
    path p = base_;
    p.insert(p.end(), tail);
    return make_key(p, out);
  }

  int put_int(dvc_pnl_cmm_valueset& set, unsigned long node, long v) const {
    dvc_pnl_cmm_key k;
    if (int ret = key({node}, k); ret != 0)
      return ret;
    return set.dvc_pnl_cmm_set_int(k, v);
  }

 private:
  path base_;
};

// The integer at <command>.<node> of the request, or `fallback` when the request has none.
long request_int(const dvc_pnl_cmm_valueset& request, const writer& w, unsigned long node,
                 long fallback) {
  dvc_pnl_cmm_key k;
  long v = fallback;
  if (w.key({node}, k) != 0 || request.dvc_pnl_cmm_get_int(k, v) != 0)
    return fallback;
  return v;
}

std::string request_text(const dvc_pnl_cmm_valueset& request, const writer& w) {
  dvc_pnl_cmm_key k;
  const char* text = nullptr;
  if (w.key({kText}, k) != 0 || request.dvc_pnl_cmm_get_string(k, text) != 0 || text == nullptr)
    return {};
  return text;
}

bool number_matches(const list_row& row, long number) {
  auto it = row.fields.find(kNumberField);
  long v = 0;
  return it != row.fields.end() && it->second.dvc_pnl_cmm_get_int(v) == 0 && v == number;
}

bool name_starts_with(const list_row& row, std::string_view text) {
  auto it = row.fields.find(kNameField);
  const char* name = nullptr;
  return it != row.fields.end() && it->second.dvc_pnl_cmm_get_string(name) == 0 &&
         name != nullptr && std::string_view(name).starts_with(text);
}

// One row as an element of the body: <command>.1501.<i> holding <command>.1501.<i>.<field>.
int put_row(dvc_pnl_cmm_valueset& body, const writer& w, unsigned long i, const list_row& row) {
  dvc_pnl_cmm_valueset element;
  for (const auto& [field, value] : row.fields) {
    dvc_pnl_cmm_key k;
    if (int ret = w.key({kBody, i, field}, k); ret != 0)
      return ret;
    if (int ret = element.dvc_pnl_cmm_set_value(k, value); ret != 0)
      return ret;
  }
  dvc_pnl_cmm_key k;
  if (int ret = w.key({kBody, i}, k); ret != 0)
    return ret;
  return body.dvc_pnl_cmm_set_valueset(k, element);
}

}  // namespace

int serve_list(const list_data& list, const dvc_pnl_cmm_key& command,
               const dvc_pnl_cmm_valueset& request, dvc_pnl_cmm_valueset& response) {
  response.dvc_pnl_cmm_clear();
  const writer w(command);
  const long method = request_int(request, w, kMethod, kByPosition);
  // Without a count the whole (remaining) list is asked for.
  const long count = request_int(request, w, kCount, static_cast<long>(list.rows.size()));
  const long start_or_number = request_int(request, w, kStart, 0);

  // The rows the request selects, before paging. The sort key (1475) is not applied: rows come
  // in the order of the model.
  std::vector<const list_row*> selected;
  long first = 0;
  long result = 0;
  if (method == kByPosition) {
    for (const list_row& row : list.rows)
      selected.push_back(&row);
    first = start_or_number;
  } else if (method == kByNumber) {
    // 1478 carries the number looked for, so the matches are answered from the first.
    for (const list_row& row : list.rows) {
      if (number_matches(row, start_or_number))
        selected.push_back(&row);
    }
  } else if (method == kByText) {
    const std::string text = request_text(request, w);
    for (const list_row& row : list.rows) {
      if (name_starts_with(row, text))
        selected.push_back(&row);
    }
    first = start_or_number;
  } else {
    result = kListBadRequest;
  }
  if (count < 0 || first < 0)
    result = kListBadRequest;

  const long total = method == kByPosition ? static_cast<long>(list.rows.size())
                                           : static_cast<long>(selected.size());
  if (int ret = w.put_int(response, kResult, result); ret != 0)
    return ret;
  if (int ret = w.put_int(response, kTotal, total); ret != 0)
    return ret;
  if (int ret = w.put_int(response, kHeader1337, list.header_1337); ret != 0)
    return ret;
  if (int ret = w.put_int(response, kHeader1524, list.header_1524); ret != 0)
    return ret;

  dvc_pnl_cmm_valueset body;
  if (result == 0) {
    const long size = static_cast<long>(selected.size());
    for (long i = first; i < size && i - first < count; ++i) {
      if (int ret = put_row(body, w, static_cast<unsigned long>(i - first),
                            *selected[static_cast<std::size_t>(i)]);
          ret != 0) {
        return ret;
      }
    }
  }
  dvc_pnl_cmm_key body_key;
  if (int ret = w.key({kBody}, body_key); ret != 0)
    return ret;
  return response.dvc_pnl_cmm_set_valueset(body_key, body);
}

}  // namespace orvanta::machine::detail
