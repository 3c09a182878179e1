// Full records read from the machine in one go: the job accounting record of an account and of
// the guest.
#pragma once

#include <cstddef>
#include <cstdint>

namespace orvanta {

inline constexpr std::size_t DVC_PNL_CEH_ACCOUNT_NAME_SIZE = 1152;
inline constexpr std::size_t DVC_PNL_CEH_ACCOUNT_CODE_SIZE = 8;

// One job accounting account, as the screens hand it on in the data manager. 2,392 bytes; every
// text is terminated and cut to its field.
struct ACCOUNT_DETAIL {
  std::int32_t account_id;                        // 1362
  char name[DVC_PNL_CEH_ACCOUNT_NAME_SIZE];       // 1367
  char code[DVC_PNL_CEH_ACCOUNT_CODE_SIZE];       // 1366
  char text_1368[DVC_PNL_CEH_ACCOUNT_NAME_SIZE];  // 1368
  // Restriction fields: 2 refuses the function they stand for.
  std::int32_t restriction_1369;
  std::int32_t restriction_1372;
  std::int32_t restriction_1374;
  std::int32_t restriction_1375;
  std::int32_t restriction_1385;
  unsigned char reserved[56];  // up to the record's size
};
static_assert(sizeof(ACCOUNT_DETAIL) == 2392);

// Reads account `id` with the command 0.679.843.584. 0 with the record filled (zeroed first);
// 2 when RESULT is not 0, the record as it came; 3 when the command could not run; otherwise the
// code of the first failed field read, with the fields read so far.
int dvc_pnl_ceh_contents_hdl_get_job_accounting_detail_from_cmm(long id, ACCOUNT_DETAIL& account);

// The job accounting record of the guest: the account named in the guest's user record (node
// 1362 of 0.681.843.584), read as above. Answers as that read, or the code of the failed step
// before it, with the record as it came.
int dvc_pnl_ceh_contents_hdl_get_guest_user_job_accounting_detail_from_cmm(ACCOUNT_DETAIL& account);

}  // namespace orvanta
