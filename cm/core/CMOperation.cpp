#include "cm/core/CMOperation.h"

#include "cm/core/TextTools.h"
#include "cm/host/IProperty.h"
#include "cm/host/IUserMessages.h"
#include "cm/host/MessageIds.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

int CMOperation::isCMTool(std::string& message, IDObject* object, bool hybrid) {
  if (hybrid && CMProperty::getUseSCCtool() != 0) return 1;
  const IProperty* const tool = CMProperty::getCMTool(object, false);
  if (tool == nullptr) return 0;
  if (equalsNoCase(tool->getValue(), "None")) {
    message = loadMessage(MessageId::NoCMToolSelected);
    return 0;
  }
  message.clear();
  return 1;
}

int CMArchiveOperation::operator()(CMArchiveItemList& /*items*/, ArgumentList& /*arguments*/,
                                   DiagnosticList& /*diagnostics*/) {
  return 0;
}

}  // namespace veldra
