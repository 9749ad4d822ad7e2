#include "cm/scc/ProviderSearch.h"

#include <optional>
#include <string>

#include "cm/host/Host.h"
#include "cm/host/MessageIds.h"
#include "cm/scc/ProviderState.h"
#include "cm/templates/CMProperty.h"

namespace veldra {

namespace {

constexpr char ProvidersKey[] = "Software\\SourceCodeControlProvider";

/// The registry's value serves as a format with one value. It comes from outside: only the first
/// placeholder is filled in, and every other percent sign stays what it is.
std::string fillServerName(std::string format) {
  const std::size_t placeholder = format.find("%s");
  if (placeholder != std::string::npos) format.replace(placeholder, 2, "SCCServerName");
  return format;
}

/// The library's path. Nothing when a key, a value or the file is missing.
std::optional<std::string> findLibrary() {
  Host* const host = installedHost();
  IRegistry* const registry = host != nullptr ? host->registry() : nullptr;
  if (registry == nullptr) return std::nullopt;
  const std::optional<std::string> subkey =
      registry->localMachineText(ProvidersKey, "ProviderRegKey");
  if (!subkey) return std::nullopt;
  std::optional<std::string> path =
      registry->localMachineText(fillServerName(*subkey), "SccServerPath");
  return path && omFileExist(*path) ? path : std::nullopt;
}

}  // namespace

void locateProvider() {
  ProviderState& state = providerState();
  const std::optional<std::string> path = findLibrary();
  state.libraryFound = path.has_value();
  state.libraryPath = path.value_or("");
  if (!path) notifyUserAndAsk(loadMessage(MessageId::ProviderNotLocated), MessageBox::IconError);
}

void loadProviderOnce() {
  if (CMProperty::getIsLoaded()) return;
  VELDRA_TRACE("Invoking LoadDll");
  ProviderState& state = providerState();
  if (!state.libraryPath.empty()) state.dll.setPath(state.libraryPath.c_str());
  state.dll.load();
  CMProperty::setIsLoaded(true);
  if (state.dll.isLoaded() || state.libraryPath.empty()) return;
  notifyUserAndAsk(
      formatMessage(MessageId::ProviderNotLoaded, {state.libraryPath, state.dll.loadError()}),
      MessageBox::IconError);
}

}  // namespace veldra
