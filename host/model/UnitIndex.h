#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace veldra::host {

class UnitCore;

/// Finds units by their file. Files below the project's folder may be named absolutely or relative
/// to it, with separators of either kind.
class UnitIndex {
 public:
  explicit UnitIndex(std::string root) : m_root(std::move(root)) {}

  /// `relative` is the name below the root; an absolute name for a file outside of it.
  void put(std::string relative, UnitCore* unit) {
    m_units.insert_or_assign(std::move(relative), unit);
  }
  /// Makes room for so many units.
  void reserve(std::size_t count) { m_units.reserve(count); }
  void remove(const std::string& relative) { m_units.erase(relative); }
  /// The unit, or null.
  UnitCore* find(std::string_view fileName) const;

 private:
  UnitCore* findExact(std::string_view name) const;
  std::string_view belowRoot(std::string_view absolute) const;

  std::string m_root;
  // With the standard hash, whose values the table keeps: a look-up by a view would need another
  // one and hash every name that it passes, which takes longer than the copy of a name.
  std::unordered_map<std::string, UnitCore*> m_units;
};

}  // namespace veldra::host
