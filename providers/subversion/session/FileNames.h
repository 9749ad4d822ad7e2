#pragma once

#include <string>
#include <vector>

#include "cm/scc/interface/SccTypes.h"

namespace veldra::subversion {

using FileNames = std::vector<std::string>;

/// An absolute name in libsvn's form: separators single and forward, no `.` parts. Throws for a
/// null, empty or relative one.
[[nodiscard]] std::string nameOf(scc::LPCSTR name);

/// The same for the names of a call, in their order.
[[nodiscard]] FileNames namesOf(scc::LONG count, scc::LPCSTR const* names);

/// Copies a text into a buffer of the program's, or throws when it is too long for it.
void copyInto(scc::LPSTR buffer, std::size_t size, const std::string& text, const char* what);

/// The last part of a name, for messages.
[[nodiscard]] std::string lastPartOf(const std::string& name);

/// The directory of a name.
[[nodiscard]] std::string directoryOf(const std::string& name);

}  // namespace veldra::subversion
