// Input validator: decides whether typed text holds only the characters a kind of field permits.
#pragma once

#include <array>
#include <string>
#include <vector>

namespace orvanta {

// How a character group tests a character.
enum TBLCHECK : int {
  TBLCHECK_NOT_IN_SET = 0,  // the character must not be in the set
  TBLCHECK_IN_SET = 1,      // the character must be in the set
  TBLCHECK_FUNCTION = 2,    // a function decides
};

// One character group: either a classification function or a set of characters.
// Kind 2 uses the function, any other kind the set; a copy keeps only the member its kind uses.
class chr_group {
 public:
  constexpr explicit chr_group(int (*func)(int))
      : kind_(TBLCHECK_FUNCTION), func_(func), set_(nullptr) {}
  constexpr chr_group(TBLCHECK kind, char* set) : kind_(kind), func_(nullptr), set_(set) {}

  // Copying follows the assignment rule, so every copy keeps only the member its kind uses.
  chr_group(const chr_group& other) : kind_(TBLCHECK_NOT_IN_SET), func_(nullptr), set_(nullptr) {
    *this = other;
  }
  // Copies the kind and the member that the kind uses, and clears the other one.
  chr_group& operator=(const chr_group& other);

  // 1 when ch passes the group, 0 when not.
  int isgroup(int ch) const;

  TBLCHECK kind_;
  int (*func_)(int);
  const char* set_;
};

// One formula: operands joined by operators, evaluated left to right with no precedence.
class validate_tbl {
 public:
  // Operators between operands; 2 ends the argument list of the constructor.
  static constexpr int OP_AND = 0;
  static constexpr int OP_OR = 1;
  static constexpr int OP_END = 2;

  // Takes the first operand, then pairs (operator, chr_group*) up to an operator of 2.
  // Any operator other than 0 or 1, or a null operand, also ends the list, so a malformed
  // list never makes the constructor read past what the caller passed.
  validate_tbl(chr_group* first, ...);

  // Non-zero when ch passes the formula.
  int isvalid(int ch) const;

 private:
  std::vector<chr_group> operands_;
  std::vector<int> operators_;
};

class dvc_pnl_ceh_input_validator {
 public:
  static constexpr int CG_COUNT = 19;
  static constexpr int CD_TBL_COUNT = 19;

  dvc_pnl_ceh_input_validator() = default;
  virtual ~dvc_pnl_ceh_input_validator() = default;

  // 0 when every character of text passes the formula of id, -1 at the first that doesn't.
  // An id outside 0..18 names no field kind and is refused with -1, whatever the text.
  virtual int dvc_pnl_ceh_valid_check(std::string& text, int id);

  // Length of a UTF-8 character by its first byte; 0 for a continuation byte or 0xfe/0xff.
  static int dvc_pnl_ceh_char_length(unsigned char lead);

 protected:
  // Walks text character by character and tests each first byte with formula.
  static int dvc_pnl_ceh_valid_check_with(const std::string& text, const validate_tbl& formula);

  // The character groups and the formulas of the validation ids, built at load.
  static std::array<chr_group, CG_COUNT> cg_;
  static std::array<validate_tbl, CD_TBL_COUNT> cd_tbl_;
};

}  // namespace orvanta
