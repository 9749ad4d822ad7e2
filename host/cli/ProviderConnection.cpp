#include "host/cli/ProviderConnection.h"

#include "cm/core/CMFacade.h"
#include "cm/host/IPN.h"
#include "cm/host/MessageIds.h"
#include "host/cli/CallArguments.h"

namespace veldra::host::cli {

namespace {
constexpr char ProjectName[] = "ProjName";
}

std::string connectedProject(Session& session) {
  const host::Property* const name =
      session.host().properties().find({IPN::CM, IPN::SCC, ProjectName});
  return name ? name->value() : std::string();
}

std::optional<std::string> connectToProvider(Session& session,
                                             const std::optional<std::string>& place) {
  IUserMessages& messages = session.host().messages();
  if (place) {
    // The provider is offered the former project as the one to begin with, so the wish goes there;
    // the question whether another one is wanted has then been answered.
    session.host().properties().setInProject({IPN::CM, IPN::SCC, ProjectName}, *place);
    session.door().prepareAnswer(messages.loadString(MessageId::AssociateAnew),
                                 MessageBox::AnswerYes);
  }
  // The command says it in its own way.
  session.door().mute(messages.loadString(MessageId::Associated));
  UnitList units;
  DiagnosticList diagnostics;
  CallArguments arguments =
      callArguments({.projectDirectory = session.project().getProjectDirectory()}, false);
  if (CMFacade::ConnectToArchive(units, arguments.list(), diagnostics) != 0) return std::nullopt;
  const std::string reason = session.door().lastText();
  return reason.empty() ? "The provider cannot connect the project to its archive." : reason;
}

}  // namespace veldra::host::cli
