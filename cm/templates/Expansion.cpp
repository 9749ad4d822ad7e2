// Expansion of command templates: conditional sections first, then keywords.

#include <utility>

#include "cm/core/DebugEcho.h"
#include "cm/core/ModuleState.h"
#include "cm/host/IProperty.h"
#include "cm/host/LogTrace.h"
#include "cm/templates/CMProperty.h"
#include "cm/templates/KeywordScanner.h"

namespace veldra {

namespace {

ExpansionUse& use() {
  return moduleState().expansion;
}

void echo(std::initializer_list<std::string_view> pieces) {
  if (use().echo) writeDebugEcho(pieces);
}

void reportBound() {
  const std::string& keyword = use().keyword;
  const std::string text = "The expansion of " +
                           (keyword.empty() ? "the template" : "'" + keyword + "'") +
                           " leads back to itself or grows too large";
  echo({text, "\n"});
  VELDRA_TRACE(text);
}

/// Counts a step over `size` bytes. False when a bound is passed, and from then on: whatever is
/// still to be expanded fails at once.
bool charge(std::size_t size) {
  ExpansionUse& spent = use();
  spent.work += size + ExpansionLimits::StepCost;
  if (!spent.exceeded &&
      (spent.depth > ExpansionLimits::Depth || spent.work > ExpansionLimits::Work)) {
    spent.exceeded = true;
    reportBound();
  }
  return !spent.exceeded;
}

/// One level of nesting; the outermost one begins a new account.
class Level {
 public:
  Level() {
    if (use().depth++ > 0) return;
    use().work = 0;
    use().exceeded = false;
    use().echo = isDebugEchoOn();
    use().keyword.clear();
  }
  Level(const Level&) = delete;
  Level& operator=(const Level&) = delete;
  ~Level() { --use().depth; }
};

/// What one expansion hands to those nested in it.
struct Context {
  const ArgumentList& arguments;
  std::string& extra;
  bool providerMetaclass;
};

/// Resolves the conditional sections of `text` in place; the last one's result.
int resolveConditions(std::string& text, const Context& context) {
  int result = 1;
  int start = 0;
  int end = 0;
  std::string condition;
  std::string thenPart;
  std::string elsePart;
  while (text.find('(') != std::string::npos &&
         CMProperty::ExtractCondition(text, start, end, condition, thenPart, elsePart) != 0) {
    std::string scratch;
    std::string value;
    std::string chosen;
    result = CMProperty::Expand(condition, context.arguments, value, scratch, false);
    if (result == 1) {
      result = CMProperty::Expand(value.empty() ? elsePart : thenPart, context.arguments, chosen,
                                  scratch, false);
    }
    const std::size_t length = static_cast<std::size_t>(end) - static_cast<std::size_t>(start) + 1;
    text.replace(static_cast<std::size_t>(start), length, chosen);
    echo({"after condition expansion: '", text, "'\n"});
    if (!charge(text.size())) return 0;
  }
  return result;
}

CMArgument* claimant(const ArgumentList& arguments, const std::string& name) {
  for (CMArgument* argument : arguments) {
    if (argument != nullptr && argument->isNamed(name) != 0) return argument;
  }
  return nullptr;
}

/// An argument's value, expanded. After any failure later arguments become empty: a command that
/// cannot be right must not carry half of its values.
std::string argumentValue(CMArgument& argument, const std::string& name, const Context& context,
                          int& result) {
  std::string expanded;
  const std::string value = argument.substitute(name);
  if (result == 0) return expanded;
  result =
      CMProperty::Expand(value, context.arguments, expanded, context.extra, false) != 0 ? 1 : 0;
  return expanded;
}

/// The value of a property of that name, else of a predefined keyword; the reference itself when
/// nothing resolves it.
std::string propertyValue(const KeywordScanner& scanner, const Context& context, int& result) {
  std::string value;
  const int expanded = CMProperty::ExpandProperty(scanner.name(), context.arguments, value,
                                                  context.extra, context.providerMetaclass);
  result = result != 0 && expanded != 0 ? 1 : 0;
  if (expanded == 1) return value;

  std::string predefined;
  const std::string escaped = "\\" + scanner.reference();
  if (CMProperty::ExpandPredefined(escaped, predefined) != 1) return scanner.reference();
  // A predefined keyword makes good again what failed before it.
  result = 1;
  return predefined == escaped ? scanner.reference() : predefined;
}

int resolveKeywords(KeywordScanner& scanner, const Context& context, int result) {
  while (scanner.next()) {
    use().keyword = scanner.reference();
    CMArgument* const argument = claimant(context.arguments, scanner.name());
    const std::string value = argument != nullptr
                                  ? argumentValue(*argument, scanner.name(), context, result)
                                  : propertyValue(scanner, context, result);
    if (value == scanner.reference()) {
      // No progress: what stands here and behind stays as it is.
      echo({"Could not resolve '", scanner.reference(), "'\n"});
      return 0;
    }
    if (!charge(value.size())) return 0;
    scanner.replace(value);
  }
  return result;
}

}  // namespace

int CMProperty::Expand(const std::string& text, const ArgumentList& arguments, std::string& out,
                       std::string& extra, bool providerMetaclass) {
  const Level level;
  echo({"Expanding '", text, "'\n"});
  if (text.empty()) {
    echo({"nothing the expand\n"});
    return 1;
  }
  if (!charge(text.size())) return 0;
  const Context context{arguments, extra, providerMetaclass};
  std::string current = text;
  const int result = resolveConditions(current, context);
  if (use().exceeded) return 0;
  if (current.empty()) {
    echo({"nothing the more expand\n"});
    return 1;
  }
  KeywordScanner scanner(current);
  const int resolved = resolveKeywords(scanner, context, result);
  out = scanner.text();
  return use().exceeded ? 0 : resolved;
}

int CMProperty::ExpandProperty(const std::string& propertyName, const ArgumentList& arguments,
                               std::string& out, std::string& extra, bool providerMetaclass) {
  debugEcho({"Expanding property '", propertyName, "'\n"});
  const IProperty* const property =
      getToolProperty(propertyName, nullptr, false, providerMetaclass);
  if (property == nullptr) return 0;
  const int result = Expand(property->getValue(), arguments, out, extra, providerMetaclass);
  debugEcho({"'", propertyName, "' expanded to '", out, "'\n"});
  return result;
}

}  // namespace veldra
