#pragma once

#include <memory>
#include <string>

#include "cm/host/IModel.h"
#include "host/model/Project.h"
#include "host/model/PropertyLayers.h"
#include "host/model/Workspace.h"

namespace veldra::host {

/// The model: at most one project is open, and it is the active one.
class Model : public IModel {
 public:
  /// The layers must outlive the model.
  explicit Model(PropertyLayers& layers) : m_layers(layers) {}

  /// Opens a project; the one that was open is closed, unsaved changes and all. Nothing on success;
  /// otherwise what is wrong and the way out, and no project is open.
  [[nodiscard]] std::optional<std::string> open(const std::string& directoryOrFile);
  void close();
  /// For a process that is about to end: the system takes the project's memory back at once, where
  /// `close` would go through its every unit.
  void leaveToSystem();
  /// The open project, or null.
  Project* project() { return m_project.get(); }

  IProject* activeProject() override { return m_project.get(); }
  IWorkspace* workspace() override { return m_workspace.get(); }
  IUnit* unitByFile(const std::string& fileName) override;
  /// The iterator follows units that are reloaded while it walks.
  std::unique_ptr<IObIterator> repositoryFiles() override;
  /// Files in different folders may have the same name.
  bool isFullPathRepFiles() const override { return true; }
  std::string unitTypeOfExtension(const std::string& suffix) const override;
  /// Units lie in the project's own folder, so that nothing is added to its name.
  std::string folderExtension() const override { return {}; }
  std::string newFileExtension() const override { return FileExtension::Project; }
  std::string oldFileExtension() const override { return FileExtension::OldProject; }
  std::unique_ptr<IProperty> createTextProperty(const std::string& name,
                                                const std::string& value) override {
    return std::make_unique<Property>(name, value, Origin::Project);
  }
  HostFlags& flags() override { return m_flags; }

 private:
  PropertyLayers& m_layers;
  FileTypes m_builtInTypes;
  HostFlags m_flags;
  std::unique_ptr<Project> m_project;
  std::unique_ptr<Workspace> m_workspace;
};

}  // namespace veldra::host
