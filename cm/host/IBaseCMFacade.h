#pragma once

#include <string>

namespace veldra {

/// What the module offers a host beside its operations: the header of new units and the refresh of
/// CM states.
class IBaseCMFacade {
 public:
  virtual ~IBaseCMFacade() = default;
  /// The CM header text for a new unit; empty when there is none.
  virtual std::string getTheDefaultHeader() = 0;
  /// Reads the CM state of every unit from the provider, if the project wants that when it is
  /// opened.
  virtual void RefreshCMStatus() = 0;
};

}  // namespace veldra
