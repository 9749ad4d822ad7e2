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
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const {
      return std::hash<std::string_view>()(text);
    }
  };

  UnitCore* findExact(std::string_view name) const;
  std::string_view belowRoot(std::string_view absolute) const;

  std::string m_root;
  std::unordered_map<std::string, UnitCore*, Hash, std::equal_to<>> m_units;
};

}  // namespace veldra::host
