// panelsim info, shot and demo, and the reading of model files.
#include "commands.h"

#include <fstream>
#include <iostream>
#include <stdexcept>

#include "contents/dvc_pnl_ceh_contents_proc_factory.h"
#include "orvanta/host/panel_host.h"
#include "orvanta/machine/simulated_machine.h"
#include "orvanta/sim/frame_render.h"
#include "orvanta/sim/names.h"
#include "orvanta/sim/panel_runtime.h"

namespace orvanta::sim {
namespace {

// Ids as given on the command line; prints a message for the first bad one.
bool parse_ids(const std::vector<std::string>& texts, std::vector<int>& out) {
  for (const std::string& t : texts) {
    const std::optional<int> id = parse_contents_id(t);
    if (!id) {
      std::cerr << "panelsim: unknown contents id " << t << "\n";
      return false;
    }
    out.push_back(*id);
  }
  return true;
}

std::string describe_id(int id) {
  return contents_name(id) + " (" + std::to_string(id) + ")";
}

}  // namespace

bool load_resource_file(const std::string& path) {
  if (path.empty())
    return true;
  std::string content;
  if (std::string error = read_file(path, content); !error.empty()) {
    std::cerr << "panelsim: " << error << "\n";
    return false;
  }
  try {
    host::load_resources(content);
  } catch (const std::invalid_argument& e) {
    std::cerr << "panelsim: bad resource file " << path << ": " << e.what() << "\n";
    return false;
  }
  return true;
}

bool load_model_file(const std::string& path, std::string& model) {
  model.clear();
  if (path.empty())
    return true;
  if (std::string error = read_file(path, model); !error.empty()) {
    std::cerr << "panelsim: " << error << "\n";
    return false;
  }
  // Checked on the machine itself, then the machine is put back.
  machine::simulated_machine& m = machine::simulated_machine::instance();
  const std::string error = m.load_model_json(model);
  m.reset();
  if (!error.empty()) {
    std::cerr << "panelsim: bad model file " << path << ": " << error << "\n";
    return false;
  }
  return true;
}

int command_info(const std::vector<std::string>& texts) {
  std::vector<int> ids;
  if (!parse_ids(texts, ids))
    return kExitUsage;
  panel_runtime runtime;
  auto* factory = dvc_pnl_ceh_contents_proc_factory::dvc_pnl_ceh_get_instance();
  for (int id : ids) {
    std::cout << id << " " << contents_name(id) << " " << class_of(id)
              << " group=" << factory->dvc_pnl_ceh_get_contents_class_group(id)
              << " state=" << factory->dvc_pnl_ceh_get_contents_class_state(id) << "\n";
  }
  return kExitOk;
}

int command_shot(const std::string& text, int function, const std::string& model,
                 const std::string& png, const std::string& pbm) {
  std::vector<int> ids;
  if (!parse_ids({text}, ids))
    return kExitUsage;
  const int id = ids.front();
  panel_runtime runtime;
  if (std::string error = runtime.reset(model); !error.empty()) {
    std::cerr << "panelsim: bad model: " << error << "\n";
    return kExitUsage;
  }
  runtime.set_function(function >= 0 ? function : area_function(id));
  if (!runtime.open(id)) {
    std::cerr << "panelsim: " << describe_id(id) << " opens no screen\n";
    return kExitUsage;
  }
  if (runtime.frame_count() == 0)
    std::cerr << "panelsim: " << describe_id(id)
              << " sent no frame to the LCD; the frame is blank\n";
  const lcd_frame frame = runtime.frame();
  if (!png.empty()) {
    if (std::string error = write_png(frame, png); !error.empty()) {
      std::cerr << "panelsim: " << error << "\n";
      return kExitUsage;
    }
    return kExitOk;
  }
  if (!pbm.empty()) {
    std::ofstream file(pbm, std::ios::binary);
    file << to_pbm(frame);
    if (!file) {
      std::cerr << "panelsim: cannot write " << pbm << "\n";
      return kExitUsage;
    }
    return kExitOk;
  }
  std::cout << render_boxed(frame) << format_items(runtime.top_items());
  return kExitOk;
}

}  // namespace orvanta::sim
