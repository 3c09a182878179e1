// Uses the library and the host platform through their umbrella headers; exits non-zero on a fault.
#include <orvanta/host.h>
#include <orvanta/panel.h>

#include <cstdio>
#include <string>

int main() {
  using namespace orvanta;
  dvc_pnl_cmm_key key;
  const unsigned long nodes[] = {0, 896, 901};
  if (dvc_pnl_ceh_contents_hdl_build_key(key, nodes, 3) != 0 || key.size() != 3)
    return 1;

  if (dvc_pnl_ceh_contents_hdl_set_int_to_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, 42, 1) != 0)
    return 2;
  int got = 0;
  if (dvc_pnl_ceh_contents_hdl_get_int_from_dm(DVC_PNL_PDM_DVC_CEH_INTEGER, got, 1) != 0 ||
      got != 42) {
    return 3;
  }
  std::string text = "0123456789";
  dvc_pnl_ceh_input_validator validator;
  if (validator.dvc_pnl_ceh_valid_check(text, 12) != 0)
    return 4;
  if (host::find_dm_key("DVC_PNL_PDM_DVC_CEH_INTEGER") == nullptr)
    return 5;
  std::puts("consumer ok");
  return 0;
}
