// Host GUI parts: attributes, list rows and lists, entry fields and their key actions.
#include <string>
#include <utility>
#include <vector>

#include "orvanta/platform/dvu_pnl_gcp_components.h"

namespace orvanta {

// ---- parts ----

int dvu_pnl_gcp_parts::dvu_pnl_gcp_get_int_val(int attribute, int& value) const {
  auto it = ints_.find(attribute);
  if (it == ints_.end())
    return 1;
  value = it->second;
  return 0;
}

int dvu_pnl_gcp_parts::dvu_pnl_gcp_set_int_val(int attribute, int value) {
  ints_[attribute] = value;
  return 0;
}

int dvu_pnl_gcp_parts::dvu_pnl_gcp_set_int_val(int attribute, int value,
                                               const std::string& argument) {
  argument_ = argument;
  return dvu_pnl_gcp_set_int_val(attribute, value);
}

int dvu_pnl_gcp_parts::dvu_pnl_gcp_get_str_val(int attribute, std::string& value) const {
  auto it = strings_.find(attribute);
  if (it == strings_.end())
    return 1;
  value = it->second;
  return 0;
}

int dvu_pnl_gcp_parts::dvu_pnl_gcp_set_str_val(int attribute, const std::string& value) {
  strings_[attribute] = value;
  return 0;
}

int dvu_pnl_gcp_text::dvu_pnl_gcp_set_orikaeshi_string(const std::string& text) {
  wraps_ = true;
  return dvu_pnl_gcp_set_str_val(DVU_PNL_GCP_ATTR_LITERAL, text);
}

// ---- labels, rows and lists ----

namespace {

bool fits(int cell, int width) {
  return cell >= 0 && width > 0 && cell + width <= dvu_pnl_gcp_label::kCells;
}

}  // namespace

int dvu_pnl_gcp_label::dvu_pnl_gcp_add_icon(int cell, int width, int resource) {
  if (!fits(cell, width))
    return 1;
  items_.push_back({true, cell, width, resource, {}, 0});
  return 0;
}

int dvu_pnl_gcp_label::dvu_pnl_gcp_add_text(int cell, int width, int resource,
                                            unsigned long state) {
  if (!fits(cell, width))
    return 1;
  items_.push_back({false, cell, width, resource, {}, state});
  return 0;
}

int dvu_pnl_gcp_label::dvu_pnl_gcp_add_text(int cell, int width, const std::string& text,
                                            unsigned long state) {
  if (!fits(cell, width))
    return 1;
  items_.push_back({false, cell, width, -1, text, state});
  return 0;
}

int dvu_pnl_gcp_list_row::dvu_pnl_gcp_set_int_val(int attribute, int value) {
  if (attribute == DVU_PNL_GCP_ATTR_ROW_STAR)
    dvu_pnl_gcp_parts::dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_ROW_STAR_SHOWN, value);
  return dvu_pnl_gcp_parts::dvu_pnl_gcp_set_int_val(attribute, value);
}

dvu_pnl_gcp_list::dvu_pnl_gcp_list() : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::list) {
  dvu_pnl_gcp_clear_all_row();
}

int dvu_pnl_gcp_list::dvu_pnl_gcp_add_row(const dvu_pnl_gcp_list_row& row) {
  rows_.push_back(row);
  return 0;
}

int dvu_pnl_gcp_list::dvu_pnl_gcp_get_row(int index, dvu_pnl_gcp_list_row*& row) {
  if (index < 0 || index > dvu_pnl_gcp_get_max_row()) {
    row = nullptr;
    return 1;
  }
  row = &rows_[static_cast<std::size_t>(index)];
  return 0;
}

int dvu_pnl_gcp_list::dvu_pnl_gcp_clear_all_row() {
  rows_.clear();
  dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SELECT_ROW, 0);
  dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_LIST_SCROLL_POS, 0);
  return 0;
}

int dvu_pnl_gcp_list::set_scroll_amount(int amount) {
  if (amount < 1)
    return 1;
  scroll_amount_ = amount;
  return 0;
}

// ---- edit box ----

namespace {

std::string trim_right(const std::string& text) {
  const auto end = text.find_last_not_of(' ');
  return end == std::string::npos ? std::string() : text.substr(0, end + 1);
}

}  // namespace

dvu_pnl_gcp_input_edit_box::dvu_pnl_gcp_input_edit_box(int max_length)
    : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::edit_box), max_length_(max_length) {}

int dvu_pnl_gcp_input_edit_box::dvu_pnl_gcp_set_str_val(int attribute, const std::string& value) {
  if (attribute != DVU_PNL_GCP_ATTR_EDIT_CONTENT)
    return dvu_pnl_gcp_parts::dvu_pnl_gcp_set_str_val(attribute, value);
  content_ = value.substr(0, static_cast<std::size_t>(max_length_));
  cursor_ = static_cast<int>(content_.size());
  return 0;
}

int dvu_pnl_gcp_input_edit_box::dvu_pnl_gcp_get_str_val(int attribute, std::string& value) const {
  if (attribute != DVU_PNL_GCP_ATTR_EDIT_CONTENT)
    return dvu_pnl_gcp_parts::dvu_pnl_gcp_get_str_val(attribute, value);
  value = trim_right(content_);
  return 0;
}

bool dvu_pnl_gcp_input_edit_box::dvu_pnl_gcp_set_crlf2lf_string(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r') {
      out += '\n';
      if (i + 1 < text.size() && text[i + 1] == '\n')
        ++i;
    } else {
      out += text[i];
    }
  }
  if (static_cast<int>(out.size()) > max_length_)
    return false;
  dvu_pnl_gcp_set_str_val(DVU_PNL_GCP_ATTR_EDIT_CONTENT, out);
  return true;
}

int dvu_pnl_gcp_input_edit_box::dvu_pnl_gcp_get_space_added_string(std::string& text) const {
  text = content_;
  return 0;
}

int dvu_pnl_gcp_input_edit_box::type_char(char c) {
  if (static_cast<int>(content_.size()) >= max_length_)
    return 1;
  content_.insert(content_.begin() + cursor_, c);
  ++cursor_;
  return 0;
}

int dvu_pnl_gcp_input_edit_box::erase() {
  if (cursor_ == 0)
    return 1;
  content_.erase(content_.begin() + cursor_ - 1);
  --cursor_;
  return 0;
}

int dvu_pnl_gcp_input_edit_box::move_cursor(int step) {
  const int to = cursor_ + step;
  if (to < 0 || to > static_cast<int>(content_.size()))
    return 1;
  cursor_ = to;
  return 0;
}

// ---- number entry ----

dvu_pnl_gcp_input_number::dvu_pnl_gcp_input_number(int max_digits)
    : dvu_pnl_gcp_parts(dvu_pnl_gcp_part_kind::number), max_digits_(max_digits) {}

int dvu_pnl_gcp_input_number::type_digit(int digit) {
  int value = 0;
  dvu_pnl_gcp_get_int_val(DVU_PNL_GCP_ATTR_NUMBER, value);
  if (fresh_)
    value = 0;
  int limit = 1;
  for (int i = 0; i < max_digits_; ++i)
    limit *= 10;
  const int next = value * 10 + digit;
  if (next >= limit)
    return 1;
  fresh_ = false;
  return dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_NUMBER, next);
}

int dvu_pnl_gcp_input_number::clear() {
  fresh_ = true;
  return dvu_pnl_gcp_set_int_val(DVU_PNL_GCP_ATTR_NUMBER, 0);
}

// ---- multi-field entries ----

dvu_pnl_gcp_input_fields::dvu_pnl_gcp_input_fields(dvu_pnl_gcp_part_kind kind, int first_attribute,
                                                   int fields, std::vector<int> limits)
    : dvu_pnl_gcp_parts(kind), first_attribute_(first_attribute), limits_(std::move(limits)) {
  limits_.resize(static_cast<std::size_t>(fields), 0);
}

int dvu_pnl_gcp_input_fields::field_count() const {
  if (kind() == dvu_pnl_gcp_part_kind::time &&
      (dvu_pnl_gcp_get_state() & DVU_PNL_GCP_STATE_WITH_SECONDS) == 0)
    return 2;
  return static_cast<int>(limits_.size());
}

int dvu_pnl_gcp_input_fields::type_digit(int digit) {
  if (field_count() == 0)
    return 1;
  const int attribute = first_attribute_ + field_;
  int value = 0;
  dvu_pnl_gcp_get_int_val(attribute, value);
  if (fresh_)
    value = 0;
  const int next = value * 10 + digit;
  if (next > limits_[static_cast<std::size_t>(field_)])
    return 1;
  fresh_ = false;
  return dvu_pnl_gcp_set_int_val(attribute, next);
}

int dvu_pnl_gcp_input_fields::clear() {
  if (field_count() == 0)
    return 1;
  fresh_ = true;
  return dvu_pnl_gcp_set_int_val(first_attribute_ + field_, 0);
}

int dvu_pnl_gcp_input_fields::move_cursor(int step) {
  const int to = field_ + step;
  if (to < 0 || to >= field_count())
    return 1;
  field_ = to;
  fresh_ = true;
  return 0;
}

dvu_pnl_gcp_input_date::dvu_pnl_gcp_input_date()
    : dvu_pnl_gcp_input_fields(dvu_pnl_gcp_part_kind::date, DVU_PNL_GCP_ATTR_DATE_FIRST, 3,
                               {9999, 12, 31}) {}

dvu_pnl_gcp_input_time::dvu_pnl_gcp_input_time()
    : dvu_pnl_gcp_input_fields(dvu_pnl_gcp_part_kind::time, DVU_PNL_GCP_ATTR_TIME_FIRST, 3,
                               {23, 59, 59}) {}

bool dvu_pnl_gcp_input_time::with_seconds() const {
  return (dvu_pnl_gcp_get_state() & DVU_PNL_GCP_STATE_WITH_SECONDS) != 0;
}

dvu_pnl_gcp_input_timer::dvu_pnl_gcp_input_timer()
    : dvu_pnl_gcp_input_fields(dvu_pnl_gcp_part_kind::timer, DVU_PNL_GCP_ATTR_TIMER_FIRST, 3,
                               {99, 23, 59}) {}  // days, hours, minutes

dvu_pnl_gcp_input_ip::dvu_pnl_gcp_input_ip(bool ipv6)
    : dvu_pnl_gcp_input_fields(ipv6 ? dvu_pnl_gcp_part_kind::ipv6 : dvu_pnl_gcp_part_kind::ipv4,
                               DVU_PNL_GCP_ATTR_IPV4_FIRST, ipv6 ? 0 : 4, {255, 255, 255, 255}) {}

// ---- select mark list ----

void dvu_pnl_gcp_input_select_mark::set_words(std::vector<std::string> words) {
  words_ = std::move(words);
  cursor_ = 0;
}

int dvu_pnl_gcp_input_select_mark::dvu_pnl_gcp_get_selected_word(std::string& word) const {
  if (words_.empty())
    return 1;
  word = words_[static_cast<std::size_t>(cursor_)];
  return 0;
}

int dvu_pnl_gcp_input_select_mark::move_cursor(int step) {
  const int to = cursor_ + step;
  if (to < 0 || to >= static_cast<int>(words_.size()))
    return 1;
  cursor_ = to;
  return 0;
}

// ---- processing animation ----

int dvu_pnl_gcp_processing_animation::dvu_pnl_gcp_processing_resister(int text_rid, int icon_rid) {
  text_rid_ = text_rid;
  icon_rid_ = icon_rid;
  return 0;
}

int dvu_pnl_gcp_processing_animation::dvu_pnl_gcp_processing_start() {
  running_ = true;
  frame_ = 0;
  return 0;
}

int dvu_pnl_gcp_processing_animation::dvu_pnl_gcp_processing_stop() {
  running_ = false;
  return 0;
}

}  // namespace orvanta
