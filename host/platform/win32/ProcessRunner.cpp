#include "host/platform/ProcessRunner.h"

#include <array>
#include <cstdio>

#include "host/platform/NumberedText.h"
#include "host/platform/win32/ChildProcess.h"
#include "host/platform/win32/OpenFile.h"
#include "host/platform/win32/OutputFile.h"
#include "host/platform/win32/OutputPipe.h"

namespace veldra::host {

namespace {

constexpr char TooLong[] = "its command line is too long for the system; pass long texts in a file";

constexpr std::array<NumberedText<DWORD>, 5> StartErrors = {{
    {ERROR_FILENAME_EXCED_RANGE, TooLong},
    {ERROR_INVALID_PARAMETER, TooLong},
    {ERROR_BAD_EXE_FORMAT, "it is no program of this system"},
    {ERROR_NO_UNICODE_TRANSLATION, "its command line is not in UTF-8"},
    {740,  // ERROR_ELEVATION_REQUIRED, which older headers lack
     "it wants an administrator's rights; run this program with them"},
}};

constexpr std::array<NumberedText<DWORD>, 6> Exceptions = {{
    {EXCEPTION_ACCESS_VIOLATION, "invalid memory access"},
    {EXCEPTION_INT_DIVIDE_BY_ZERO, "division by zero"},
    {EXCEPTION_ILLEGAL_INSTRUCTION, "illegal instruction"},
    {EXCEPTION_STACK_OVERFLOW, "no stack left"},
    {0xC0000135, "a library that it needs is missing"},
    {0xC000013A, "interrupted"},
}};

}  // namespace

std::string ProcessRunner::startChild(Start& start, ChildProcess& child, OutputPipe& output,
                                      OutputPipe& errors) {
  SystemHandle nowhere;
  HANDLE childOutput = nullptr;
  if (m_output == Output::Kept) childOutput = output.open();
  if (m_output == Output::File) childOutput = static_cast<const OutputFile*>(m_file)->handle();
  if (m_output == Output::Nowhere) {
    nowhere.reset(CreateFileW(L"NUL", GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                              OPEN_EXISTING, 0, nullptr));
    childOutput = nowhere ? nowhere.get() : nullptr;
  }
  if (childOutput == nullptr) return systemStartError(lastError());
  const HANDLE childErrors = errors.open();
  if (childErrors == nullptr) return systemStartError(lastError());
  const int error =
      child.start(start.program, start.arguments, settings().environment, childOutput, childErrors);
  output.releaseChildEnd();
  errors.releaseChildEnd();
  if (error != 0) return systemStartError(error);
  if (m_output == Output::Kept) output.start();
  errors.start();
  return {};
}

const char* ProcessRunner::knownStartError(int error) {
  return textOf(StartErrors, static_cast<DWORD>(error));
}

std::string ProcessRunner::crashText(int exception) const {
  const auto number = static_cast<DWORD>(exception);
  const char* const known = textOf(Exceptions, number);
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), "exception 0x%08lX (%s)", number,
                known != nullptr ? known : "unknown");
  return text.data();
}

}  // namespace veldra::host
