#pragma once

#include "cm/core/CMOperation.h"

namespace veldra {

/// Shows the history of units in the provider's window, all together where it can show several
/// files and else one after the other. 1 when everything could be shown.
class HistorySCC final : public CMOperation {
 public:
  virtual int operator()(UnitList& units, ArgumentList& arguments, DiagnosticList& diagnostics);
  /// Of files of the archive, loaded or not.
  static int ofItems(CMArchiveItemList& items, ArgumentList& arguments,
                     DiagnosticList& diagnostics);
};

}  // namespace veldra
