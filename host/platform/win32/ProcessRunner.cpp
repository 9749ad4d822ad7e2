#include "host/platform/ProcessRunner.h"

#include <array>
#include <cstdio>
#include <span>

#include "host/platform/SystemError.h"
#include "host/platform/win32/EventWait.h"
#include "host/platform/win32/OpenFile.h"
#include "host/platform/win32/OutputFile.h"

namespace veldra::host {

namespace {

struct KnownNumber {
  DWORD number;
  const char* text;
};

constexpr char TooLong[] = "its command line is too long for the system; pass long texts in a file";

/// What the system's own words would not tell about a program that exists.
constexpr std::array<KnownNumber, 5> StartErrors = {{
    {ERROR_FILENAME_EXCED_RANGE, TooLong},
    {ERROR_INVALID_PARAMETER, TooLong},
    {ERROR_BAD_EXE_FORMAT, "it is no program of this system"},
    {ERROR_NO_UNICODE_TRANSLATION, "its command line is not in UTF-8"},
    {740,  // ERROR_ELEVATION_REQUIRED, which older headers lack
     "it wants an administrator's rights; run this program with them"},
}};

constexpr std::array<KnownNumber, 6> Exceptions = {{
    {EXCEPTION_ACCESS_VIOLATION, "invalid memory access"},
    {EXCEPTION_INT_DIVIDE_BY_ZERO, "division by zero"},
    {EXCEPTION_ILLEGAL_INSTRUCTION, "illegal instruction"},
    {EXCEPTION_STACK_OVERFLOW, "no stack left"},
    {0xC0000135, "a library that it needs is missing"},
    {0xC000013A, "interrupted"},
}};

const char* textOf(std::span<const KnownNumber> known, DWORD number) {
  for (const KnownNumber& row : known) {
    if (row.number == number) return row.text;
  }
  return nullptr;
}

}  // namespace

bool ProcessRunner::isCancelled() const {
  return m_cancel.isRaised();
}

Result<CommandRun::Ending> ProcessRunner::runChild(Start& start, std::uint32_t timeout) {
  OutputPipe output(this->output(), settings().watch);
  OutputPipe errors(this->errors(), settings().watch);
  ChildProcess child;
  if (const std::string reason = startChild(start, child, output, errors); !reason.empty())
    return Result<Ending>::failure(reason);
  EventWait wait(child, output, errors, m_cancel, settings());
  const auto stop = wait.run(timeout);
  return Ending{stop, child.finish(wait.wasForced()), errors.endsInsideLine()};
}

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

std::string ProcessRunner::systemStartError(int error) const {
  const char* const known = textOf(StartErrors, static_cast<DWORD>(error));
  return startError(known != nullptr ? known : systemErrorText(error));
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
