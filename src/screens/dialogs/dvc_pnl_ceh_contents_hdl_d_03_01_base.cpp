// Construction of dvc_pnl_ceh_contents_hdl_d_03_01: timed message: a message that closes itself
// after a time; and the texts of remote device management errors.
#include "screens/dialogs/dvc_pnl_ceh_contents_hdl_d_03_01.h"

#include <string>

#include "util/dvc_pnl_ceh_contents_hdl_util_vexl.h"

namespace orvanta {

namespace {

// The first key: operations 6 to 19 of the service fall into four groups; any other operation
// gets key 3, which still finds a row through the wildcards.
long vexl_operation_key(long operation) {
  static constexpr long kGroups[] = {0, 2, 1, 3, 2, 2, 2, 3, 3, 0, 3, 3, 1, 1};
  constexpr long kFirst = 6;
  constexpr long kCount = static_cast<long>(sizeof kGroups / sizeof kGroups[0]);
  if (operation < kFirst || operation - kFirst >= kCount)
    return 3;
  return kGroups[operation - kFirst];
}

// The third key: the HTTP statuses the table tells apart, other errors, and everything else.
long vexl_status_key(long http_status) {
  switch (http_status) {
    case 401:
      return 0;
    case 403:
      return 1;
    case 404:
      return 2;
    case 407:
      return 3;
    case 500:
      return 4;
    default:
      return (http_status >= 400 && http_status <= 599) ? 5 : 6;
  }
}

}  // namespace

dvc_pnl_ceh_contents_hdl_d_03_01::dvc_pnl_ceh_contents_hdl_d_03_01(int contents_id,
                                                                   dvu_pnl_gcp_components* gui)
    : dvc_pnl_ceh_contents_hdl_base(contents_id, gui) {}

dvc_pnl_ceh_contents_hdl_d_03_01::~dvc_pnl_ceh_contents_hdl_d_03_01() = default;

void dvc_pnl_ceh_contents_hdl_d_03_01::parse_vexl_error_message(long operation, long detail,
                                                                long http_status,
                                                                std::string& message) {
  const int resource =
      vexl_find_error_message(vexl_operation_key(operation), detail, vexl_status_key(http_status));
  // The status goes in as text in place of the format's one "%d".
  std::string text = vexl_message_format(resource);
  const std::string::size_type at = text.find("%d");
  if (at != std::string::npos)
    text.replace(at, 2, std::to_string(http_status));
  message = text;
}

}  // namespace orvanta
