#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "host/model/UnitHeads.h"

namespace veldra::host {

/// What loading took from unit files the last time. A file whose identity, size and time of change
/// are as they were then has not changed since, and need not be opened again.
///
/// The cache lies in a file of the user's that may vanish at any time: one that is missing, damaged
/// or written by another version counts as empty.
class HeadCache {
 public:
  /// Reads the file. An empty name makes a cache that stays empty and is never written.
  explicit HeadCache(std::string file);
  HeadCache(const HeadCache&) = delete;
  HeadCache& operator=(const HeadCache&) = delete;

  bool isEmpty() const { return m_entries.empty(); }
  /// Fills in the head of a file with these facts. False when the cache does not know it. May be
  /// called from several threads.
  bool fill(UnitHead& head, const FileFacts& facts, bool isOwn) const;
  /// Writes the heads to the file when enough of them are new to pay for it. A failure is silent:
  /// the next load is only slower.
  void update(const std::vector<UnitHead>& heads) const;

 private:
  /// The texts of a head lie one after another, from `text` on.
  struct Entry {
    FileIdentity identity;
    std::uint64_t size = 0;
    std::int64_t changed = 0;
    std::uint32_t text = 0;
    std::uint32_t headerLength = 0;
    std::uint32_t typeLength = 0;
    std::uint32_t nameLength = 0;
    std::uint64_t flags = 0;
  };
  static bool isWorthKeeping(const UnitHead& head, std::int64_t settled);
  static Entry entryOf(const UnitHead& head, std::string& texts);
  const Entry* find(const FileFacts& facts, bool isOwn) const;
  bool isSound(const Entry& entry) const;
  void parse();

  std::string m_file;
  std::vector<Entry> m_entries;  ///< By identity.
  std::string m_bytes;           ///< The file.
  std::string_view m_texts;      ///< In it.
};

/// The cache file of a project, for a folder that holds those of all projects; empty without one.
std::string headCacheFile(const std::string& cacheDirectory, const std::string& projectFile);

}  // namespace veldra::host
