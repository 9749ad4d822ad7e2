#pragma once

#include <QProcess>
#include <QStringList>
#include <string>

namespace veldra::host::desktop {

/// What `svn` itself says, past the module.
inline std::string svn(const QStringList& arguments) {
  QProcess process;
  process.start("svn", arguments);
  process.waitForFinished(60000);
  return process.readAllStandardOutput().toStdString();
}

}  // namespace veldra::host::desktop
