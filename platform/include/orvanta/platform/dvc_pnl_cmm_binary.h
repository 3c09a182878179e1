// Byte blob value: owns a private copy of the bytes it was given.
#pragma once

#include <vector>

namespace orvanta {

// Codes of the value layer. Callers only test for non-zero; the distinct values make traces
// readable and keep the platform's own code apart from the system's result codes.
enum dvc_pnl_cmm_result : int {
  DVC_PNL_CMM_OK = 0,
  DVC_PNL_CMM_NOT_FOUND = -1,     // no entry under the key
  DVC_PNL_CMM_WRONG_KIND = -2,    // the value holds another kind, or nothing
  DVC_PNL_CMM_BAD_ARGUMENT = -3,  // NULL pointer or an empty key
  DVC_PNL_CMM_FAULT = -9,         // failure injected by the host for tests
};

class dvc_pnl_cmm_binary {
 public:
  dvc_pnl_cmm_binary() = default;

  // Copies `length` bytes from `data`; the caller's buffer is free again on return.
  // NULL data with a non-zero length fails.
  int dvc_pnl_cmm_set_data(const unsigned char* data, const unsigned long& length);
  // Gives pointer and length; both stay owned by the blob and are valid while it is unchanged.
  int dvc_pnl_cmm_get_data(unsigned char*& data, unsigned long& length);

  const std::vector<unsigned char>& bytes() const { return bytes_; }

  friend bool operator==(const dvc_pnl_cmm_binary& a, const dvc_pnl_cmm_binary& b) {
    return a.bytes_ == b.bytes_;
  }

 private:
  std::vector<unsigned char> bytes_;
};

}  // namespace orvanta
