#pragma once

#include <memory>
#include <string>
#include <utility>

#include "cm/core/CMArgument.h"
#include "cm/core/CMUnitValidator.h"
#include "cm/core/KeptCopy.h"
#include "cm/core/UnitBatch.h"
#include "cm/host/CMVDYHandler.h"
#include "cm/host/IUnit.h"

namespace veldra {

class pvContextStruct;

/// The file of a unit on its way through the provider. The project's own file has a handler that
/// keeps it consistent; every other file is named by its directory and its name.
class ProviderFile {
 public:
  /// `kind` is of `CMVDYHandler::Kind`; 0 without a handler.
  ProviderFile(const IUnit& unit, int kind);

  const std::string& name() const { return m_name; }
  /// Tells the handler that the provider did its work; without it the file is put back.
  void succeeded();

 private:
  std::unique_ptr<CMVDYHandler> m_handler;
  std::string m_name;
};

/// The context for a unit, null for the active project; traced with that line unless it is null.
/// Null when there is none: the user has been told.
pvContextStruct* contextFor(IUnit* unit, const char* traceLine);

/// What the first argument makes of the keyword "log", whether or not it answers to it.
std::string commentOf(const ArgumentList& arguments);

/// True for a unit that was marked and is no longer the object that it was.
bool isGone(const CMUnitValidator& validator, IUnit* unit);

/// True when the provider answered with success. Otherwise the user sees the message of its code,
/// and the report carries the words.
bool succeeds(long code, UnitReport* report);

void markFailed(long code, UnitReport& report);

/// True when the host could not keep a copy of what is about to be overwritten: then the file is
/// left alone, and the report says why.
bool mustStay(const KeptCopy& kept, UnitReport& report);

/// How a unit is brought up to date with its file.
enum class ReloadMode { Plain, FollowsName };

/// Reloads the unit with its trace line. The new unit, known to the validator; null, and the user
/// told, when the file could not be loaded.
IUnit* reloadTraced(IUnit& unit, const std::string& file, CMUnitValidator& validator,
                    ReloadMode mode, UnitReport& report);

/// What remains to be updated after the provider's work, each with its trace line.
struct UnitUpdate {
  const char* headerLine = nullptr;  ///< Null: the header stays.
  const char* modeLine = nullptr;
  const char* statusLine = nullptr;

  static constexpr char Header[] = "Updating CM Header for unit ";
  static constexpr char CMMode[] = "Updating CM Mode for unit ";
  static constexpr char Mode[] = "Updating Mode for unit ";
  static constexpr char Status[] = "Updating CM Status for unit ";
};
void updateUnit(IUnit& unit, const UnitUpdate& update, const pvContextStruct* context);

}  // namespace veldra
