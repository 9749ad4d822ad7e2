#include <algorithm>
#include <fstream>
#include <iomanip>

#include "host/cli/Session.h"
#include "host/cli/UnitDescription.h"
#include "host/cli/UnitSelection.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

using Json = nlohmann::ordered_json;

Json jsonOf(const KeptCopy& copy) {
  Json json;
  json["copy"] = jsonText(copy.id);
  json["path"] = jsonText(copy.path);
  json["time"] = copy.time;
  json["operation"] = jsonText(copy.operation);
  json["size"] = copy.size;
  return json;
}

void printCopies(const Invocation& invocation, const std::vector<KeptCopy>& copies) {
  std::ostream& out = invocation.console.out;
  if (invocation.options.json) {
    Json document;
    document["command"] = invocation.command.name;
    document["copies"] = Json::array();
    for (const KeptCopy& copy : copies) document["copies"].push_back(jsonOf(copy));
    printJson(document, out);
    return;
  }
  for (const KeptCopy& copy : copies) {
    out << copy.time << "  " << std::setw(8) << copy.size << "  before "
        << textForPeople(copy.operation) << "  " << textForPeople(copy.path) << "\n    "
        << textForPeople(copy.id) << '\n';
  }
  if (copies.empty()) out << "No copies are kept.\n";
}

/// The copy of that name, else the newest one of the file.
KeptCopy copyNamed(Session& session, const std::vector<KeptCopy>& copies, const std::string& name) {
  const auto byName = std::ranges::find(copies, name, &KeptCopy::id);
  if (byName != copies.end()) return *byName;
  const UnitSelection selection = selectByName(session.project(), {name});
  const std::string path = selection.units.empty() ? name : projectPath(*selection.units.front());
  const auto byPath = std::ranges::find(copies, path, &KeptCopy::path);
  if (byPath != copies.end()) return *byPath;
  throw CommandError(ExitCode::NothingDone, "There is no copy \"" + name +
                                                "\". \"veldra-cm kept list\" shows all of them.");
}

void show(const Invocation& invocation, const KeptCopies& kept, const KeptCopy& copy) {
  std::ifstream in(kept.fileOf(copy), std::ios::binary);
  if (in && copy.size > 0) invocation.console.out << in.rdbuf();
  if (!in) throw CommandError(ExitCode::NothingDone, kept.fileOf(copy) + " cannot be read.");
}

void restore(const Invocation& invocation, KeptCopies& kept, const KeptCopy& copy) {
  const std::string file = kept.originalOf(copy);
  const auto failure = invocation.options.dryRun ? kept.objectionTo(copy, invocation.options.force)
                                                 : kept.restore(copy, invocation.options.force);
  if (failure) throw CommandError(ExitCode::NothingDone, *failure);
  if (invocation.options.json) {
    printCopies(invocation, {copy});
  } else {
    invocation.console.out << (invocation.options.dryRun ? "would restore  " : "restored  ")
                           << textForPeople(file) << '\n';
  }
}

}  // namespace

ExitCode runKept(const Invocation& invocation) {
  const Options& options = invocation.options;
  const bool isList = options.action == "list";
  if (!isList && ((options.action != "show" && options.action != "restore") || !options.key)) {
    throw CommandError(ExitCode::WrongUsage,
                       "It is \"kept list [FILE]\", \"kept show COPY\" or \"kept restore COPY\".");
  }
  Session session(invocation);
  session.openToLook();
  KeptCopies& kept = session.host().kept();
  std::vector<KeptCopy> copies = kept.list();
  if (!isList) {
    const KeptCopy copy = copyNamed(session, copies, *options.key);
    options.action == "show" ? show(invocation, kept, copy) : restore(invocation, kept, copy);
    return ExitCode::AllDone;
  }
  if (options.key) {
    const std::string path = copyNamed(session, copies, *options.key).path;
    std::erase_if(copies, [&path](const KeptCopy& copy) { return copy.path != path; });
  }
  printCopies(invocation, copies);
  return ExitCode::AllDone;
}

}  // namespace veldra::host::cli
