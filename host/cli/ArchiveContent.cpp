#include "host/cli/ArchiveContent.h"

#include <deque>
#include <utility>

#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/CallArguments.h"
#include "host/cli/UnitDescription.h"
#include "host/cli/UnitOutcome.h"

namespace veldra::host::cli {

namespace {

/// Why nothing was even tried.
std::string reasonForNothing(Session& session, const DiagnosticList& diagnostics) {
  const std::string general = generalMessage(diagnostics, {});
  if (!general.empty()) return general;
  const std::string& told = session.door().lastText();
  return told.empty() ? "The archive cannot be listed." : told;
}

/// A pattern of the listing that is not valid, or is given up, would find nothing, as if nothing
/// were there.
std::string reasonByPatterns(Session& session) {
  for (const char* name :
       {IPN::CMMultiRecordDelimiter, IPN::CMListArchiveItsWorkingFile, IPN::CMListArchiveItsVersion,
        IPN::CMListArchiveItsMode, IPN::CMListArchiveItsLocker}) {
    std::string pattern;
    std::string error;
    if (!CMProperty::getToolPropertyValue(name, pattern) || pattern.empty()) continue;
    if (session.host().patterns().compile(pattern, "i", error) == nullptr) {
      return std::string("The tool's listing cannot be read: its property ") + name +
             " holds no valid pattern. Correct it with \"veldra-cm property set\".";
    }
    // The words for it lie in a catalogue that is read when they are needed.
    if (!session.door().hasShownAnything()) continue;
    std::string givenUp = formatMessage(MessageId::PatternGivenUp, {pattern, {}});
    if (session.door().hasShown(givenUp)) return givenUp;
  }
  return {};
}

/// Why the answer of a command that worked cannot be read.
std::string reasonForNoRecords(Session& session) {
  for (const char* name : {IPN::CMMultiRecordDelimiter, IPN::CMListArchiveItsWorkingFile}) {
    std::string pattern;
    if (!CMProperty::getToolPropertyValue(name, pattern) || pattern.empty()) {
      return std::string("The tool's listing cannot be read: its property ") + name +
             " is not set. Set it with \"veldra-cm property set\".";
    }
  }
  return reasonByPatterns(session);
}

/// A list that nobody takes down: the program ends soon, and giving many thousand items back one by
/// one would take longer than half of the printing.
CMArchiveItemList& listForGood() {
  static auto* const lists = new std::deque<CMArchiveItemListWrapper>;
  return lists->emplace_back().list();
}

}  // namespace

std::string whyNotListed(Session& session, std::size_t tracesBefore,
                         const DiagnosticList& diagnostics) {
  const std::vector<UnitTrace>& traces = session.progress().traces();
  if (traces.size() == tracesBefore) return reasonForNothing(session, diagnostics);
  for (std::size_t i = tracesBefore; i < traces.size(); ++i) {
    std::string failure = failureOf(traces[i], IPN::CMListArchive);
    if (!failure.empty()) return failure;
  }
  return reasonForNoRecords(session);
}

ArchiveContent listArchive(Session& session, const std::function<void(UnitRecord&)>& take) {
  CallArguments arguments = callArguments(
      {.projectDirectory = session.project().getProjectDirectory()}, session.options().dryRun);
  CMArchiveItemList& items = listForGood();
  DiagnosticList diagnostics;
  const std::vector<UnitTrace>& traces = session.progress().traces();
  const std::size_t before = traces.size();
  const bool isListed = CMFacade::ListArchive(items, arguments.list(), diagnostics) != 0;

  ArchiveContent content;
  // A provider is asked without a command.
  if (isListed && CMProperty::useSccCompliantTool() != 0) {
    describeItems(items, take);
    return content;
  }
  content.failure = whyNotListed(session, before, diagnostics);
  if (traces.size() == before) return content;
  content.commands = traces.back().commands;
  describeItems(items, take);
  return content;
}

ArchiveContent listArchive(Session& session) {
  std::vector<UnitRecord> files;
  ArchiveContent content =
      listArchive(session, [&files](UnitRecord& file) { files.push_back(std::move(file)); });
  content.files = std::move(files);
  return content;
}

}  // namespace veldra::host::cli
