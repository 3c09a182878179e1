// Panel data manager access: the uniform reads and writes of the four scopes.
#pragma once

#include <string>

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "orvanta/platform/dvc_pnl_cmm_valueset.h"
#include "orvanta/platform/dvc_pnl_pdm_keys.h"

namespace orvanta {

// Function ids run from 0 to this value.
inline constexpr int DVC_PNL_CEH_FUNC_ID_MAX = 36;

// ---- function scope ----

int dvc_pnl_ceh_contents_hdl_get_value_from_dm(const std::string& key, dvc_pnl_cmm_value& value,
                                               int func);
int dvc_pnl_ceh_contents_hdl_set_value_to_dm(const std::string& key, const dvc_pnl_cmm_value& value,
                                             int func);
int dvc_pnl_ceh_contents_hdl_get_int_from_dm(const std::string& key, int& value, int func);
int dvc_pnl_ceh_contents_hdl_set_int_to_dm(const std::string& key, const long& value, int func);
int dvc_pnl_ceh_contents_hdl_get_string_from_dm(const std::string& key, std::string& value,
                                                int func);
int dvc_pnl_ceh_contents_hdl_set_string_to_dm(const std::string& key, std::string value, int func);
int dvc_pnl_ceh_contents_hdl_get_binary_from_dm(const std::string& key, void* buffer, unsigned size,
                                                int func);
int dvc_pnl_ceh_contents_hdl_set_binary_to_dm(const std::string& key, const void* buffer,
                                              unsigned size, int func);
int dvc_pnl_ceh_contents_hdl_get_valueset_from_dm(const std::string& key,
                                                  dvc_pnl_cmm_valueset& value, int func);
// The function id comes before the set here.
int dvc_pnl_ceh_contents_hdl_set_valueset_to_dm(const std::string& key, int func,
                                                dvc_pnl_cmm_valueset& value);
int dvc_pnl_ceh_contents_hdl_dm_remove(const std::string& key, int func);

// ---- page scope ----

int dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_page_scope(const std::string& key, int func,
                                                           DVC_PNL_CEH_CONTENTS_ID cid,
                                                           long& value);
int dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_page_scope(const std::string& key, int func,
                                                         DVC_PNL_CEH_CONTENTS_ID cid, long value);
int dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_page_scope(const std::string& key, int func,
                                                              DVC_PNL_CEH_CONTENTS_ID cid,
                                                              std::string& value);
int dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_page_scope(const std::string& key, int func,
                                                            DVC_PNL_CEH_CONTENTS_ID cid,
                                                            std::string value);
int dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_page_scope(const std::string& key, void* buffer,
                                                              unsigned size, int func,
                                                              DVC_PNL_CEH_CONTENTS_ID cid);
int dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_page_scope(const std::string& key,
                                                            const void* buffer, unsigned size,
                                                            int func, DVC_PNL_CEH_CONTENTS_ID cid);
int dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_page_scope(const std::string& key, int func,
                                                                DVC_PNL_CEH_CONTENTS_ID cid,
                                                                dvc_pnl_cmm_valueset& value);
int dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_page_scope(const std::string& key, int func,
                                                              DVC_PNL_CEH_CONTENTS_ID cid,
                                                              dvc_pnl_cmm_valueset& value);

// ---- application scope ----

int dvc_pnl_ceh_contents_hdl_get_int_from_dm_by_application(const std::string& key, int& value);
int dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_application(const std::string& key, int value);
int dvc_pnl_ceh_contents_hdl_get_string_from_dm_by_application(const std::string& key,
                                                               std::string& value);
int dvc_pnl_ceh_contents_hdl_set_string_to_dm_by_application(const std::string& key,
                                                             std::string value);
int dvc_pnl_ceh_contents_hdl_get_binary_from_dm_by_application(const std::string& key, void* buffer,
                                                               unsigned size);
int dvc_pnl_ceh_contents_hdl_set_binary_to_dm_by_application(const std::string& key,
                                                             const void* buffer, unsigned size);
int dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_application_scope(const std::string& key,
                                                                       dvc_pnl_cmm_valueset& value);
int dvc_pnl_ceh_contents_hdl_dm_remove_by_application(const std::string& key);

// ---- cross-function scope ----

int dvc_pnl_ceh_contents_hdl_get_valueset_from_dm_by_cross_function_scope(
    const std::string& key, DVC_PNL_CEH_CONTENTS_ID cid, dvc_pnl_cmm_valueset& value);
int dvc_pnl_ceh_contents_hdl_set_valueset_to_dm_by_cross_function_scope(
    const std::string& key, DVC_PNL_CEH_CONTENTS_ID cid, dvc_pnl_cmm_valueset& value);
int dvc_pnl_ceh_contents_hdl_set_int_to_dm_by_cross_function_scope(const std::string& key,
                                                                   DVC_PNL_CEH_CONTENTS_ID cid,
                                                                   long value);

}  // namespace orvanta
