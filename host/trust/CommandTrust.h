#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/model/PropertyLayers.h"
#include "host/trust/ForeignCommands.h"

namespace veldra::host {

/// Which commands that came with a project the user has trusted.
///
/// A project file travels through the archive, so whoever may check it in could have everybody else
/// run any program. What a project brings is therefore run only after the user has seen it. Trust
/// is remembered per user, for exactly these commands with exactly these texts, whatever project
/// has them; when one of them changes, the user is asked again.
class CommandTrust {
 public:
  /// The layers must outlive the object. `file` is the user's list of what is trusted; empty when
  /// the user has no place for one.
  CommandTrust(const PropertyLayers& layers, std::string file);

  /// Everything that the open project brings, trusted or not.
  std::vector<ForeignCommand> commands() const { return foreignCommands(m_layers); }
  /// Whether all of it is trusted; a project that brings nothing is.
  bool isTrusted() const;
  /// From now on it is. Nothing on success, otherwise a sentence that says why it cannot be
  /// remembered.
  [[nodiscard]] std::optional<std::string> trust(const std::string& project);

 private:
  bool isRemembered(const std::string& hash) const;

  const PropertyLayers& m_layers;
  std::string m_file;
};

/// The list of a user whose settings are in `userFile`: "trusted-commands" beside it.
std::string trustFileBeside(const std::string& userFile);

}  // namespace veldra::host
