#pragma once

#include <memory>
#include <string>
#include <vector>

#include "cm/core/CMArguments.h"
#include "cm/core/CMFacade.h"
#include "host/platform/Libraries.h"
#include "tests/providers/recording/RecordedProvider.h"
#include "tests/support/ToolTest.h"

namespace veldra::test {

/// A project "Plant" whose provider is the recording one, a real library that the registry names
/// and that is loaded at run time. The project belongs to the archive project "Proj".
class ProviderTest : public ToolTest {
 protected:
  ProviderTest();
  ~ProviderTest() override;

  static constexpr char Key[] = "Software\\SourceCodeControlProvider";
  /// Registers a library and lets the module look for it.
  void registerProvider(const std::string& library);

  /// The calls since the last `forget`, and those of them that begin with a word.
  const Lines& calls() const { return m_provider->calls; }
  Lines calls(const std::string& word) const;
  Lines traces(const std::string& word) const;
  /// The texts that the user was shown.
  Lines shown() const;
  void forget();
  /// Opens the context, so that a test sees the calls of its operation alone.
  void connect();

  host::Libraries m_realLibraries;
  std::unique_ptr<ILibrary> m_library;
  RecordedProvider* m_provider;
  CMLog m_comment{"why"};
};

}  // namespace veldra::test
