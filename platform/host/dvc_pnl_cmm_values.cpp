// Host implementation of the command layer's value types: key, binary, value, value set.
#include <cstring>

#include "orvanta/host/value_faults.h"
#include "orvanta/platform/dvc_pnl_cmm_valueset.h"

namespace orvanta {

using host::value_fault_hit;
using host::value_op;

// ---- key ----

int dvc_pnl_cmm_key::dvc_pnl_cmm_add_key(const unsigned long& node) {
  if (value_fault_hit(value_op::key_add))
    return DVC_PNL_CMM_FAULT;
  nodes_.push_back(node);
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_key::dvc_pnl_cmm_clear() {
  nodes_.clear();
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_key::dvc_pnl_cmm_copy(const dvc_pnl_cmm_key& other) {
  if (value_fault_hit(value_op::key_copy))
    return DVC_PNL_CMM_FAULT;
  nodes_ = other.nodes_;
  return DVC_PNL_CMM_OK;
}

std::string dvc_pnl_cmm_key::to_dotted() const {
  std::string s;
  for (std::size_t i = 0; i < nodes_.size(); ++i) {
    if (i != 0)
      s += '.';
    s += std::to_string(nodes_[i]);
  }
  return s;
}

// ---- binary ----

int dvc_pnl_cmm_binary::dvc_pnl_cmm_set_data(const unsigned char* data,
                                             const unsigned long& length) {
  if (data == nullptr && length != 0)
    return DVC_PNL_CMM_BAD_ARGUMENT;
  if (value_fault_hit(value_op::binary_write))
    return DVC_PNL_CMM_FAULT;
  bytes_.assign(data, data + length);
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_binary::dvc_pnl_cmm_get_data(unsigned char*& data, unsigned long& length) {
  data = bytes_.empty() ? nullptr : bytes_.data();
  length = bytes_.size();
  return DVC_PNL_CMM_OK;
}

// ---- value ----

dvc_pnl_cmm_value::dvc_pnl_cmm_value() = default;
dvc_pnl_cmm_value::~dvc_pnl_cmm_value() = default;
dvc_pnl_cmm_value::dvc_pnl_cmm_value(dvc_pnl_cmm_value&& other) noexcept = default;
dvc_pnl_cmm_value& dvc_pnl_cmm_value::operator=(dvc_pnl_cmm_value&& other) noexcept = default;

dvc_pnl_cmm_value::dvc_pnl_cmm_value(const dvc_pnl_cmm_value& other) {
  switch (other.data_.index()) {
    case 1:
      data_ = std::get<1>(other.data_);
      break;
    case 2:
      data_ = std::get<2>(other.data_);
      break;
    case 3:
      data_ = std::get<3>(other.data_);
      break;
    case 4:
      data_ = std::make_unique<dvc_pnl_cmm_valueset>(*std::get<4>(other.data_));
      break;
    default:
      break;
  }
}

dvc_pnl_cmm_value& dvc_pnl_cmm_value::operator=(const dvc_pnl_cmm_value& other) {
  // Copy first: `other` may live inside what this value is about to drop.
  if (this != &other) {
    dvc_pnl_cmm_value copy(other);
    data_ = std::move(copy.data_);
  }
  return *this;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_copy(const dvc_pnl_cmm_value& other) {
  if (value_fault_hit(value_op::value_write))
    return DVC_PNL_CMM_FAULT;
  *this = other;
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_get_int(long& out) const {
  if (value_fault_hit(value_op::value_read))
    return DVC_PNL_CMM_FAULT;
  const long* p = std::get_if<long>(&data_);
  if (p == nullptr)
    return DVC_PNL_CMM_WRONG_KIND;
  out = *p;
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_get_string(const char*& out) const {
  if (value_fault_hit(value_op::value_read))
    return DVC_PNL_CMM_FAULT;
  const std::string* p = std::get_if<std::string>(&data_);
  if (p == nullptr)
    return DVC_PNL_CMM_WRONG_KIND;
  out = p->c_str();
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_get_binary(dvc_pnl_cmm_binary& out) const {
  if (value_fault_hit(value_op::value_read))
    return DVC_PNL_CMM_FAULT;
  const dvc_pnl_cmm_binary* p = std::get_if<dvc_pnl_cmm_binary>(&data_);
  if (p == nullptr)
    return DVC_PNL_CMM_WRONG_KIND;
  out = *p;
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_get_valueset(dvc_pnl_cmm_valueset& out) const {
  if (value_fault_hit(value_op::value_read))
    return DVC_PNL_CMM_FAULT;
  const set_ptr* p = std::get_if<set_ptr>(&data_);
  if (p == nullptr)
    return DVC_PNL_CMM_WRONG_KIND;
  out = **p;
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_set_int(const long& v) {
  if (value_fault_hit(value_op::value_write))
    return DVC_PNL_CMM_FAULT;
  data_ = v;
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_set_string(const char* v) {
  if (v == nullptr)
    return DVC_PNL_CMM_BAD_ARGUMENT;
  if (value_fault_hit(value_op::value_write))
    return DVC_PNL_CMM_FAULT;
  data_ = std::string(v);
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_set_binary(const dvc_pnl_cmm_binary& v) {
  if (value_fault_hit(value_op::value_write))
    return DVC_PNL_CMM_FAULT;
  data_ = v;
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_set_valueset(const dvc_pnl_cmm_valueset& v) {
  if (value_fault_hit(value_op::value_write))
    return DVC_PNL_CMM_FAULT;
  // Copy first: `v` may live inside this value.
  auto copy = std::make_unique<dvc_pnl_cmm_valueset>(v);
  data_ = std::move(copy);
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cec_clear() {
  data_ = std::monostate{};
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_value::dvc_pnl_cmm_get_type(NAME_SPACE_NODE_TYPE& out) const {
  switch (data_.index()) {
    case 1:
      out = NODE_TYPE_INTEGER;
      return DVC_PNL_CMM_OK;
    case 2:
      out = NODE_TYPE_STRING;
      return DVC_PNL_CMM_OK;
    case 3:
      out = NODE_TYPE_BINARY;
      return DVC_PNL_CMM_OK;
    case 4:
      out = NODE_TYPE_VALUESET;
      return DVC_PNL_CMM_OK;
    default:
      return DVC_PNL_CMM_WRONG_KIND;
  }
}

bool dvc_pnl_cmm_value::equals(const dvc_pnl_cmm_value& other) const {
  if (data_.index() != other.data_.index())
    return false;
  switch (data_.index()) {
    case 0:
      return true;
    case 1:
      return std::get<1>(data_) == std::get<1>(other.data_);
    case 2:
      return std::get<2>(data_) == std::get<2>(other.data_);
    case 3:
      return std::get<3>(data_) == std::get<3>(other.data_);
    default:
      return std::get<4>(data_)->equals(*std::get<4>(other.data_));
  }
}

// ---- value set ----

dvc_pnl_cmm_valueset& dvc_pnl_cmm_valueset::operator=(const dvc_pnl_cmm_valueset& other) {
  // Copy first: `other` may be nested inside this set.
  if (this != &other) {
    auto copy = other.entries_;
    entries_.swap(copy);
  }
  return *this;
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_copy(const dvc_pnl_cmm_valueset& other) {
  if (value_fault_hit(value_op::set_write))
    return DVC_PNL_CMM_FAULT;
  *this = other;
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_clear() {
  entries_.clear();
  return DVC_PNL_CMM_OK;
}

unsigned long dvc_pnl_cmm_valueset::dvc_pnl_cmm_size() const {
  return entries_.size();
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_is_contain(const dvc_pnl_cmm_key& key) const {
  return entries_.count(key) != 0 ? 1 : 0;
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_remove_value(const dvc_pnl_cmm_key& key) {
  if (value_fault_hit(value_op::set_remove))
    return DVC_PNL_CMM_FAULT;
  return entries_.erase(key) != 0 ? DVC_PNL_CMM_OK : DVC_PNL_CMM_NOT_FOUND;
}

const dvc_pnl_cmm_value* dvc_pnl_cmm_valueset::find(const dvc_pnl_cmm_key& key) const {
  auto it = entries_.find(key);
  return it == entries_.end() ? nullptr : &it->second;
}

int dvc_pnl_cmm_valueset::store(const dvc_pnl_cmm_key& key, dvc_pnl_cmm_value&& v) {
  if (key.empty())
    return DVC_PNL_CMM_BAD_ARGUMENT;
  entries_.insert_or_assign(key, std::move(v));
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_value(const dvc_pnl_cmm_key& key,
                                                dvc_pnl_cmm_value& out) const {
  if (value_fault_hit(value_op::set_read))
    return DVC_PNL_CMM_FAULT;
  const dvc_pnl_cmm_value* v = find(key);
  if (v == nullptr)
    return DVC_PNL_CMM_NOT_FOUND;
  out = *v;
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_value(const dvc_pnl_cmm_key& key,
                                                const dvc_pnl_cmm_value& v) {
  // An entry always holds something: storing an empty value is refused.
  if (v.empty())
    return DVC_PNL_CMM_WRONG_KIND;
  if (value_fault_hit(value_op::set_write))
    return DVC_PNL_CMM_FAULT;
  return store(key, dvc_pnl_cmm_value(v));
}

namespace {
// Reads one entry of `set` through the value's own typed getter.
template <typename Out, typename Getter>
int read_entry(const dvc_pnl_cmm_value* v, Out& out, Getter get) {
  if (v == nullptr)
    return DVC_PNL_CMM_NOT_FOUND;
  return (v->*get)(out);
}
}  // namespace

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_int(const dvc_pnl_cmm_key& key, long& out) const {
  if (value_fault_hit(value_op::set_read))
    return DVC_PNL_CMM_FAULT;
  return read_entry(find(key), out, &dvc_pnl_cmm_value::dvc_pnl_cmm_get_int);
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_string(const dvc_pnl_cmm_key& key,
                                                 const char*& out) const {
  if (value_fault_hit(value_op::set_read))
    return DVC_PNL_CMM_FAULT;
  return read_entry(find(key), out, &dvc_pnl_cmm_value::dvc_pnl_cmm_get_string);
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_binary(const dvc_pnl_cmm_key& key,
                                                 dvc_pnl_cmm_binary& out) const {
  if (value_fault_hit(value_op::set_read))
    return DVC_PNL_CMM_FAULT;
  return read_entry(find(key), out, &dvc_pnl_cmm_value::dvc_pnl_cmm_get_binary);
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_get_valueset(const dvc_pnl_cmm_key& key,
                                                   dvc_pnl_cmm_valueset& out) const {
  if (value_fault_hit(value_op::set_read))
    return DVC_PNL_CMM_FAULT;
  const dvc_pnl_cmm_value* v = find(key);
  if (v == nullptr)
    return DVC_PNL_CMM_NOT_FOUND;
  if (&out == this) {
    // Reading a nested set into its own parent: go through a temporary.
    dvc_pnl_cmm_valueset tmp;
    int ret = v->dvc_pnl_cmm_get_valueset(tmp);
    if (ret == DVC_PNL_CMM_OK)
      out = std::move(tmp);
    return ret;
  }
  return v->dvc_pnl_cmm_get_valueset(out);
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_int(const dvc_pnl_cmm_key& key, const long& v) {
  if (value_fault_hit(value_op::set_write))
    return DVC_PNL_CMM_FAULT;
  dvc_pnl_cmm_value val;
  val.dvc_pnl_cmm_set_int(v);
  return store(key, std::move(val));
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_string(const dvc_pnl_cmm_key& key, const char* v) {
  if (v == nullptr)
    return DVC_PNL_CMM_BAD_ARGUMENT;
  if (value_fault_hit(value_op::set_write))
    return DVC_PNL_CMM_FAULT;
  dvc_pnl_cmm_value val;
  val.dvc_pnl_cmm_set_string(v);
  return store(key, std::move(val));
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_binary(const dvc_pnl_cmm_key& key,
                                                 const dvc_pnl_cmm_binary& v) {
  if (value_fault_hit(value_op::set_write))
    return DVC_PNL_CMM_FAULT;
  dvc_pnl_cmm_value val;
  val.dvc_pnl_cmm_set_binary(v);
  return store(key, std::move(val));
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_set_valueset(const dvc_pnl_cmm_key& key,
                                                   const dvc_pnl_cmm_valueset& v) {
  if (value_fault_hit(value_op::set_write))
    return DVC_PNL_CMM_FAULT;
  dvc_pnl_cmm_value val;
  val.dvc_pnl_cmm_set_valueset(v);  // copies `v` before anything of this set changes
  return store(key, std::move(val));
}

int dvc_pnl_cmm_valueset::dvc_pnl_cmm_iterator(dvc_pnl_cmm_valueset_iterator& it) const {
  it.entries_ = &entries_;
  it.pos_ = entries_.begin();
  it.started_ = false;
  return DVC_PNL_CMM_OK;
}

bool dvc_pnl_cmm_valueset::equals(const dvc_pnl_cmm_valueset& other) const {
  if (entries_.size() != other.entries_.size())
    return false;
  auto a = entries_.begin();
  auto b = other.entries_.begin();
  for (; a != entries_.end(); ++a, ++b) {
    if (!(a->first == b->first) || !a->second.equals(b->second))
      return false;
  }
  return true;
}

// ---- iterator ----

int dvc_pnl_cmm_valueset_iterator::dvc_pnl_cmm_next_one() {
  if (entries_ == nullptr)
    return 0;
  if (!started_) {
    started_ = true;
    pos_ = entries_->begin();
  } else if (pos_ != entries_->end()) {
    ++pos_;
  }
  return pos_ != entries_->end() ? 1 : 0;
}

int dvc_pnl_cmm_valueset_iterator::dvc_pnl_cmm_get_value(dvc_pnl_cmm_value& out) const {
  if (entries_ == nullptr || !started_ || pos_ == entries_->end())
    return DVC_PNL_CMM_NOT_FOUND;
  out = pos_->second;
  return DVC_PNL_CMM_OK;
}

int dvc_pnl_cmm_valueset_iterator::dvc_pnl_cmm_get_key(dvc_pnl_cmm_key& out) const {
  if (entries_ == nullptr || !started_ || pos_ == entries_->end())
    return DVC_PNL_CMM_NOT_FOUND;
  out = pos_->first;
  return DVC_PNL_CMM_OK;
}

}  // namespace orvanta
