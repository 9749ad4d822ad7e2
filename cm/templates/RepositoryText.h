#pragma once

#include <string>

namespace veldra {

/// The tool property "Repository", expanded with the main archive; empty when there is none. It
/// says how an archive path is made of the root, the sub-directories and the file name.
std::string repositoryText();

}  // namespace veldra
