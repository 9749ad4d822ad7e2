// A provider with one fault per archive project: the project's name is that of the fault. The
// faults show in SccGet unless they are about another call. Before there is a project, the variable
// VELDRA_PROVIDER_FAULT names one.

#include <atomic>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>

#include "cm/scc/SccInterface.h"
#include "tests/providers/misbehaving/Unload.h"

namespace {

using namespace veldra::scc;

char fault[64];
LPTEXTOUTPROC textOut = nullptr;
std::atomic<bool> isReleased{false};

bool isFault(const char* name) {
  return std::strcmp(fault, name) == 0;
}

/// Every byte that the interface gives a buffer, without a NUL at its end.
void fillUp(LPSTR buffer, LONG size) {
  std::memset(buffer, 'x', static_cast<std::size_t>(size));
}

void crash() {
  // Nobody's memory, and not null: a sanitizer would catch that before the processor does.
  volatile std::uintptr_t nowhere = 64;
  *reinterpret_cast<volatile int*>(nowhere) = 1;
}

void sayFromAnotherThread() {
  std::thread speaker([] {
    char text[] = "from another thread";
    for (int i = 0; i < 100; ++i) textOut(text, SCC_MSG_INFO);
  });
  speaker.join();
}

void hang() {
  while (!isReleased) std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

SCCRTN wordCode() {
  return isFault("wrong codes") ? 123456 : SCC_OK;
}

}  // namespace

extern "C" {

SCC_EXPORT void releaseMisbehaving() {
  isReleased = true;
}

SCC_EXPORT SCCRTN SccInitialize(LPVOID* context, HWND, LPCSTR, LPSTR name, LPLONG capabilities,
                                LPSTR label, LPLONG, LPLONG) {
  if (std::getenv("VELDRA_PROVIDER_FAULT") != nullptr) crash();
  *context = &isReleased;
  // What kind of fault it is, only SccOpenProject learns; full buffers hurt nobody.
  fillUp(name, SCC_NAME_SIZE);
  fillUp(label, SCC_AUXLABEL_SIZE);
  *capabilities = -1;
  return SCC_OK;
}

SCC_EXPORT SCCRTN SccOpenProject(LPVOID, HWND, LPSTR user, LPCSTR project, LPCSTR, LPSTR aux,
                                 LPCSTR, LPTEXTOUTPROC out, LONG) {
  std::strncpy(fault, project, sizeof fault - 1);
  textOut = out;
  if (isFault("crash in open")) crash();
  if (isFault("full buffers")) {
    fillUp(user, SCC_USER_SIZE);
    fillUp(aux, SCC_PRJPATH_SIZE);
    // The published page says that a provider may write here.
    fillUp(const_cast<LPSTR>(project), SCC_PRJPATH_SIZE);
  }
  return SCC_OK;
}

SCC_EXPORT LONG SccGetVersion() {
  return SCC_VERSION_1_1;
}
SCC_EXPORT SCCRTN SccCloseProject(LPVOID) {
  return SCC_OK;
}
SCC_EXPORT SCCRTN SccSetOption(LPVOID, LONG, LONG) {
  return SCC_OK;
}
SCC_EXPORT SCCRTN SccCheckout(LPVOID, HWND, LONG, LPCSTR*, LPCSTR, LONG, LPCMDOPTS) {
  return wordCode();
}
SCC_EXPORT SCCRTN SccUncheckout(LPVOID, HWND, LONG, LPCSTR*, LONG, LPCMDOPTS) {
  return wordCode();
}
SCC_EXPORT SCCRTN SccCheckin(LPVOID, HWND, LONG, LPCSTR*, LPCSTR, LONG, LPCMDOPTS) {
  return wordCode();
}
SCC_EXPORT SCCRTN SccAdd(LPVOID, HWND, LONG, LPCSTR*, LPCSTR, LPLONG, LPCMDOPTS) {
  return wordCode();
}
SCC_EXPORT SCCRTN SccUninitialize(LPVOID) {
  return SCC_OK;
}

SCC_EXPORT SCCRTN SccQueryInfo(LPVOID, LONG count, LPCSTR*, LPLONG status) {
  const LONG filled = isFault("half status") ? count / 2 : count;
  for (LONG i = 0; i < filled; ++i) status[i] = SCC_STATUS_CONTROLLED;
  return wordCode();
}

SCC_EXPORT SCCRTN SccGet(LPVOID, HWND, LONG, LPCSTR*, LONG, LPCMDOPTS) {
  if (isFault("crash")) crash();
  if (isFault("throw")) throw std::runtime_error("out of words");
  if (isFault("hang")) hang();
  if (isFault("unload")) veldra::test::unloadMyself();
  if (isFault("another thread")) sayFromAnotherThread();
  if (isFault("null text")) textOut(nullptr, SCC_MSG_DOCANCEL);
  return wordCode();
}

SCC_EXPORT SCCRTN SccPopulateList(LPVOID, SCCCOMMAND, LONG, LPCSTR* files, POPLISTFUNC populate,
                                  LPVOID data, LPLONG, LONG) {
  char endless[70000];
  fillUp(endless, sizeof endless - 1);
  endless[sizeof endless - 1] = '\0';
  std::memcpy(endless, files[0], std::strlen(files[0]));
  endless[std::strlen(files[0])] = '/';
  populate(data, 1, 1, endless);
  char outside[] = "/somewhere/else.vcl";
  populate(data, 1, 1, outside);
  std::string climbing = std::string(files[0]) + "/a/../../else.vcl";
  populate(data, 1, 1, climbing.data());
  populate(data, 1, 1, nullptr);
  return wordCode();
}

}  // extern "C"
