// Programs: the five commands of the program store and the hand-over of the pressed program.
#include "services/dvc_pnl_ceh_contents_hdl_pg.h"

#include "orvanta/platform/dvc_pnl_pdm_keys.h"
#include "services/dvc_pnl_ceh_contents_hdl_store_command.h"
#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_conditions.h"

namespace orvanta {

namespace {

using command = dvc_pnl_ceh_contents_hdl_store_command;

command program_command(unsigned long leaf, long number) {
  command c({0, DVC_PNL_CEH_PROGRAM, leaf});
  c.add_int(DVC_PNL_CEH_NODE_PROGRAM_NUMBER, number);
  return c;
}

// The name the machine keeps with a program: the panel always sends it empty.
constexpr const char* kProgramName = "";

}  // namespace

dvc_pnl_ceh_contents_hdl_pg::~dvc_pnl_ceh_contents_hdl_pg() = default;

int dvc_pnl_ceh_contents_hdl_pg::aquire_program(long number, long& kind, long& state) {
  command c = program_command(DVC_PNL_CEH_PROGRAM_AQUIRE, number);
  const int ret = c.invoke();
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  if (c.result() == DVC_PNL_CEH_PROGRAM_QUERY_DONE) {
    c.read_int(DVC_PNL_CEH_NODE_PROGRAM_KIND, kind);
    c.read_int(DVC_PNL_CEH_NODE_PROGRAM_STATE, state);
  }
  return ret;
}

int dvc_pnl_ceh_contents_hdl_pg::confirm_program(PROGRAM_ELEMENT element, long& status) {
  command c = program_command(DVC_PNL_CEH_PROGRAM_CONFIRM, element.number);
  const long authentication = dvc_pnl_ceh_contents_hdl_get_authentication_function();
  c.add_int(DVC_PNL_CEH_NODE_AUTHENTICATION_FUNCTION, authentication);
  // The user is named only when users are managed.
  if (authentication == 1)
    c.add_int(DVC_PNL_CEH_NODE_AUTHENTICATION_ID, dvc_pnl_ceh_contents_hdl_get_authentication_id());
  const int ret = c.invoke();
  if (ret != DVC_PNL_CEH_RET_OK)
    return ret;
  if (c.result() == DVC_PNL_CEH_PROGRAM_QUERY_DONE)
    c.read_int(DVC_PNL_CEH_NODE_PROGRAM_STATUS, status);
  return ret;
}

int dvc_pnl_ceh_contents_hdl_pg::register_program(PROGRAM_ELEMENT element) {
  command c = program_command(DVC_PNL_CEH_PROGRAM_REGISTER, element.number);
  c.add_int(DVC_PNL_CEH_NODE_PROGRAM_KIND, element.kind);
  c.add_string(DVC_PNL_CEH_NODE_PROGRAM_NAME, kProgramName);
  if (element.kind == DVC_PNL_CEH_PROGRAM_KIND_COPY)
    c.add_int(DVC_PNL_CEH_NODE_PROGRAM_PRESET, element.preset);
  // The machine's refusal is not the screen's concern: it sees only whether the command got
  // through.
  return c.invoke();
}

int dvc_pnl_ceh_contents_hdl_pg::delete_program(PROGRAM_ELEMENT element) {
  return program_command(DVC_PNL_CEH_PROGRAM_DELETE, element.number).invoke();
}

int dvc_pnl_ceh_contents_hdl_pg::call_program(PROGRAM_ELEMENT& element) {
  command c = program_command(DVC_PNL_CEH_PROGRAM_CALL, element.number);
  const int ret = c.invoke();
  if (ret != DVC_PNL_CEH_RET_OK || c.result() != DVC_PNL_CEH_PROGRAM_CALL_DONE)
    return ret;
  long kind = element.kind;
  c.read_int(DVC_PNL_CEH_NODE_PROGRAM_KIND, kind);
  element.kind = static_cast<std::int32_t>(kind);
  if (kind == DVC_PNL_CEH_PROGRAM_KIND_COPY) {
    long preset = element.preset;
    c.read_int(DVC_PNL_CEH_NODE_PROGRAM_PRESET, preset);
    element.preset = static_cast<std::int32_t>(preset);
  }
  return ret;
}

int dvc_pnl_ceh_contents_hdl_store_program_pressed(const PROGRAM_ELEMENT& element, int function) {
  return dvc_pnl_ceh_contents_hdl_set_binary_to_dm(DVC_PNL_PDM_CEH_PROGRAM_PRESSED, &element,
                                                   sizeof element, function);
}

int dvc_pnl_ceh_contents_hdl_read_program_pressed(PROGRAM_ELEMENT& element, int function) {
  return dvc_pnl_ceh_contents_hdl_get_binary_from_dm(DVC_PNL_PDM_CEH_PROGRAM_PRESSED, &element,
                                                     sizeof element, function);
}

int dvc_pnl_ceh_contents_hdl_remove_program_pressed(int function) {
  return dvc_pnl_ceh_contents_hdl_dm_remove(DVC_PNL_PDM_CEH_PROGRAM_PRESSED, function);
}

}  // namespace orvanta
