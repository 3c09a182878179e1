// Tests of the input validator: groups, formulas, the validation ids and the walk over the text.
#include <gtest/gtest.h>

#include <climits>
#include <cstdio>
#include <string>
#include <vector>

#include "services/dvc_pnl_ceh_contents_hdl_validator.h"

namespace orvanta {
namespace {

using namespace std::string_literals;

// Opens up the tables and the walk for direct tests.
class validator_probe : public dvc_pnl_ceh_input_validator {
 public:
  using dvc_pnl_ceh_input_validator::cd_tbl_;
  using dvc_pnl_ceh_input_validator::cg_;
  using dvc_pnl_ceh_input_validator::dvc_pnl_ceh_valid_check_with;
};

std::string byte_name(unsigned char b) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "0x%02x", static_cast<unsigned>(b));
  return buf;
}

int answers_two(int) {
  return 2;
}
int answers_one(int) {
  return 1;
}

class InputValidatorTest : public ::testing::Test {
 protected:
  int check(std::string text, int id) { return validator_.dvc_pnl_ceh_valid_check(text, id); }

  validator_probe validator_;
};

TEST_F(InputValidatorTest, EmptyTextPassesEveryId) {
  for (int id = 0; id < dvc_pnl_ceh_input_validator::CD_TBL_COUNT; ++id) {
    EXPECT_EQ(0, check("", id)) << "id " << id;
  }
}

TEST_F(InputValidatorTest, IdOutsideTableIsRefused) {
  for (int id : {-1, 19, 20, INT_MIN, INT_MAX}) {
    EXPECT_EQ(-1, check("", id)) << "id " << id;
    EXPECT_EQ(-1, check("1", id)) << "id " << id;
  }
}

// For each id, characters it must accept and characters it must refuse, each byte on its own.
struct id_case {
  int id;
  std::string accepted;
  std::string refused;
};

const std::vector<id_case>& id_cases() {
  static const std::vector<id_case> cases = {
      {0, "aZ09 |/\\=\n"s + "\0"s + "\x7f"s, "\x80\xbf\xc3\xff"s},
      {1, "aZ09 .-=+[]_"s + "\0"s + "\x7f"s, "\\/:,;*?\"<>|\x80"s},
      {2, "aZ09 .-,;_"s + "\0"s + "\x7f"s, "\\/:*?\"<>=+[]|\x80"s},
      {3, "aZ09 ,;=+[]"s + "\0"s + "\x7f"s, "\\/:*?\"<>|\x80"s},
      {4, "aZ09 \\/:,;=+[]"s + "\0"s + "\x7f"s, "*?\"<>|\x80"s},
      {5, "0123456789-", " +*#a/:."s + "\0"s + "\x7f\x80"s},
      {6, "aZ09 |\\\n\r\b\t"s + "\0"s + "\x7f"s, "\x80\xff"s},
      {7, "aZ09 |\\\n"s + "\0"s + "\x7f"s, "\x80\xc3\xff"s},
      {8, "0123456789*#- ", "+a/:.\t"s + "\0"s + "\x7f\x80"s},
      {9, "0123456789 ", "-*#a/:\t"s + "\0"s + "\x7f\x80"s},
      {10, "aZ09|\\/\t\n"s + "\0"s + "\x7f"s, " \x80"s},
      {11, "aZ09 |/:\t"s + "\0"s + "\x7f"s, "\\\x80"s},
      {12, "0123456789", " a-/:"s + "\0"s + "\x7f\x80\xb2"s},
      {13, "0123456789*# ", "-+a/:"s + "\0"s + "\x7f\x80"s},
      {14, "aZ09 \"<>|=+"s + "\0"s + "\x7f"s, "\\/:,;*?\x80"s},
      {15, "azAZ0123456789", " _@[`{/:"s + "\0"s + "\x7f\x80\xb2\xe9"s},
      {16, "aZ09 |\\\n"s + "\0"s + "\x7f"s, "\x80\xc3\xff"s},
      {17, "aZ09 |\\\n"s + "\0"s + "\x7f"s, "\x80\xc3\xff"s},
      {18, "\n\r\b", " a\t\v\f"s + "\0"s + "\x7f\x80"s},
  };
  return cases;
}

TEST_F(InputValidatorTest, EachIdAcceptsAndRefusesItsCharacters) {
  ASSERT_EQ(static_cast<std::size_t>(dvc_pnl_ceh_input_validator::CD_TBL_COUNT), id_cases().size());
  for (const id_case& c : id_cases()) {
    SCOPED_TRACE("id " + std::to_string(c.id));
    for (char ch : c.accepted) {
      EXPECT_EQ(0, check(std::string(1, ch), c.id))
          << "should accept " << byte_name(static_cast<unsigned char>(ch));
    }
    // The whole run of accepted characters passes as one text too.
    EXPECT_EQ(0, check(c.accepted, c.id));
    for (char ch : c.refused) {
      const std::string bad(1, ch);
      EXPECT_EQ(-1, check(bad, c.id))
          << "should refuse " << byte_name(static_cast<unsigned char>(ch));
      // A refused character after and between accepted ones still fails the text.
      EXPECT_EQ(-1, check(c.accepted + bad, c.id))
          << "should refuse trailing " << byte_name(static_cast<unsigned char>(ch));
      EXPECT_EQ(-1, check(c.accepted.substr(0, 1) + bad + c.accepted, c.id))
          << "should refuse inner " << byte_name(static_cast<unsigned char>(ch));
    }
  }
}

TEST_F(InputValidatorTest, EveryIdRefusesMultiByteCharacters) {
  const std::vector<std::string> multi = {"\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\x98\x80"};
  for (const id_case& c : id_cases()) {
    SCOPED_TRACE("id " + std::to_string(c.id));
    for (const std::string& m : multi) {
      EXPECT_EQ(-1, check(m, c.id));
      EXPECT_EQ(-1, check(c.accepted.substr(0, 1) + m, c.id));
      EXPECT_EQ(-1, check(m + c.accepted.substr(0, 1), c.id));
    }
  }
}

TEST_F(InputValidatorTest, NamedFieldKindsBehaveAsDocumented) {
  EXPECT_EQ(-1, check(",", 1));
  EXPECT_EQ(0, check(",", 2));
  EXPECT_EQ(-1, check("=", 2));
  EXPECT_EQ(0, check("0123456789", 12));
  EXPECT_EQ(-1, check("12 34", 12));
  EXPECT_EQ(0, check("12 34", 9));
  EXPECT_EQ(0, check("abcXYZ0189", 15));
  EXPECT_EQ(0, check("\n\r\b\r\n", 18));
  EXPECT_EQ(-1, check("\n\r\bx", 18));
  // A NUL inside the text is a character like any other.
  EXPECT_EQ(0, check("ab\0cd"s, 1));
  EXPECT_EQ(-1, check("12\0"s
                      "34",
                      5));
}

// The set groups, written out independently of the implementation.
struct set_case {
  int group;
  TBLCHECK kind;
  std::string members;
};

TEST_F(InputValidatorTest, SetGroupsHoldExactlyTheirCharacters) {
  const std::vector<set_case> cases = {
      {4, TBLCHECK_NOT_IN_SET, "\\/:,;*?\"<>|"},
      {5, TBLCHECK_NOT_IN_SET, "\\/:*?\"<>=+[]|"},
      {6, TBLCHECK_NOT_IN_SET, "\\/:*?\"<>|"},
      {7, TBLCHECK_NOT_IN_SET, "*?\"<>|"},
      {8, TBLCHECK_NOT_IN_SET, "\\/:,;*?"},
      {9, TBLCHECK_IN_SET, "0123456789-"},
      {10, TBLCHECK_IN_SET, "\n\r\b"},
      {11, TBLCHECK_IN_SET, "0123456789*#- "},
      {12, TBLCHECK_IN_SET, "0123456789"},
      {13, TBLCHECK_IN_SET, "0123456789 "},
      {14, TBLCHECK_NOT_IN_SET, " "},
      {15, TBLCHECK_NOT_IN_SET, "\\"},
      {16, TBLCHECK_IN_SET, "0123456789*# "},
      {17, TBLCHECK_IN_SET, "0123456789ABCDEF"},
      {18, TBLCHECK_IN_SET, "\n"},
  };
  for (const set_case& c : cases) {
    SCOPED_TRACE("group " + std::to_string(c.group));
    const chr_group& g = validator_probe::cg_[static_cast<std::size_t>(c.group)];
    EXPECT_EQ(c.kind, g.kind_);
    const int inside = (c.kind == TBLCHECK_IN_SET) ? 1 : 0;
    for (int b = 0; b <= 0xff; ++b) {
      // The terminating NUL of the set is never a member.
      const bool member = b != 0 && c.members.find(static_cast<char>(b)) != std::string::npos;
      EXPECT_EQ(member ? inside : 1 - inside, g.isgroup(b))
          << byte_name(static_cast<unsigned char>(b));
    }
    // Values beyond a byte never match a member through their low byte.
    for (char m : c.members) {
      EXPECT_EQ(1 - inside, g.isgroup(0x100 + static_cast<unsigned char>(m)));
    }
  }
}

TEST_F(InputValidatorTest, FunctionGroupsAnswerExactlyOneForAsciiClasses) {
  for (int b = 0; b <= 0xff; ++b) {
    SCOPED_TRACE(byte_name(static_cast<unsigned char>(b)));
    const bool ascii = b < 0x80;
    const bool alpha = (b >= 'A' && b <= 'Z') || (b >= 'a' && b <= 'z');
    const bool digit = b >= '0' && b <= '9';
    EXPECT_EQ(ascii ? 1 : 0, validator_probe::cg_[0].isgroup(b));
    EXPECT_EQ(ascii ? 1 : 0, validator_probe::cg_[1].isgroup(b));
    EXPECT_EQ(alpha ? 1 : 0, validator_probe::cg_[2].isgroup(b));
    EXPECT_EQ(digit ? 1 : 0, validator_probe::cg_[3].isgroup(b));
  }
  // Values that are no byte at all (EOF, a sign-extended char) pass no function group.
  for (int v : {-1, -128, 0x100, 0x141}) {
    for (std::size_t g = 0; g < 4; ++g) {
      EXPECT_EQ(0, validator_probe::cg_[g].isgroup(v)) << "group " << g << " value " << v;
    }
  }
}

TEST_F(InputValidatorTest, CharacterLengthFollowsTheLeadBytePattern) {
  struct {
    unsigned char lead;
    int length;
  } const cases[] = {
      {0x00, 1}, {0x41, 1}, {0x7f, 1}, {0x80, 0}, {0xbf, 0}, {0xc0, 2},
      {0xdf, 2}, {0xe0, 3}, {0xef, 3}, {0xf0, 4}, {0xf7, 4}, {0xf8, 5},
      {0xfb, 5}, {0xfc, 6}, {0xfd, 6}, {0xfe, 0}, {0xff, 0},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(c.length, dvc_pnl_ceh_input_validator::dvc_pnl_ceh_char_length(c.lead))
        << byte_name(c.lead);
  }
}

// The walk tests only first bytes. With a formula that refuses only 'X' and passes every other
// byte, an 'X' inside a character is skipped and one at the next character is caught.
TEST_F(InputValidatorTest, WalkAdvancesByCharacterLength) {
  char no_x[] = "X";
  chr_group not_x(TBLCHECK_NOT_IN_SET, no_x);
  const validate_tbl formula(&not_x, validate_tbl::OP_END);
  auto walk = [&](const std::string& t) {
    return validator_probe::dvc_pnl_ceh_valid_check_with(t, formula);
  };

  const unsigned char leads[] = {0xc3, 0xe2, 0xf0, 0xf8, 0xfc};
  for (unsigned char lead : leads) {
    const int len = dvc_pnl_ceh_input_validator::dvc_pnl_ceh_char_length(lead);
    SCOPED_TRACE(byte_name(lead) + " length " + std::to_string(len));
    const std::string one_char = std::string(1, static_cast<char>(lead)) +
                                 std::string(static_cast<std::size_t>(len - 1), 'X');
    EXPECT_EQ(0, walk(one_char));
    EXPECT_EQ(-1, walk(one_char + "X"));
    EXPECT_EQ(0, walk("a" + one_char + "b" + one_char));
    // A character cut short at the end of the text ends the walk without reading past it.
    EXPECT_EQ(0, walk("ab" + one_char.substr(0, 1)));
  }

  // Bytes that start no character move on by one, so what follows them is tested.
  for (unsigned char stray : {0x80, 0xbf, 0xfe, 0xff}) {
    SCOPED_TRACE(byte_name(stray));
    EXPECT_EQ(-1, walk(std::string(1, static_cast<char>(stray)) + "X"));
    EXPECT_EQ(0, walk(std::string(1, static_cast<char>(stray)) + "a"));
  }
  EXPECT_EQ(-1, walk("X"));
  EXPECT_EQ(0, walk(""));
}

// Three operands, one for each bit of a digit '0'..'7': a is bit 2, b bit 1, c bit 0.
TEST_F(InputValidatorTest, FormulasEvaluateLeftToRightWithoutPrecedence) {
  char set_a[] = "4567";
  char set_b[] = "2367";
  char set_c[] = "1357";
  chr_group a(TBLCHECK_IN_SET, set_a);
  chr_group b(TBLCHECK_IN_SET, set_b);
  chr_group c(TBLCHECK_IN_SET, set_c);

  const int ops[] = {validate_tbl::OP_AND, validate_tbl::OP_OR};
  for (int op1 : ops) {
    for (int op2 : ops) {
      const validate_tbl f(&a, op1, &b, op2, &c, validate_tbl::OP_END);
      for (int d = 0; d < 8; ++d) {
        const bool va = (d & 4) != 0;
        const bool vb = (d & 2) != 0;
        const bool vc = (d & 1) != 0;
        const bool first = (op1 == validate_tbl::OP_AND) ? (va && vb) : (va || vb);
        const bool expected = (op2 == validate_tbl::OP_AND) ? (first && vc) : (first || vc);
        EXPECT_EQ(expected, f.isvalid('0' + d) != 0)
            << "ops " << op1 << "," << op2 << " digit " << d;
      }
    }
  }

  // a OR b AND c is (a + b) * c: with c false nothing passes, even when a and b both hold.
  const validate_tbl or_and(&a, validate_tbl::OP_OR, &b, validate_tbl::OP_AND, &c,
                            validate_tbl::OP_END);
  EXPECT_EQ(0, or_and.isvalid('4'));
  EXPECT_EQ(0, or_and.isvalid('6'));
  EXPECT_NE(0, or_and.isvalid('7'));
  // a AND b OR c is a * b + c: c alone is enough.
  const validate_tbl and_or(&a, validate_tbl::OP_AND, &b, validate_tbl::OP_OR, &c,
                            validate_tbl::OP_END);
  EXPECT_NE(0, and_or.isvalid('1'));
  EXPECT_EQ(0, and_or.isvalid('4'));
}

TEST_F(InputValidatorTest, FormulaArgumentListEnds) {
  char set_a[] = "a";
  char set_b[] = "b";
  chr_group a(TBLCHECK_IN_SET, set_a);
  chr_group b(TBLCHECK_IN_SET, set_b);

  // An operator other than AND or OR ends the list: b is never read.
  const validate_tbl bad_op(&a, 7, &b, validate_tbl::OP_END);
  EXPECT_NE(0, bad_op.isvalid('a'));
  EXPECT_EQ(0, bad_op.isvalid('b'));

  // A null operand ends the list and drops its operator.
  const validate_tbl null_operand(&a, validate_tbl::OP_AND, static_cast<chr_group*>(nullptr));
  EXPECT_NE(0, null_operand.isvalid('a'));

  // No operands: nothing passes.
  const validate_tbl empty(nullptr);
  EXPECT_EQ(0, empty.isvalid('a'));
  EXPECT_EQ(0, empty.isvalid(0));

  // The formula holds copies: changing a group afterwards leaves it as it was.
  const validate_tbl a_or_b(&a, validate_tbl::OP_OR, &b, validate_tbl::OP_END);
  b = a;
  EXPECT_NE(0, a_or_b.isvalid('b'));
}

TEST_F(InputValidatorTest, GroupAssignmentKeepsOnlyWhatTheKindUses) {
  char digits[] = "0123456789";
  chr_group set_group(TBLCHECK_IN_SET, digits);
  chr_group func_group(answers_one);

  chr_group g(answers_one);
  g = set_group;
  EXPECT_EQ(TBLCHECK_IN_SET, g.kind_);
  EXPECT_EQ(nullptr, g.func_);
  EXPECT_EQ(digits, g.set_);
  EXPECT_EQ(1, g.isgroup('5'));
  EXPECT_EQ(0, g.isgroup('a'));

  g = func_group;
  EXPECT_EQ(TBLCHECK_FUNCTION, g.kind_);
  EXPECT_EQ(&answers_one, g.func_);
  EXPECT_EQ(nullptr, g.set_);
  EXPECT_EQ(1, g.isgroup('a'));

  // Kind 2 built with a set: a copy keeps the (missing) function and drops the set.
  chr_group odd(TBLCHECK_FUNCTION, digits);
  chr_group copy(odd);
  EXPECT_EQ(TBLCHECK_FUNCTION, copy.kind_);
  EXPECT_EQ(nullptr, copy.func_);
  EXPECT_EQ(nullptr, copy.set_);
  g = odd;
  EXPECT_EQ(nullptr, g.set_);
  EXPECT_EQ(0, g.isgroup('5'));

  // Self-assignment changes nothing.
  chr_group& same = set_group;
  set_group = same;
  EXPECT_EQ(TBLCHECK_IN_SET, set_group.kind_);
  EXPECT_EQ(digits, set_group.set_);
}

TEST_F(InputValidatorTest, GroupEdgeCases) {
  // A function passes a character only with an answer of exactly 1.
  EXPECT_EQ(0, chr_group(answers_two).isgroup('a'));
  EXPECT_EQ(1, chr_group(answers_one).isgroup('a'));
  // A group without a set: nothing is in it.
  EXPECT_EQ(1, chr_group(TBLCHECK_NOT_IN_SET, nullptr).isgroup('a'));
  EXPECT_EQ(0, chr_group(TBLCHECK_IN_SET, nullptr).isgroup('a'));
  // A kind other than 0 tests for membership.
  char set_a[] = "a";
  EXPECT_EQ(1, chr_group(static_cast<TBLCHECK>(5), set_a).isgroup('a'));
  EXPECT_EQ(0, chr_group(static_cast<TBLCHECK>(5), set_a).isgroup('b'));
}

}  // namespace
}  // namespace orvanta
