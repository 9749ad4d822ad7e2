#pragma once

#include <string>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMArgument.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// Root of the operation objects. Each is made on the stack for one call.
class CMOperation {
 public:
  /// 1 when a CM tool is configured for the object (null: the project); otherwise 0, with the
  /// reason in `message` when the tool is "None".
  virtual int isCMTool(std::string& message, IDObject* object, bool hybrid);

 protected:
  // Not virtual, so that the call operators of the bases below follow in the table of functions.
  ~CMOperation() = default;
};

/// An operation on units of the open model.
class CMWorkspaceOperation : public CMOperation {
 public:
  /// `hybrid` is true only when the command-line tool stands in for a selected provider.
  virtual int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics,
                         bool hybrid) = 0;
  virtual ~CMWorkspaceOperation() = default;
};

/// An operation on items of the archive.
class CMArchiveOperation : public CMOperation {
 public:
  virtual int operator()(CMArchiveItemList& items, ArgumentList& arguments,
                         DiagnosticList& diagnostics);
  virtual ~CMArchiveOperation() = default;
};

/// An operation on units that takes no arguments.
class CMFreeTextOperation : public CMOperation {
 public:
  virtual int operator()(UnitList& units, DiagnosticList& diagnostics) = 0;
  virtual ~CMFreeTextOperation() = default;
};

}  // namespace veldra
