#pragma once

#include <string>

#include "cm/host/CMVDYHandler.h"
#include "cm/host/Reload.h"
#include "tests/support/Journal.h"
#include "tests/support/MemoryModel.h"

namespace veldra::test {

/// How reloads go, for every unit.
struct ReloadScript {
  enum class Outcome { Replace, SameObject, Lose };

  bool canReload = true;
  Outcome quickReload = Outcome::Replace;
  Outcome addToModel = Outcome::Replace;
  Outcome fileCompare = Outcome::SameObject;
  int compareAnswer = 0;  ///< Non-zero lets the unit stay the same object.
  /// The file name that follows from the name which a quick reload brings; empty: as before.
  std::string computedFileName{};
};

class MemoryQuickATM : public QuickATMFacade {
 public:
  MemoryQuickATM(Journal& journal, MemoryModel& model, ReloadScript& script)
      : m_journal(journal), m_model(model), m_script(script) {}
  bool CanReloadUnit(IUnit*) override { return m_script.canReload; }
  IUnit* reloadUnit(IUnit* unit) override;

 private:
  Journal& m_journal;
  MemoryModel& m_model;
  ReloadScript& m_script;
};

/// Adds files below `place`, a unit's file name or a directory.
class MemoryATM : public ATMFacade {
 public:
  MemoryATM(Journal& journal, MemoryModel& model, ReloadScript& script, std::string place)
      : m_journal(journal), m_model(model), m_script(script), m_place(std::move(place)) {}
  IUnit* addToModel(const std::string& fileName) override;

 private:
  Journal& m_journal;
  MemoryModel& m_model;
  ReloadScript& m_script;
  std::string m_place;
};

class MemoryFileCompare : public CCMFileCompare {
 public:
  MemoryFileCompare(Journal& journal, MemoryModel& model, ReloadScript& script, std::string file)
      : m_journal(journal), m_model(model), m_script(script), m_file(std::move(file)) {}
  void LoadFile1() override { m_journal.add("snapshot-1 " + m_file); }
  void LoadFile2() override { m_journal.add("snapshot-2 " + m_file); }
  int Compare() override { return m_script.compareAnswer; }
  IUnit* atm(IUnit* unit) override;

 private:
  Journal& m_journal;
  MemoryModel& m_model;
  ReloadScript& m_script;
  std::string m_file;
};

/// Writes down what it is told about a model file.
class MemoryModelFileHandler : public CMVDYHandler {
 public:
  MemoryModelFileHandler(Journal& journal, std::string file)
      : m_journal(journal), m_file(std::move(file)) {}
  void prepare(Kind kind) override;
  void complete() override { m_journal.add("handler-complete " + m_file); }
  std::string oldFileName() const override { return withExtension(".vdr"); }
  std::string newFileName() const override { return withExtension(".vdy"); }
  std::string fileNameToLoad() const override { return newFileName(); }

 private:
  /// Empty for a file that is no project file.
  std::string withExtension(const std::string& extension) const;

  Journal& m_journal;
  std::string m_file;
};

}  // namespace veldra::test
