#include "providers/subversion/session/Context.h"

#include <map>

namespace veldra::subversion {
namespace {

/// Every living context. A pointer that is not among them is not followed.
class LivingContexts {
 public:
  static LivingContexts& instance() {
    static LivingContexts living;
    return living;
  }

  scc::LPVOID add(std::shared_ptr<Context> context) {
    const std::lock_guard guard(m_mutex);
    scc::LPVOID const pointer = context.get();
    m_contexts[pointer] = std::move(context);
    return pointer;
  }

  std::shared_ptr<Context> find(scc::LPVOID pointer) {
    const std::lock_guard guard(m_mutex);
    const auto found = m_contexts.find(pointer);
    return found == m_contexts.end() ? nullptr : found->second;
  }

  std::shared_ptr<Context> take(scc::LPVOID pointer) {
    const std::lock_guard guard(m_mutex);
    const auto node = m_contexts.extract(pointer);
    return node.empty() ? nullptr : node.mapped();
  }

 private:
  std::mutex m_mutex;
  std::map<scc::LPVOID, std::shared_ptr<Context>> m_contexts;
};

}  // namespace

scc::LPVOID Context::create() {
  return LivingContexts::instance().add(std::make_shared<Context>());
}

std::shared_ptr<Context> Context::find(scc::LPVOID pointer) {
  return LivingContexts::instance().find(pointer);
}

bool Context::destroy(scc::LPVOID pointer) {
  // Whoever still works with it holds it until the work is done.
  return LivingContexts::instance().take(pointer) != nullptr;
}

}  // namespace veldra::subversion
