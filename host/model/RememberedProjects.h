#pragma once

#include <string>

namespace veldra::host {

/// Remembers where the project with that identifier lies, so that the compare tool, which is told
/// the identifier alone, finds it. The newest place of an identifier counts. Nothing is lost when
/// it cannot be written: the tool then asks for nothing and merges nothing back.
void rememberProject(const std::string& identifier, const std::string& projectFile);

/// The project file remembered for an identifier, in which every blank may stand as an underscore;
/// empty when none is.
std::string rememberedProject(const std::string& identifier);

}  // namespace veldra::host
