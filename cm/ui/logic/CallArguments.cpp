#include "cm/ui/logic/CallArguments.h"

#include "cm/core/CMArguments.h"
#include "cm/core/TextTools.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

/// "log" for a provider, which takes the comment as it is: nothing is quoted.
class PlainComment : public CMUserBasedArgument {
 public:
  explicit PlainComment(std::string comment) : m_comment(std::move(comment)) {}
  int isNamed(const std::string& keyword) const override {
    return equalsNoCase(keyword, "log") ? 1 : 0;
  }
  std::string substitute(const std::string& keyword) override {
    return isNamed(keyword) != 0 ? m_comment : keyword;
  }

 private:
  std::string m_comment;
};

CMMode::Mode modeOf(const CommandRow& row, const CommandOptions& options) {
  const bool writes = row.command == DialogCommand::Lock || options.mode;
  return writes ? CMMode::ReadWrite : CMMode::ReadOnly;
}

}  // namespace

DialogArguments::DialogArguments(const CommandRow& row, const CommandOptions& options) {
  if ((row.parts & CallPart::Comment) != 0) addComment(options.comment);
  if ((row.parts & CallPart::Mode) != 0) add(std::make_unique<CMMode>(modeOf(row, options)));
  if ((row.parts & CallPart::Label) != 0) add(std::make_unique<CMLabel>(options.label));
}

void DialogArguments::addComment(const std::string& comment) {
  // A provider asks only the first argument that answers.
  if (CMProperty::getUseSCCtool() != 0) add(std::make_unique<PlainComment>(comment));
  add(std::make_unique<CMLog>(comment));
  add(std::make_unique<CMLogFile>(comment));
}

void DialogArguments::add(std::unique_ptr<CMArgument> argument) {
  m_list.push_back(argument.get());
  m_owned.push_back(std::move(argument));
}

}  // namespace veldra
