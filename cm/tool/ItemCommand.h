#pragma once

#include <string>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/CMOperation.h"
#include "cm/tool/ToolFrame.h"

namespace veldra {

/// One archive item on its way through an operation.
struct ItemRun {
  CMArchiveItem& item;
  CMVDYHandler* handler = nullptr;
  int status = 0;
  bool reloadFailed = false;
  std::string errorText{};
};

/// The frame of the operations that run one command per archive item; see `UnitCommand`.
class ItemCommand : public CMArchiveOperation {
 public:
  int operator()(CMArchiveItemList& items, ArgumentList& arguments,
                 DiagnosticList& diagnostics) override;

 protected:
  virtual const OperationRow& row() const = 0;
  /// After a command that could be run.
  virtual void after(ItemRun& run) const;

 private:
  int runAll(CMArchiveItemList& items, ArgumentList& arguments, DiagnosticList& diagnostics) const;
  void runItem(ItemRun& run, ArgumentList& arguments, UnitProgress& progress) const;
};

/// Tells the model-file handler, if there is one, that the command succeeded. A tool that failed
/// may have left half a file behind; then the handler puts the old one back.
void completeHandler(const ItemRun& run);

}  // namespace veldra
