// The default machine's job settings of each function (0.1.F.S.<path>, both scopes) and the paper
// settings beside them, applied on every reset.
#include <cstddef>
#include <iterator>
#include <string>
#include <utility>
#include <variant>

#include "machine_internal.h"

namespace orvanta::machine::detail {
namespace {

// The function trees a setting lives in, by function node F.
enum trees : unsigned {
  kCopy = 1u << 0,                           // 2
  kSend = 1u << 1,                           // 161
  kFax = 1u << 2,                            // 206
  kBoxPrint = 1u << 3,                       // 207
  kBoxStore = 1u << 4,                       // 214
  kScan = kCopy | kSend | kFax | kBoxStore,  // the functions that read originals
  kPrint = kCopy | kBoxPrint,                // the functions that print
  kAll = kScan | kPrint,
};

struct function_tree {
  unsigned bit;
  const char* node;
};
constexpr function_tree kFunctionTrees[] = {
    {kCopy, "2"}, {kSend, "161"}, {kFax, "206"}, {kBoxPrint, "207"}, {kBoxStore, "214"}};

// The two scopes: the current value and the default; every setting starts equal in both.
constexpr const char* kScopes[] = {"160", "3"};

using sample = std::variant<long, const char*>;

struct job_setting {
  const char* path;  // below 0.1.F.S
  sample value;
  unsigned trees;
};

// SAMPLE DATA: the defaults of the simulator's machine, not those of any real machine. The
// values are the machine's own enumerations, passed through by the panel.
const job_setting kJobSettings[] = {
    // Job group 1.
    {"1.4.4", "doc", kAll},  // file name entry
    {"1.6.6", 0L, kAll},     // job end report
    {"1.11", 0L, kAll},      // print override
    {"1.208", 0L, kAll},     // automatic file deletion
    // Scan group 12.
    {"12.13.14", 0L, kScan},                       // zoom mode
    {"12.13.15.16", 1000L, kScan},                 // zoom ratio, in tenths of a percent
    {"12.18.19", 0L, kScan},                       // original size kind
    {"12.18.20", 4L, kScan},                       // original size
    {"12.22", 0L, kScan},                          // original orientation
    {"12.23.24", 0L, kScan},                       // mixed sized originals
    {"12.28", 0L, kScan},                          // scan duplex
    {"12.29.34", 1L, kScan},                       // original image
    {"12.29.3790", 0L, kScan},                     // scan quality
    {"12.29.30.31", 0L, kScan},                    // density adjustment method
    {"12.29.30.32.33", 4L, kScan},                 // density
    {"12.29.164", 2L, kScan},                      // scan resolution
    {"12.35.35", 0L, kCopy},                       // continuous scan, a group where copy has it
    {"12.35", 0L, kSend | kFax | kBoxStore},       // continuous scan, a plain value
    {"12.104.165", 0L, kScan},                     // scan colour
    {"12.104.147", 3L, kSend | kFax | kBoxStore},  // sharpness
    {"99.147", 3L, kCopy},                         // sharpness of copy
    {"12.104.145.145", 0L, kScan},                 // background density mode
    {"12.104.145.146", 0L, kScan},                 // background density
    {"99.145.145", 0L, kCopy},                     // background density mode of copy
    {"99.145.146", 0L, kCopy},                     // background density of copy
    {"12.2997", 0L, kCopy | kSend | kBoxStore},    // prevent bleed-through
    {"12.3686.3687", 0L, kScan},                   // blank page skip
    {"12.782", 0L, kScan},                         // contrast
    // Print group 46 and collate.
    {"46.48", 0L, kCopy},         // ecoprint of copy
    {"46.48.48", 0L, kBoxPrint},  // ecoprint
    {"46.49.50", 0L, kPrint},     // paper source chosen by hand
    {"46.49.51", 1L, kPrint},     // paper source: cassette 1
    {"46.49.52", 0L, kPrint},     // manual tray setting
    {"46.49.53", 4L, kPrint},     // manual tray size
    {"46.49.55", 1L, kPrint},     // manual tray media kind
    {"46.49.2382", 0L, kPrint},   // manual tray orientation
    {"46.47", 1L, kPrint},        // copy count
    {"46.58.59.60", 0L, kPrint},  // combine
    {"46.58.59.61", 0L, kPrint},  // duplex layout
    {"46.58.59.62", 0L, kPrint},  // border line
    {"46.63.64", 0L, kPrint},     // print duplex
    {"46.63.66", 0L, kPrint},     // copy bind
    {"46.176", "", kBoxPrint},    // encrypted PDF password
    {"46.2743", 0L, kBoxPrint},   // JPEG print mode
    {"46.2747", 0L, kBoxPrint},   // XPS fit to page
    {"148.149", 1L, kPrint},      // collate
    // Send, file and fax settings.
    {"185.188", 0L, kSend},         // send size
    {"185.189.190", "", kSend},     // subject
    {"185.193", 0L, kSend},         // secure FTP transmission
    {"166.166.167", 1L, kSend},     // file format
    {"166.184", 0L, kSend},         // file separation
    {"3985", 0L, kSend},            // fax server mode
    {"185.194", 0L, kFax},          // direct transmission
    {"185.186.187", 1L, kFax},      // fax resolution
    {"198.199", 0L, kFax},          // delayed transmission
    {"411", 0L, kFax},              // transmission report
    {"203.204", 0L, kSend | kFax},  // polling reception
    // Store and the rest.
    {"216.217", 0L, kBoxStore},  // storing size
    {"3796.3797", 0L, kAll},     // quiet mode
};

// SAMPLE DATA: machine-wide settings the job settings lean on.
const std::pair<const char*, long> kMachineSettings[] = {
    {"0.230.231.233.59.61", 0},  // system default duplex layout
    {"0.728.713.129", 30},       // cassettes present: 2, 4, 8, 16 for cassettes 1 to 4
    // Media type of each cassette.
    {"0.230.49.371.372.374", 1},
    {"0.230.49.371.375.374", 1},
    {"0.230.49.371.376.374", 5},
    {"0.230.49.371.377.374", 21},  // a custom type: its weight is in the custom table
};

// SAMPLE DATA: paper weight (384) of each media type's node below 0.230.49.382.
const std::pair<const char*, long> kPaperWeights[] = {
    {"383", 2}, {"385", 2}, {"386", 3}, {"387", 1}, {"388", 2},  {"389", 2},
    {"390", 2}, {"391", 2}, {"392", 3}, {"393", 4}, {"394", 2},  {"395", 2},
    {"396", 3}, {"397", 2}, {"400", 2}, {"399", 2}, {"3748", 2},
};
// SAMPLE DATA: the custom media types' weights, one table row per type (0.230.49.382.401.402.<i>).
constexpr long kCustomPaperWeights[] = {2, 2, 3, 3, 4, 4, 5, 5};

void set_sample(simulated_machine& machine, const std::string& path, const sample& value) {
  if (const long* number = std::get_if<long>(&value))
    machine.set_int(path, *number);
  else
    machine.set_string(path, std::get<const char*>(value));
}

}  // namespace

void apply_job_settings(simulated_machine& machine) {
  for (const job_setting& s : kJobSettings) {
    for (const function_tree& f : kFunctionTrees) {
      if ((s.trees & f.bit) == 0)
        continue;
      for (const char* scope : kScopes)
        set_sample(machine, std::string("0.1.") + f.node + "." + scope + "." + s.path, s.value);
    }
  }
  for (const auto& [path, value] : kMachineSettings)
    machine.set_int(path, value);
  for (const auto& [node, weight] : kPaperWeights)
    machine.set_int(std::string("0.230.49.382.") + node + ".384", weight);
  for (std::size_t i = 0; i < std::size(kCustomPaperWeights); ++i)
    machine.set_int("0.230.49.382.401.402." + std::to_string(i) + ".384", kCustomPaperWeights[i]);
}

}  // namespace orvanta::machine::detail
