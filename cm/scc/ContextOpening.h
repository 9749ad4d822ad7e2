#pragma once

#include <string>

#include "cm/scc/ProviderBuffer.h"
#include "cm/scc/SccInterface.h"
#include "cm/scc/pvContextStruct.h"

namespace veldra {

/// The calls that open a context of the provider, and the buffers that they share. Each call is
/// true when the provider answered with success; otherwise the user has been told its code.
class ContextOpening {
 public:
  /// For a project of the archive; both texts may be empty when the user is to choose one.
  ContextOpening(const std::string& projName, const std::string& auxProjPath);

  [[nodiscard]] bool initialize(pvContextStruct& context, bool tracesReturn);
  /// Only when the settings ask for it; whatever the provider answers, the opening goes on.
  void setCancelOption(pvContextStruct& context);
  [[nodiscard]] bool chooseProject(pvContextStruct& context, int& isNew);
  [[nodiscard]] bool openProject(pvContextStruct& context, bool tracesReturn);
  /// Names the context and remembers what the provider can do.
  void remember(pvContextStruct& context) const;

  std::string projectName() const { return m_project.text(); }
  std::string auxPath() const { return m_auxPath.text(); }
  const std::string& providerName() const { return m_providerName; }

 private:
  ProviderBuffer m_user;
  ProviderBuffer m_project;
  ProviderBuffer m_localPath;
  ProviderBuffer m_auxPath;
  std::string m_providerName;
  scc::LONG m_capabilities = 0;
};

}  // namespace veldra
