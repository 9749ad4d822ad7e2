#include "tests/cm/scc/ProviderTest.h"

#include <algorithm>
#include <iterator>

#include "cm/host/IPN.h"
#include "cm/scc/SCCConnectToCMRepository.h"
#include "cm/templates/CMProperty.h"

namespace veldra::test {

namespace {

Lines linesWith(const Lines& lines, const std::string& beginning) {
  Lines found;
  std::ranges::copy_if(lines, std::back_inserter(found),
                       [&](const std::string& line) { return line.starts_with(beginning); });
  return found;
}

}  // namespace

ProviderTest::ProviderTest() {
  std::string error;
  m_library = m_realLibraries.load(VELDRA_RECORDING_PROVIDER, error);
  EXPECT_NE(m_library, nullptr) << error;
  m_provider = reinterpret_cast<RecordedProvider* (*)()>(m_library->find("recordedProvider"))();
  *m_provider = {};
  m_host.loader = &m_realLibraries;
  m_project.showsStatus = true;
  set("ProjName", "Proj", IPN::SCC);
  set("AuxProjPath", "Aux", IPN::SCC);
  set("AskOnCheckoutReadWrite", "No", IPN::SCC);
  registerProvider(VELDRA_RECORDING_PROVIDER);
  m_arguments = {&m_comment};
}

ProviderTest::~ProviderTest() {
  *m_provider = {};
}

void ProviderTest::registerProvider(const std::string& library) {
  m_host.files.write(library, "library");
  m_host.memoryRegistry.write(Key, "ProviderRegKey", "Software\\Recorder");
  m_host.memoryRegistry.write("Software\\Recorder", "SccServerPath", library);
  useProvider();
}

Lines ProviderTest::calls(const std::string& word) const {
  return linesWith(m_provider->calls, word);
}

Lines ProviderTest::traces(const std::string& word) const {
  return linesWith(m_host.traceLog.texts(), word);
}

Lines ProviderTest::shown() const {
  Lines texts;
  for (const MemoryMessages::Shown& message : m_host.memoryMessages.asked) {
    texts.push_back(message.text);
  }
  return texts;
}

void ProviderTest::forget() {
  forgetEvents();
  m_provider->calls.clear();
  m_host.memoryMessages.asked.clear();
  m_host.memoryProgress.ended.clear();
}

void ProviderTest::connect() {
  pvContextStruct* context = nullptr;
  EXPECT_EQ(SCCConnectToCMRepository().getSccContext(context, nullptr), 1);
  forget();
}

}  // namespace veldra::test
