#include <array>
#include <optional>
#include <string>

#include "cm/host/IPN.h"
#include "cm/templates/CMProperty.h"
#include "host/cli/PropertyListing.h"
#include "host/cli/PropertyName.h"
#include "host/cli/Session.h"
#include "host/cli/printing/BytesAsText.h"
#include "host/cli/printing/Report.h"

namespace veldra::host::cli {

namespace {

/// `property` with what it works on.
class PropertyCommand {
 public:
  explicit PropertyCommand(const Invocation& invocation)
      : m_invocation(invocation), m_session(invocation) {
    m_hasProject = m_session.openProjectIfAny();
  }

  /// Those of a name, or all.
  void list(const std::optional<std::string>& text) {
    std::vector<PropertyEntry> entries = layers().entries();
    if (text) {
      const PropertyName name = parsed(*text);
      std::erase_if(entries, [&](const PropertyEntry& entry) {
        return !(keyIn(name, entry.key.metaclass) == entry.key);
      });
    }
    if (invocation().options.json) {
      print(entries);
    } else {
      printProperties(entries, invocation().console.out);
    }
  }

  void get(const std::string& text) {
    const PropertyName name = parsed(text);
    const std::optional<PropertyKey> key = present(name);
    if (!key) {
      throw CommandError(ExitCode::NothingDone, "There is no property \"" + text +
                                                    "\". \"veldra-cm property list\" shows all.");
    }
    const host::Property& property = *layers().find(*key);
    if (invocation().options.json) {
      print({{*key, property.value(), property.origin(), property.source()}});
    } else {
      invocation().console.out << property.value() << '\n';
    }
  }

  void set(const std::string& text, const std::string& value) {
    const PropertyName name = parsed(text);
    const PropertyKey key = present(name).value_or(keyIn(name, defaultMetaclass(name)));
    if (!invocation().options.dryRun) {
      if (invocation().options.forUser) {
        setForUser(key, value);
      } else {
        setInProject(key, value);
      }
    }
    if (invocation().options.json) {
      print({{key, value, invocation().options.forUser ? Origin::User : Origin::Project, {}}});
    }
  }

 private:
  const Invocation& invocation() const { return m_invocation; }
  PropertyLayers& layers() { return m_session.host().properties(); }

  void print(const std::vector<PropertyEntry>& entries) {
    nlohmann::ordered_json document;
    document["command"] = invocation().command.name;
    document["properties"] = jsonOfProperties(entries);
    printJson(document, invocation().console.out);
  }

  static PropertyName parsed(const std::string& text) {
    std::optional<PropertyName> name = parsePropertyName(text);
    if (name) return *name;
    throw CommandError(ExitCode::WrongUsage, "\"" + text +
                                                 "\" names no property. It is "
                                                 "SUBJECT.METACLASS.NAME, or just NAME.");
  }

  /// The tool itself, and what no tool knows, is common to all.
  std::string defaultMetaclass(const PropertyName& name) {
    const std::string selected = layers().chosenTool();
    return name.name == IPN::CMTool || selected.empty() ? IPN::General : selected;
  }

  std::optional<PropertyKey> present(const PropertyName& name) {
    for (const std::string& metaclass : {layers().chosenTool(), std::string(IPN::General)}) {
      const PropertyKey key = keyIn(name, metaclass);
      if (layers().find(key) != nullptr) return key;
    }
    return std::nullopt;
  }

  void setForUser(const PropertyKey& key, const std::string& value) {
    if (const std::optional<std::string> failure = layers().setForUser(key, value)) {
      throw CommandError(ExitCode::NothingDone, *failure);
    }
  }

  void setInProject(const PropertyKey& key, const std::string& value) {
    if (!m_hasProject) m_session.openToLook();
    Project& project = m_session.project();
    if (project.isReadOnly()) {
      throw CommandError(ExitCode::NothingDone,
                         "The project file " + project.getFullFileName() +
                             " is read-only. Check it out first, or store the property with "
                             "--user.");
    }
    const bool wasTrusted = m_session.host().trust().isTrusted();
    layers().setInProject(key, value);
    for (const Problem& problem : m_session.host().save()) {
      throw CommandError(ExitCode::NothingDone, sentence(problem));
    }
    if (!m_session.host().trust().isTrusted()) noteTrust(wasTrusted, project.getFullFileName());
  }

  /// What the user sets himself needs no second thought, unless others have brought something too.
  void noteTrust(bool wasTrusted, const std::string& projectFile) {
    std::ostream& err = invocation().console.err;
    if (!wasTrusted) {
      err << linesForPeople(m_session.host().trustAdvice()) << '\n';
      return;
    }
    if (const std::optional<std::string> failure = m_session.host().trust().trust(projectFile)) {
      throw CommandError(ExitCode::SomeFailed, *failure);
    }
    err << "You set this command yourself, so you trust it from now on. Everybody else who has the "
           "project is asked first.\n";
  }

  const Invocation& m_invocation;
  Session m_session;
  bool m_hasProject = false;
};

}  // namespace

ExitCode runProperty(const Invocation& invocation) {
  const Options& options = invocation.options;
  if (options.action == "list" && !options.value) {
    PropertyCommand(invocation).list(options.key);
  } else if (options.action == "get" && options.key && !options.value) {
    PropertyCommand(invocation).get(*options.key);
  } else if (options.action == "set" && options.key && options.value) {
    PropertyCommand(invocation).set(*options.key, *options.value);
  } else {
    throw CommandError(
        ExitCode::WrongUsage,
        "It is \"property list [PROPERTY]\", \"property get PROPERTY\" or \"property "
        "set PROPERTY VALUE\".");
  }
  return ExitCode::AllDone;
}

}  // namespace veldra::host::cli
