// The commands of panelsim, each answering the program's exit code.
#pragma once

#include <string>
#include <vector>

namespace orvanta::sim {

// Exit codes of the program.
inline constexpr int kExitOk = 0;
inline constexpr int kExitFailed = 1;
inline constexpr int kExitUsage = 2;

// Reads a model file into `model` (empty path: no model). On error prints a message and
// answers false.
bool load_model_file(const std::string& path, std::string& model);
// Replaces the panel's resource table by a resource file (empty path: keep the compiled-in one).
// On error prints a message and answers false.
bool load_resource_file(const std::string& path);

int command_info(const std::vector<std::string>& ids);
int command_shot(const std::string& id, int function, const std::string& model,
                 const std::string& png, const std::string& pbm);
int command_demo(const std::string& model);
int command_run(const std::string& model, int function, const std::string& record);

}  // namespace orvanta::sim
