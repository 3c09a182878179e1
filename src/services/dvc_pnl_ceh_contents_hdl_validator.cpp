// Input validator: character groups, formulas, the tables of the validation ids and the check.
#include "services/dvc_pnl_ceh_contents_hdl_validator.h"

#include <cctype>
#include <cstdarg>
#include <cstring>

namespace orvanta {

namespace {

// Group functions answer exactly 0 or 1, because a group passes only on an answer of 1 while the
// C library's classification functions answer any non-zero value. They also answer 0 for every
// value outside 0..127: a byte above 127 must fail in every formula whatever the current locale
// says, and the C functions must not see a value that is neither an unsigned char nor EOF.

int cg_is_single_byte(int ch) {
  return (ch >= 0 && ch <= 0xff &&
          dvc_pnl_ceh_input_validator::dvc_pnl_ceh_char_length(static_cast<unsigned char>(ch)) == 1)
             ? 1
             : 0;
}

// isascii is POSIX only; this is its definition.
int cg_isascii(int ch) {
  return (ch >= 0 && ch <= 0x7f) ? 1 : 0;
}

int cg_isalpha(int ch) {
  return (cg_isascii(ch) == 1 && std::isalpha(ch) != 0) ? 1 : 0;
}

int cg_isdigit(int ch) {
  return (cg_isascii(ch) == 1 && std::isdigit(ch) != 0) ? 1 : 0;
}

// The character sets. Writable arrays because the group constructor takes char*; nothing
// writes to them.
char cg_set_4[] = "\\/:,;*?\"<>|";
char cg_set_5[] = "\\/:*?\"<>=+[]|";
char cg_set_6[] = "\\/:*?\"<>|";
char cg_set_7[] = "*?\"<>|";
char cg_set_8[] = "\\/:,;*?";
char cg_set_9[] = "0123456789-";
char cg_set_10[] = "\n\r\b";
char cg_set_11[] = "0123456789*#- ";
char cg_set_12[] = "0123456789";
char cg_set_13[] = "0123456789 ";
char cg_set_14[] = " ";
char cg_set_15[] = "\\";
char cg_set_16[] = "0123456789*# ";
char cg_set_17[] = "0123456789ABCDEF";
char cg_set_18[] = "\n";

// Whether ch is one of the characters of set. The terminating NUL is not a member, and a value
// outside a byte never matches (strchr would compare only its low byte).
bool cg_in_set(const char* set, int ch) {
  if (set == nullptr || ch <= 0 || ch > 0xff) {
    return false;
  }
  return std::strchr(set, static_cast<char>(static_cast<unsigned char>(ch))) != nullptr;
}

}  // namespace

chr_group& chr_group::operator=(const chr_group& other) {
  // Read everything first: other may be *this.
  const TBLCHECK kind = other.kind_;
  int (*const func)(int) = other.func_;
  const char* const set = other.set_;
  kind_ = kind;
  if (kind == TBLCHECK_FUNCTION) {
    func_ = func;
    set_ = nullptr;
  } else {
    func_ = nullptr;
    set_ = set;
  }
  return *this;
}

int chr_group::isgroup(int ch) const {
  if (kind_ == TBLCHECK_FUNCTION) {
    // A function group without a function has nothing that could pass.
    return (func_ != nullptr && func_(ch) == 1) ? 1 : 0;
  }
  // A missing set is an empty set.
  const bool in_set = cg_in_set(set_, ch);
  if (kind_ == TBLCHECK_NOT_IN_SET) {
    return in_set ? 0 : 1;
  }
  return in_set ? 1 : 0;
}

validate_tbl::validate_tbl(chr_group* first, ...) {
  if (first == nullptr) {
    return;
  }
  operands_.push_back(*first);

  va_list args;
  va_start(args, first);
  for (;;) {
    const int op = va_arg(args, int);
    if (op != OP_AND && op != OP_OR) {
      break;
    }
    chr_group* const next = va_arg(args, chr_group*);
    if (next == nullptr) {
      break;
    }
    operators_.push_back(op);
    operands_.push_back(*next);
  }
  va_end(args);
}

int validate_tbl::isvalid(int ch) const {
  if (operands_.empty()) {
    return 0;
  }
  // Left to right with no precedence: AND multiplies the running total by the next answer,
  // OR adds it. Every operand is tested; totals stay small (at most the number of operands).
  int total = operands_[0].isgroup(ch);
  for (std::size_t i = 0; i < operators_.size(); ++i) {
    const int next = operands_[i + 1].isgroup(ch);
    if (operators_[i] == OP_AND) {
      total *= next;
    } else {
      total += next;
    }
  }
  return total != 0 ? 1 : 0;
}

// The groups in the order the validation formulas refer to them. Constant-initialised, so they
// are in place before any dynamic initialisation (the formulas below) reads them.
constinit std::array<chr_group, dvc_pnl_ceh_input_validator::CG_COUNT>
    dvc_pnl_ceh_input_validator::cg_ = {
        chr_group(cg_is_single_byte),               // g0
        chr_group(cg_isascii),                      // g1
        chr_group(cg_isalpha),                      // g2
        chr_group(cg_isdigit),                      // g3
        chr_group(TBLCHECK_NOT_IN_SET, cg_set_4),   // g4
        chr_group(TBLCHECK_NOT_IN_SET, cg_set_5),   // g5
        chr_group(TBLCHECK_NOT_IN_SET, cg_set_6),   // g6
        chr_group(TBLCHECK_NOT_IN_SET, cg_set_7),   // g7
        chr_group(TBLCHECK_NOT_IN_SET, cg_set_8),   // g8
        chr_group(TBLCHECK_IN_SET, cg_set_9),       // g9
        chr_group(TBLCHECK_IN_SET, cg_set_10),      // g10
        chr_group(TBLCHECK_IN_SET, cg_set_11),      // g11
        chr_group(TBLCHECK_IN_SET, cg_set_12),      // g12, in no formula
        chr_group(TBLCHECK_IN_SET, cg_set_13),      // g13
        chr_group(TBLCHECK_NOT_IN_SET, cg_set_14),  // g14
        chr_group(TBLCHECK_NOT_IN_SET, cg_set_15),  // g15
        chr_group(TBLCHECK_IN_SET, cg_set_16),      // g16
        chr_group(TBLCHECK_IN_SET, cg_set_17),      // g17, in no formula
        chr_group(TBLCHECK_IN_SET, cg_set_18),      // g18, in no formula
};

// The formulas, indexed by validation id. Each copies its groups when it is built.
std::array<validate_tbl, dvc_pnl_ceh_input_validator::CD_TBL_COUNT>
    dvc_pnl_ceh_input_validator::cd_tbl_ = {
        validate_tbl(&cg_[0], validate_tbl::OP_END),                                  // 0
        validate_tbl(&cg_[0], validate_tbl::OP_AND, &cg_[4], validate_tbl::OP_END),   // 1
        validate_tbl(&cg_[0], validate_tbl::OP_AND, &cg_[5], validate_tbl::OP_END),   // 2
        validate_tbl(&cg_[0], validate_tbl::OP_AND, &cg_[6], validate_tbl::OP_END),   // 3
        validate_tbl(&cg_[0], validate_tbl::OP_AND, &cg_[7], validate_tbl::OP_END),   // 4
        validate_tbl(&cg_[9], validate_tbl::OP_END),                                  // 5
        validate_tbl(&cg_[0], validate_tbl::OP_OR, &cg_[10], validate_tbl::OP_END),   // 6
        validate_tbl(&cg_[1], validate_tbl::OP_END),                                  // 7
        validate_tbl(&cg_[11], validate_tbl::OP_END),                                 // 8
        validate_tbl(&cg_[13], validate_tbl::OP_END),                                 // 9
        validate_tbl(&cg_[0], validate_tbl::OP_AND, &cg_[14], validate_tbl::OP_END),  // 10
        validate_tbl(&cg_[0], validate_tbl::OP_AND, &cg_[15], validate_tbl::OP_END),  // 11
        validate_tbl(&cg_[3], validate_tbl::OP_END),                                  // 12
        validate_tbl(&cg_[16], validate_tbl::OP_END),                                 // 13
        validate_tbl(&cg_[1], validate_tbl::OP_AND, &cg_[8], validate_tbl::OP_END),   // 14
        validate_tbl(&cg_[2], validate_tbl::OP_OR, &cg_[3], validate_tbl::OP_END),    // 15
        validate_tbl(&cg_[1], validate_tbl::OP_END),                                  // 16
        validate_tbl(&cg_[1], validate_tbl::OP_END),                                  // 17
        validate_tbl(&cg_[1], validate_tbl::OP_AND, &cg_[10], validate_tbl::OP_END),  // 18
};

int dvc_pnl_ceh_input_validator::dvc_pnl_ceh_char_length(unsigned char lead) {
  if ((lead & 0x80U) == 0x00U) {
    return 1;
  }
  if ((lead & 0xe0U) == 0xc0U) {
    return 2;
  }
  if ((lead & 0xf0U) == 0xe0U) {
    return 3;
  }
  if ((lead & 0xf8U) == 0xf0U) {
    return 4;
  }
  if ((lead & 0xfcU) == 0xf8U) {
    return 5;
  }
  if ((lead & 0xfeU) == 0xfcU) {
    return 6;
  }
  // A continuation byte 10xxxxxx, or 0xfe/0xff, starts no character.
  return 0;
}

int dvc_pnl_ceh_input_validator::dvc_pnl_ceh_valid_check(std::string& text, int id) {
  if (id < 0 || id >= CD_TBL_COUNT) {
    return -1;
  }
  return dvc_pnl_ceh_valid_check_with(text, cd_tbl_[static_cast<std::size_t>(id)]);
}

int dvc_pnl_ceh_input_validator::dvc_pnl_ceh_valid_check_with(const std::string& text,
                                                              const validate_tbl& formula) {
  std::size_t pos = 0;
  while (pos < text.size()) {
    const unsigned char byte = static_cast<unsigned char>(text[pos]);
    if (formula.isvalid(byte) == 0) {
      return -1;
    }
    // Only the first byte of a character is tested. A byte that starts no character still
    // moves on by one, so a stray continuation byte cannot stall the walk.
    const int length = dvc_pnl_ceh_char_length(byte);
    pos += (length == 0) ? 1U : static_cast<std::size_t>(length);
  }
  return 0;
}

}  // namespace orvanta
