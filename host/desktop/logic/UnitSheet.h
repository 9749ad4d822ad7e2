#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "host/model/Json.h"

namespace veldra::host::desktop {

struct SheetAttribute {
  std::string name{};
  std::string value{};
  bool operator==(const SheetAttribute&) const = default;
};

/// Where a row comes from: its place in the list of the body, or `NewRow`.
inline constexpr std::size_t NewRow = static_cast<std::size_t>(-1);

struct SheetElement {
  std::string type{};
  std::string name{};
  std::vector<SheetAttribute> attributes{};
  std::size_t source = NewRow;
  bool operator==(const SheetElement&) const = default;
};

/// A box of a diagram, in the diagram's own units.
struct SheetBox {
  std::string element{};
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;
  std::size_t source = NewRow;
  bool operator==(const SheetBox&) const = default;
};

/// A line between two boxes, by their elements.
struct SheetConnection {
  std::string from{};
  std::string to{};
  std::string text{};
  std::size_t source = NewRow;
  bool operator==(const SheetConnection&) const = default;
};

/// What a person sees and changes of a unit's body. Everything else in the body is not shown and
/// stays as it is.
struct UnitSheet {
  std::string name{};
  std::string description{};
  std::vector<SheetAttribute> attributes{};
  std::vector<SheetElement> elements{};
  std::vector<SheetBox> boxes{};
  std::vector<SheetConnection> connections{};
  bool operator==(const UnitSheet&) const = default;
};

UnitSheet sheetOf(const Json& body);

/// Brings a body, from which `before` was read, to what `after` says. Only what differs is touched:
/// values that a sheet cannot show, identifiers and keys of other versions stay.
void applySheet(const UnitSheet& before, const UnitSheet& after, Json& body);

}  // namespace veldra::host::desktop
