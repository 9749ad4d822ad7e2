#include "host/model/HeadCache.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstddef>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>
#include <tuple>
#include <type_traits>
#include <utility>

#include "host/model/PathNames.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

constexpr std::array<char, 8> Magic = {'V', 'C', 'M', 'H', 'E', 'A', 'D', '1'};
constexpr std::size_t CacheFileLimit = std::size_t{1} << 30;

// A file that changes twice within one tick of its file system's clock looks the same both times,
// so what changed this short a time ago is not remembered. Generous, because servers' clocks
// differ.
constexpr std::chrono::seconds Unsettled{2};

constexpr std::uint64_t Own = 1;
constexpr std::uint64_t Controlled = 2;
constexpr std::uint64_t Properties = 4;

struct Preamble {
  std::array<char, 8> magic = Magic;
  std::uint64_t check = 0;  ///< Over all that follows it.
  std::uint64_t entries = 0;
};

std::uint64_t checkOf(std::string_view bytes) {
  std::uint64_t check = 14695981039346656037U;
  for (; bytes.size() >= sizeof(std::uint64_t); bytes.remove_prefix(sizeof(std::uint64_t))) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes.data(), sizeof word);
    check = (check ^ word) * 1099511628211U;
    check ^= check >> 32U;
  }
  for (const char byte : bytes) {
    check = (check ^ static_cast<unsigned char>(byte)) * 1099511628211U;
  }
  return check;
}

template <class T>
void append(std::string& bytes, const T* values, std::size_t count) {
  static_assert(std::is_trivially_copyable_v<T>);
  bytes.append(reinterpret_cast<const char*>(values), count * sizeof(T));
}

auto orderOf(const FileIdentity& identity) {
  return std::tie(identity.device, identity.file);
}

std::int64_t settledBefore() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  return std::chrono::nanoseconds(now - Unsettled).count();
}

}  // namespace

HeadCache::HeadCache(std::string file) : m_file(std::move(file)) {
  if (m_file.empty()) return;
  if (Result<std::string> bytes = readFile(m_file, CacheFileLimit)) {
    m_bytes = std::move(*bytes);
    parse();
  }
}

void HeadCache::parse() {
  Preamble preamble;
  const std::string_view bytes = m_bytes;
  if (bytes.size() < sizeof preamble) return;
  std::memcpy(&preamble, bytes.data(), sizeof preamble);
  const std::size_t checkedFrom = offsetof(Preamble, entries);
  const std::size_t room = (bytes.size() - sizeof preamble) / sizeof(Entry);
  if (preamble.magic != Magic || preamble.entries > room ||
      preamble.check != checkOf(bytes.substr(checkedFrom))) {
    return;
  }
  m_entries.resize(preamble.entries);
  const std::size_t entryBytes = m_entries.size() * sizeof(Entry);
  if (entryBytes != 0) std::memcpy(m_entries.data(), bytes.data() + sizeof preamble, entryBytes);
  m_texts = bytes.substr(sizeof preamble + entryBytes);
  if (!std::all_of(m_entries.begin(), m_entries.end(),
                   [&](const Entry& e) { return isSound(e); })) {
    m_entries.clear();
  }
}

bool HeadCache::isSound(const Entry& entry) const {
  const std::uint64_t length =
      std::uint64_t{entry.headerLength} + entry.typeLength + entry.nameLength;
  return entry.text + length <= m_texts.size();
}

const HeadCache::Entry* HeadCache::find(const FileFacts& facts, bool isOwn) const {
  const auto found = std::lower_bound(m_entries.begin(), m_entries.end(), facts.identity,
                                      [](const Entry& entry, const FileIdentity& identity) {
                                        return orderOf(entry.identity) < orderOf(identity);
                                      });
  const bool same = found != m_entries.end() && found->identity == facts.identity &&
                    found->size == facts.size && found->changed == facts.changed &&
                    ((found->flags & Own) != 0) == isOwn;
  return same ? &*found : nullptr;
}

bool HeadCache::fill(UnitHead& head, const FileFacts& facts, bool isOwn) const {
  const Entry* const entry = find(facts, isOwn);
  if (facts.state != FileFacts::State::Readable || entry == nullptr) return false;
  std::string_view rest = m_texts.substr(entry->text);
  const auto next = [&rest](std::size_t length) {
    const std::string_view text = rest.substr(0, length);
    rest.remove_prefix(length);
    return text;
  };
  head.header = next(entry->headerLength);
  head.unitType = next(entry->typeLength);
  head.name = next(entry->nameLength);
  head.facts = facts;
  head.mode = modeOf(facts);
  head.isOwn = isOwn;
  head.remembered = true;
  head.mentionsControlled = (entry->flags & Controlled) != 0;
  head.mentionsProperties = (entry->flags & Properties) != 0;
  return true;
}

HeadCache::Entry HeadCache::entryOf(const UnitHead& head, std::string& texts) {
  const Entry entry{.identity = head.facts.identity,
                    .size = head.facts.size,
                    .changed = head.facts.changed,
                    .text = static_cast<std::uint32_t>(texts.size()),
                    .headerLength = static_cast<std::uint32_t>(head.header.size()),
                    .typeLength = static_cast<std::uint32_t>(head.unitType.size()),
                    .nameLength = static_cast<std::uint32_t>(head.name.size()),
                    .flags = (head.isOwn ? Own : 0) | (head.mentionsControlled ? Controlled : 0) |
                             (head.mentionsProperties ? Properties : 0)};
  texts.append(head.header).append(head.unitType).append(head.name);
  return entry;
}

bool HeadCache::isWorthKeeping(const UnitHead& head, std::int64_t settled) {
  const FileFacts& facts = head.facts;
  const bool isSettled = facts.changed != 0 && facts.changed < settled;
  return isSettled && !head.problem && facts.state == FileFacts::State::Readable;
}

void HeadCache::update(const std::vector<UnitHead>& heads) const {
  if (m_file.empty()) return;
  const std::int64_t settled = settledBefore();
  const auto isNew = [&](const UnitHead& head) {
    return !head.remembered && isWorthKeeping(head, settled);
  };
  if (std::count_if(heads.begin(), heads.end(), isNew) < std::ptrdiff_t{ManyHeads}) return;
  std::vector<Entry> entries;
  std::string texts;
  for (const UnitHead& head : heads) {
    if (!isWorthKeeping(head, settled)) continue;
    if (texts.size() >= std::size_t{1} << 31U) return;
    entries.push_back(entryOf(head, texts));
  }

  std::sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
    return orderOf(a.identity) < orderOf(b.identity);
  });
  Preamble preamble{.entries = entries.size()};
  std::string bytes;
  append(bytes, &preamble, 1);
  append(bytes, entries.data(), entries.size());
  bytes += texts;
  preamble.check = checkOf(std::string_view(bytes).substr(offsetof(Preamble, entries)));
  std::memcpy(bytes.data(), &preamble, sizeof preamble);
  std::error_code failed;
  fs::create_directories(fs::path(m_file).parent_path(), failed);
  (void)writeFileAtomically(m_file, bytes);
}

std::string headCacheFile(const std::string& cacheDirectory, const std::string& projectFile) {
  if (cacheDirectory.empty()) return {};
  std::array<char, 17> name{};
  std::snprintf(name.data(), name.size(), "%016llx",
                static_cast<unsigned long long>(checkOf(projectFile)));
  return joinPath(cacheDirectory, std::string("heads-") + name.data());
}

}  // namespace veldra::host
