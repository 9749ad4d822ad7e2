#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/model/Json.h"
#include "host/model/Problem.h"

namespace veldra::host {

/// The text format that project and unit files share.
///
///     // Veldra package
///     // $Id$
///     {
///       "format": 1,
///       "type": "Package",
///       "name": "Brewing",
///       "id": "4f0c...",
///       ...
///     }
///
/// The comment lines at the top are the CM header and are kept byte for byte; CM tools expand their
/// keywords in them. The body is JSON, one value a line, with the four keys above first. Keys that
/// this version does not know are kept when the file is written.
inline constexpr int ModelFormat = 1;

/// A file of this size or more is refused.
inline constexpr std::size_t ModelFileLimit = 64U << 20U;

struct ModelText {
  std::string header;
  Json body;
  std::size_t bodyHash = 0;  ///< Of the body as the file had it; tells a file that changed since.
};

/// The hash of the body of a file's text.
std::size_t bodyHashOf(std::string_view text);

/// Reads a whole file's text. Nothing, with the problem described (its file left empty), when it is
/// empty, cut off, no text, of a newer format, or no such file at all.
std::optional<ModelText> parseModelText(std::string_view text, Problem& problem);

/// The file's text: its header and its body as `writeJson` writes it.
std::string writeModelText(const ModelText& model);

/// An identifier that no other element has.
std::string freshIdentifier();

/// A new body with a fresh identifier below the header that new files get.
ModelText newModelText(const std::string& unitType, const std::string& name);

/// What loading needs of a file, read from its first bytes.
struct ModelHead {
  /// `Short`: more bytes are needed. `Broken`: `problem` says why.
  enum class State { Whole, Short, Broken };
  State state = State::Broken;
  Problem problem;
  std::string_view header;
  std::string type;
  std::string name;
};

/// Reads header, type and name without parsing the body. `isWhole` says that `bytes` is the
/// complete file, so that what is missing is wrong and not just further down.
ModelHead readModelHead(std::string_view bytes, bool isWhole);

}  // namespace veldra::host
