#include "host/compare/FileComparison.h"

#include <optional>
#include <utility>

#include "host/platform/AtomicFile.h"

namespace veldra::host::compare {

namespace {

std::unique_ptr<ModelComparison> compareAsModels(const std::string& first,
                                                 const std::string& second) {
  Problem problem;
  std::optional<ModelText> a = parseModelText(first, problem);
  std::optional<ModelText> b = a ? parseModelText(second, problem) : std::nullopt;
  if (!b) return nullptr;
  return std::make_unique<ModelComparison>(std::move(*a), std::move(*b));
}

bool isText(const std::string& bytes) {
  return bytes.find('\0') == std::string::npos;
}

}  // namespace

ModelComparison::ModelComparison(ModelText firstText, ModelText secondText)
    : first(std::move(firstText)),
      second(std::move(secondText)),
      firstTree(first.body),
      secondTree(second.body),
      differences(modelDifferences(firstTree, secondTree)) {}

Result<FileComparison> FileComparison::read(const std::string& first, const std::string& second) {
  Result<std::string> a = readFile(first, ModelFileLimit);
  if (!a) return Result<FileComparison>::failure(a.error());
  Result<std::string> b = readFile(second, ModelFileLimit);
  if (!b) return Result<FileComparison>::failure(b.error());
  return of(std::move(*a), std::move(*b));
}

FileComparison FileComparison::of(std::string first, std::string second) {
  FileComparison comparison;
  comparison.m_first = std::make_unique<std::string>(std::move(first));
  comparison.m_second = std::make_unique<std::string>(std::move(second));
  comparison.m_model = compareAsModels(*comparison.m_first, *comparison.m_second);
  if (comparison.m_model != nullptr) {
    comparison.m_kind = ContentKind::Model;
  } else if (isText(*comparison.m_first) && isText(*comparison.m_second)) {
    comparison.m_kind = ContentKind::Text;
    comparison.m_firstLines = linesOf(*comparison.m_first);
    comparison.m_secondLines = linesOf(*comparison.m_second);
    comparison.m_hunks = textDifferences(comparison.m_firstLines, comparison.m_secondLines);
  }
  return comparison;
}

bool FileComparison::isSame() const {
  return size() == 0;
}

std::size_t FileComparison::size() const {
  switch (m_kind) {
    case ContentKind::Model:
      return m_model->differences.size();
    case ContentKind::Text:
      return m_hunks.size();
    case ContentKind::Binary:
      break;
  }
  return *m_first == *m_second ? 0 : 1;
}

std::string FileComparison::merged(const std::vector<Side>& choices) const {
  switch (m_kind) {
    case ContentKind::Model:
      return writeModelText({.header = m_model->first.header,
                             .body = mergedModel(m_model->firstTree, m_model->secondTree,
                                                 m_model->differences, choices)});
    case ContentKind::Text:
      return mergedText(m_firstLines, m_secondLines, m_hunks, choices);
    case ContentKind::Binary:
      break;
  }
  return !choices.empty() && choices.front() == Side::Second ? *m_second : *m_first;
}

}  // namespace veldra::host::compare
