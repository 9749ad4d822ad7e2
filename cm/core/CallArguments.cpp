#include "cm/core/CallArguments.h"

#include "cm/core/TextTools.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// "log" as a provider gets it: byte for byte, with nothing quoted.
class ProviderComment : public CMUserBasedArgument {
 public:
  explicit ProviderComment(std::string comment) : m_comment(std::move(comment)) {}
  int isNamed(const std::string& keyword) const override {
    return equalsNoCase(keyword, "log") ? 1 : 0;
  }
  std::string substitute(const std::string& keyword) override {
    return isNamed(keyword) != 0 ? m_comment : keyword;
  }

 private:
  std::string m_comment;
};

}  // namespace

CallArguments callArguments(const CallValues& values) {
  const auto has = [&values](unsigned part) { return (values.parts & part) != 0; };
  CallArguments arguments;
  // First, because the provider back end asks nobody else.
  if (has(CallPart::Comment) && CMProperty::useSccCompliantTool() != 0) {
    arguments.add<ProviderComment>(values.comment);
  }
  if (has(CallPart::Mode)) arguments.add<CMMode>(values.mode);
  if (has(CallPart::Label)) arguments.add<CMLabel>(values.label);
  if (has(CallPart::CommentFile)) arguments.add<CMLogFile>(values.comment);
  if (has(CallPart::Workspace)) arguments.add<CMWorkspace>(values.projectDirectory);
  // Last, because a project may let the comment answer to every keyword.
  if (has(CallPart::Comment)) arguments.add<CMLog>(values.comment);
  return arguments;
}

}  // namespace veldra
