#pragma once

#include <cstddef>
#include <cstdint>
#include <exception>
#include <string>

#include "cm/core/CMArgument.h"
#include "cm/core/ModuleState.h"
#include "cm/host/IProgress.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// When an operation saves the model before its first command.
enum class SaveRule {
  Never,
  Always,
  IfSaveOnCheckOut,
  IfSaveOnCheckOutIsDue,  ///< As before, and only while `CMProperty::saveOnCheckout` says so.
};

/// An argument on the end of a list, for as long as this lives.
class PushedArgument {
 public:
  PushedArgument(ArgumentList& list, CMArgument& argument) : m_list(list) {
    m_list.push_back(&argument);
  }
  PushedArgument(const PushedArgument&) = delete;
  PushedArgument& operator=(const PushedArgument&) = delete;
  ~PushedArgument() { m_list.pop_back(); }

 private:
  ArgumentList& m_list;
};

/// The host's reload callbacks around a batch: one now, the other at the end. Not for an empty
/// list.
class ReloadBracket {
 public:
  explicit ReloadBracket(bool isNeeded);
  ReloadBracket(const ReloadBracket&) = delete;
  ReloadBracket& operator=(const ReloadBracket&) = delete;
  ~ReloadBracket();

  /// Makes the call at the end now.
  void close();
  /// Leaves it out: operations that break off promise their callers that it does not come.
  void breakOff() { m_isNeeded = false; }

 private:
  bool m_isNeeded;
};

/// Reports one unit's or item's way through an operation to the host. One that is left by an
/// exception has failed, and so has one during which a provider broke down.
class UnitReport {
 public:
  UnitReport(const char* operation, std::size_t position, std::size_t count, std::string unit);
  UnitReport(const UnitReport&) = delete;
  UnitReport& operator=(const UnitReport&) = delete;
  ~UnitReport();

  /// The last call before the end counts.
  void endsAs(UnitEnd end, std::string words = {});

  /// Whether the host wants the operation to stop.
  static bool isCancelled();

 private:
  ProgressStep m_step;
  int m_exceptions = std::uncaught_exceptions();
  std::uint32_t m_breakdowns = moduleState().providerBreakdowns;
  UnitEnd m_end = UnitEnd::Done;
  std::string m_words;
};

/// Calls the facade's save callback as the rule demands; nothing for an empty list.
void saveModel(SaveRule rule, bool isListEmpty);

/// What the first argument that answers to the keyword says; empty when none does.
std::string argumentValue(const ArgumentList& arguments, const char* keyword);

/// The overwrite question for a writable file: true when the command may go on.
class OverwriteQuestion {
 public:
  /// Reads the setting once per batch; `isNeeded` is false for operations that never ask.
  explicit OverwriteQuestion(bool isNeeded);
  bool allows(const IUnit& unit) const;

 private:
  bool m_asks;
};

}  // namespace veldra
