// Contents id names, key names, screen classes and the functions screens belong to.
#include "orvanta/sim/names.h"

#include <cxxabi.h>

#include <charconv>
#include <cstdlib>
#include <limits>
#include <map>
#include <memory>
#include <typeinfo>

#include "contents/dvc_pnl_ceh_contents_id.h"
#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "contents/dvc_pnl_ceh_logger.h"
#include "orvanta/host/panel_host.h"

namespace orvanta::sim {
namespace {

constexpr std::string_view kNotFound = "CID_EMPTY_OR_NOT_FOUND";

std::optional<long> parse_decimal(std::string_view text) {
  long value = 0;
  auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || ec != std::errc() || end != text.data() + text.size())
    return std::nullopt;
  return value;
}

std::optional<long> parse_hex(std::string_view digits) {
  unsigned long value = 0;
  auto [end, ec] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (digits.empty() || ec != std::errc() || end != digits.data() + digits.size())
    return std::nullopt;
  // Words such as 0x80001fff are kept as their 32-bit pattern, never sign-extended.
  return static_cast<long>(value);
}

// Name -> id for every named id. Where two ids carry one name the later wins, which gives
// CID_08_05_N1 its enumerator 1703 rather than 1702.
const std::map<std::string, int, std::less<>>& ids_by_name() {
  static const auto* table = [] {
    auto* t = new std::map<std::string, int, std::less<>>;
    for (int id = 0; id <= DVC_PNL_CEH_CONTENTS_ID_MAX; ++id) {
      const std::string name = dvc_pnl_ceh_logger::get_cid(id);
      if (name != kNotFound)
        (*t)[name] = id;
    }
    (*t)["CID_TOP"] = CID_TOP;
    (*t)["CID_PARENT"] = CID_PARENT;
    (*t)["CID_NONE"] = CID_NONE;
    for (int id : {CID_UNNAMED_1169, CID_UNNAMED_1482, CID_UNNAMED_1672, CID_UNNAMED_1874,
                   CID_UNNAMED_2058, CID_UNNAMED_2081, CID_UNNAMED_2174})
      (*t)["CID_UNNAMED_" + std::to_string(id)] = id;
    return t;
  }();
  return *table;
}

struct named_key {
  std::string_view name;
  int id;
};

constexpr named_key kKeys[] = {
    {"enter", 40},
    {"start", 41},
    {"stop", 42},
    {"reset", 43},
    {"back", 61},
    {"clear", 38},
    {"up", 57},
    {"down", 58},
    {"left", 59},
    {"right", 60},
    {"menu", 81},
    {"release", 87},
    {"fleft", host::kKeyFlexLeft},
    {"fright", host::kKeyFlexRight},
};

constexpr int kKeyDigitZero = 45;

bool fits_int(long n) {
  return n >= std::numeric_limits<int>::min() && n <= std::numeric_limits<int>::max();
}

}  // namespace

std::optional<long> parse_number(std::string_view text) {
  if (text.rfind("0x", 0) == 0 || text.rfind("0X", 0) == 0)
    return parse_hex(text.substr(2));
  return parse_decimal(text);
}

std::optional<int> parse_contents_id(std::string_view text) {
  if (auto number = parse_number(text))
    return fits_int(*number) ? std::optional<int>(static_cast<int>(*number)) : std::nullopt;
  const auto& table = ids_by_name();
  auto it = table.find(text);
  if (it == table.end())
    return std::nullopt;
  return it->second;
}

std::string contents_name(int id) {
  return dvc_pnl_ceh_logger::get_cid(id);
}

std::optional<int> parse_key(std::string_view text) {
  for (const named_key& k : kKeys) {
    if (k.name == text)
      return k.id;
  }
  if (text.size() == 1 && text[0] >= '0' && text[0] <= '9')
    return kKeyDigitZero + (text[0] - '0');
  if (auto number = parse_number(text))
    return fits_int(*number) ? std::optional<int>(static_cast<int>(*number)) : std::nullopt;
  return std::nullopt;
}

std::string key_name(int key) {
  for (const named_key& k : kKeys) {
    if (k.id == key)
      return std::string(k.name);
  }
  if (key >= kKeyDigitZero && key <= kKeyDigitZero + 9)
    return std::string(1, static_cast<char>('0' + key - kKeyDigitZero));
  return std::to_string(key);
}

std::string class_of(int id) {
  auto* factory = dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
  std::unique_ptr<dvc_pnl_ceh_contents_interface> made(
      factory->dvc_pnl_ceh_create_contents_proc_class(id, nullptr));
  if (!made)
    return "none";
  // The constructor took the contents' lock for the framework to release.
  made->dvc_pnl_ceh_unlock();
  int status = 0;
  // The dynamic type, read through a plain reference (clang warns of typeid on *made).
  const dvc_pnl_ceh_contents_interface& object = *made;
  const char* const raw = typeid(object).name();
  std::unique_ptr<char, void (*)(void*)> demangled(
      abi::__cxa_demangle(raw, nullptr, nullptr, &status), std::free);
  std::string name = status == 0 && demangled ? demangled.get() : raw;
  constexpr std::string_view kPrefix = "dvc_pnl_ceh_contents_hdl_";
  if (auto pos = name.rfind("::"); pos != std::string::npos)
    name = name.substr(pos + 2);
  if (name.rfind(kPrefix, 0) == 0)
    name = name.substr(kPrefix.size());
  return name;
}

int area_function(int id) {
  const std::string name = contents_name(id);
  if (name.rfind("CID_MNT", 0) == 0)
    return 11;
  // "CID_<aa>_...": the area is the two digits after the prefix.
  if (name.size() < 6 || name == kNotFound)
    return 1;
  const auto area = parse_decimal(std::string_view(name).substr(4, 2));
  if (!area)
    return 1;
  switch (*area) {
    case 4:
      return 9;
    case 5:
      return 5;
    case 7:
      return 10;
    default:
      return 1;
  }
}

int first_screen_of(int function) {
  switch (function) {
    case 3:
    case 4:
    case 8:
      return CID_01_02_01_N6;
    case 5:
      return CID_05_01_N1;
    case 6:
      return CID_01_02_03_N1;
    case 7:
      return CID_01_02_03_N2;
    case 9:
      return CID_04_01_N1;
    case 10:
      return CID_07_01_01_N1;
    default:
      return CID_01_01_N1;
  }
}

}  // namespace orvanta::sim
