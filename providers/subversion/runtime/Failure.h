#pragma once

#include <svn_error.h>

#include <exception>
#include <string>

#include "cm/scc/interface/SccResults.h"

namespace veldra::subversion {

/// Why an entry point cannot do what it was asked. It never leaves the library: the entry points
/// turn it into a text and a result.
class Failure : public std::exception {
 public:
  Failure(scc::SCCRTN result, std::string text);
  /// For an error of libsvn, which stays the caller's.
  explicit Failure(const svn_error_t& error);

  scc::SCCRTN result() const { return m_result; }
  /// For the user; empty when there is nothing to add to the result.
  const std::string& text() const { return m_text; }
  const char* what() const noexcept override { return m_text.c_str(); }
  /// Whether the working copy's records are in the hands of somebody, who may be gone.
  bool isAboutRecords() const { return m_isAboutRecords; }

 private:
  scc::SCCRTN m_result;
  std::string m_text;
  bool m_isAboutRecords = false;
};

/// The result that fits an error of libsvn.
[[nodiscard]] scc::SCCRTN resultOf(const svn_error_t* error);

/// An error and its causes in one line, each once.
[[nodiscard]] std::string textOf(const svn_error_t* error);

/// Throws a `Failure` for an error, which is cleared.
void check(svn_error_t* error);

/// Clears an error that is one of these and says whether there was one. Throws for any other.
template <class... Codes>
[[nodiscard]] bool isOneOf(svn_error_t* error, Codes... codes) {
  if (!error) return false;
  if ((... || (svn_error_find_cause(error, codes) != nullptr))) {
    svn_error_clear(error);
    return true;
  }
  check(error);
  return false;
}

/// Runs code that may throw where libsvn is the caller, which knows only its own errors.
template <class Body>
svn_error_t* withoutThrowing(Body body) noexcept {
  try {
    body();
    return SVN_NO_ERROR;
  } catch (...) {
    return svn_error_create(APR_ENOMEM, nullptr, nullptr);
  }
}

}  // namespace veldra::subversion
