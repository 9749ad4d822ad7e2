#include "host/cli/Packs.h"
#include "host/cli/PropertyListing.h"
#include "host/cli/Session.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"

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

}  // namespace

ExitCode runPack(const Invocation& invocation) {
  const Options& options = invocation.options;
  Session session(invocation);
  const PropertyLayers& layers = session.host().properties();
  if (options.action == "list") {
    list(invocation, layers);
  } else if (options.action == "show" && options.key) {
    show(invocation, layers);
  } else {
    throw CommandError(ExitCode::WrongUsage, "It is \"pack list\" or \"pack show NAME\".");
  }
  return ExitCode::AllDone;
}

}  // namespace veldra::host::cli
