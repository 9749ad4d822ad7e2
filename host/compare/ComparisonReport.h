#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "host/compare/FileComparison.h"
#include "host/compare/FolderComparison.h"

namespace veldra::host::compare {

/// A text of the message catalogue with its values.
using Texts = std::function<std::string(int id, const std::vector<std::string>& values)>;

/// The words for a kind of difference, and for what became of a file of two folders.
std::string wordFor(DifferenceKind kind, const Texts& texts);
std::string wordFor(FilePair::State state, const Texts& texts);
/// What a difference says beside its kind, type and path; empty for an element that was added or
/// removed.
std::string detailOf(const Difference& difference, const Texts& texts);

/// A line a difference, or for texts the lines that differ with their places. Nothing for files
/// that are the same.
void printComparison(const FileComparison& comparison, const Texts& texts, std::ostream& out);

}  // namespace veldra::host::compare
