// The part of a unit that deals with its file's content: properties, editing, saving.

#include <utility>

#include "host/model/CMHeader.h"
#include "host/model/Project.h"
#include "host/model/UnitCore.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host {
namespace {

constexpr char CheckItOut[] = "Check the file out first.";

}  // namespace

ModelText* UnitCore::content(Problem& problem) {
  if (m_text) return m_text.get();
  const std::string path = fullFileName();
  if (!isOwnFile() || m_record.stub) {
    problem = {path,
               m_record.stub ? "The unit is not loaded." : "The file belongs to another tool.",
               m_record.stub ? "Load it first." : "Edit it with that tool."};
    return nullptr;
  }
  const Result<std::string> bytes = readFile(path, ModelFileLimit);
  if (!bytes) {
    problem = {path, bytes.error(), "Fetch the file again from the archive."};
    return nullptr;
  }
  std::optional<ModelText> parsed = parseModelText(*bytes, problem);
  problem.file = path;
  if (!parsed) return nullptr;
  m_text = std::make_unique<ModelText>(std::move(*parsed));
  return m_text.get();
}

ModelText* UnitCore::editableContent(Problem& problem) {
  if (m_record.mode == FileMode::ReadOnly) {
    problem = {fullFileName(), "The file is read-only.", CheckItOut};
    return nullptr;
  }
  ModelText* present = content(problem);
  if (!present) return nullptr;
  m_project.undo().remember(*this, present->body);
  m_modified = true;
  return present;
}

bool UnitCore::rename(const std::string& name, Problem& problem) {
  ModelText* edited = editableContent(problem);
  if (!edited) return false;
  edited->body["name"] = jsonOfBytes(name);
  m_record.name = name;
  return true;
}

bool UnitCore::setAttribute(const std::string& attribute, const std::string& value,
                            Problem& problem) {
  ModelText* edited = editableContent(problem);
  if (!edited) return false;
  Json& attributes = edited->body["attributes"];
  if (!attributes.is_object()) attributes = Json::object();
  attributes[attribute] = jsonOfBytes(value);
  return true;
}

bool UnitCore::edit(const std::function<void(Json&)>& change, Problem& problem) {
  ModelText* edited = editableContent(problem);
  if (!edited) return false;
  change(edited->body);
  takeName(edited->body);
  return true;
}

void UnitCore::takeName(const Json& body) {
  const Json* name = member(body, "name");
  if (const auto bytes = name ? bytesOfJson(*name) : std::nullopt) m_record.name = *bytes;
}

void UnitCore::forgetContent(const std::string& name) {
  m_text.reset();
  m_record.name = name;
  m_modified = false;
}

void UnitCore::restoreBody(const Json& body) {
  Problem problem;
  ModelText* restored = content(problem);
  if (!restored) return;
  restored->body = body;
  m_modified = true;
  takeName(body);
}

bool UnitCore::save(Problem& problem) {
  ModelText* changed = isOwnFile() ? contentToSave() : nullptr;
  if (changed && !writeContent(*changed, problem)) {
    problem.file = fullFileName();
    return false;
  }
  m_modified = false;
  return true;
}

bool UnitCore::saveCopy(const std::string& fileName) {
  const Result<std::string> present = readFile(fullFileName(), ModelFileLimit);
  const ModelText* const changed = isOwnFile() && m_modified ? contentToSave() : nullptr;
  if (!changed && !present) return false;
  try {
    return !writeFileAtomically(fileName, changed ? writeModelText(*changed) : *present,
                                ReadOnlyFile::Replace);
  } catch (const Json::exception&) {
    return false;
  }
}

bool UnitCore::writeContent(ModelText& content, Problem& problem) {
  const std::string path = fullFileName();
  const Result<std::string> present = readFile(path, ModelFileLimit);
  try {
    // The tool may have expanded its keywords since the file was read; they stay as they are now.
    if (present) content.header = present->substr(0, commentHeaderLength(*present));
    const std::string wanted = writeModelText(content);
    if (present && *present == wanted) return true;
    if (present && bodyHashOf(*present) != content.bodyHash) {
      problem = {{}, "The file has changed on the disk since it was read.", "Load it again first."};
      return false;
    }
    if (const auto error = writeFileAtomically(path, wanted)) {
      problem = {{}, *error, m_record.mode == FileMode::ReadOnly ? CheckItOut : "Try again."};
      return false;
    }
    content.bodyHash = bodyHashOf(wanted);
    m_record.fileTime = readFileFacts(path).written;
    return true;
  } catch (const Json::exception&) {
    problem = {{}, "A name in it is no UTF-8 text.", "Change that name; the file is unchanged."};
    return false;
  }
}

// --- properties ---

PropertyTable& UnitCore::ownProperties() {
  if (!m_properties) m_properties = std::make_unique<PropertyTable>();
  return *m_properties;
}

void UnitCore::readOwnProperties() {
  m_propertiesRead = true;
  if (!m_record.mentionsProperties) return;
  Problem problem;
  const ModelText* read = text(problem);
  if (!read) return m_project.addProblem(problem);
  Problems wrong;
  for (const TomlSettings::Entry& entry : propertiesOf(read->body, wrong)) {
    auto property =
        std::make_unique<Property>(entry.key.name, entry.value, Origin::Unit, fullFileName());
    const PropertyKey key = entry.key;
    property->setListener(
        [this, key](Property& changed) { ownPropertyChanged(key, changed.value()); });
    ownProperties().put(key.subject, key.metaclass, std::move(property));
  }
  for (Problem& one : wrong) {
    one.file = fullFileName();
    m_project.addProblem(one);
  }
}

IProperty* UnitCore::findProperty(const PropertyKeyView& key, bool localOnly) {
  for (UnitCore* unit = this; unit && unit != &m_project; unit = unit->m_owner) {
    if (!unit->m_propertiesRead) unit->readOwnProperties();
    Property* found = unit->m_properties ? unit->m_properties->find(key) : nullptr;
    // What was set since is the user's own.
    if (found && !found->source().empty()) {
      m_project.properties().noteUnitProperty(
          {std::string(key.subject), std::string(key.metaclass), std::string(key.name)}, *found);
    }
    if (found || localOnly) return found;
  }
  return localOnly ? m_project.properties().findIn(Origin::Project, key)
                   : m_project.properties().find(key);
}

void UnitCore::attachProperty(const std::string& subject, const std::string& metaclass,
                              const IProperty& property) {
  if (this == &m_project)
    return m_project.properties().attachToProject(subject, metaclass, property);
  if (!m_propertiesRead) readOwnProperties();
  const PropertyKey key{subject, metaclass, property.getName()};
  const std::string value = property.getValue();
  const Property* former = ownProperties().find(key);
  const bool changes = !former || former->value() != value;
  auto own = std::make_unique<Property>(key.name, value, Origin::Unit);
  own->setListener([this, key](Property& changed) { ownPropertyChanged(key, changed.value()); });
  ownProperties().put(subject, metaclass, std::move(own));
  if (changes) ownPropertyChanged(key, value);
}

void UnitCore::detachProperty(const PropertyKey& key) {
  if (!m_propertiesRead) readOwnProperties();
  Problem problem;
  ModelText* edited = editableContent(problem);
  if (!edited) return m_project.addProblem(problem);
  objectAt(objectAt(objectAt(edited->body, "properties"), key.subject), key.metaclass)
      .erase(key.name);
  ownProperties().remove(key);
}

void UnitCore::ownPropertyChanged(const PropertyKey& key, const std::string& value) {
  Problem problem;
  ModelText* edited = editableContent(problem);
  if (!edited) return m_project.addProblem(problem);
  objectAt(objectAt(objectAt(edited->body, "properties"), key.subject), key.metaclass)[key.name] =
      jsonOfBytes(value);
}

}  // namespace veldra::host
