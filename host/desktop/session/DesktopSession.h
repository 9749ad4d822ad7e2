#pragma once

#include <QObject>
#include <QString>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/ReferenceHost.h"
#include "host/desktop/session/DesktopDoor.h"
#include "host/desktop/session/OutputSink.h"
#include "host/desktop/session/WorkWatch.h"

namespace veldra::host::desktop {

/// The reference host for the life of the program, installed while this lives, and what the windows
/// ask of it.
class DesktopSession : public QObject {
  Q_OBJECT

 public:
  /// `questions` must outlive the object. `options` gets this session's output, door and progress;
  /// the rest of it stays.
  explicit DesktopSession(Questions& questions, HostOptions options = {});
  ~DesktopSession() override;

  ReferenceHost& host() { return *m_host; }
  /// The open project, or null.
  Project* project() { return m_host->project(); }
  OutputSink& output() { return m_output; }
  WorkWatch& work() { return m_work; }
  DesktopDoor& door() { return m_door; }
  Questions& questions() { return m_questions; }

  /// Opens a project in place of the one that is open. False when that fails; the user has been
  /// told.
  bool open(const std::string& directoryOrFile);
  void close();
  bool hasUnsaved();
  /// Writes everything that is modified. False when something could not be written; the user has
  /// been told.
  bool save();
  void tell(const Problems& problems, const QString& summary);

 signals:
  void traceLine(const QString& line);
  /// Another project is open, or none.
  void projectChanged();
  /// These files have been written, as far as that was possible.
  void saved(const std::vector<std::string>& files);

 private:
  void askForTrust();
  HostOptions complete(HostOptions options);

  Questions& m_questions;
  OutputSink m_output;
  WorkWatch m_work;
  DesktopDoor m_door;
  std::unique_ptr<ReferenceHost> m_host;
};

}  // namespace veldra::host::desktop
