#include "host/model/ProjectFile.h"

#include <algorithm>
#include <utility>

#include "host/model/PathNames.h"

namespace veldra::host {
namespace {

void reportKind(const std::string& key, const char* expected, Problems& problems) {
  problems.push_back({{},
                      "Under \"" + key + "\" stands a value that is no " + expected + ".",
                      "Correct it in a text editor; it is left out until then."});
}

std::string textMember(const Json& object, const char* key) {
  const Json* value = member(object, key);
  return value ? scalarText(*value).value_or(std::string()) : std::string();
}

/// Calls `take` with each object of the list under `key`; it answers false for one it cannot use.
template <class Take>
void eachObject(const Json& body, const char* key, Problems& problems, Take take) {
  const Json* list = member(body, key);
  if (!list) return;
  if (!list->is_array()) return reportKind(key, "list", problems);
  for (const Json& object : *list) {
    if (!object.is_object() || !take(object)) reportKind(key, "entry with its keys", problems);
  }
}

void readStubs(ProjectFile& file, Problems& problems) {
  eachObject(file.text.body, "stubs", problems, [&file](const Json& object) {
    const std::string name = textMember(object, "file");
    const Json* load = member(object, "load");
    if (name.empty() || (load && !load->is_boolean())) return false;
    if (!load || !load->get<bool>()) file.stubs.push_back(nameFromStored(name));
    return true;
  });
}

void readFileTypes(ProjectFile& file, Problems& problems) {
  eachObject(file.text.body, "fileTypes", problems, [&file](const Json& object) {
    FileType type;
    type.extension = textMember(object, "extension");
    type.unitType = textMember(object, "type");
    type.directoryUnit = textMember(object, "directoryUnit");
    if (type.extension.empty() || type.unitType.empty()) return false;
    file.fileTypes.push_back(std::move(type));
    return true;
  });
}

UnitArchives archivesOf(const Json& body, Problems& problems) {
  UnitArchives archives;
  eachObject(body, "archives", problems, [&archives](const Json& object) {
    const std::string name = textMember(object, "file");
    if (name.empty()) return false;
    archives[nameFromStored(name)] = {textMember(object, "archive"), textMember(object, "projName"),
                                      textMember(object, "auxProjPath")};
    return true;
  });
  return archives;
}

Json archivesJson(const UnitArchives& archives) {
  Json list = Json::array();
  for (const auto& [name, archive] : archives) {
    Json entry = {{"file", jsonOfBytes(storedName(name))}};
    if (!archive.archive.empty()) entry["archive"] = jsonOfBytes(archive.archive);
    if (!archive.projName.empty()) entry["projName"] = jsonOfBytes(archive.projName);
    if (!archive.auxProjPath.empty()) entry["auxProjPath"] = jsonOfBytes(archive.auxProjPath);
    list.push_back(std::move(entry));
  }
  return list;
}

std::vector<std::string> controlledOf(const Json& body, Problems& problems) {
  std::vector<std::string> names = textList(body, "controlled", problems);
  std::ranges::transform(names, names.begin(), nameFromStored);
  return names;
}

Json controlledJson(const std::vector<std::string>& names) {
  Json list = Json::array();
  for (const std::string& name : names) list.push_back(jsonOfBytes(storedName(name)));
  return list;
}

void putUnlessEmpty(Json& body, const char* key, Json value) {
  if (value.empty()) {
    body.erase(key);
  } else {
    body[key] = std::move(value);
  }
}

}  // namespace

std::vector<std::string> textList(const Json& body, const char* key, Problems& problems) {
  std::vector<std::string> texts;
  const Json* list = member(body, key);
  if (!list) return texts;
  if (!list->is_array()) {
    reportKind(key, "list", problems);
    return texts;
  }
  for (const Json& value : *list) {
    std::optional<std::string> text = bytesOfJson(value);
    if (text && !text->empty()) {
      texts.push_back(std::move(*text));
    } else {
      reportKind(key, "text", problems);
    }
  }
  return texts;
}

std::vector<TomlSettings::Entry> propertiesOf(const Json& body, Problems& problems) {
  std::vector<TomlSettings::Entry> entries;
  const Json* subjects = member(body, "properties");
  if (!subjects) return entries;
  for (const auto& [subject, metaclasses] : subjects->items()) {
    for (const auto& [metaclass, values] : metaclasses.items()) {
      for (const auto& [name, value] : values.items()) {
        if (std::optional<std::string> text = scalarText(value); text && values.is_object()) {
          entries.push_back({{subject, metaclass, name}, std::move(*text)});
        } else {
          reportKind("properties", "text, boolean or number", problems);
        }
      }
    }
  }
  return entries;
}

namespace {

bool showsStatus(const Json& body) {
  const Json* const show = member(body, "showCMStatus");
  return show && show->is_boolean() && show->get<bool>();
}

}  // namespace

std::optional<ProjectFile> parseProjectFile(std::string_view bytes, Problem& fatal,
                                            Problems& problems) {
  std::optional<ModelText> text = parseModelText(bytes, fatal);
  if (!text) return std::nullopt;
  ProjectFile file;
  file.text = std::move(*text);
  const Json& body = file.text.body;
  file.name = textMember(body, "name");
  file.controlled = controlledOf(body, problems);
  file.references = textList(body, "references", problems);
  readStubs(file, problems);
  readFileTypes(file, problems);
  file.archives = archivesOf(body, problems);
  file.properties = propertiesOf(body, problems);
  file.showCMStatus = showsStatus(body);
  return file;
}

namespace {

/// Erases a member, and the objects around it that are empty then.
void eraseProperty(Json& body, const PropertyKey& key) {
  Json& subjects = objectAt(body, "properties");
  Json& metaclasses = objectAt(subjects, key.subject);
  Json& values = objectAt(metaclasses, key.metaclass);
  values.erase(key.name);
  if (values.empty()) metaclasses.erase(key.metaclass);
  if (metaclasses.empty()) subjects.erase(key.subject);
  if (subjects.empty()) body.erase("properties");
}

/// Takes out what has been reset. What is not understood stays.
void eraseFormer(Json& body, const std::vector<PropertyEntry>& properties) {
  Problems known;
  for (const TomlSettings::Entry& former : propertiesOf(body, known)) {
    const bool isKept = std::ranges::any_of(
        properties, [&](const PropertyEntry& entry) { return entry.key == former.key; });
    if (!isKept) eraseProperty(body, former.key);
  }
}

}  // namespace

void updateProjectText(ProjectFile& file, const std::vector<PropertyEntry>& properties) {
  Json& body = file.text.body;
  Problems known;
  if (controlledOf(body, known) != file.controlled) {
    putUnlessEmpty(body, "controlled", controlledJson(file.controlled));
  }
  if (showsStatus(body) != file.showCMStatus) body["showCMStatus"] = file.showCMStatus;
  if (archivesOf(body, known) != file.archives) {
    putUnlessEmpty(body, "archives", archivesJson(file.archives));
  }
  eraseFormer(body, properties);
  for (const PropertyEntry& entry : properties) {
    Json& metaclass =
        objectAt(objectAt(objectAt(body, "properties"), entry.key.subject), entry.key.metaclass);
    Json& value = metaclass[entry.key.name];
    if (scalarText(value) != entry.value) value = jsonOfBytes(entry.value);
  }
}

}  // namespace veldra::host
