#include "host/cli/Commands.h"

namespace veldra::host::cli {

std::span<const Command> commandTable() {
  using namespace OptionSet;
  static const Command rows[] = {
      {"init", "Make a project of a folder, and connect it to an archive", NewProject, runInit},
      {"connect", "Connect the project to its archive", Archive, runConnect},
      {"status", "List the units of the project", Update, runStatus},
      {"ls", "List what the archive holds", 0, runLs},
      {"add", "Put units under version control", Units | Comment | Label, runAdd},
      {"checkout", "Get units for change", Units | Label | Overwrite, runCheckOut},
      {"checkin", "Bring changed units into the archive", Units | Comment | Label, runCheckIn},
      {"undo", "Give a check-out up, with all its changes", Units | Label, runUndo},
      {"lock", "Lock units without getting them", Units | Label, runLock},
      {"unlock", "Give the lock of units back", Units | Label, runUnlock},
      {"fetch", "Get the archived revision of units, read-only", Units | Label, runFetch},
      {"history", "Show the revisions of units", Units | Label, runHistory},
      {"property", "Show and change settings", Property, runProperty},
      {"expand", "Show what a command template becomes", Expansion, runExpand},
      {"pack", "Show the tool packs", Pack, runPack},
      {"provider", "Show, install and choose source-control providers", Provider, runProvider},
  };
  return rows;
}

}  // namespace veldra::host::cli
