// Fuzz target: random sequences of path reads and writes, descents, key building and set copies.
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "orvanta/host/trace_sink.h"
#include "orvanta/host/value_faults.h"
#include "util/dvc_pnl_ceh_contents_hdl_util_values.h"

namespace {

using namespace orvanta;

// The node array the operations read; sizes and positions never reach past it.
constexpr unsigned kNodes = 20;
// Node numbers the input picks from, so paths meet the entries of the seeded sets.
constexpr unsigned long kAlphabet[] = {0,
                                       1,
                                       2,
                                       3,
                                       938,
                                       959,
                                       1501,
                                       1484,
                                       1365,
                                       1366,
                                       1592,
                                       7,
                                       DVC_PNL_CEH_KEY_END,
                                       static_cast<unsigned long>(-2),
                                       0xffffffffUL,
                                       static_cast<unsigned long>(0x1ffffffffULL)};
constexpr std::size_t kAlphabetSize = sizeof kAlphabet / sizeof kAlphabet[0];
// Whole paths into the seeded sets, loaded into the node array in one step.
const char* const kPresets[] = {"0.938.959.1484",
                                "0.938.959.1592",
                                "0.938.959.1501",
                                "0.938.959.1501.0",
                                "0.938.959.1501.1",
                                "0.938.959.1501.0.1365",
                                "0.938.959.1501.1.1366",
                                "0.938.959.1501.2.1365",
                                "0.1.2.3",
                                "0.2.3.4.5.6.7.8.9.10.11.12.13.14.15.16.17.18.19.20"};
const char* const kDeepLeaf = "0.2.3.4.5.6.7.8.9.10.11.12.13.14.15.16.17";
constexpr std::size_t kPresetCount = sizeof kPresets / sizeof kPresets[0];
const char* const kStrings[] = {"", "a", "alice", "a longer text with spaces"};

constexpr int kSlots = 4;
constexpr std::size_t kMaxOps = 256;
// Bounds on the sets the input may grow, so one input cannot exhaust memory or the stack.
constexpr std::size_t kMaxWeight = 400;
constexpr std::size_t kMaxDepth = 24;
constexpr std::size_t kMaxKeyLength = 400;

void check(bool ok, const char* what) {
  if (!ok) {
    std::fprintf(stderr, "broken invariant: %s\n", what);
    std::abort();
  }
}

void must(int ret, const char* what) {
  check(ret == DVC_PNL_CMM_OK, what);
}

bool is_result_code(int ret) {
  return ret == DVC_PNL_CEH_RET_OK || ret == DVC_PNL_CEH_RET_UNKNOWN_TYPE ||
         ret == DVC_PNL_CEH_RET_PLATFORM || ret == DVC_PNL_CEH_RET_BAD_ARGUMENT;
}

dvc_pnl_cmm_key key_from(const unsigned long* nodes, unsigned n) {
  dvc_pnl_cmm_key key;
  for (unsigned i = 0; i < n; ++i)
    must(key.dvc_pnl_cmm_add_key(nodes[i]), "seed key");
  return key;
}

// Parses a dotted preset into `out`; returns the element count.
unsigned parse(const char* dotted, unsigned long* out) {
  unsigned n = 0;
  const char* p = dotted;
  while (*p != '\0' && n < kNodes) {
    char* end = nullptr;
    out[n++] = std::strtoul(p, &end, 10);
    p = *end == '.' ? end + 1 : end;
  }
  return n;
}

// Stores `v` at `path` (given with `n` elements), nesting from keys of `top` elements.
void seed(dvc_pnl_cmm_valueset& set, const char* path, unsigned top, const dvc_pnl_cmm_value& v) {
  unsigned long nodes[kNodes];
  const unsigned n = parse(path, nodes);
  if (top == n) {
    must(set.dvc_pnl_cmm_set_value(key_from(nodes, n), v), "seed leaf");
    return;
  }
  const dvc_pnl_cmm_key key = key_from(nodes, top);
  dvc_pnl_cmm_valueset nested;
  if (set.dvc_pnl_cmm_is_contain(key) != 0)
    must(set.dvc_pnl_cmm_get_valueset(key, nested), "get");
  seed(nested, path, top + 1, v);
  must(set.dvc_pnl_cmm_set_valueset(key, nested), "seed level");
}

dvc_pnl_cmm_value int_value(long v) {
  dvc_pnl_cmm_value value;
  must(value.dvc_pnl_cmm_set_int(v), "int value");
  return value;
}

dvc_pnl_cmm_value string_value(const char* v) {
  dvc_pnl_cmm_value value;
  must(value.dvc_pnl_cmm_set_string(v), "string value");
  return value;
}

// A list answer, a body, a chain nested one element at a time, and an empty set.
void build_seed(int slot, dvc_pnl_cmm_valueset& set) {
  switch (slot) {
    case 0:
    case 1: {
      seed(set, "0.938.959.1484", 4, int_value(0));
      seed(set, "0.938.959.1592", 4, int_value(3));
      const char* names[] = {"alice", "bob", "carol"};
      for (int i = 0; i < 3; ++i) {
        const std::string element = "0.938.959.1501." + std::to_string(i);
        seed(set, (element + ".1365").c_str(), 4, string_value(names[i]));
        seed(set, (element + ".1366").c_str(), 4, int_value(10 + i));
      }
      if (slot == 1) {
        // Keep only the body, whose entries have five elements.
        dvc_pnl_cmm_valueset body;
        unsigned long nodes[kNodes];
        must(set.dvc_pnl_cmm_get_valueset(key_from(nodes, parse("0.938.959.1501", nodes)), body),
             "body");
        set = body;
      }
      break;
    }
    case 2:
      seed(set, "0.1.2.3", 1, int_value(5));
      seed(set, "0.1.2.7", 1, string_value("x"));
      // Seventeen elements nested one level each: deeper than the descent may go.
      seed(set, kDeepLeaf, 1, int_value(17));
      break;
    default:
      break;
  }
}

// The seeds are built once: building nests level by level, a copy is far cheaper.
void seed_slot(int slot, dvc_pnl_cmm_valueset& set) {
  static const auto seeds = [] {
    std::array<dvc_pnl_cmm_valueset, kSlots> built;
    for (int i = 0; i < kSlots; ++i)
      build_seed(i, built[static_cast<std::size_t>(i)]);
    return built;
  }();
  set = seeds[static_cast<std::size_t>(slot)];
}

// Entries at all levels and the deepest nesting of `set`, read without injected failures armed.
void measure(const dvc_pnl_cmm_valueset& set, std::size_t depth, std::size_t& weight,
             std::size_t& max_depth) {
  if (depth > max_depth)
    max_depth = depth;
  dvc_pnl_cmm_valueset_iterator it;
  set.dvc_pnl_cmm_iterator(it);
  while (it.dvc_pnl_cmm_next_one() != 0) {
    ++weight;
    dvc_pnl_cmm_value v;
    must(it.dvc_pnl_cmm_get_value(v), "iterator value");
    NAME_SPACE_NODE_TYPE type{};
    if (v.dvc_pnl_cmm_get_type(type) == DVC_PNL_CMM_OK && type == NODE_TYPE_VALUESET) {
      dvc_pnl_cmm_valueset nested;
      must(v.dvc_pnl_cmm_get_valueset(nested), "nested set");
      measure(nested, depth + 1, weight, max_depth);
    }
  }
}

class harness {
 public:
  harness(const uint8_t* data, std::size_t size) : data_(data), size_(size) {
    for (int i = 0; i < kSlots; ++i)
      seed_slot(i, slots_[i]);
    for (unsigned i = 0; i < kNodes; ++i)
      nodes_[i] = 0;
  }

  void run() {
    for (std::size_t n = 0; n < kMaxOps && pos_ < size_; ++n) {
      if (n % 32 == 0)
        host::trace_sink::instance().clear();
      step();
      if (key_.size() > kMaxKeyLength)
        must(key_.dvc_pnl_cmm_clear(), "key clear");
    }
  }

 private:
  uint8_t byte() { return pos_ < size_ ? data_[pos_++] : 0; }
  int slot() { return byte() % kSlots; }
  // Whether a copy of set `from` may go inside set `to`. Only such stores grow a set by more
  // than an entry or two, so only they are measured (measuring copies every level). When there
  // is no room, `to` starts over from its seed and the operation is skipped.
  bool room_for(int to, int from) {
    std::size_t to_weight = 0;
    std::size_t to_depth = 0;
    std::size_t from_weight = 0;
    std::size_t from_depth = 0;
    measure(slots_[to], 0, to_weight, to_depth);
    measure(slots_[from], 0, from_weight, from_depth);
    if (to_weight + from_weight + 1 <= kMaxWeight && to_depth + from_depth + 1 <= kMaxDepth)
      return true;
    seed_slot(to, slots_[to]);
    return false;
  }
  // Positions around the interesting range, negatives and the 15/16 limit included.
  int position() { return static_cast<int>(byte() % 24) - 3; }
  unsigned count() { return byte() % (kNodes + 1); }
  // Mostly the node array, sometimes NULL.
  const unsigned long* nodes() { return byte() % 16 == 0 ? nullptr : nodes_; }

  // The injected failure of this operation, armed only around the calls under test so that
  // the harness's own set-up and checks never meet it.
  void arm() {
    if (faults_armed_)
      host::fail_value_op(fault_op_, fault_skip_);
  }
  static void disarm() { host::clear_value_faults(); }

  void step() {
    const uint8_t op = byte();
    // The high bit asks for one injected failure in this operation.
    faults_armed_ = (op & 0x80) != 0;
    if (faults_armed_) {
      fault_op_ = static_cast<host::value_op>(byte() % static_cast<int>(host::value_op::count_));
      fault_skip_ = byte() % 6;
    }
    switch (op & 0x7f) {
      case 0:
        nodes_[byte() % kNodes] = kAlphabet[byte() % kAlphabetSize];
        break;
      case 1:
        parse(kPresets[byte() % kPresetCount], nodes_);
        break;
      case 2:
        read_int();
        break;
      case 3:
        read_string();
        break;
      case 4:
        read_binary();
        break;
      case 5:
        read_valueset();
        break;
      case 6:
        write_int();
        break;
      case 7:
        write_string();
        break;
      case 8:
        write_valueset();
        break;
      case 9:
        child_descent();
        break;
      case 10:
        child_write_back();
        break;
      case 11:
        build_key();
        break;
      case 12:
        set_key();
        break;
      case 13:
        copy_and_change();
        break;
      case 14:
        nested_round_trip();
        break;
      case 15:
        key_text();
        break;
      case 16:
        request_round_trip();
        break;
      case 17: {
        const int s = slot();
        seed_slot(s, slots_[s]);
        break;
      }
      default:
        break;
    }
  }

  // A read refused for its start position must leave the out-argument as it was.
  static bool refused_start(int vs_start_pos, unsigned nsize) {
    return vs_start_pos < 0 || static_cast<unsigned>(vs_start_pos) > nsize;
  }

  void read_int() {
    const dvc_pnl_cmm_valueset& set = slots_[slot()];
    const int vs = position();
    const unsigned n = count();
    const unsigned long* node_name = nodes();
    long v = 12345;
    arm();
    const int ret = dvc_pnl_ceh_contents_hdl_get_int_from_valueset(node_name, vs, n, set, v);
    disarm();
    check(is_result_code(ret) && ret != DVC_PNL_CEH_RET_UNKNOWN_TYPE, "int read result");
    if (node_name == nullptr || refused_start(vs, n)) {
      check(ret == DVC_PNL_CEH_RET_BAD_ARGUMENT && v == 12345, "refused int read");
    }
  }

  void read_string() {
    const dvc_pnl_cmm_valueset& set = slots_[slot()];
    const int vs = position();
    const unsigned n = count();
    const unsigned long* node_name = nodes();
    const char* keep = "keep";
    const char* s = keep;
    arm();
    const int ret = dvc_pnl_ceh_contents_hdl_get_string_from_valueset(node_name, vs, n, set, s);
    disarm();
    check(is_result_code(ret) && ret != DVC_PNL_CEH_RET_UNKNOWN_TYPE, "string read result");
    if (ret == DVC_PNL_CEH_RET_OK) {
      check(s != nullptr, "string read gave NULL");
      volatile std::size_t len = std::strlen(s);  // touches every byte under the sanitizers
      (void)len;
    }
    if (node_name == nullptr || refused_start(vs, n)) {
      check(ret == DVC_PNL_CEH_RET_BAD_ARGUMENT && s == keep, "refused string read");
    }
  }

  void read_binary() {
    const dvc_pnl_cmm_valueset& set = slots_[slot()];
    dvc_pnl_cmm_binary b;
    const unsigned long* node_name = nodes();
    const int vs = position();
    const unsigned n = count();
    arm();
    const int ret = dvc_pnl_ceh_contents_hdl_get_binary_from_valueset(node_name, vs, n, set, b);
    disarm();
    check(is_result_code(ret) && ret != DVC_PNL_CEH_RET_UNKNOWN_TYPE, "binary read result");
  }

  void read_valueset() {
    const int from = slot();
    const int to = slot();  // may be the same set
    const unsigned long* node_name = nodes();
    const int vs = position();
    const unsigned n = count();
    arm();
    const int ret = dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(node_name, vs, n,
                                                                        slots_[from], slots_[to]);
    disarm();
    check(is_result_code(ret) && ret != DVC_PNL_CEH_RET_UNKNOWN_TYPE, "set read result");
  }

  void write_int() {
    dvc_pnl_cmm_valueset& set = slots_[slot()];
    const long v = static_cast<long>(byte()) - 128;
    const unsigned long* node_name = nodes();
    const int vs = position();
    const unsigned n = count();
    arm();
    const int ret = dvc_pnl_ceh_contents_hdl_set_int_to_valueset(node_name, vs, n, set, v);
    disarm();
    check(is_result_code(ret), "int write result");
  }

  void write_string() {
    dvc_pnl_cmm_valueset& set = slots_[slot()];
    const uint8_t pick = byte();
    const char* v = pick % 8 == 7 ? nullptr : kStrings[pick % 4];
    const unsigned long* node_name = nodes();
    const int vs = position();
    const unsigned n = count();
    arm();
    const int ret = dvc_pnl_ceh_contents_hdl_set_string_to_valueset(node_name, vs, n, set, v);
    disarm();
    check(is_result_code(ret), "string write result");
    if (v == nullptr || node_name == nullptr) {
      check(ret == DVC_PNL_CEH_RET_BAD_ARGUMENT, "refused string write");
    }
  }

  void write_valueset() {
    const int to = slot();
    const int from = slot();
    const unsigned long* node_name = nodes();
    const int vs = position();
    const unsigned n = count();
    if (!room_for(to, from))
      return;
    arm();
    const int ret = dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(node_name, vs, n, slots_[to],
                                                                      slots_[from]);
    disarm();
    check(is_result_code(ret), "set write result");
  }

  void child_descent() {
    const int from = slot();
    const int to = slot();
    const int pos = position();
    const int last = position();
    const unsigned long* node_name = nodes();
    // Positions within the node array: the descent reads at most `last` elements.
    const dvc_pnl_cmm_valueset before = slots_[to];
    arm();
    const int ret =
        dvc_pnl_ceh_contents_hdl_get_child_valueset(node_name, pos, last, slots_[from], slots_[to]);
    disarm();
    check(is_result_code(ret) && ret != DVC_PNL_CEH_RET_UNKNOWN_TYPE, "descent result");
    const bool refused = node_name == nullptr || pos < 0 || pos > 15 || last < 0 || last > 15;
    if (refused)
      check(ret == DVC_PNL_CEH_RET_BAD_ARGUMENT, "refused descent");
    if (ret != DVC_PNL_CEH_RET_OK)
      check(slots_[to].equals(before), "failed descent wrote");
  }

  // A value of any kind, or holding nothing; `from` tells the slot a set was copied from.
  dvc_pnl_cmm_value any_value(int& from) {
    from = -1;
    dvc_pnl_cmm_value v;
    switch (byte() % 5) {
      case 0:
        must(v.dvc_pnl_cmm_set_int(static_cast<long>(byte())), "value int");
        break;
      case 1:
        must(v.dvc_pnl_cmm_set_string(kStrings[byte() % 4]), "value string");
        break;
      case 2: {
        dvc_pnl_cmm_binary b;
        const unsigned char raw[] = {1, 2, 3, 4};
        const unsigned long len = byte() % 5;
        must(b.dvc_pnl_cmm_set_data(raw, len), "binary data");
        must(v.dvc_pnl_cmm_set_binary(b), "value binary");
        break;
      }
      case 3:
        from = slot();
        must(v.dvc_pnl_cmm_set_valueset(slots_[from]), "value set");
        break;
      default:
        break;  // holds nothing
    }
    return v;
  }

  void child_write_back() {
    const int to = slot();
    const int pos = position();
    const int last = position();
    const unsigned long* node_name = nodes();
    int from = -1;
    const dvc_pnl_cmm_value value = any_value(from);
    const NAME_SPACE_NODE_TYPE type = static_cast<NAME_SPACE_NODE_TYPE>(byte() % 7 - 1);
    if (from >= 0 && !room_for(to, from))
      return;
    const dvc_pnl_cmm_valueset before = slots_[to];
    arm();
    const int ret =
        dvc_pnl_ceh_contents_hdl_set_child_valueset(node_name, pos, last, slots_[to], value, type);
    disarm();
    check(is_result_code(ret), "write-back result");
    if (node_name == nullptr || pos < 0 || last < 0) {
      check(ret == DVC_PNL_CEH_RET_BAD_ARGUMENT && slots_[to].equals(before), "refused walk");
    } else if (pos >= last) {
      check(ret == DVC_PNL_CEH_RET_OK && slots_[to].equals(before), "empty walk changed the set");
    }
  }

  void build_key() {
    const unsigned n = count();
    const unsigned long* node_name = nodes();
    const std::size_t before = key_.size();
    arm();
    const int ret = dvc_pnl_ceh_contents_hdl_build_key(key_, node_name, n);
    disarm();
    if (node_name == nullptr) {
      check(ret == DVC_PNL_CEH_RET_BAD_ARGUMENT && key_.size() == before, "NULL build_key");
    } else if (ret == DVC_PNL_CEH_RET_OK) {
      check(key_.size() == before + n, "build_key length");
      for (unsigned i = 0; i < n; ++i)
        check(key_[before + i] == nodes_[i], "build_key element");
    } else {
      check(ret == DVC_PNL_CEH_RET_PLATFORM && faults_armed_, "build_key failure");
      check(key_.size() < before + n, "failed build_key length");
    }
  }

  void set_key() {
    // The array always ends in a terminator within its bounds.
    unsigned long array[kNodes + 1];
    for (unsigned i = 0; i < kNodes; ++i)
      array[i] = nodes_[i];
    array[kNodes] = DVC_PNL_CEH_KEY_END;
    const std::size_t before = key_.size();
    unsigned long* node_name = byte() % 16 == 0 ? nullptr : array;
    arm();
    dvc_pnl_ceh_contents_hdl_set_key(key_, node_name);
    disarm();
    std::size_t expected = 0;
    while (node_name != nullptr && !dvc_pnl_ceh_is_key_end(array[expected]))
      ++expected;
    check(key_.size() <= before + expected, "set_key length");
    if (!faults_armed_)
      check(key_.size() == before + expected, "set_key stopped early");
    for (std::size_t i = before; i < key_.size(); ++i) {
      check(key_[i] == array[i - before], "set_key element");
    }
  }

  void copy_and_change() {
    const int from = slot();
    const int to = slot();
    const dvc_pnl_cmm_valueset snapshot = slots_[from];
    arm();
    dvc_pnl_ceh_contents_hdl_copy_valueset(slots_[from], slots_[to]);
    disarm();
    if (faults_armed_ || from == to)
      return;
    check(slots_[to].equals(snapshot), "copy differs");
    // Change the copy at the top and below: the source must keep its content.
    const unsigned n = 1 + byte() % kNodes;
    must(slots_[to].dvc_pnl_cmm_set_int(key_from(nodes_, n), 42), "change copy");
    const int vs = position();
    (void)dvc_pnl_ceh_contents_hdl_set_int_to_valueset(nodes_, vs, count(), slots_[to], 43);
    check(slots_[from].equals(snapshot), "copy shares the source");
  }

  void nested_round_trip() {
    const int to = slot();
    const int from = slot();
    const unsigned n = 1 + byte() % kNodes;
    if (!room_for(to, from))
      return;
    const dvc_pnl_cmm_valueset stored = slots_[from];
    const dvc_pnl_cmm_key key = key_from(nodes_, n);
    arm();
    dvc_pnl_ceh_contents_hdl_set_valueset_to_valueset(slots_[to], key, slots_[from]);
    disarm();
    dvc_pnl_cmm_valueset back;
    dvc_pnl_ceh_contents_hdl_get_valueset_from_valueset(slots_[to], key, back);
    if (!faults_armed_)
      check(back.equals(stored), "nested set round trip");
  }

  void key_text() {
    const unsigned n = count();
    std::string out;
    dvc_pnl_ceh_contents_hdl_key2str(nodes_, n, out);
    check(out.size() >= 2 && out.front() == '(' && out.back() == ')', "key2str brackets");
    std::size_t dots = 0;
    for (char c : out)
      dots += c == '.' ? 1 : 0;
    check(dots == (n == 0 ? 0 : n - 1), "key2str separators");
  }

  void request_round_trip() {
    dvc_pnl_cmm_valueset& set = slots_[slot()];
    const dvc_pnl_cmm_key parent = key_from(nodes_, byte() % 6);
    const unsigned long node = kAlphabet[byte() % kAlphabetSize];
    const long v = static_cast<long>(byte());
    long back = -1;
    arm();
    dvc_pnl_ceh_contents_hdl_set_int_to_request_node(set, parent, node, v);
    dvc_pnl_ceh_contents_hdl_get_int_from_response_node(set, parent, node, back);
    disarm();
    if (!faults_armed_)
      check(back == v, "request/response round trip");
  }

  const uint8_t* data_;
  std::size_t size_;
  std::size_t pos_ = 0;
  bool faults_armed_ = false;
  host::value_op fault_op_ = host::value_op::key_add;
  int fault_skip_ = 0;
  unsigned long nodes_[kNodes];
  dvc_pnl_cmm_valueset slots_[kSlots];
  dvc_pnl_cmm_key key_;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  host::clear_value_faults();
  host::trace_sink::instance().clear();
  {
    harness h(data, size);
    h.run();
  }
  host::clear_value_faults();
  host::trace_sink::instance().clear();
  return 0;
}
