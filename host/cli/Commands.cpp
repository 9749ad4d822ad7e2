#include "host/cli/Commands.h"

namespace veldra::host::cli {

std::span<const Command> commandTable() {
  using namespace OptionSet;
  static const Command rows[] = {
      {"init", "Make a project of a folder, and connect it to an archive", NewProject, runInit},
      {"connect", "Connect the project to its archive", Archive, runConnect},
      {"status", "List the units of the project", Units | Recursive | Update, runStatus},
      {"refresh", "Ask the archive where every unit stands, and show those that need attention", 0,
       runRefresh},
      {"ls", "List what the archive holds", 0, runLs},
      {"add", "Put units under version control", Units | Recursive | Comment | Label, runAdd},
      {"checkout", "Get units for change", Units | Recursive | Label | Overwrite, runCheckOut},
      {"checkin", "Bring changed units into the archive", Units | Recursive | Comment | Label,
       runCheckIn},
      {"undo", "Give a check-out up, with all its changes", Units | Recursive | Label, runUndo},
      {"lock", "Lock units without getting them", Units | Recursive | Label, runLock},
      {"unlock", "Give the lock of units back", Units | Recursive | Label, runUnlock},
      {"fetch", "Get the archived revision of units, read-only", Units | Recursive | Label,
       runFetch},
      {"sync", "Show where the model and the archive differ, and take the archive's over", Sync,
       runSync},
      {"history", "Show the revisions of units", Units | Recursive | Label, runHistory},
      {"properties", "Show what the archive knows of units", Units, runProperties},
      {"compare", "Show what differs between a unit and its versions in the archive", Comparing,
       runCompare},
      {"delete", "Delete units from the archive, the model and the disk",
       NamedUnits | Recursive | Comment, runDelete},
      {"move", "Move units to another package, which is named last", NamedUnits | Comment, runMove},
      {"rename", "Give a unit another name", NewName | Comment, runRename},
      {"run", "Run the command of a property, for each unit or once", Running | Comment | Label,
       runRun},
      {"property", "Show and change settings", Property, runProperty},
      {"expand", "Show what a command template becomes", Expansion, runExpand},
      {"provider", "Show, install and choose source-control providers", Provider, runProvider},
      {"pack", "Show the tool packs, and check them", Pack, runPack},
      {"kept", "Show and restore copies of files that commands have overwritten", Kept, runKept},
      {"trust", "Show the commands that the project brings, and trust them", Trust, runTrust},
      {"doctor", "Look whether the tool works, in a throw-away archive of its own", Doctor,
       runDoctor},
      {"manual", "Print the manual page, a completion script for a shell, or what it completes",
       Manual, runManual},
  };
  return rows;
}

}  // namespace veldra::host::cli
