#pragma once

#include <optional>

#include "cm/core/CMDiagnostic.h"
#include "cm/ui/logic/ItemView.h"

namespace veldra {

/// The items that may be taken over: the user is asked about each that was changed here, and "no"
/// leaves it out. Nothing when the user gives the whole command up.
VELDRA_CM_EXPORT std::optional<CMArchiveItemList> FilterList(const CMArchiveItemList& selected);

/// How far taking over came.
enum class TakeOver { Done, CheckOutFailed, LoadFailed };

/// Brings items from the archive and loads them into the model. Whether they are checked out or
/// only fetched is up to the back end and to the property "CallCheckOutOnSynchronize".
VELDRA_CM_EXPORT TakeOver takeOver(CMArchiveItemList& items, const std::string& label,
                                   DiagnosticList& diagnostics);

/// The synchronize command.
class VELDRA_CM_EXPORT SyncCommand {
 public:
  /// `view` must outlive the object.
  explicit SyncCommand(ItemView& view) : m_view(view) {}

  /// True when everything that was to be taken over has been; otherwise the user gave up or has
  /// been told. `label` may be empty.
  bool OnSyncCo(const std::string& label);

 private:
  ItemView& m_view;
};

/// Whether the window closes when nothing is left in it.
VELDRA_CM_EXPORT bool closesWhenInStep();

}  // namespace veldra
