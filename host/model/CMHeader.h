#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace veldra::host {

/// How many bytes at the start of a file are searched for its CM header.
inline constexpr std::size_t HeaderSearchSize = 4096;

/// The length of the comment lines ("//") at the very top of one of Veldra's own files, line ends
/// included. They are its CM header.
std::size_t commentHeaderLength(std::string_view text);

/// The CM header of another tool's file: its lines that hold a CM keyword, expanded or not, for
/// example "$Id$" or "$Revision: 7 $". Empty when there is none.
std::string keywordLines(std::string_view text);

/// The text with every CM keyword in its unexpanded form, so that two texts which differ only in
/// what a CM tool wrote into them compare equal.
std::string withoutExpansions(std::string_view text);

}  // namespace veldra::host
