#include <filesystem>
#include <system_error>

#include "host/cli/Packs.h"
#include "host/cli/PropertyListing.h"
#include "host/cli/Session.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"
#include "host/packs/PackCheck.h"

namespace veldra::host::cli {

namespace {

using Json = nlohmann::ordered_json;

Json jsonOf(const PackDescription& pack) {
  Json json;
  json["name"] = jsonText(pack.name);
  json["title"] = jsonText(pack.title);
  json["description"] = jsonText(pack.description);
  json["url"] = jsonText(pack.url);
  json["file"] = jsonText(pack.file);
  return json;
}

void list(const Invocation& invocation, const PropertyLayers& layers) {
  if (invocation.options.json) {
    Json document;
    document["command"] = invocation.command.name;
    document["packs"] = Json::array();
    for (const PackDescription& pack : layers.packs()) document["packs"].push_back(jsonOf(pack));
    printJson(document, invocation.console.out);
    return;
  }
  for (const PackDescription& pack : layers.packs()) {
    invocation.console.out << textForPeople(pack.name) << "  " << textForPeople(pack.title) << '\n';
  }
}

void show(const Invocation& invocation, const PropertyLayers& layers) {
  const PackDescription& pack = packNamed(layers, *invocation.options.key);
  std::vector<PropertyEntry> entries = layers.entries();
  std::erase_if(entries,
                [&](const PropertyEntry& entry) { return entry.key.metaclass != pack.name; });
  std::ostream& out = invocation.console.out;
  if (invocation.options.json) {
    Json document;
    document["command"] = invocation.command.name;
    document["packs"] = Json::array({jsonOf(pack)});
    document["properties"] = jsonOfProperties(entries);
    printJson(document, out);
    return;
  }
  out << textForPeople(pack.name) << "  " << textForPeople(pack.title) << '\n';
  for (const std::string& line : {pack.description, pack.url, pack.file}) {
    if (!line.empty()) out << textForPeople(line) << '\n';
  }
  out << '\n';
  printProperties(entries, out);
}

/// The files that the argument means: a pack by its name, a file, or without one every pack.
std::vector<std::string> filesOf(const PropertyLayers& layers,
                                 const std::optional<std::string>& key) {
  std::vector<std::string> files;
  if (!key) {
    for (const PackDescription& pack : layers.packs()) files.push_back(pack.file);
  } else if (key->ends_with(".toml")) {
    std::error_code unknown;
    if (!std::filesystem::is_regular_file(*key, unknown)) {
      throw CommandError(ExitCode::WrongUsage, "There is no file \"" + *key + "\".");
    }
    files.push_back(*key);
  } else {
    files.push_back(packNamed(layers, *key).file);
  }
  return files;
}

Json jsonOf(const PackMistake& mistake) {
  Json json;
  json["file"] = jsonText(mistake.file);
  json["line"] = mistake.line;
  json["property"] = jsonText(mistake.property);
  json["message"] = jsonText(mistake.what);
  json["nearest"] = jsonText(mistake.nearest);
  return json;
}

ExitCode check(const Invocation& invocation, Session& session) {
  const PackSurroundings surroundings{session.host().properties(), session.host().patterns(),
                                      session.host().installationRoot()};
  const std::vector<std::string> files =
      filesOf(session.host().properties(), invocation.options.key);
  std::vector<PackMistake> mistakes;
  for (const std::string& file : files) {
    for (PackMistake& mistake : checkPack(file, surroundings))
      mistakes.push_back(std::move(mistake));
  }
  std::ostream& out = invocation.console.out;
  if (invocation.options.json) {
    Json document;
    document["command"] = invocation.command.name;
    document["mistakes"] = Json::array();
    for (const PackMistake& mistake : mistakes) document["mistakes"].push_back(jsonOf(mistake));
    printJson(document, out);
  } else {
    for (const PackMistake& mistake : mistakes) out << textForPeople(sentence(mistake)) << '\n';
    if (mistakes.empty()) out << files.size() << " checked, no mistakes\n";
  }
  return mistakes.empty() ? ExitCode::AllDone : ExitCode::SomeFailed;
}

}  // namespace

ExitCode runPack(const Invocation& invocation) {
  const Options& options = invocation.options;
  Session session(invocation);
  const PropertyLayers& layers = session.host().properties();
  if (options.action == "list") {
    list(invocation, layers);
  } else if (options.action == "show" && options.key) {
    show(invocation, layers);
  } else if (options.action == "check") {
    return check(invocation, session);
  } else {
    throw CommandError(
        ExitCode::WrongUsage,
        "It is \"pack list\", \"pack show NAME\" or \"pack check [NAME or FILE.toml]\".");
  }
  return ExitCode::AllDone;
}

}  // namespace veldra::host::cli
