#pragma once

#include <cstdint>
#include <string>

#include "cm/host/IUnit.h"

namespace veldra {

/// Bits of a unit's CM state: the file status of the provider interface. -1 is invalid.
namespace CMState {
inline constexpr std::int32_t Invalid = -1;
inline constexpr std::int32_t Controlled = 0x1;
inline constexpr std::int32_t CheckedOut = 0x2;  ///< By this user, into this folder.
inline constexpr std::int32_t OutOther = 0x4;
inline constexpr std::int32_t OutOfDate = 0x20;  ///< The archive has a newer version.
inline constexpr std::int32_t Deleted = 0x40;
inline constexpr std::int32_t OutByUser = 0x1000;  ///< By this user, into whichever folder.
}  // namespace CMState

/// A unit's CM state in words, and as the icon that shows it.
class VELDRA_CM_EXPORT CMStatus {
 public:
  static std::string getControlled(const IUnit* unit);
  /// Empty for a unit that is not controlled or is deleted.
  static std::string getCheckedOut(const IUnit* unit);
  static int getIsInvalid(const IUnit* unit);
  /// 0 to 6; 0 is the icon that says nothing.
  static int getCMStatusImgIndex(const IUnit* unit);

  /// The same labels for a state that no unit has.
  static std::string controlledLabel(std::int32_t state);
  static std::string checkedOutLabel(std::int32_t state);
};

}  // namespace veldra
