#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cm/core/CMArgument.h"
#include "cm/host/Export.h"

namespace veldra {

class IDObject;
class IProperty;
class IUnit;

/// The module's settings and the expansion of command templates.
///
/// Every setting is a host property of the subject "ConfigurationManagement". A name is looked up
/// in the metaclass of the selected tool first and then under "General". A missing object or
/// property is no error: the answer is null, 0, false or empty.
class VELDRA_CM_EXPORT CMProperty {
 public:
  // --- finding and changing properties ---

  /// The object whose properties are read: the one given, else that of the active project.
  static IDObject* getReferee(IDObject* object);
  /// The property that names the command-line tool.
  static IProperty* getCMTool(IDObject* object, bool localOnly);
  static int setCMTool(const std::string& name, IDObject* object);
  /// `providerMetaclass` reads, under the provider back end, the metaclass named after the provider
  /// instead of "SCC".
  static IProperty* getToolProperty(const std::string& name, IDObject* object = nullptr,
                                    bool localOnly = false, bool providerMetaclass = false);
  /// Sets the property on the object; one that is only inherited is copied to it first.
  static int setToolProperty(const std::string& name, const std::string& value, IDObject* object);
  /// False, and `value` untouched, when the property does not exist.
  static bool getToolPropertyValue(const std::string& name, std::string& value,
                                   bool providerMetaclass = false);
  static int setToolPropertyValue(const std::string& name, const std::string& value);
  /// A property of the active project in a metaclass of its own, beside the tool look-up.
  static IProperty* getProjectProperty(const std::string& metaclass, const std::string& name);
  /// Its boolean value, or `missing` when there is no project or no such property.
  static bool getProjectBool(const std::string& metaclass, const std::string& name, bool missing);

  // --- which back end ---

  /// 1 when the project selects the provider back end; reads the setting anew.
  static int useSccCompliantTool();
  /// The same from the cache, which follows the active project.
  static int getUseSCCtool();
  static std::string getSCCToolName();
  static void setSCCToolName(const std::string& name);
  /// Whether the provider library is loaded.
  static bool getIsLoaded();

  // --- single settings ---
  static int isHybridModePossible();
  /// Whether a recursive check-out from the archive still has to save the model first: -1 only
  /// asks, 0 says that it is saved, any other value that it has to be saved again. The result is
  /// what holds now; at first a save is due.
  static int saveOnCheckout(std::int16_t flag);
  static int closeProjectNeeded();
  static int CheckCustomButton();
  static int getShowCMStatus();
  static bool isPre40Compatible();
  static std::string getWorkingDir();
  /// The unit's own archive, else the main archive; 1 when there is one.
  static int getBatchArchiveRecursive(const IUnit* unit, std::string& archive);
  static int getSccArchiveRecursive(const IUnit* unit, std::string& projName,
                                    std::string& auxProjPath);

  // --- expansion: 1 for success, 0 for failure ---

  /// Resolves the conditional sections and then the keywords of a template. `extra` is handed to
  /// nested calls and never read. An empty template succeeds and leaves `out` as it was.
  ///
  /// Nesting and size are bounded (`ExpansionLimits`); beyond the bound the result is 0 and a debug
  /// line names the keyword.
  static int Expand(const std::string& text, const ArgumentList& arguments, std::string& out,
                    std::string& extra, bool providerMetaclass = false);
  /// The first conditional section of a text: "(condition ? then : else)" or "(condition ? then)".
  /// `start` and `end` are the positions of its parentheses, -1 when there is none.
  static int ExtractCondition(std::string_view text, int& start, int& end, std::string& condition,
                              std::string& thenPart, std::string& elsePart);
  /// Expands a property's value; 0, and `out` untouched, when there is no such property.
  static int ExpandProperty(const std::string& propertyName, const ArgumentList& arguments,
                            std::string& out, std::string& extra, bool providerMetaclass = false);
  /// Replaces the six predefined keywords. 1 when the installation root is known.
  static int ExpandPredefined(const std::string& text, std::string& out);

  // --- reading values out of a tool's answer ---

  /// Extracts a value with the pattern that a property holds. `found` is 0 when the property is
  /// empty; then the value is empty too.
  static int ExtractByProperty(const std::string& propertyName, std::string_view text,
                               std::string& out, int& found, std::string& extra);
  /// The first capture group of the pattern's first match; a pattern without a group matches
  /// nothing.
  static int ExtractBySearchPattern(const std::string& pattern, std::string_view text,
                                    std::string& out, std::string& extra);
};

}  // namespace veldra
