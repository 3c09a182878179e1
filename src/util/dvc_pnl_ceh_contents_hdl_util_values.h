// Keys, values and value sets: the uniform operations through which screens build and read them.
#pragma once

#include <string>

#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta {

// Result codes of the platform access layer.
enum : int {
  DVC_PNL_CEH_RET_OK = 0,
  DVC_PNL_CEH_RET_UNKNOWN_TYPE = 2,  // unknown node type, or a machine answer other than success
  DVC_PNL_CEH_RET_PLATFORM = 3,      // a platform call failed; its own code is traced
  DVC_PNL_CEH_RET_BAD_ARGUMENT = 6,  // NULL pointer, position out of range, empty key
  DVC_PNL_CEH_RET_OUT_OF_RANGE = 7,  // a list position out of range
};

// Closes a key array for dvc_pnl_ceh_contents_hdl_set_key. Only the low 32 bits are compared,
// so the 32-bit all-ones word closes an array as well.
inline constexpr unsigned long DVC_PNL_CEH_KEY_END = static_cast<unsigned long>(-1);
inline constexpr bool dvc_pnl_ceh_is_key_end(unsigned long node) {
  return (node & 0xffffffffUL) == 0xffffffffUL;
}

// ---- keys ----

int dvc_pnl_ceh_contents_hdl_build_key(dvc_pnl_cmm_key& key, const unsigned long* node_name,
                                       unsigned size);
void dvc_pnl_ceh_contents_hdl_set_key(dvc_pnl_cmm_key& key, unsigned long* node_name);
void dvc_pnl_ceh_contents_hdl_add_key(dvc_pnl_cmm_key& key, unsigned long node);
void dvc_pnl_ceh_contents_hdl_clear_key(dvc_pnl_cmm_key& key);
void dvc_pnl_ceh_contents_hdl_copy_key(dvc_pnl_cmm_key source, dvc_pnl_cmm_key& target);
// Writes "(0.896.901)" for trace lines.
void dvc_pnl_ceh_contents_hdl_key2str(const unsigned long* node_name, unsigned size,
                                      std::string& out);

// ---- values and value sets with a key object: failures are traced, out-arguments kept ----

void dvc_pnl_ceh_contents_hdl_copy_value(dvc_pnl_cmm_value source, dvc_pnl_cmm_value& target);
void dvc_pnl_ceh_contents_hdl_copy_valueset(dvc_pnl_cmm_valueset source,
                                            dvc_pnl_cmm_valueset& target);
void dvc_pnl_ceh_contents_hdl_get_int_from_value(dvc_pnl_cmm_value& value, long& out);
void dvc_pnl_ceh_contents_hdl_set_int_to_value(dvc_pnl_cmm_value& value, long in);
void dvc_pnl_ceh_contents_hdl_get_string_from_value(dvc_pnl_cmm_value& value, const char*& out);
void dvc_pnl_ceh_contents_hdl_set_string_to_value(dvc_pnl_cmm_value& value, const char* in);
void dvc_pnl_ceh_contents_hdl_get_valueset_from_value(dvc_pnl_cmm_value& value,
                                                      dvc_pnl_cmm_valueset& out);
void dvc_pnl_ceh_contents_hdl_set_valueset_to_value(dvc_pnl_cmm_value& value,
                                                    const dvc_pnl_cmm_valueset& in);
void dvc_pnl_ceh_contents_hdl_get_int_from_valueset(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key key,
                                                    long& out);
void dvc_pnl_ceh_contents_hdl_set_int_to_valueset(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key key,
                                                  long in);
void dvc_pnl_ceh_contents_hdl_get_string_from_valueset(dvc_pnl_cmm_valueset& set,
                                                       dvc_pnl_cmm_key key, const char*& out);
void dvc_pnl_ceh_contents_hdl_set_string_to_valueset(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key key,
                                                     const char* in);
void dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(dvc_pnl_cmm_valueset& set,
                                                         dvc_pnl_cmm_key key,
                                                         dvc_pnl_cmm_valueset& out);
void dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(dvc_pnl_cmm_valueset& set,
                                                       dvc_pnl_cmm_key key,
                                                       const dvc_pnl_cmm_valueset& in);
void dvc_pnl_ceh_contents_hdl_set_binary_to_valueset(dvc_pnl_cmm_valueset& set, dvc_pnl_cmm_key key,
                                                     dvc_pnl_cmm_binary in);

// ---- request and response nodes: the entry under `parent` plus one node ----

void dvc_pnl_ceh_contents_hdl_set_int_to_request_node(dvc_pnl_cmm_valueset& request,
                                                      dvc_pnl_cmm_key parent, unsigned long node,
                                                      long value);
void dvc_pnl_ceh_contents_hdl_set_string_to_request_node(dvc_pnl_cmm_valueset& request,
                                                         dvc_pnl_cmm_key parent, unsigned long node,
                                                         const char* value);
void dvc_pnl_ceh_contents_hdl_set_binary_to_request_node(dvc_pnl_cmm_valueset& request,
                                                         dvc_pnl_cmm_key parent, unsigned long node,
                                                         dvc_pnl_cmm_binary value);
void dvc_pnl_ceh_contents_hdl_set_valueset_to_request_node(dvc_pnl_cmm_valueset& request,
                                                           dvc_pnl_cmm_key parent,
                                                           unsigned long node,
                                                           const dvc_pnl_cmm_valueset& value);
void dvc_pnl_ceh_contents_hdl_get_int_from_response_node(dvc_pnl_cmm_valueset& response,
                                                         dvc_pnl_cmm_key parent, unsigned long node,
                                                         long& value);
void dvc_pnl_ceh_contents_hdl_get_string_from_response_node(dvc_pnl_cmm_valueset& response,
                                                            dvc_pnl_cmm_key parent,
                                                            unsigned long node, const char*& value);
void dvc_pnl_ceh_contents_hdl_get_binary_from_response_node(dvc_pnl_cmm_valueset& response,
                                                            dvc_pnl_cmm_key parent,
                                                            unsigned long node,
                                                            dvc_pnl_cmm_binary& value);
void dvc_pnl_ceh_contents_hdl_get_valueset_from_response_node(dvc_pnl_cmm_valueset& response,
                                                              dvc_pnl_cmm_key parent,
                                                              unsigned long node,
                                                              dvc_pnl_cmm_valueset& value);

// ---- path forms: the key as `node_name` and `nsize`, nested sets reached by `vs_start_pos` ----

int dvc_pnl_ceh_contents_hdl_get_int_from_valueset(const unsigned long* node_name, int vs_start_pos,
                                                   unsigned nsize, const dvc_pnl_cmm_valueset& set,
                                                   long& value);
int dvc_pnl_ceh_contents_hdl_get_string_from_valueset(const unsigned long* node_name,
                                                      int vs_start_pos, unsigned nsize,
                                                      const dvc_pnl_cmm_valueset& set,
                                                      const char*& value);
int dvc_pnl_ceh_contents_hdl_get_binary_from_valueset(const unsigned long* node_name,
                                                      int vs_start_pos, unsigned nsize,
                                                      const dvc_pnl_cmm_valueset& set,
                                                      dvc_pnl_cmm_binary& value);
int dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(const unsigned long* node_name,
                                                        int vs_start_pos, unsigned nsize,
                                                        const dvc_pnl_cmm_valueset& set,
                                                        dvc_pnl_cmm_valueset& value);
int dvc_pnl_ceh_contents_hdl_set_int_to_valueset(const unsigned long* node_name, int vs_start_pos,
                                                 unsigned nsize, dvc_pnl_cmm_valueset& set,
                                                 const long& value);
int dvc_pnl_ceh_contents_hdl_set_string_to_valueset(const unsigned long* node_name,
                                                    int vs_start_pos, unsigned nsize,
                                                    dvc_pnl_cmm_valueset& set, const char* value);
int dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(const unsigned long* node_name,
                                                      int vs_start_pos, unsigned nsize,
                                                      dvc_pnl_cmm_valueset& set,
                                                      const dvc_pnl_cmm_valueset& value);
// Walks down nested sets from `pos` to `last` (both 0 to 15) and copies the set reached.
int dvc_pnl_ceh_contents_hdl_get_child_valueset(const unsigned long* node_name, int pos, int last,
                                                const dvc_pnl_cmm_valueset& set,
                                                dvc_pnl_cmm_valueset& child);
// Replaces the leaf at `last` with `value` (of kind `type`) and writes every level back.
int dvc_pnl_ceh_contents_hdl_set_child_valueset(const unsigned long* node_name, int pos, int last,
                                                dvc_pnl_cmm_valueset& set,
                                                const dvc_pnl_cmm_value& value,
                                                const NAME_SPACE_NODE_TYPE& type);

}  // namespace orvanta
