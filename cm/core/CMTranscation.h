#pragma once

#include <string>

#include "cm/core/CMTranscationType.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

class IViewParameters;

/// The scope of one operation: opens and closes the host's undo transaction, writes the separator
/// lines to the CM output window, and knows the operation's kind and name while it runs.
class VELDRA_CM_EXPORT CMTranscation {
 public:
  /// `view` may be null.
  CMTranscation(const IViewParameters* view, int undoFlag, CMTranscationType type,
                std::string operationName);
  CMTranscation(const CMTranscation&) = default;
  CMTranscation& operator=(const CMTranscation&) = default;
  virtual ~CMTranscation();

  virtual void markStartTranscation();
  virtual void markEndTranscation();
  /// False without an active project, and when the project's CM tool is "None"; then the user has
  /// been told.
  virtual bool isValidTranscation();

  CMTranscationType getTranscationType() const { return m_transcationType; }
  const std::string& getOperationName() const { return m_operationName; }

  /// The newest live transaction, or null.
  static CMTranscation* getCurTranscation();
  static int getTranscationNesting();
  static bool isNestedTranscation();
  /// Both answer this transaction itself, or null when it is not live; callers count on that.
  CMTranscation* getPrevTranscation();
  CMTranscation* getNextTranscation();

  /// Takes stub units and units of other projects out of the list, as the settings demand.
  static void checkUnitsForOperation(UnitList& units);

 private:
  std::string expandKeyWords(std::string text) const;
  void writeSeparator(const char* propertyName) const;
  CMTranscation* ifLive();
  void leave();

  std::string m_operationName;
  CMTranscationType m_transcationType;
};

/// Notices that are shown once per outermost transaction.
class CMTxnGlobalState {
 public:
  virtual ~CMTxnGlobalState() = default;
  virtual void reset() { skippedUnitsWarned = controlledFileNoticeShown = 0; }
  int skippedUnitsWarned = 0;
  int controlledFileNoticeShown = 0;
};

}  // namespace veldra
