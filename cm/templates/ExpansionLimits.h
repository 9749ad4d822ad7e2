#pragma once

#include <cstddef>
#include <string>

namespace veldra {

/// A value may lead back to itself. These bounds turn that into a failure instead of a hang.
namespace ExpansionLimits {
/// How deep values may nest in values.
inline constexpr int Depth = 50;
/// How many bytes one whole expansion may handle, each step counted with `StepCost` more.
inline constexpr std::size_t Work = std::size_t{64} << 20;
inline constexpr std::size_t StepCost = 64;
}  // namespace ExpansionLimits

/// How much of the bounds the running expansion has used. Nested expansions share it, also those
/// that an argument starts while it is asked for its value.
struct ExpansionUse {
  int depth = 0;
  std::size_t work = 0;
  bool exceeded = false;  ///< A bound was passed: the whole expansion fails.
  bool echo = false;      ///< Whether debug lines are wanted, asked once per whole expansion.
  std::string keyword;    ///< The keyword that is being resolved, for the report of a passed bound.
};

}  // namespace veldra
