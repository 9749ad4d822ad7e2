#pragma once

#include <string>

#include "cm/host/Export.h"

namespace veldra {

class IUnit;

/// One file as the archive knows it, whether or not the model has a unit for it.
class VELDRA_CM_EXPORT CMArchiveItem {
 public:
  enum Mode : int { ReadOnly = 0, ReadWrite = 1 };

  CMArchiveItem() = default;
  CMArchiveItem(std::string fileNameWithPath, std::string version, Mode mode, std::string locker,
                std::string status);

  /// The name with path as the listing gave it; it may use either separator.
  const std::string& getFileNameWithPath() const { return m_fileNameWithPath; }
  /// The part after the last separator.
  std::string getFileName() const;
  /// What stands before the last dot, without the directory. The dot is searched in the whole path
  /// first, so a path whose only dot is in a directory name is cut there.
  std::string getName() const;
  /// From the last dot to the end, with the dot.
  std::string getSuffix() const;
  /// The host's unit type for the suffix.
  std::string getType() const;
  const std::string& getVersion() const { return m_version; }
  Mode getMode() const { return m_mode; }
  /// Who holds a lock; empty when nobody does.
  const std::string& getLocker() const { return m_locker; }
  const std::string& getStatus() const { return m_status; }
  void setStatus(const std::string& text) { m_status = text; }
  /// Whether a check-out from the archive loads the file into the model; at first it does.
  bool staysOutOfModel() const { return m_staysOutOfModel; }
  void setStaysOutOfModel(bool stays) { m_staysOutOfModel = stays; }
  /// The loaded unit of the item's repository file, or null.
  IUnit* getLoadedUnit() const;

  /// The path relative to the project's place in the archive.
  std::string getNameNShortPath(bool withSuffix) const;
  /// The local directory that the file lies in or would lie in.
  std::string getLocalPath() const;
  /// The name under which the host keeps the item's file among its repository files.
  std::string getFileNameForRepFiles() const;
  /// The full local name of the unit that the item stands for.
  std::string getFullUnitFileName() const;

 private:
  std::string m_fileNameWithPath;
  std::string m_version;
  Mode m_mode = ReadOnly;
  std::string m_locker;
  std::string m_status;
  bool m_staysOutOfModel = false;
};

/// Modes as the list-archive operation stores them in its items. They are numbers of their own
/// beside `CMArchiveItem::Mode`; this is the one place that knows both.
namespace ListedMode {
inline constexpr int Unknown = 0;
inline constexpr int ReadOnly = 1;
inline constexpr int ReadWrite = 2;
inline int of(const CMArchiveItem& item) {
  return static_cast<int>(item.getMode());
}
inline CMArchiveItem::Mode store(int listed) {
  return static_cast<CMArchiveItem::Mode>(listed);
}
}  // namespace ListedMode

}  // namespace veldra
