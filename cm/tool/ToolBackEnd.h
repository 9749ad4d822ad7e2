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
  int recCheckOut(const UnitCall& call) override;
  int recCheckIn(const UnitCall& call) override;
  int recUncheckout(const UnitCall& call) override;
  int addMember(const UnitCall& call) override;
  int deleteMember(const UnitCall& call) override;
  int moveMember(const UnitCall& call) override;

  int listArchive(const ItemCall& call) override;
  int checkOutFromArchive(const ItemCall& call) override;
  int fetchFromArchive(const ItemCall& call) override;
  int recCheckOutFromArchive(const ItemCall& call) override;
  int recFetchFromArchive(const ItemCall& call) override;
  int uncheckoutItems(const ItemCall& call) override;

  int deleteDirectory(const DirectoryCall& call) override;
  int renameMember(const RenameCall& call) override;
  int movePackageContent(const PackageMoveCall& call) override;
};

}  // namespace veldra
