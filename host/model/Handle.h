#pragma once

#include <memory>
#include <utility>

#include "cm/host/IDObject.h"

namespace veldra::host {

/// What an object and the handles on it share; the object clears it when it dies. A new object at
/// the same address has another one.
struct Lifeline {
  IDObject* object = nullptr;
};

/// A weak reference to a model object.
class Handle : public IHandle {
 public:
  explicit Handle(std::shared_ptr<const Lifeline> lifeline) : m_lifeline(std::move(lifeline)) {}
  IDObject* doGetObject() const override { return m_lifeline->object; }

 private:
  std::shared_ptr<const Lifeline> m_lifeline;
};

/// An object's end of its handles; made when the first handle is asked for.
class LifelineHolder {
 public:
  LifelineHolder() = default;
  LifelineHolder(const LifelineHolder&) = delete;
  LifelineHolder& operator=(const LifelineHolder&) = delete;
  ~LifelineHolder() { cut(); }

  const std::shared_ptr<Lifeline>& of(IDObject& object) {
    if (!m_lifeline) m_lifeline = std::make_shared<Lifeline>(Lifeline{&object});
    return m_lifeline;
  }
  std::unique_ptr<IHandle> handle(IDObject& object) { return std::make_unique<Handle>(of(object)); }

  /// The object counts as dead from now on.
  void cut() {
    if (m_lifeline) m_lifeline->object = nullptr;
    m_lifeline.reset();
  }

 private:
  std::shared_ptr<Lifeline> m_lifeline;
};

}  // namespace veldra::host
