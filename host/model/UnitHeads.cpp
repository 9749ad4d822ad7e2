#include "host/model/UnitHeads.h"

#include <array>
#include <future>
#include <span>
#include <thread>
#include <utility>

#include "host/model/CMHeader.h"
#include "host/model/HeadCache.h"
#include "host/model/ModelText.h"
#include "host/model/PathNames.h"
#include "host/platform/AtomicFile.h"

namespace veldra::host {
namespace {

// Most unit files are shorter than this, so that one look takes them in whole.
constexpr std::size_t HeadSize = 16384;
static_assert(HeadSize >= HeaderSearchSize);

constexpr char FetchAgain[] = "Fetch the file again from the archive.";

std::optional<Problem> problemOf(const FileFacts& head, const std::string& path) {
  switch (head.state) {
    case FileHead::State::Readable:
      return std::nullopt;
    case FileHead::State::Missing:
      return Problem{path, "The file is not there.", FetchAgain};
    case FileHead::State::NotAFile:
      return Problem{path, "It is a folder or a device, not a file.",
                     "Move it away and fetch the file from the archive."};
    case FileHead::State::NotPermitted:
      return Problem{path, "The file may not be read.", "Give yourself the right to read it."};
    case FileHead::State::Unreadable:
      break;
  }
  return Problem{path, "The file cannot be read: " + head.error + ".", FetchAgain};
}

/// Fills in what the text of one of Veldra's own files says. False when more of it is needed.
bool takeModelText(UnitHead& unit, std::string_view text, bool isWhole) {
  ModelHead head = readModelHead(text, isWhole);
  if (head.state == ModelHead::State::Broken) {
    unit.problem = std::move(head.problem);
    unit.header = text.substr(0, commentHeaderLength(text));
    return true;
  }
  if (head.state == ModelHead::State::Short || !isWhole) return false;
  unit.header = head.header;
  unit.unitType = std::move(head.type);
  unit.name = std::move(head.name);
  const std::string_view body = text.substr(head.header.size());
  // Without their quotes: a search for a rare first character is several times as fast.
  unit.mentionsControlled = body.find("controlled") != std::string_view::npos;
  unit.mentionsProperties = body.find("properties") != std::string_view::npos;
  const std::size_t last = body.find_last_not_of(" \t\r\n");
  if (body[last] != '}') {
    unit.problem = Problem{{}, "The file is cut off.", FetchAgain};
  }
  return true;
}

void takeOwnFile(UnitHead& unit, const FileHead& head, const std::string& path) {
  if (!takeModelText(unit, head.bytes, head.size == head.bytes.size())) {
    const Result<std::string> whole = readFile(path, ModelFileLimit);
    if (whole) {
      (void)takeModelText(unit, *whole, true);
    } else {
      unit.problem = Problem{path, whole.error(), FetchAgain};
    }
  }
  if (unit.problem) unit.problem->file = path;
}

UnitHead readWith(const std::string& path, const FileType* type, std::span<char> buffer) {
  UnitHead unit;
  unit.isOwn = type && type->own;
  const FileHead head = readFileHead(path, unit.isOwn ? buffer : buffer.first(HeaderSearchSize));
  const FileFacts& facts = head;
  unit.facts = facts;
  unit.problem = problemOf(head, path);
  unit.mode = modeOf(head);
  if (unit.problem) return unit;
  if (unit.isOwn) {
    takeOwnFile(unit, head, path);
  } else {
    unit.header = keywordLines(head.bytes);
  }
  return unit;
}

void readRange(std::span<const HeadRequest> requests, std::span<UnitHead> heads,
               const HeadCache& cache) {
  std::vector<char> buffer(HeadSize);
  std::string path;
  for (std::size_t at = 0; at < requests.size(); ++at) {
    path.assign(requests[at].directory).append(1, HostSeparator).append(requests[at].fileName);
    const bool isOwn = requests[at].type && requests[at].type->own;
    const bool known = !cache.isEmpty() && cache.fill(heads[at], readFileFacts(path), isOwn);
    if (!known) heads[at] = readWith(path, requests[at].type, buffer);
  }
}

}  // namespace

FileMode modeOf(const FileFacts& facts) {
  if (facts.state == FileFacts::State::Missing) return FileMode::Unknown;
  return facts.ownerMayWrite ? FileMode::ReadWrite : FileMode::ReadOnly;
}

UnitHead readUnitHead(const std::string& path, const FileType* type) {
  std::array<char, HeadSize> buffer;
  return readWith(path, type, buffer);
}

std::vector<UnitHead> readUnitHeads(const std::vector<HeadRequest>& requests,
                                    const HeadCache& cache) {
  std::vector<UnitHead> heads(requests.size());
  const std::span<const HeadRequest> all(requests);
  const std::span<UnitHead> answers(heads);
  if (requests.size() < ManyHeads || std::thread::hardware_concurrency() < 2) {
    readRange(all, answers, cache);
    return heads;
  }
  const std::size_t half = requests.size() / 2;
  std::future<void> first =
      std::async([&] { readRange(all.first(half), answers.first(half), cache); });
  readRange(all.subspan(half), answers.subspan(half), cache);
  first.get();
  return heads;
}

}  // namespace veldra::host
