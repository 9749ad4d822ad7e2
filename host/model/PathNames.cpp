#include "host/model/PathNames.h"

#include <algorithm>
#include <filesystem>
#include <system_error>
#include <vector>

namespace veldra::host {
namespace fs = std::filesystem;

namespace {

std::size_t dotOf(std::string_view fileName) {
  const std::size_t dot = fileName.rfind('.');
  return dot == 0 ? std::string_view::npos : dot;
}

}  // namespace

std::string joinPath(std::string_view directory, std::string_view name) {
  std::string path;
  path.reserve(directory.size() + 1 + name.size());
  path = directory;
  if (!path.empty() && path.back() != HostSeparator) path += HostSeparator;
  return path += name;
}

std::string_view baseName(std::string_view path) {
  const std::size_t cut = path.rfind(HostSeparator);
  return cut == std::string_view::npos ? path : path.substr(cut + 1);
}

std::string_view parentPath(std::string_view path) {
  const std::size_t cut = path.rfind(HostSeparator);
  return cut == std::string_view::npos ? std::string_view() : path.substr(0, cut);
}

std::string lowerCase(std::string_view text) {
  std::string lower(text);
  std::transform(lower.begin(), lower.end(), lower.begin(), [](char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  });
  return lower;
}

std::string extensionOf(std::string_view fileName) {
  const std::size_t dot = dotOf(fileName);
  return dot == std::string_view::npos ? std::string() : lowerCase(fileName.substr(dot));
}

std::string_view stemOf(std::string_view fileName) {
  return fileName.substr(0, dotOf(fileName));
}

bool isInside(std::string_view directory, std::string_view path) {
  if (!path.starts_with(directory)) return false;
  return path.size() == directory.size() || directory.ends_with(HostSeparator) ||
         path[directory.size()] == HostSeparator;
}

std::optional<std::string> plainRelative(std::string_view name) {
  if (name.empty() || name.front() == '/' || name.front() == '\\' ||
      fs::path(std::string(name)).is_absolute()) {
    return std::nullopt;
  }
  std::vector<std::string_view> parts;
  for (std::size_t from = 0; from <= name.size();) {
    const std::size_t to = std::min(name.find_first_of("/\\", from), name.size());
    const std::string_view part = name.substr(from, to - from);
    from = to + 1;
    if (part.empty() || part == ".") continue;
    if (part != "..") {
      parts.push_back(part);
    } else if (parts.empty()) {
      return std::nullopt;
    } else {
      parts.pop_back();
    }
  }
  std::string plain;
  for (const std::string_view part : parts) {
    if (!plain.empty()) plain += HostSeparator;
    plain += part;
  }
  return plain;
}

std::string storedName(std::string relative) {
  std::ranges::replace(relative, HostSeparator, '/');
  return relative;
}

std::string nameFromStored(std::string stored) {
  std::ranges::replace(stored, '/', HostSeparator);
  return stored;
}

std::string absolutePath(const std::string& path) {
  std::error_code failed;
  const fs::path absolute = fs::absolute(path, failed);
  std::string text = (failed ? fs::path(path) : absolute).lexically_normal().string();
  if (text.size() > 1 && text.back() == HostSeparator) text.pop_back();
  return text;
}

}  // namespace veldra::host
