#pragma once

#include <string>

#include "cm/core/CMOperation.h"

namespace veldra {

class pvContextStruct;

/// Connects the model with projects of the provider's archive. The results are 1 for success and 0
/// for failure; the user has then been told.
class SCCConnectToCMRepository final : public CMOperation {
 public:
  /// Associates the model with an archive project that the user chooses. A model that has one
  /// already is connected to it, unless the user wants another one.
  virtual int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  /// Finds the context for a unit, or opens it; null means the active project. `context` is null
  /// afterwards unless the result is 1.
  virtual int getSccContext(pvContextStruct*& context, IUnit* unit);

  /// Opens a context for a project that the user chooses in the provider's window. With `isNew` a
  /// provider that can have one context only loses those that are open.
  int connectIt(IUnit* unit, pvContextStruct*& context, std::string& projName,
                std::string& auxProjPath, int isNew);
  /// Opens a context for a project that is known; nobody is asked.
  int connectLazy(IUnit* unit, pvContextStruct*& context, std::string& projName,
                  std::string& auxProjPath);
};

/// Closes the project of a context and then the context itself. The record is left as it is.
void closeContext(const pvContextStruct& record);

}  // namespace veldra
