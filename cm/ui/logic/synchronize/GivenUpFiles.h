#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cm/core/CMArchiveItemList.h"
#include "cm/core/KeptCopy.h"

namespace veldra {

/// The files with changes of the user's own that are to become what the archive has. Tools merge
/// such changes, or refuse; a file that is missing they just bring. So the files are out of the way
/// while this lives, and a copy of each is kept. One that nobody has brought comes back at the end.
class GivenUpFiles {
 public:
  /// Those of the items that were changed here. An item whose file has to stay, because no copy can
  /// be kept or it cannot be moved, is taken out of the list.
  explicit GivenUpFiles(CMArchiveItemList& items);
  GivenUpFiles(const GivenUpFiles&) = delete;
  GivenUpFiles& operator=(const GivenUpFiles&) = delete;
  ~GivenUpFiles();

 private:
  struct Entry {
    std::string file;
    std::unique_ptr<KeptCopy> copy;
  };
  bool setAside(const std::string& file);

  std::vector<Entry> m_entries;
};

}  // namespace veldra
