#pragma once

#include <optional>
#include <string>
#include <utility>

namespace veldra::host {

/// A value, or a sentence for the user that says why there is none.
template <class T>
class [[nodiscard]] Result {
 public:
  Result(T value) : m_value(std::move(value)) {}

  static Result failure(std::string reason) {
    Result result;
    result.m_error = std::move(reason);
    return result;
  }

  explicit operator bool() const { return m_value.has_value(); }
  T& operator*() { return *m_value; }
  const T& operator*() const { return *m_value; }
  T* operator->() { return &*m_value; }
  const T* operator->() const { return &*m_value; }

  /// The reason; empty when there is a value.
  const std::string& error() const { return m_error; }

 private:
  Result() = default;

  std::optional<T> m_value;
  std::string m_error;
};

}  // namespace veldra::host
