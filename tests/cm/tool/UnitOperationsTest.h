#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "tests/support/ToolTest.h"

namespace veldra::test {

/// The operations that run one command per unit, as rows of a table. Their templates are all
/// "do $UnitPath".
class UnitOperationsTest : public ToolTest {
 protected:
  struct Row {
    const char* name;
    const char* templateProperty;
    int (UnitOperationsTest::*call)(bool);
    Lines events;  ///< For the unit "Engine.vcl" alone, with a save callback.
    Lines traces;
  };
  static std::vector<Row> rows();

  UnitOperationsTest() {
    for (const Row& row : rows()) set(row.templateProperty, "do $UnitPath");
  }
  /// The operation of a row, by name.
  static Row rowOf(const std::string& name) {
    for (const Row& row : rows())
      if (row.name == name) return row;
    throw std::invalid_argument(name);
  }
  int call(const std::string& name) { return (this->*rowOf(name).call)(false); }
  int callRow(const Row& row) { return (this->*row.call)(false); }
};

}  // namespace veldra::test
