#include "host/platform/PatternEngine.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <list>
#include <stdexcept>
#include <unordered_map>

#include "host/platform/CompiledPattern.h"

namespace veldra::host {

namespace {

// Those in front keep their places when they are asked for again.
constexpr std::ptrdiff_t Recent = 8;
constexpr std::size_t MostPatterns = 1000 + Recent;

/// What a compiled pattern is found by. The key of an entry points into that entry's own texts.
struct Key {
  std::string_view pattern;
  std::string_view options;
  bool operator==(const Key&) const = default;
};

struct KeyHash {
  std::size_t operator()(const Key& key) const {
    const std::hash<std::string_view> hash;
    return hash(key.pattern) * 31 + hash(key.options);
  }
};

struct Entry {
  std::string options;
  std::shared_ptr<const CompiledPattern> compiled;
  Key key() const { return {compiled->text(), options}; }
};

}  // namespace

class PatternEngine::Cache {
 public:
  std::shared_ptr<const IPattern> find(const Key& key) {
    // A listing asks for the same few by turns, a hundred thousand times.
    const auto recentEnd = std::next(m_entries.begin(), std::min(Recent, std::ssize(m_entries)));
    const auto recent = std::find_if(m_entries.begin(), recentEnd,
                                     [&](const Entry& entry) { return entry.key() == key; });
    if (recent != recentEnd) return recent->compiled;
    const auto found = m_byKey.find(key);
    if (found == m_byKey.end()) return nullptr;
    m_entries.splice(m_entries.begin(), m_entries, found->second);
    return found->second->compiled;
  }

  std::shared_ptr<const IPattern> add(const Key& key, std::string& error) {
    std::uint32_t bits = 0;
    if (!PatternCompiler::parseOptions(key.options, bits, error)) return nullptr;
    auto code = m_compiler.compile(key.pattern, bits, error);
    if (!code) return nullptr;
    auto compiled =
        std::make_shared<CompiledPattern>(m_compiler, key.pattern, bits, std::move(code));
    if (m_entries.size() >= MostPatterns) removeLast();
    m_entries.push_front({std::string(key.options), std::move(compiled)});
    m_byKey.emplace(m_entries.front().key(), m_entries.begin());
    return m_entries.front().compiled;
  }

 private:
  void removeLast() {
    m_byKey.erase(m_entries.back().key());
    m_entries.pop_back();
  }

  PatternCompiler m_compiler;
  std::list<Entry> m_entries;  // The one asked for last comes first.
  std::unordered_map<Key, std::list<Entry>::iterator, KeyHash> m_byKey;
};

PatternEngine::PatternEngine() : m_cache(std::make_unique<Cache>()) {}
PatternEngine::~PatternEngine() = default;

std::shared_ptr<const IPattern> PatternEngine::compile(std::string_view pattern,
                                                       std::string_view options,
                                                       std::string& error) {
  try {
    const Key key{pattern, options};
    if (auto known = m_cache->find(key)) return known;
    return m_cache->add(key, error);
  } catch (const std::exception& problem) {
    error = problem.what();
    return nullptr;
  }
}

}  // namespace veldra::host
