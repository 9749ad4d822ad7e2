#pragma once

#include "cm/core/BackEnd.h"

namespace veldra {

/// The back end that drives provider libraries. A provider that crashes ends the operation: the
/// user and the diagnostics get the reason, and the answer is 0.
class ProviderBackEnd : public BackEnd {
 public:
  int connectToArchive(const UnitCall& call) override;
  int fetch(const UnitCall& call) override;
  int fetchForDiff(const UnitCall& call) override;
  int properties(const UnitCall& call) override;
  int checkOut(const UnitCall& call) override;
  int checkIn(const UnitCall& call) override;
  int history(const UnitCall& call) override;
  int uncheckout(const UnitCall& call) override;
  int recCheckOut(const UnitCall& call) override;
  int addMember(const UnitCall& call) override;
  int deleteMember(const UnitCall& call) override;
  int moveMember(const UnitCall& call) override;

  int listArchive(const ItemCall& call) override;
  int checkOutFromArchive(const ItemCall& call) override;
  int fetchFromArchive(const ItemCall& call) override;
  int recCheckOutFromArchive(const ItemCall& call) override;
  int recFetchFromArchive(const ItemCall& call) override;
  int fetchForDiffFromArc(const ItemCall& call) override;
  int historyArcView(const ItemCall& call) override;

  int addDirectory(const DirectoryCall& call) override;
  int deleteDirectory(const DirectoryCall& call) override;
  int renameMember(const RenameCall& call) override;
  int movePackageContent(const PackageMoveCall& call) override;

  int refreshStatus(const UnitList& units) override;
  int queryStatus(const UnitList& units, std::vector<UnitStatus>& status) override;

  void locate() override;
  int setUp() override;
  int cleanUp() override;
  int runTool() override;
};

}  // namespace veldra
