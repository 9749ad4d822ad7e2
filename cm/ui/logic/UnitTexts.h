#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "cm/core/CMTraitFacade.h"
#include "cm/host/Export.h"
#include "cm/host/IUnit.h"

namespace veldra {

/// Columns of the flat list.
namespace UnitColumn {
inline constexpr std::int32_t File = 0;
inline constexpr std::int32_t Name = 1;
inline constexpr std::int32_t Version = 2;
inline constexpr std::int32_t Access = 3;
inline constexpr std::int32_t Controlled = 4;
inline constexpr std::int32_t CheckedOut = 5;
inline constexpr std::int32_t Count = 6;
}  // namespace UnitColumn

/// A file's path, without the project's directory when it lies there; case is ignored.
VELDRA_CM_EXPORT std::string shortPathOf(const std::string& fullFileName);
/// The same of a unit's file.
VELDRA_CM_EXPORT std::string nameNShortPath(const IUnit* unit);

/// What the views say about units. The settings are read once, when it is made.
class VELDRA_CM_EXPORT UnitTexts {
 public:
  UnitTexts();

  /// The text of a cell. The two columns of the provider stay empty until a context is open.
  std::string cell(const IUnit& unit, std::int32_t column) const;
  /// The text that a row is sorted by; there the provider's columns are always filled. It lies in
  /// `storage`.
  std::string_view sortKey(const IUnit& unit, std::int32_t column, std::string& storage) const;
  /// "Name (version) " and the access mark; embedded files have theirs without parentheses.
  std::string treeLabel(const IUnit& unit) const;

  bool marksStubs() const { return m_marksStubs; }

 private:
  std::string accessMark(const IUnit& unit) const;

  CMHeaderReader m_headers;
  std::string m_projectDirectory;
  bool m_marksStubs = true;
  bool m_isConnected = false;
};

}  // namespace veldra
