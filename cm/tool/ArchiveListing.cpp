#include "cm/tool/ArchiveListing.h"

#include <memory>
#include <utility>

#include "cm/core/CMArchiveItem.h"
#include "cm/core/DebugEcho.h"
#include "cm/core/TextTools.h"
#include "cm/host/IModel.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/host/SPString.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

bool isOn(const char* name) {
  const IProperty* const setting = CMProperty::getToolProperty(name);
  return setting != nullptr && setting->getBool();
}

std::optional<std::string> delimiter() {
  const IProperty* const property = CMProperty::getToolProperty(IPN::CMMultiRecordDelimiter);
  return property != nullptr ? std::optional(property->getValue()) : std::nullopt;
}

struct XmlEscape {
  std::string_view escape;
  std::string_view text;
};

/// The ampersand comes last: what it makes is no escape.
constexpr XmlEscape XmlEscapes[] = {
    {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&apos;", "'"}, {"&amp;", "&"}};

void resolveXmlEscapes(std::string& text) {
  if (text.find('&') == std::string::npos) return;
  for (const XmlEscape& row : XmlEscapes) text = replaceAll(text, row.escape, row.text);
}

/// The mode of a record: unknown when the record does not have the field at all, otherwise
/// read-write or read-only as the pattern's group took part or not. An empty pattern says nothing.
int listedMode(const PropertyPattern::Answer& answer) {
  if (answer.result == 1 && answer.found != 0) return ListedMode::ReadWrite;
  return answer.field == PropertyPattern::Field::Absent ? ListedMode::Unknown
                                                        : ListedMode::ReadOnly;
}

}  // namespace

ArchiveListing::ArchiveListing()
    : m_echoes(isDebugEchoOn()),
      m_showsAllFiles(isOn("ShowAllFilesInArchive")),
      m_isXml(isOn("ListArchiveIsXml")),
      m_ignoresNamesWithoutDot(
          CMProperty::getProjectBool(IPN::General, "IgnoreArchiveItemsWithoutDot", true)),
      m_workingFile(IPN::CMListArchiveItsWorkingFile),
      m_version(IPN::CMListArchiveItsVersion),
      m_mode(IPN::CMListArchiveItsMode),
      m_locker(IPN::CMListArchiveItsLocker),
      m_startsOver("ListArchiveStartsOver"),
      m_delimiter(delimiter()),
      m_splitter(m_delimiter.value_or("")) {
  if (const IProject* const project = CurrentWorkspace::GetActiveProject()) {
    m_projectFile = project->getFileName();
    m_projectExtension = project->getFileExtension();
  }
}

void ArchiveListing::readAhead(std::string_view soFar) {
  // Debug lines come in the order of the steps.
  if (!m_delimiter || m_echoes) return;
  m_splitter.more(soFar, [this](std::string_view record) { readRecord(record); });
}

int ArchiveListing::read(std::string_view output, int status, CMArchiveItemList& items) {
  if (!m_delimiter) return status;
  if (output.size() < m_splitter.done()) startOver();
  m_splitter.finish(output, [this](std::string_view record) { readRecord(record); });
  items.takeAll(m_items->list());
  return m_status.value_or(status);
}

void ArchiveListing::startOver() {
  m_splitter = PatternSplitter(*m_delimiter);
  m_status.reset();
  m_items.emplace();
}

/// Of all model project files only the open project's own is listed.
bool ArchiveListing::isListed(const std::string& workingFile) const {
  if (m_showsAllFiles || m_projectExtension.empty() ||
      workingFile.find(m_projectExtension) == std::string::npos) {
    return true;
  }
  return trimmed(afterLastBackslash(workingFile)) == m_projectFile;
}

void ArchiveListing::echo(std::initializer_list<std::string_view> pieces) const {
  if (m_echoes) writeDebugEcho(pieces);
}

PropertyPattern::Answer ArchiveListing::extract(const PropertyPattern& pattern,
                                                std::string_view record, std::string& value) const {
  const PropertyPattern::Answer answer = pattern.extract(record, value);
  if (m_isXml) resolveXmlEscapes(value);
  return answer;
}

/// A field that may be missing: its value, or nothing.
std::string ArchiveListing::optionalField(const PropertyPattern& pattern, std::string_view record,
                                          const char* label, int& status) const {
  std::string value;
  status = extract(pattern, record, value).result;
  if (status == 0) value.clear();
  echo({label, ": '", value, "'\n"});
  return value;
}

void ArchiveListing::startOverIfSaid(std::string_view record) {
  std::string nothing;
  if (m_startsOver.exists() && m_startsOver.extract(record, nothing).result == 1) m_items.emplace();
}

void ArchiveListing::readRecord(std::string_view record) {
  std::string workingFile;
  const PropertyPattern::Answer file = extract(m_workingFile, record, workingFile);
  echo({"Archive working file: '", workingFile, "'\n"});
  m_status = file.result;
  if (file.result != 1 || file.found == 0) return startOverIfSaid(record);
  if (!isListed(workingFile)) return;

  std::string version = optionalField(m_version, record, "Archive version", *m_status);

  std::string modeText;
  const PropertyPattern::Answer mode = extract(m_mode, record, modeText);
  echo({"Archive file mode: ", mode.result == 1 ? "ReadWrite" : "ReadOnly", "\n"});

  std::string locker = optionalField(m_locker, record, "Archive Locker", *m_status);

  auto item =
      std::make_unique<CMArchiveItem>(std::move(workingFile), std::move(version),
                                      ListedMode::store(listedMode(mode)), std::move(locker), "");
  const bool hasDot = baseName(item->getFileNameWithPath()).find('.') != std::string_view::npos;
  if (hasDot || !m_ignoresNamesWithoutDot) m_items->addTail(item.release());
}

}  // namespace veldra
