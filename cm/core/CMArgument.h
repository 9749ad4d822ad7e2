#pragma once

#include <string>
#include <vector>

#include "cm/host/Export.h"

namespace veldra {

class IProperty;

/// A value that a command template asks for by keyword. Keywords come without their dollar sign and
/// are compared without regard to case.
class VELDRA_CM_EXPORT CMArgument {
 public:
  CMArgument() = default;
  CMArgument(const CMArgument&) = delete;
  CMArgument& operator=(const CMArgument&) = delete;

  /// Non-zero when this argument answers to the keyword.
  virtual int isNamed(const std::string& keyword) const = 0;
  /// The text that the keyword becomes; the keyword itself when this argument does not answer to
  /// it.
  virtual std::string substitute(const std::string& keyword) = 0;

  // After the published functions, so that they keep the first places of the table.
  virtual ~CMArgument() = default;
};

/// Arguments of a call, not owned, asked from first to last. Null entries are skipped.
using ArgumentList = std::vector<CMArgument*>;

/// An argument whose value the user typed.
class VELDRA_CM_EXPORT CMUserBasedArgument : public CMArgument {};

/// An argument whose value comes from a CM tool property.
class VELDRA_CM_EXPORT CMPropertyArgument : public CMArgument {
 protected:
  /// The CM tool property of that name for the current project, or null.
  IProperty* getArgumentProperty(const std::string& name) const;
};

class VELDRA_CM_EXPORT CMPropertyDirectedArgument : public CMPropertyArgument {
 protected:
  IProperty* getCMtoolProperty(const std::string& name) const { return getArgumentProperty(name); }
};

}  // namespace veldra
