#include "providers/subversion/session/TextOutput.h"

#include <sstream>
#include <utility>

namespace veldra::subversion {

using namespace scc;

LONG TextOutput::call(std::string line, LONG kind) const {
  return m_callback ? m_callback(line.data(), kind) : LONG{SCC_MSG_RTN_OK};
}

void TextOutput::send(const std::string& text, LONG kind) const {
  if (!m_callback) return;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (line.ends_with('\r')) line.pop_back();
    call(std::move(line), kind);
  }
}

void TextOutput::status(const std::string& text) const {
  if (m_hasCancelMode) send(text, SCC_MSG_STATUS);
}

void TextOutput::startCancel() const {
  if (m_hasCancelMode) call({}, SCC_MSG_STARTCANCEL);
}

void TextOutput::stopCancel() const {
  if (m_hasCancelMode) call({}, SCC_MSG_STOPCANCEL);
}

bool TextOutput::isCancelled() const {
  return m_hasCancelMode && call({}, SCC_MSG_DOCANCEL) == SCC_MSG_RTN_CANCEL;
}

}  // namespace veldra::subversion
