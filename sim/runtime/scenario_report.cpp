// Running a list of scenario files: the PASS and FAIL lines, the count, the JUnit report.
#include <cstdio>
#include <fstream>

#include "orvanta/sim/scenario.h"

namespace orvanta::sim {
namespace {

std::string xml_escape(const std::string& s) {
  std::string out;
  for (char c : s) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '"':
        out += "&quot;";
        break;
      default:
        out += c;
    }
  }
  return out;
}

std::string seconds(double s) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%.3f", s);
  return buf;
}

}  // namespace

std::string junit_report(const std::vector<file_outcome>& outcomes) {
  int failures = 0;
  double total = 0;
  for (const file_outcome& o : outcomes) {
    failures += o.passed ? 0 : 1;
    total += o.seconds;
  }
  std::string out = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";
  out += "<testsuite name=\"panelsim\" tests=\"" + std::to_string(outcomes.size()) +
         "\" failures=\"" + std::to_string(failures) + "\" errors=\"0\" time=\"" + seconds(total) +
         "\">\n";
  for (const file_outcome& o : outcomes) {
    out += "  <testcase classname=\"scenario\" name=\"" + xml_escape(o.file) + "\" time=\"" +
           seconds(o.seconds) + "\"";
    if (o.passed) {
      out += "/>\n";
      continue;
    }
    out += ">\n    <failure message=\"" + xml_escape(o.reason) + "\">" + xml_escape(o.report) +
           "</failure>\n  </testcase>\n";
  }
  out += "</testsuite>\n";
  return out;
}

int run_scripts(const std::vector<std::string>& files, const script_options& options,
                const std::string& junit, std::ostream& out) {
  panel_runtime runtime;
  std::vector<file_outcome> outcomes;
  int passed = 0;
  for (const std::string& file : files) {
    outcomes.push_back(run_scenario_file(runtime, file, options, out));
    out << outcomes.back().report << "\n";
    passed += outcomes.back().passed ? 1 : 0;
  }
  const int failed = static_cast<int>(files.size()) - passed;
  out << passed << " passed, " << failed << " failed\n";
  out.flush();
  if (!junit.empty()) {
    std::ofstream report(junit);
    report << junit_report(outcomes);
    if (!report) {
      std::fprintf(stderr, "panelsim: cannot write %s\n", junit.c_str());
      return 2;
    }
  }
  return failed == 0 ? 0 : 1;
}

}  // namespace orvanta::sim
