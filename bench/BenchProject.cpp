#include "bench/BenchProject.h"

#include <fstream>
#include <iostream>
#include <stdexcept>

#include "cm/host/Host.h"
#include "host/model/NewProject.h"

namespace veldra::bench {

namespace fs = std::filesystem;

namespace {

/// A field of /proc/self/status, in bytes.
std::size_t statusField(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.starts_with(name)) return std::stoul(line.substr(name.size() + 1)) * 1024;
  }
  return 0;
}

/// A tool whose every operation is one program, and whose listing has four tab-separated fields.
std::string benchTool(const std::string& program) {
  std::string text = "[ConfigurationManagement.Bench]\n";
  for (const char* operation : {"CheckIn", "CheckOut", "Lock", "UnLock", "Fetch", "History"}) {
    text += std::string(operation) + " = '''" + program + "'''\n";
  }
  text +=
      "AskOnCheckoutReadWrite = 'No'\n"
      "MultiRecordDelimiter = '\\n'\n"
      "ListArchiveItsVersion = '^([^\\t]*)\\t'\n"
      "ListArchiveItsLocker = '^[^\\t]*\\t([^\\t]*)\\t'\n"
      "ListArchiveItsMode = '^[^\\t]*\\t[^\\t]*\\t(?:(RW)|RO)\\t'\n"
      "ListArchiveItsWorkingFile = '^[^\\t]*\\t[^\\t]*\\t[^\\t]*\\t(.+)'\n"
      "ReadOnly = '-u'\n"
      "ReadWrite = '-l'\n";
  return text;
}

void require(bool condition, const std::string& what) {
  if (!condition) throw std::runtime_error(what);
}

}  // namespace

TempFolder::TempFolder() {
  std::string name = (fs::temp_directory_path() / "veldra-bench-").string();
  for (int number = 0; m_path.empty(); ++number) {
    const fs::path candidate = name + std::to_string(number);
    if (fs::create_directory(candidate)) m_path = candidate;
  }
}

TempFolder::~TempFolder() {
  std::error_code ignored;
  fs::remove_all(m_path, ignored);
}

void writeFile(const fs::path& file, const std::string& text) {
  std::ofstream(file, std::ios::binary) << text;
}

void writeModel(const fs::path& folder, std::size_t count) {
  for (std::size_t i = 0; i < count; ++i) {
    const fs::path package = folder / ("Package" + std::to_string(i / 100));
    if (i % 100 == 0) fs::create_directories(package);
    const std::string name = "Unit" + std::to_string(i);
    writeFile(package / (name + ".vcmp"),
              "// Veldra component\n// $Id$\n{\n  \"format\": 1,\n  \"type\": \"Component\",\n"
              "  \"name\": \"" +
                  name + "\",\n  \"id\": \"" + std::to_string(i) +
                  "\",\n  \"elements\": [\n    {\n      \"type\": \"Attribute\",\n      \"name\": "
                  "\"pressure\",\n      \"id\": \"a" +
                  std::to_string(i) + "\"\n    }\n  ]\n}\n");
  }
  std::string error;
  host::NewProject request{.directory = folder.string(), .name = "Bench", .properties = {}};
  request.properties.push_back({{"ConfigurationManagement", "General", "CMTool"}, "Subversion"});
  require(host::createProject(request, error).has_value(), error);
}

BenchProject::BenchProject(std::size_t unitCount, const std::string& program,
                           const std::string& traceLog)
    : m_window("/dev/null") {
  const fs::path model = m_folder.path() / "model";
  const fs::path settings = m_folder.path() / "user.toml";
  fs::create_directories(model);
  writeModel(model, unitCount);
  writeFile(settings,
            benchTool(program) +
                "[ConfigurationManagement.General]\nIgnoreArchiveItemsWithoutDot = true\n");

  host::HostOptions options;
  options.output = &m_window;
  options.traceLog = traceLog;
  options.settings = host::standardSettingsFiles("");
  options.settings->packDirectory = (m_folder.path() / "no-packs").string();
  options.settings->userFile = settings.string();
  options.settings->siteFile.clear();
  options.settings->cacheDirectory.clear();
  m_host = std::make_unique<host::ReferenceHost>(options);
  installHost(m_host.get());
  const auto problem = m_host->open(model.string());
  require(!problem, problem.value_or(""));
  // What is measured is not their loading.
  m_host->project()->needUnits();
  m_host->properties().setInProject({"ConfigurationManagement", "General", "CMTool"}, "Bench");
}

BenchProject::~BenchProject() {
  installHost(nullptr);
}

UnitList BenchProject::units(std::size_t count) const {
  UnitList units;
  for (const auto& core : m_host->project()->files()) {
    IUnit& unit = core->unit();
    if (units.size() < count && unit.asProject() == nullptr) units.push_back(&unit);
  }
  require(units.size() == count, "the model has too few units");
  return units;
}

std::string ownProgram() {
  return fs::read_symlink("/proc/self/exe").string();
}

std::string commandLineProgram() {
  return "'" + fs::path(ownProgram()).replace_filename("veldra-cm").string() + "'";
}

void runQuietly(const std::string& command) {
  require(std::system(("{ " + command + "; } >/dev/null").c_str()) == 0, command);
}

std::size_t residentBytes() {
  return statusField("VmRSS:");
}

std::size_t peakResidentBytes() {
  return statusField("VmHWM:");
}

}  // namespace veldra::bench
