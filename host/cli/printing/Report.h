#pragma once

#include <cstddef>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include "host/cli/ExitCode.h"
#include "host/cli/UnitRecord.h"

namespace veldra::host::cli {

/// What a command has to say at its end.
struct Report {
  std::string command;
  std::vector<UnitRecord> units{};
  std::string message{};  ///< What concerns the command as a whole; mostly empty.
};

/// The exit code of a command over these units: a part of them done, none, or all. No unit at all
/// is nothing done.
ExitCode exitCodeOf(const std::vector<UnitRecord>& units);

/// A text, in a document: see `textForJson`.
nlohmann::ordered_json jsonText(const std::string& bytes);

/// The one document of a run: {"command", "units": [{"path", "name", "type", "version", "mode",
/// "locker", "result", "message"}]}, keys in this order; "state" follows the locker where it is
/// known. A "message" follows the units when there is one, a "plan" the unit's message in a dry
/// run.
void printJson(const Report& report, std::ostream& out);

/// The same for units that come one after another and need not be kept. Nothing is printed before
/// the first of them or the end.
class JsonReport {
 public:
  JsonReport(std::string_view command, std::ostream& out);
  void add(const UnitRecord& unit);
  std::size_t unitCount() const { return m_unitCount; }
  void end(std::string_view message);

 private:
  std::ostream& m_out;
  std::string m_text;  ///< Not yet printed.
  std::size_t m_unitCount = 0;
};

/// A document of another shape.
void printJson(const nlohmann::ordered_json& document, std::ostream& out);

}  // namespace veldra::host::cli
