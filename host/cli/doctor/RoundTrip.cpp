#include <filesystem>
#include <fstream>
#include <functional>
#include <sstream>
#include <system_error>

#include "host/cli/CommandLineProgram.h"
#include "host/cli/doctor/Checks.h"
#include "host/model/PathNames.h"
#include "host/platform/Program.h"
#include "host/platform/RemoveTree.h"

namespace veldra::host::cli {

namespace fs = std::filesystem;

namespace {

// With a blank and letters beyond ASCII, because that is where encodings show.
constexpr char UnitName[] =
    "Pr\xC3\xBC"
    "f teil.puml";

/// A folder that goes with the object; when the program is killed, its next run removes it.
class Workshop {
 public:
  explicit Workshop(const std::string& tempDirectory)
      : m_root(
            joinPath(tempDirectory, "veldra-cm-" + std::to_string(processNumber()) + "-doctor")) {
    std::error_code failed;
    fs::create_directories(fs::path(project()), failed);
    write("@startuml\n@enduml\n");
  }
  Workshop(const Workshop&) = delete;
  Workshop& operator=(const Workshop&) = delete;
  ~Workshop() { removeTree(m_root); }

  std::string project() const { return joinPath(m_root, "project"); }
  std::string archive() const { return joinPath(m_root, "archive"); }
  std::string unit() const { return joinPath(project(), UnitName); }

  void write(const std::string& text) const { std::ofstream(unit(), std::ios::binary) << text; }
  std::string read() const {
    std::ifstream in(unit(), std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }

 private:
  std::string m_root;
};

/// One command of the program on the workshop, and what must be true afterwards.
struct Step {
  const char* name;
  std::vector<std::string> arguments;
  std::function<bool()> holds;
};

DoctorCheck perform(const Step& step) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  Console console{.in = in, .out = out, .err = err};
  const ExitCode code = runProgram(step.arguments, console);
  if (code != ExitCode::AllDone) {
    return failedCheck(step.name, err.str(), "See to what the tool says; -v shows all of it.");
  }
  if (step.holds && !step.holds()) {
    return {.name = step.name,
            .isFine = false,
            .finding = "The command did not fail, but the file is not as it should be.",
            .advice = "Look at the template of the command with \"veldra-cm pack show\"."};
  }
  return {.name = step.name, .finding = "works"};
}

std::vector<Step> stepsIn(const Workshop& shop, const std::string& tool) {
  const auto cm = [&shop](const char* command, std::vector<std::string> more = {}) {
    std::vector<std::string> words = {"-p", shop.project(), command, shop.unit()};
    words.insert(words.end(), more.begin(), more.end());
    return words;
  };
  const auto change = [&shop] {
    shop.write(shop.read() + "' changed\n");
    return true;
  };
  const auto isChanged = [&shop] { return shop.read().find("' changed") != std::string::npos; };
  const std::vector<std::string> comment = {"-m", "Round trip, \xC3\xBC \"$log\""};
  return {
      {"init",
       {"init", shop.project(), "--name", "Doctor", "--tool", tool, "--archive", shop.archive()},
       nullptr},
      {"add", {"-p", shop.project(), "add", "--all", comment[0], comment[1]}, nullptr},
      {"check out", cm("checkout", {"--force"}), change},
      {"check in", cm("checkin", comment), isChanged},
      {"fetch", cm("fetch"), isChanged},
      {"check out again", cm("checkout", {"--force"}),
       [&shop] {
         shop.write("thrown away\n");
         return true;
       }},
      {"undo", cm("undo"), isChanged},
      {"delete", cm("delete", comment),
       [&shop] {
         std::error_code unknown;
         return !fs::exists(shop.unit(), unknown);
       }},
  };
}

}  // namespace

DoctorChecks checkRoundTrip(const std::string& tool, std::string tempDirectory) {
  const Workshop shop(tempDirectory);
  DoctorChecks checks;
  for (const Step& step : stepsIn(shop, tool)) {
    checks.push_back(perform(step));
    checks.back().name = "round trip: " + checks.back().name;
    // Each step needs the one before it.
    if (!checks.back().isFine) break;
  }
  return checks;
}

}  // namespace veldra::host::cli
