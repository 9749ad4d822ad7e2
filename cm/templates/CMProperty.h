#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "cm/core/CMArgument.h"
#include "cm/host/Export.h"

namespace veldra {

class IDObject;
class IProperty;
class IUnit;
class SCCdll;
class pvContextStruct;

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
  /// Selects the command-line tool for the object. 0 when nothing names a tool yet.
  static int setCMTool(const std::string& name, IDObject* object);
  /// The property in the tool's metaclass, else under "General"; null when there is neither.
  /// `localOnly` takes of the tool's only one that is stored on the object itself; common settings
  /// count wherever they are stored. `providerMetaclass` reads, under the provider back end, the
  /// metaclass named after the provider instead of "SCC".
  static IProperty* getToolProperty(const std::string& name, IDObject* object = nullptr,
                                    bool localOnly = false, bool providerMetaclass = false);
  /// Sets the property on the object; one that is only inherited is copied to it first. 0 when
  /// there is no such property.
  static int setToolProperty(const std::string& name, const std::string& value, IDObject* object);
  /// False, and `value` untouched, when the property does not exist.
  static bool getToolPropertyValue(const std::string& name, std::string& value,
                                   bool providerMetaclass = false);
  /// The same for the active project.
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
  static void setIsLoaded(bool isLoaded);

  // --- the provider and its contexts ---

  /// The one provider library of the process.
  static SCCdll& getSCCdll();
  /// Where the registry says that it lies; empty when it was not found.
  static std::string getSCCProviderDLL();
  /// False when the look-up in the registry failed.
  static bool getDLLokay();
  /// Whether any context has been opened.
  static bool getIsConnected();
  static void setIsConnected(bool isConnected);
  /// Capabilities that a provider has shown once: a non-zero argument sets the flag for good, zero
  /// reads it.
  static int isSetSCC_CAP_REENTRANT(int set);
  static int isSetSCC_CAP_COMMENTCHECKOUT(int set);
  /// The context that set-up, close and clean-up use; it has nothing to do with the records below.
  static void* getPvContext();
  static void setPvContext(void* context);
  /// What the provider gets as the options of a command: the block that its own window left, null
  /// when the user did not open it.
  static void* getPvOptions();
  /// The place where the provider keeps that block.
  static void** getPvOptionsPtr();
  /// The files that the provider's list callback has brought.
  static std::vector<std::string>& getFileNamesList();

  /// The open contexts, one per archive project, the newest last.
  static std::vector<pvContextStruct*> getPvContextStructList();
  /// Appends an empty record. The list owns it.
  static pvContextStruct* addPvStruct();
  /// The first record of that name, without regard to case; null for an empty name.
  static pvContextStruct* findPvStructByContextName(const std::string& name);
  /// Takes the first record of that name out of the list, without closing its context: 1 when there
  /// was one. Pointers to the record stay valid.
  static int removePvStructByContextName(const std::string& name);

  // --- trace lines around provider calls ---

  /// For the first `count` of the files; nothing at all when `files` is null.
  static void getPreSCCCallLogMsg(const std::string& name, long count, const char* const* files,
                                  std::string& out);
  /// For one file; nothing when it is null.
  static void getPreSCCCallLogMsg(const std::string& name, const char* file, std::string& out);
  static void getPreSCCCallLogMsg(const std::string& name, std::string& out);
  static void getPostSCCCallLogMsg(const std::string& name, std::string& out);
  static void getSCCReturnLogMsg(const std::string& name, long code, std::string& out);

  // --- single settings ---
  /// Whether single operations may go to the command-line tool under the provider back end.
  static int isHybridModePossible();
  /// Whether a recursive check-out from the archive still has to save the model first: -1 only
  /// asks, 0 says that it is saved, any other value that it has to be saved again. The result is
  /// what holds now; at first a save is due.
  static int saveOnCheckout(std::int16_t flag);
  /// 0 when the project says which project of the provider's archive it belongs to.
  static int closeProjectNeeded();
  /// 1 when the custom button has both a command and a picture.
  static int CheckCustomButton();
  /// Whether the active project shows CM states; without one, what the last one said.
  static int getShowCMStatus();
  /// Whether the archive is one directory without sub-directories, as in old projects.
  static bool isPre40Compatible();
  /// The local directory that stands for the archive's root; empty without a project.
  static std::string getWorkingDir();
  /// The unit's own archive, else the main archive; 1 when there is one.
  static int getBatchArchiveRecursive(const IUnit* unit, std::string& archive);
  /// The unit's own project in the provider's archive, else that of the active project. As above.
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
