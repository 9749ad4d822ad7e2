#include "cm/core/CMArguments.h"

#include "cm/core/TextTools.h"
#include "cm/host/Host.h"
#include "cm/host/IPN.h"
#include "cm/host/IProperty.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

IProperty* CMPropertyArgument::getArgumentProperty(const std::string& name) const {
  return CMProperty::getToolProperty(name);
}

int CMLabel::isNamed(const std::string& keyword) const {
  return equalsNoCase(keyword, "label") ? 1 : 0;
}

std::string CMLabel::substitute(const std::string& keyword) {
  return isNamed(keyword) != 0 ? quotedIfContains(m_label, " ") : keyword;
}

bool CMLog::EncloseCommentsInQuotes() {
  const IProperty* property =
      CMProperty::getProjectProperty(IPN::General, "EncloseCommentsInQuotes");
  return property != nullptr && equalsNoCase(property->getValue(), "No");
}

int CMLog::isNamed(const std::string& keyword) const {
  return equalsNoCase(keyword, "log") ? 1 : 0;
}

std::string CMLog::substitute(const std::string& keyword) {
  // Whatever was asked for: with the setting at "No" the keyword is not even looked at.
  if (EncloseCommentsInQuotes()) return m_comment;
  return equalsNoCase(keyword, "log") ? quotedIfContains(m_comment, " \n\r") : keyword;
}

CMLogFile::~CMLogFile() {
  Host* const host = installedHost();
  if (!m_path.empty() && host != nullptr) host->environment().removeFile(m_path);
}

int CMLogFile::isNamed(const std::string& keyword) const {
  return equalsNoCase(keyword, "logFile") ? 1 : 0;
}

std::string CMLogFile::substitute(const std::string& keyword) {
  if (isNamed(keyword) == 0) return keyword;
  Host* const host = installedHost();
  if (m_path.empty() && host != nullptr) {
    m_path = host->environment().createTempFile(m_comment);
    if (m_path.empty()) {
      notifyUserAndAsk(formatMessage(MessageId::CommentNotWritten, {omGetTempDir()}),
                       MessageBox::IconError);
    }
  }
  return quotedIfContains(m_path, " ");
}

int CMMode::isNamed(const std::string& keyword) const {
  return equalsNoCase(keyword, "mode") ? 1 : 0;
}

std::string CMMode::substitute(const std::string& keyword) {
  if (isNamed(keyword) == 0) return keyword;
  const IProperty* property =
      getCMtoolProperty(m_mode == ReadOnly ? IPN::CMReadOnly : IPN::CMReadWrite);
  return property != nullptr ? property->getValue() : std::string();
}

int CMTargetFile::isNamed(const std::string& keyword) const {
  return equalsNoCase(keyword, "targetDir") ? 1 : 0;
}

std::string CMTargetFile::substitute(const std::string& keyword) {
  return isNamed(keyword) != 0 ? m_directory : keyword;
}

int CMNameChange::isNamed(const std::string& keyword) const {
  return equalsNoCase(keyword, "oldName") || equalsNoCase(keyword, "newName") ||
                 equalsNoCase(keyword, "olddir") || equalsNoCase(keyword, "newdir")
             ? 1
             : 0;
}

std::string CMNameChange::substitute(const std::string& keyword) {
  if (isNamed(keyword) == 0) return keyword;
  const std::string& name = startsWithNoCase(keyword, "old") ? m_oldName : m_newName;
  const bool isDirectory = keyword.size() == std::string_view("olddir").size();
  return isDirectory ? std::string(cutAtLastSeparator(name)) : name;
}

int CMWorkspace::isNamed(const std::string& keyword) const {
  return equalsNoCase(keyword, "workspace") ? 1 : 0;
}

std::string CMWorkspace::substitute(const std::string& keyword) {
  return isNamed(keyword) != 0 ? m_workspace : keyword;
}

int CMSuppressOKMessage::isNamed(const std::string& keyword) const {
  return equalsNoCase(keyword, "shouldSuppressSCCOKMessage") ? 1 : 0;
}

std::string CMSuppressOKMessage::substitute(const std::string& keyword) {
  return isNamed(keyword) != 0 ? m_value : keyword;
}

}  // namespace veldra
