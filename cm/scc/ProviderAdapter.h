#pragma once

#include <memory>
#include <string>

namespace veldra {

class pvContextStruct;

/// What a provider needs besides the published calls. One adapter serves one batch.
class ProviderAdapter {
 public:
  virtual ~ProviderAdapter() = default;
  /// Before files are checked out; `comment` may be changed. False when the user gave up: then
  /// nothing is checked out.
  [[nodiscard]] virtual bool beforeCheckOut(const pvContextStruct& context, std::string& comment);

  /// The one for the provider that is connected.
  static std::unique_ptr<ProviderAdapter> forProvider();
};

}  // namespace veldra
