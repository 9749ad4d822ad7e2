#include "cm/scc/SCCTextOutProc.h"

#include "cm/core/CMOutputer.h"
#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/CallbackThread.h"

namespace veldra {

namespace {
/// The one text that may be empty, which is not the same as missing.
std::string trailer() {
  Host* const host = installedHost();
  return host != nullptr ? host->messages().loadString(MessageId::ProviderTrailer) : std::string();
}
}  // namespace

SCCTextOutProc::Message SCCTextOutProc::messageOf(long code) {
  std::string error = loadMessage(MessageId::ProviderErrorPrefix);
  std::string information = loadMessage(MessageId::ProviderInformationPrefix);
  unsigned long kind = Warning;
  if (code == scc::SCC_E_NONSPECIFICERROR) {
    // Stands alone: it has nothing to add to a prefix.
    error = loadMessage(MessageId::ProviderError + static_cast<int>(-code) - 1);
    kind = Error;
  } else if (code >= scc::SCC_E_CONNECTIONFAILURE && code <= scc::SCC_E_INITIALIZEFAILED) {
    error += loadMessage(MessageId::ProviderError + static_cast<int>(-code) - 1);
    kind = Error;
  } else if (code >= scc::SCC_I_ADV_SUPPORT && code <= scc::SCC_I_FILENOTAFFECTED) {
    information += loadMessage(MessageId::ProviderInformation + 1 - static_cast<int>(code));
  } else if (code < scc::SCC_I_RELOADFILE || code > scc::SCC_I_SHARESUBPROJOK) {
    // A warning all the same, so that this text is never seen; users know the short one.
    error += loadMessage(MessageId::ProviderUnknownCode);
  }
  return {(kind == Error ? error : information) + trailer(), kind};
}

long SCCTextOutProc::InternalTextOutProc(long code, int toOutputWindow) {
  const Message message = messageOf(code);
  if (toOutputWindow != 0) {
    CMOutputer::writeToCMOutputWnd(message.text);
  } else {
    InternalTextOutProc(message.text, message.kind);
  }
  return 1;
}

long SCCTextOutProc::InternalTextOutProc(const std::string& text, unsigned long kind) {
  switch (kind) {
    case Information:
      notifyUserAndAsk(text, MessageBox::IconInformation);
      break;
    case Warning:
      notifyUserAndAsk(text, MessageBox::IconWarning);
      break;
    case Error:
      notifyUserAndAsk(text, MessageBox::IconError);
      break;
    case Question:
      notifyUserAndAsk(formatMessage(MessageId::ProviderQuestion, {text}),
                       MessageBox::IconInformation | MessageBox::YesNoCancel);
      break;
    default:
      break;
  }
  return 0;
}

scc::LONG SCC_CALL SCCTextOutProc::IDETextOutProc(scc::LPSTR text, scc::LONG /*kind*/) {
  // Kinds without a text come with a null pointer.
  if (text == nullptr) return scc::SCC_MSG_RTN_OK;
  CallbackThread::run([line = std::string(text)] {
    if (std::ostream* const out = getMainCMOutputer()()) *out << line << std::endl;
  });
  return scc::SCC_MSG_RTN_OK;
}

}  // namespace veldra
