// Function settings: the door's targeting and every setting of the job settings tree.
#include "services/dvc_pnl_ceh_contents_hdl_func.h"

#include "util/dvc_pnl_ceh_contents_hdl_util.h"
#include "util/dvc_pnl_ceh_trace.h"

namespace orvanta {

dvc_pnl_ceh_contents_hdl_func* dvc_pnl_ceh_contents_hdl_func::s_instance_ = nullptr;

namespace {

// Element 2 of the setting keys of each function that has a settings tree.
unsigned long function_node_of(int function) {
  switch (function) {
    case 1:
    case 24:
      return 2;
    case 3:
      return 161;
    case 4:
      return 206;
    case 6:
      return 207;
    case 7:
      return 214;
    default:
      return DVC_PNL_CEH_FUNC_NODE_NONE;
  }
}

}  // namespace

dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_contents_hdl_func(int function) {
  registe_current_function(function);
}

dvc_pnl_ceh_contents_hdl_func::~dvc_pnl_ceh_contents_hdl_func() = default;

dvc_pnl_ceh_contents_hdl_func* dvc_pnl_ceh_contents_hdl_func::dvc_pnl_ceh_get_instance(
    int function) {
  if (s_instance_ == nullptr)
    s_instance_ = new dvc_pnl_ceh_contents_hdl_func(function);
  s_instance_->registe_current_function(function);
  return s_instance_;
}

void dvc_pnl_ceh_contents_hdl_func::registe_current_function(int function) {
  function_id_ = function;
  function_node_ = function_node_of(function);
}

void dvc_pnl_ceh_contents_hdl_func::reset_for_tests() {
  delete s_instance_;
  s_instance_ = nullptr;
}

}  // namespace orvanta
