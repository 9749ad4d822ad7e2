#include "host/tandel/CompareSession.h"

#include <algorithm>

#include "host/platform/AtomicFile.h"

namespace veldra::host::tandel {

using compare::FileComparison;
using compare::FilePair;

namespace {

Result<FileComparison> compared(const FilePair& pair) {
  if (pair.state != FilePair::State::OnlyFirst && pair.state != FilePair::State::OnlySecond) {
    return FileComparison::read(pair.first, pair.second);
  }
  const bool isFirst = pair.state == FilePair::State::OnlyFirst;
  Result<std::string> bytes = readFile(isFirst ? pair.first : pair.second, ModelFileLimit);
  if (!bytes) return Result<FileComparison>::failure(bytes.error());
  return FileComparison::of(isFirst ? *bytes : std::string(), isFirst ? std::string() : *bytes);
}

}  // namespace

bool CompareSession::isSame() const {
  return std::ranges::all_of(
      m_files, [](const FilePair& pair) { return pair.state == FilePair::State::Same; });
}

std::optional<std::size_t> CompareSession::nextDifferent(std::size_t from) const {
  for (std::size_t step = 0; step < m_files.size(); ++step) {
    const std::size_t file = (from + step) % m_files.size();
    if (m_files[file].state != FilePair::State::Same) return file;
  }
  return std::nullopt;
}

const FileComparison* CompareSession::comparison(std::size_t file, std::string& problem) {
  const auto found = m_opened.find(file);
  if (found != m_opened.end()) return &found->second->comparison;
  Result<FileComparison> read = compared(m_files[file]);
  if (!read) {
    problem = read.error();
    return nullptr;
  }
  auto opened = std::make_unique<Opened>(std::move(*read));
  return &m_opened.emplace(file, std::move(opened)).first->second->comparison;
}

CompareSession::Side CompareSession::choice(std::size_t file, std::size_t difference) const {
  return m_opened.at(file)->choices.at(difference);
}

void CompareSession::choose(std::size_t file, std::size_t difference, Side side) {
  m_opened.at(file)->choices.at(difference) = side;
}

void CompareSession::chooseAll(std::size_t file, Side side) {
  std::ranges::fill(m_opened.at(file)->choices, side);
}

bool CompareSession::isModified(std::size_t file) const {
  const auto found = m_opened.find(file);
  return found != m_opened.end() && found->second->choices != found->second->saved;
}

bool CompareSession::isAnyModified() const {
  return std::ranges::any_of(m_opened, [this](const auto& one) { return isModified(one.first); });
}

std::string CompareSession::merged(std::size_t file) const {
  const Opened& opened = *m_opened.at(file);
  return opened.comparison.merged(opened.choices);
}

void CompareSession::markSaved(std::size_t file) {
  Opened& opened = *m_opened.at(file);
  opened.saved = opened.choices;
}

}  // namespace veldra::host::tandel
