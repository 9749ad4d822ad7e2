#include "host/trust/CommandTrust.h"

#include <filesystem>
#include <sstream>
#include <system_error>
#include <utility>

#include "host/model/PathNames.h"
#include "host/platform/AtomicFile.h"
#include "host/platform/Clock.h"
#include "host/platform/ContentHash.h"

namespace veldra::host {

namespace {

constexpr std::size_t TrustFileLimit = std::size_t{4} << 20;

/// Every text with its length before it, so that no two lists have the same bytes.
void append(std::string& bytes, const std::string& text) {
  bytes += std::to_string(text.size()) + ':' + text;
}

std::string hashOf(const std::vector<ForeignCommand>& commands) {
  std::string bytes;
  for (const ForeignCommand& command : commands) {
    append(bytes, command.key.subject);
    append(bytes, command.key.metaclass);
    append(bytes, command.key.name);
    append(bytes, command.value);
  }
  return contentHash(bytes);
}

/// One line of the list: the hash, and for whoever reads the file the day and the project.
std::string lineFor(const std::string& hash, const std::string& project) {
  std::string line = hash + ' ' + dateText(localTimeNow()) + ' ';
  for (const char c : project) line += static_cast<unsigned char>(c) < 0x20 ? '?' : c;
  return line + '\n';
}

}  // namespace

std::string trustFileBeside(const std::string& userFile) {
  return userFile.empty() ? std::string() : joinPath(parentPath(userFile), "trusted-commands");
}

CommandTrust::CommandTrust(const PropertyLayers& layers, std::string file)
    : m_layers(layers), m_file(std::move(file)) {}

bool CommandTrust::isRemembered(const std::string& hash) const {
  if (m_file.empty() || hash.empty()) return false;
  const Result<std::string> text = readFile(m_file, TrustFileLimit);
  if (!text) return false;
  std::istringstream lines(*text);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(hash + ' ')) return true;
  }
  return false;
}

bool CommandTrust::isTrusted() const {
  const std::vector<ForeignCommand> brought = commands();
  return brought.empty() || isRemembered(hashOf(brought));
}

std::optional<std::string> CommandTrust::trust(const std::string& project) {
  if (isTrusted()) return std::nullopt;
  if (m_file.empty()) {
    return "There is no place to remember it: set HOME, XDG_CONFIG_HOME or VELDRA_USER.";
  }
  const std::string hash = hashOf(commands());
  if (hash.empty()) return "The commands cannot be hashed; the system's library refuses.";
  std::error_code failed;
  std::filesystem::create_directories(std::filesystem::path(m_file).parent_path(), failed);
  std::string text;
  if (std::filesystem::exists(m_file, failed)) {
    const Result<std::string> present = readFile(m_file, TrustFileLimit);
    if (!present) return present.error();
    text = *present;
    if (!text.empty() && !text.ends_with('\n')) text += '\n';
  }
  return writeFileAtomically(m_file, text + lineFor(hash, project));
}

}  // namespace veldra::host
