#include "host/platform/win32/ChildProcess.h"

#include <array>
#include <memory>
#include <optional>

#include "host/platform/win32/ChildCommandLine.h"
#include "host/platform/win32/ChildEnvironment.h"
#include "host/platform/win32/OpenFile.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

namespace {

// How long the end of a job may take; a process that is stuck in the system takes longer.
constexpr DWORD EndMilliseconds = 1000;
// The system's limit, without the zero at its end; where it is not kept, a child would get less.
constexpr std::size_t LongestLine = 32766;
// What the ended processes leave as their exit code; nobody reads it.
constexpr UINT EndedCode = 1;
// Exit codes from here on are the system's: what a fault that nobody handled leaves behind.
constexpr DWORD FirstFault = 0xC0000000;

/// The list of the handles that a child inherits, whatever else may be inherited.
class InheritedHandles {
 public:
  explicit InheritedHandles(std::array<HANDLE, 3> handles) : m_handles(handles) {
    SIZE_T size = 0;
    InitializeProcThreadAttributeList(nullptr, 1, 0, &size);
    m_memory = std::make_unique<char[]>(size);
    auto* const list = reinterpret_cast<LPPROC_THREAD_ATTRIBUTE_LIST>(m_memory.get());
    if (!InitializeProcThreadAttributeList(list, 1, 0, &size)) return;
    m_list = list;
    m_isComplete =
        UpdateProcThreadAttribute(m_list, 0, PROC_THREAD_ATTRIBUTE_HANDLE_LIST, m_handles.data(),
                                  sizeof m_handles, nullptr, nullptr) != 0;
  }
  ~InheritedHandles() {
    if (m_list != nullptr) DeleteProcThreadAttributeList(m_list);
  }
  InheritedHandles(const InheritedHandles&) = delete;
  InheritedHandles& operator=(const InheritedHandles&) = delete;

  /// Null when the system refuses; a child would then inherit everything.
  LPPROC_THREAD_ATTRIBUTE_LIST list() const { return m_isComplete ? m_list : nullptr; }

 private:
  std::array<HANDLE, 3> m_handles;
  std::unique_ptr<char[]> m_memory;
  LPPROC_THREAD_ATTRIBUTE_LIST m_list = nullptr;
  bool m_isComplete = false;
};

/// A copy that children may inherit.
SystemHandle inheritable(HANDLE handle) {
  HANDLE copy = nullptr;
  DuplicateHandle(GetCurrentProcess(), handle, GetCurrentProcess(), &copy, 0, TRUE,
                  DUPLICATE_SAME_ACCESS);
  return SystemHandle(copy);
}

SystemHandle emptyInput() {
  SECURITY_ATTRIBUTES inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
  return SystemHandle(CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                  &inherited, OPEN_EXISTING, 0, nullptr));
}

/// A job, which a program that means to stay may leave.
SystemHandle makeJob() {
  SystemHandle job(CreateJobObjectW(nullptr, nullptr));
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_BREAKAWAY_OK;
  SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
  return job;
}

}  // namespace

ChildProcess::~ChildProcess() {
  if (m_process) finish(true);
}

int ChildProcess::start(const std::string& program, const std::vector<std::string>& arguments,
                        const std::map<std::string, std::string>& environment, HANDLE output,
                        HANDLE errors) {
  std::optional<std::wstring> line = childCommandLine(arguments);
  const std::optional<std::wstring> variables = childEnvironment(environment);
  if (!line || !variables) return ERROR_NO_UNICODE_TRANSLATION;
  if (line->size() > LongestLine) return ERROR_FILENAME_EXCED_RANGE;
  const SystemHandle input = emptyInput();
  const SystemHandle childOutput = inheritable(output);
  const SystemHandle childErrors = inheritable(errors);
  const InheritedHandles handles({input.get(), childOutput.get(), childErrors.get()});
  if (handles.list() == nullptr) return ERROR_NO_SYSTEM_RESOURCES;

  STARTUPINFOEXW startup{};
  startup.StartupInfo.cb = sizeof startup;
  startup.StartupInfo.dwFlags = STARTF_USESTDHANDLES;
  startup.StartupInfo.hStdInput = input.get();
  startup.StartupInfo.hStdOutput = childOutput.get();
  startup.StartupInfo.hStdError = childErrors.get();
  startup.lpAttributeList = handles.list();
  // Suspended, so that nothing which it starts can be born outside of the job; without a console,
  // so that a tool that asks for a password fails instead of waiting.
  constexpr DWORD Flags = CREATE_SUSPENDED | CREATE_NO_WINDOW | CREATE_UNICODE_ENVIRONMENT |
                          EXTENDED_STARTUPINFO_PRESENT;
  PROCESS_INFORMATION started{};
  const std::wstring file = nativePath(program);
  if (!CreateProcessW(file.c_str(), line->data(), nullptr, nullptr, TRUE, Flags,
                      variables->empty() ? nullptr : const_cast<wchar_t*>(variables->data()),
                      nullptr, &startup.StartupInfo, &started)) {
    return lastError();
  }
  const SystemHandle thread(started.hThread);
  m_process.reset(started.hProcess);
  m_job = makeJob();
  if (!AssignProcessToJobObject(m_job.get(), m_process.get())) {
    const int error = lastError();
    TerminateProcess(m_process.get(), EndedCode);
    m_process.reset();
    return error;
  }
  ResumeThread(thread.get());
  return 0;
}

void ChildProcess::endJob() const {
  TerminateJobObject(m_job.get(), EndedCode);
}

ChildStatus ChildProcess::finish(bool endJob) {
  if (endJob) {
    this->endJob();
    WaitForSingleObject(m_process.get(), EndMilliseconds);
  }
  DWORD code = STILL_ACTIVE;
  const bool known = GetExitCodeProcess(m_process.get(), &code) != 0 &&
                     WaitForSingleObject(m_process.get(), 0) == WAIT_OBJECT_0;
  m_process.reset();
  m_job.reset();
  if (!known) return {};
  const auto kind = code >= FirstFault ? ChildStatus::Kind::Crashed : ChildStatus::Kind::Exited;
  return {kind, static_cast<int>(code)};
}

}  // namespace veldra::host
