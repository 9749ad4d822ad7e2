#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/compare/ModelDifference.h"
#include "host/compare/ModelMerge.h"
#include "host/compare/TextDifference.h"
#include "host/model/ModelText.h"
#include "host/platform/Result.h"

namespace veldra::host::compare {

/// As what two files are compared.
enum class ContentKind {
  Model,  ///< Both are files in Veldra's own format.
  Text,
  Binary,  ///< At least one is no text: only whether they are the same can be told.
};

/// Two model files and what differs in them. It is not copied, because its parts refer to each
/// other.
struct ModelComparison {
  ModelComparison(ModelText firstText, ModelText secondText);
  ModelComparison(const ModelComparison&) = delete;
  ModelComparison& operator=(const ModelComparison&) = delete;

  ModelText first;
  ModelText second;
  ElementTree firstTree;
  ElementTree secondTree;
  std::vector<Difference> differences;
};

/// Two files and what differs in them. What a CM tool wrote into a header is no difference.
class FileComparison {
 public:
  /// Reads both. A sentence that names the file when one cannot be read.
  static Result<FileComparison> read(const std::string& first, const std::string& second);
  /// The same of bytes that are there already.
  static FileComparison of(std::string first, std::string second);

  ContentKind kind() const { return m_kind; }
  bool isSame() const;
  /// How many differences there are to choose from.
  std::size_t size() const;
  /// Null unless both are models.
  const ModelComparison* model() const { return m_model.get(); }
  const std::vector<Hunk>& hunks() const { return m_hunks; }
  const Lines& firstLines() const { return m_firstLines; }
  const Lines& secondLines() const { return m_secondLines; }

  /// The first file's bytes with what was chosen from the second one, in the order of the
  /// differences. A model keeps the header of the first file. A binary file is taken as a whole.
  std::string merged(const std::vector<Side>& choices) const;

 private:
  FileComparison() = default;

  ContentKind m_kind = ContentKind::Binary;
  /// On the heap, so that lines may refer to them wherever this object is.
  std::unique_ptr<std::string> m_first;
  std::unique_ptr<std::string> m_second;
  std::unique_ptr<ModelComparison> m_model;
  Lines m_firstLines;
  Lines m_secondLines;
  std::vector<Hunk> m_hunks;
};

}  // namespace veldra::host::compare
