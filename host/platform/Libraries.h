#pragma once

#include "cm/host/ILibraries.h"

namespace veldra::host {

/// Libraries as the system loads them: all that a library needs is bound when it is loaded, and its
/// names stay its own.
class Libraries : public ILibraries {
 public:
  std::unique_ptr<ILibrary> load(const std::string& path, std::string& errorText) override;
};

}  // namespace veldra::host
