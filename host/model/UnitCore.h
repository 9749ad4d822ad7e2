#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cm/host/IUnit.h"
#include "host/model/Handle.h"
#include "host/model/ModelText.h"
#include "host/model/Property.h"
#include "host/model/UnitHeads.h"

namespace veldra::host {

class Project;
class UnitCore;

/// A folder of a project, shared by the units in it.
struct Folder {
  std::string path;      ///< Absolute.
  std::string relative;  ///< Below the project; empty for its own folder and outside of it.
  Folder* parent = nullptr;
  UnitCore* owner = nullptr;  ///< Owns what has no nearer owner; null as long as nobody does.
};

/// What a unit is made from.
struct UnitRecord {
  Folder* folder = nullptr;
  std::string fileName;            ///< Empty for a folder that is a package without a file.
  const FileType* type = nullptr;  ///< Null for a file of any other type.
  std::string unitType;
  std::string name;
  std::string header;
  FileMode mode = FileMode::Unknown;
  std::int64_t fileTime = 0;  ///< When the file was written, as it was last read; 0 without one.
  bool stub = false;
  bool referenced = false;
  bool controlledFile = false;
  bool directoryUnit = false;  ///< Stands for its folder.
  bool mentionsProperties = false;
};

/// What the units of a project share, whatever their kind: their place, their CM header, mode and
/// state, their owner, and their body, which is read from the file when it is first asked for.
class UnitCore {
 public:
  UnitCore(Project& project, IUnit& unit, UnitRecord record);
  UnitCore(const UnitCore&) = delete;
  UnitCore& operator=(const UnitCore&) = delete;
  virtual ~UnitCore() = default;

  /// The core of a unit of the reference host, or null.
  static UnitCore* of(IUnit* unit);

  IUnit& unit() { return m_unit; }
  const IUnit& unit() const { return m_unit; }
  Project& project() const { return m_project; }
  const UnitRecord& record() const { return m_record; }

  // --- place and ownership ---
  bool hasFile() const { return !m_record.fileName.empty(); }
  /// True for files in Veldra's own format; other files are never written.
  bool isOwnFile() const { return m_record.type && m_record.type->own; }
  std::string fullFileName() const;
  /// The name below the project's folder, "." for the project itself; the full name outside of it.
  std::string relativeFileName() const;
  UnitCore* owner() const { return m_owner; }
  /// Makes the unit the last child of `owner`.
  void setOwner(UnitCore* owner);
  /// The owner does not know the unit any more.
  void leaveOwner();
  /// Takes the place of another unit in its owner's list, and its children.
  void takePlaceOf(UnitCore& former);
  const std::vector<UnitCore*>& children() const;
  /// The names from the project's outermost package down to this unit, joined by "::".
  std::string qualifiedName() const;
  /// The nearest unit with a file, beginning with this one.
  UnitCore* saveUnit();

  // --- what `IUnit` asks ---
  std::uint32_t flags() const;
  bool isExternal() const;
  std::string computedFileName() const { return computedFileName(m_record.name); }
  /// The file name that the unit would have under that name.
  std::string computedFileName(const std::string& name) const;
  void setFileName(const std::string& fileName);
  bool approveRename(const std::string& fileName) const;
  void updateHeader();
  void updateMode(const std::string& mode);
  std::int32_t state() const { return m_state; }
  void setState(std::int32_t state) { m_state = state; }
  bool batchArchive(std::string& archive) const;
  bool sccArchive(std::string& projName, std::string& auxProjPath) const;
  void setSccArchive(const std::string& projName, const std::string& auxProjPath);
  IProperty* findProperty(const PropertyKeyView& key, bool localOnly);
  /// Takes away what the unit says itself, so that the inherited value counts.
  void detachProperty(const PropertyKey& key);
  void attachProperty(const std::string& subject, const std::string& metaclass,
                      const IProperty& property);

  FileMode mode() const { return m_record.mode; }
  /// The unit's file is that one from now on; the project tells it so.
  void setFile(Folder& folder, const std::string& fileName);
  /// A package that is a folder without a file has the name of that.
  void takeFolderName();
  /// Looks at the file anew after it has come to another place or changed its name.
  void takeFile();
  /// The unit now stands for what the head says; used after its file has changed.
  void takeHead(const UnitHead& head);

  // --- content and editing ---
  bool isModified() const { return m_modified; }
  void markModified(bool modified) { m_modified = modified; }
  /// The file's content, read now if it has not been yet. Null, with the reason in `problem`, for
  /// stubs, for files of other tools and for files that cannot be read.
  const ModelText* text(Problem& problem) { return content(problem); }
  /// Changes the unit's name, or one of its attributes. False, with the reason, when it has no
  /// content that could be changed or its file is read-only.
  [[nodiscard]] bool rename(const std::string& name, Problem& problem);
  [[nodiscard]] bool setAttribute(const std::string& attribute, const std::string& value,
                                  Problem& problem);
  /// Changes the body as `change` does, which gets the body to write on. As above.
  [[nodiscard]] bool edit(const std::function<void(Json&)>& change, Problem& problem);
  /// The content is read again when it is next asked for; what was not saved is lost.
  void forgetContent(const std::string& name);
  /// Puts a former body back, as undo does.
  void restoreBody(const Json& body);
  /// Writes the content when it differs from the file. False, with the reason, when that is refused
  /// or fails; the file is then as it was.
  [[nodiscard]] bool save(Problem& problem);
  /// Writes the content as it stands in the model to another file. The unit does not change.
  [[nodiscard]] bool saveCopy(const std::string& fileName);

  /// Where the project keeps the unit; for the project's use.
  std::size_t place() const { return m_place; }
  void setPlace(std::size_t place) { m_place = place; }

  LifelineHolder& lifeline() { return m_lifeline; }
  /// Handles on the unit see a dead object from now on.
  void retire() { m_lifeline.cut(); }

 protected:
  /// See `text`; a project has its content from the start.
  virtual ModelText* content(Problem& problem);
  /// The content when it has been read already, brought up to date with the model; null otherwise.
  virtual ModelText* contentToSave() { return m_text.get(); }

 private:
  void takeName(const Json& body);
  ModelText* editableContent(Problem& problem);
  bool writeContent(ModelText& content, Problem& problem);
  PropertyTable& ownProperties();
  void readOwnProperties();
  void ownPropertyChanged(const PropertyKey& key, const std::string& value);

  Project& m_project;
  IUnit& m_unit;
  UnitRecord m_record;
  UnitCore* m_owner = nullptr;
  std::size_t m_place = 0;
  std::size_t m_placeInOwner = 0;
  std::vector<UnitCore*> m_children;
  std::int32_t m_state = -1;
  bool m_modified = false;
  bool m_propertiesRead = false;
  std::unique_ptr<ModelText> m_text;
  std::unique_ptr<PropertyTable> m_properties;
  LifelineHolder m_lifeline;
};

}  // namespace veldra::host
