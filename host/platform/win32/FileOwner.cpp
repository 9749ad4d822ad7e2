#include "host/platform/win32/FileOwner.h"

#include <aclapi.h>
#include <sddl.h>

#include <vector>

#include "host/platform/Program.h"
#include "host/platform/win32/SystemHandle.h"
#include "host/platform/win32/WideText.h"

namespace veldra::host {

namespace {

/// One of the facts about whom this process runs for; empty when the system does not tell.
std::vector<BYTE> tokenFact(TOKEN_INFORMATION_CLASS fact) {
  HANDLE token = nullptr;
  if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token)) return {};
  const SystemHandle closing(token);
  DWORD size = 0;
  GetTokenInformation(token, fact, nullptr, 0, &size);
  std::vector<BYTE> bytes(size);
  if (!GetTokenInformation(token, fact, bytes.data(), size, &size)) return {};
  return bytes;
}

PSID userIn(const std::vector<BYTE>& fact) {
  return reinterpret_cast<const TOKEN_USER*>(fact.data())->User.Sid;
}

/// An administrator's new files belong to the group of them.
PSID ownerIn(const std::vector<BYTE>& fact) {
  return reinterpret_cast<const TOKEN_OWNER*>(fact.data())->Owner;
}

bool isOwnName(PSID owner) {
  const std::vector<BYTE> user = tokenFact(TokenUser);
  const std::vector<BYTE> group = tokenFact(TokenOwner);
  return (!user.empty() && EqualSid(owner, userIn(user))) ||
         (!group.empty() && EqualSid(owner, ownerIn(group)));
}

}  // namespace

bool belongsToUser(const std::string& path) {
  const SystemHandle file(
      CreateFileW(nativePath(path).c_str(), READ_CONTROL,
                  FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, nullptr, OPEN_EXISTING,
                  FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr));
  PSID owner = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (!file || GetSecurityInfo(file.get(), SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION, &owner,
                               nullptr, nullptr, nullptr, &descriptor) != ERROR_SUCCESS) {
    return false;
  }
  const bool isOwn = isOwnName(owner);
  LocalFree(descriptor);
  return isOwn;
}

PrivateAccess::PrivateAccess() {
  const std::vector<BYTE> user = tokenFact(TokenUser);
  wchar_t* name = nullptr;
  if (user.empty() || !ConvertSidToStringSidW(userIn(user), &name)) return;
  // Every right, for what is made inside too, and nothing taken over from the folder above.
  const std::wstring rights = std::wstring(L"D:P(A;OICI;FA;;;") + name + L")";
  LocalFree(name);
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  if (!ConvertStringSecurityDescriptorToSecurityDescriptorW(rights.c_str(), SDDL_REVISION_1,
                                                            &descriptor, nullptr)) {
    return;
  }
  m_descriptor.reset(descriptor);
  m_attributes = {sizeof m_attributes, descriptor, FALSE};
}

}  // namespace veldra::host
