// The smallest useful host: a model in memory with one project and one unit, which it checks in.

#include <iostream>
#include <memory>
#include <regex>
#include <string>

#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "tests/support/MemoryEnvironment.h"
#include "tests/support/MemoryMessages.h"
#include "tests/support/MemoryModel.h"
#include "tests/support/ScriptedProcesses.h"

namespace {

using namespace veldra;

/// Patterns by the standard library. A host with large listings takes a faster engine, and one that
/// bounds its effort.
class StandardPatterns : public IPatternEngine {
 public:
  std::shared_ptr<const IPattern> compile(std::string_view pattern, std::string_view options,
                                          std::string& error) override {
    const bool ignoresCase = options.find('i') != std::string_view::npos;
    try {
      return std::make_shared<Pattern>(
          std::regex(std::string(pattern), ignoresCase ? std::regex::ECMAScript | std::regex::icase
                                                       : std::regex::ECMAScript));
    } catch (const std::regex_error& invalid) {
      error = invalid.what();
      return nullptr;
    }
  }

 private:
  struct Pattern : IPattern {
    explicit Pattern(std::regex regex) : m_regex(std::move(regex)) {}
    PatternEnd match(std::string_view text, std::size_t from, PatternMatch& match) const override {
      std::cmatch found;
      match.captures.clear();
      if (!std::regex_search(text.data() + from, text.data() + text.size(), found, m_regex))
        return match.end = PatternEnd::NoMatch;
      for (const auto& group : found)
        match.captures.push_back(group.matched ? std::string_view(group.first, group.second)
                                               : std::string_view());
      return match.end = PatternEnd::Matched;
    }
    std::regex m_regex;
  };
};

/// What every host must have, and a runner for commands. The rest is left as it is: no output
/// window, no undo, no trace log.
class MinimalHost : public Host {
 public:
  IModel& model() override { return units; }
  IEnvironment& environment() override { return surroundings; }
  IUserMessages& messages() override { return user; }
  IPatternEngine& patterns() override { return m_patterns; }
  IProcesses* processes() override { return &tools; }

  test::Journal journal;
  test::MemoryFiles files;
  test::MemoryModel units{journal, files};
  test::MemoryEnvironment surroundings{files};
  test::MemoryMessages user;
  test::ScriptedProcesses tools{journal, surroundings, files};

 private:
  StandardPatterns m_patterns;
};

void setProperty(IDObject& object, const char* metaclass, const char* name, const char* value) {
  object.attachProperty(IPN::CM, metaclass, std::make_unique<test::MemoryProperty>(name, value));
}

}  // namespace

int main() {
  MinimalHost host;
  host.files.makeDirectory("/start");
  test::MemoryProject& project = host.units.openProject("/plan", "Plant.vdy");
  setProperty(project, IPN::General, IPN::CMTool, "Pencil");
  setProperty(project, "Pencil", IPN::CMCheckIn, "pencil ci -m $log $UnitPath");

  // The tool of this model expands the header of the file that it is given.
  test::MemoryUnit& engine = host.units.addUnit("drive/Engine.vcl");
  host.tools.answer("pencil ci", {.output = "revision 1.2\n", .effect = [&] {
                                    host.files.write("/plan/drive/Engine.vcl", "$Id: 1.2 ada $");
                                  }});
  installHost(&host);

  UnitList list{&engine};
  CMLog comment("longer stroke");
  ArgumentList arguments{&comment};
  DiagnosticList diagnostics;
  const int result = CMFacade::CheckIn(list, arguments, diagnostics);

  for (const std::string& command : host.tools.commands()) std::cout << command << '\n';
  for (const CMDiagnostic& diagnostic : diagnostics) std::cerr << diagnostic.getMessage() << '\n';
  std::cout << engine.getName() << ": " << engine.getCMHeader() << '\n';
  installHost(nullptr);

  const bool ranOnce = host.tools.commands() == std::vector<std::string>{
                                                    "pencil ci -m \"longer stroke\" "
                                                    "/plan/drive/Engine.vcl"};
  return result != 0 && ranOnce && engine.getCMHeader() == "$Id: 1.2 ada $" ? 0 : 1;
}
