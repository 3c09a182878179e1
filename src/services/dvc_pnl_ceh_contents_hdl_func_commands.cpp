// Function settings: the error key, paper queries, application rows and the shared commands.
#include "services/dvc_pnl_ceh_contents_hdl_func.h"
