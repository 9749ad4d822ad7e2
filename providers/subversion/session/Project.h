#pragma once

#include <string>

#include "providers/subversion/session/Client.h"
#include "providers/subversion/session/TextOutput.h"

namespace veldra::subversion {

/// The project that a context has open: a folder of a repository and its working copy.
struct Project {
  Project(scc::LPTEXTOUTPROC textOut, bool hasCancelMode, const std::string& givenUser)
      : output(textOut), user(givenUser), client(output, givenUser) {
    output.setCancelMode(hasCancelMode);
  }

  TextOutput output;
  std::string user;  ///< Who asks; holders of files are compared with this name.
  Client client;
  std::string url;        ///< Of the folder in the store.
  std::string root;       ///< Of the repository.
  std::string localPath;  ///< In libsvn's form.
};

}  // namespace veldra::subversion
