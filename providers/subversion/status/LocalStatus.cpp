#include "providers/subversion/status/LocalStatus.h"

#include <svn_error_codes.h>

#include <map>

#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/status/StatusCall.h"

namespace veldra::subversion {
namespace {

/// From this many files on, looking at their whole directory is cheaper.
constexpr std::size_t FewFiles = 8;

}  // namespace

FileStates localStates(Client& client, const FileNames& files) {
  std::map<std::string, FileNames> byDirectory;
  for (const std::string& file : files) byDirectory[directoryOf(file)].push_back(file);

  FileStates states;
  states.reserve(files.size());
  const StatusReceiver take = [&states](const std::string& path,
                                        const svn_client_status_t& status) {
    states.insert_or_assign(path, stateOf(status));
  };
  for (const auto& [directory, names] : byDirectory) {
    if (names.size() >= FewFiles) {
      readStatus(client, directory, svn_depth_immediates, StoreIsAsked::No, take);
    } else {
      for (const std::string& name : names)
        readStatus(client, name, svn_depth_empty, StoreIsAsked::No, take);
    }
  }
  return states;
}

}  // namespace veldra::subversion
