#include "cm/scc/CheckOutFromArchiveSCC.h"

#include "cm/core/CMArchiveItem.h"
#include "cm/scc/ArchiveUnits.h"
#include "cm/scc/ProviderAdapter.h"
#include "cm/scc/ProviderBatch.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char ArchiveCheckOutName[] = "Check Out from Archive";

/// One batch of check-outs of archive items.
class ItemCheckOut {
 public:
  explicit ItemCheckOut(const ArgumentList& arguments) {
    if (CMProperty::isSetSCC_CAP_COMMENTCHECKOUT(0) != 0) m_comment = commentOf(arguments);
  }
  bool checkOut(const CMArchiveItem& item, UnitReport& report);

 private:
  bool load(const CMArchiveItem& item, const std::string& file, UnitReport& report) const;

  OverwriteQuestion m_question{true};
  std::unique_ptr<ProviderAdapter> m_adapter = ProviderAdapter::forProvider();
  std::string m_comment;
};

bool ItemCheckOut::checkOut(const CMArchiveItem& item, UnitReport& report) {
  IUnit* const unit = unitOfItem(item);
  const pvContextStruct* const context =
      contextFor(unit, "Getting SCC Context to perform check out from archive");
  if (context == nullptr) {
    report.endsAs(UnitEnd::NotRun);
    return false;
  }
  if ((unit != nullptr && !m_question.allows(*unit)) ||
      !m_adapter->beforeCheckOut(*context, m_comment)) {
    report.endsAs(UnitEnd::Declined);
    return false;
  }
  const std::string file = item.getFullUnitFileName();
  const KeptCopy kept(KeepRule::WritableFiles, file, ArchiveCheckOutName);
  if (mustStay(kept, report)) return false;
  FileNames files(file);
  const long code = callOnFiles(providerState().dll.SccCheckout, CallLines::PrePostAndReturn,
                                context->getpvContextPtr(), parentWindow(), files,
                                m_comment.c_str(), scc::LONG{0}, CMProperty::getPvOptions());
  return succeeds(code, &report) && load(item, file, report);
}

bool ItemCheckOut::load(const CMArchiveItem& item, const std::string& file,
                        UnitReport& report) const {
  // Nothing in the model is made of files of an unknown type.
  if (item.getType().empty() || item.staysOutOfModel()) return true;
  IUnit* const unit = loadTraced(item, file, report);
  if (unit == nullptr) return false;
  updateUnit(*unit, {.modeLine = UnitUpdate::CMMode, .statusLine = UnitUpdate::Status},
             contextFor(unit, nullptr));
  return true;
}

}  // namespace

int CheckOutFromArchiveSCC::operator()(CMArchiveItemList& items, ArgumentList& arguments,
                                       DiagnosticList& diagnostics) {
  if (items.empty()) return 0;
  if (contextFor(nullptr, nullptr) == nullptr ||
      !offers(providerState().dll.SccCheckout, ArchiveCheckOutName, diagnostics)) {
    return 0;
  }
  saveModel(SaveRule::IfSaveOnCheckOut, false);
  const ReloadBracket bracket(true);
  ItemCheckOut batch(arguments);
  std::size_t position = 0;
  int result = 1;
  for (const CMArchiveItem* item : items) {
    ++position;
    if (item == nullptr) continue;
    if (UnitReport::isCancelled()) break;
    UnitReport report(ArchiveCheckOutName, position, items.size(), item->getFileNameWithPath());
    if (!batch.checkOut(*item, report)) result = 0;
  }
  return result;
}

}  // namespace veldra
