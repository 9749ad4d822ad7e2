#pragma once

#include <string>

#include "cm/core/CMArgument.h"

namespace veldra {

class CMArchiveItem;
class IUnit;

/// The file that an operation works on: a unit of the model or an item of the archive.
///
/// | keyword          | stands for                                                            |
/// |------------------|-----------------------------------------------------------------------|
/// | "Unit"           | the file name                                                         |
/// | "UnitPath"       | the file name with its directory                                      |
/// | "UnitDirPath"    | the directory, "." when there is none                                 |
/// | "UnitDirectory"  | the directory below the working directory, with a separator before it |
/// | "UnitArchivePath"| the file's place in the archive                                       |
/// | "UnitArchiveDir" | the directory of that place                                           |
class VELDRA_CM_EXPORT CMUnit : public CMPropertyDirectedArgument {
 public:
  CMUnit() = default;  ///< Stands for no file: name and directory are empty.
  explicit CMUnit(IUnit* unit);
  explicit CMUnit(CMArchiveItem* item);

  int isNamed(const std::string& keyword) const override;
  std::string substitute(const std::string& keyword) override;

 private:
  std::string unitPath() const;
  std::string unitDirPath() const;
  std::string unitDirectory() const;
  std::string unitArchivePath() const;
  std::string unitArchiveDir() const;

  std::string m_fileName;
  std::string m_dirPath;
  IUnit* m_unit = nullptr;
  CMArchiveItem* m_item = nullptr;
};

}  // namespace veldra
