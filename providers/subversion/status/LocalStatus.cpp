#include "providers/subversion/status/LocalStatus.h"

#include <atomic>
#include <exception>
#include <map>
#include <optional>
#include <string_view>
#include <system_error>
#include <thread>

#include "providers/subversion/status/StatusCall.h"

namespace veldra::subversion {
namespace {

/// From this many files on, looking at their whole directory is cheaper.
constexpr std::size_t FewFiles = 8;

/// From this many files on, a second processor pays for the start of a thread.
constexpr std::size_t ManyFiles = 2000;

/// One thing to look at: a directory with what is directly in it, or a single file.
struct Look {
  std::string path;
  svn_depth_t depth;
};

std::vector<Look> looksFor(const FileNames& files) {
  std::map<std::string, std::vector<std::size_t>, std::less<>> byDirectory;
  auto current = byDirectory.end();
  for (std::size_t i = 0; i < files.size(); ++i) {
    // Neighbours mostly come one after the other.
    const std::string_view directory = std::string_view(files[i]).substr(0, files[i].rfind('/'));
    if (current == byDirectory.end() || current->first != directory) {
      current = byDirectory.find(directory);
      if (current == byDirectory.end())
        current = byDirectory.try_emplace(std::string(directory)).first;
    }
    current->second.push_back(i);
  }
  std::vector<Look> looks;
  for (const auto& [directory, members] : byDirectory) {
    if (members.size() >= FewFiles) {
      looks.push_back({directoryOf(files[members.front()]), svn_depth_immediates});
    } else {
      for (const std::size_t i : members) looks.push_back({files[i], svn_depth_empty});
    }
  }
  return looks;
}

/// Takes looks from the common list until there are no more.
FileStates work(Client& client, const std::vector<Look>& looks, std::atomic<std::size_t>& next) {
  FileStates states;
  const StatusReceiver take = [&states](const char* path, const svn_client_status_t& status) {
    states.insert_or_assign(path, stateOf(status));
  };
  for (std::size_t i = next++; i < looks.size(); i = next++)
    readStatus(client, looks[i].path, looks[i].depth, StoreIsAsked::No, take);
  return states;
}

/// The same by a second thread. It has a client of its own, which never calls the program back.
class Helper {
 public:
  Helper(const std::vector<Look>& looks, std::atomic<std::size_t>& next)
      : m_thread([this, &looks, &next] {
          try {
            const TextOutput nobody;
            Client client(nobody, {});
            m_states = work(client, looks, next);
          } catch (...) {
            m_failure = std::current_exception();
          }
        }) {}
  Helper(const Helper&) = delete;
  Helper& operator=(const Helper&) = delete;
  ~Helper() {
    if (m_thread.joinable()) m_thread.join();
  }

  FileStates& states() {
    m_thread.join();
    if (m_failure) std::rethrow_exception(m_failure);
    return m_states;
  }

 private:
  FileStates m_states;
  std::exception_ptr m_failure;
  std::thread m_thread;
};

}  // namespace

FileStates localStates(Client& client, const FileNames& files) {
  const std::vector<Look> looks = looksFor(files);
  std::atomic<std::size_t> next = 0;
  std::optional<Helper> helper;
  if (files.size() >= ManyFiles && looks.size() > 1 && std::thread::hardware_concurrency() > 1) {
    try {
      helper.emplace(looks, next);
    } catch (const std::system_error&) {
      // No thread to be had: one does it all.
    }
  }
  FileStates states = work(client, looks, next);
  if (helper) states.merge(helper->states());
  return states;
}

}  // namespace veldra::subversion
