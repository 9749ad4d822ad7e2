#pragma once

#include <string>
#include <vector>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/CMArgument.h"
#include "cm/core/CMDiagnostic.h"
#include "cm/host/IUnit.h"

namespace veldra {

struct UnitStatus;

/// What an operation on units is called with. The lists are the caller's own.
struct UnitCall {
  UnitList& units;
  ArgumentList& arguments;
  DiagnosticList& diagnostics;
  bool hybrid = false;  ///< The command-line tool stands in for a selected provider.
};

/// What an operation on archive items is called with.
struct ItemCall {
  CMArchiveItemList& items;
  ArgumentList& arguments;
  DiagnosticList& diagnostics;
};

/// What deleting a directory is called with.
struct DirectoryCall {
  const std::string& directory;
  ArgumentList& arguments;
  DiagnosticList& diagnostics;
  bool flag = false;
  IDObject* object = nullptr;
};

/// What renaming one unit is called with.
struct RenameCall {
  IUnit* unit;
  const std::string& oldName;
  const std::string& newName;
  DiagnosticList& diagnostics;
  bool hybrid = false;
  ArgumentList* arguments = nullptr;  ///< Comment and the like; null when there are none.
};

/// What moving the content of a package is called with.
struct PackageMoveCall {
  IUnit* package;
  UnitList& units;
  const std::string& oldPath;
  const std::string& newPath;
  ArgumentList& arguments;
  DiagnosticList& diagnostics;
  bool flag = false;
};

/// One way of carrying out operations, with a function per operation. A function that a back end
/// does not have answers with a diagnostic that says so, and 0.
class BackEnd {
 public:
  virtual ~BackEnd() = default;

  virtual int connectToArchive(const UnitCall& call);
  virtual int listWorkspace(const UnitCall& call);
  virtual int fetch(const UnitCall& call);
  virtual int fetchForDiff(const UnitCall& call);
  virtual int lockItem(const UnitCall& call);
  virtual int unlockItem(const UnitCall& call);
  virtual int properties(const UnitCall& call);
  virtual int checkOut(const UnitCall& call);
  virtual int checkIn(const UnitCall& call);
  virtual int history(const UnitCall& call);
  virtual int uncheckout(const UnitCall& call);
  virtual int recCheckOut(const UnitCall& call);
  virtual int recCheckIn(const UnitCall& call);
  virtual int recUncheckout(const UnitCall& call);
  virtual int addMember(const UnitCall& call);
  virtual int deleteMember(const UnitCall& call);
  virtual int moveMember(const UnitCall& call);

  virtual int listArchive(const ItemCall& call);
  virtual int checkOutFromArchive(const ItemCall& call);
  virtual int fetchFromArchive(const ItemCall& call);
  virtual int recCheckOutFromArchive(const ItemCall& call);
  virtual int recFetchFromArchive(const ItemCall& call);
  virtual int fetchForDiffFromArc(const ItemCall& call);
  virtual int historyArcView(const ItemCall& call);
  virtual int uncheckoutItems(const ItemCall& call);

  virtual int addDirectory(const DirectoryCall& call);
  virtual int deleteDirectory(const DirectoryCall& call);
  virtual int renameMember(const RenameCall& call);
  virtual int movePackageContent(const PackageMoveCall& call);

  /// Reads the CM states of units and stores them in the units.
  virtual int refreshStatus(const UnitList& units);
  /// Reads them without storing: one answer per unit.
  virtual int queryStatus(const UnitList& units, std::vector<UnitStatus>& status);

  /// Looks for what the back end needs when a project selects it; tells the user when it is not
  /// there.
  virtual void locate();
  /// Readies the back end when a project opens, closes its contexts, and runs the tool's own
  /// program.
  virtual int setUp();
  virtual int cleanUp();
  virtual int runTool();
};

/// The two back ends of the module.
struct BackEnds {
  BackEnd* tool;
  BackEnd* provider;
};

/// Joined by the composition at the top of the module; the pointers may be replaced.
BackEnds& backEnds();

}  // namespace veldra
