#pragma once

#include "cm/core/BackEnd.h"

namespace veldra {

/// The back end that drives command-line tools. What it does not override it does not have.
class ToolBackEnd : public BackEnd {
 public:
  int connectToArchive(const UnitCall& call) override;
  int listWorkspace(const UnitCall& call) override;
  int fetch(const UnitCall& call) override;
  int lockItem(const UnitCall& call) override;
  int unlockItem(const UnitCall& call) override;
  int checkOut(const UnitCall& call) override;
  int checkIn(const UnitCall& call) override;
  int history(const UnitCall& call) override;
  int uncheckout(const UnitCall& call) override;
  int addMember(const UnitCall& call) override;

  int listArchive(const ItemCall& call) override;
  int checkOutFromArchive(const ItemCall& call) override;
  int fetchFromArchive(const ItemCall& call) override;
  int recFetchFromArchive(const ItemCall& call) override;
  int uncheckoutItems(const ItemCall& call) override;
};

}  // namespace veldra
