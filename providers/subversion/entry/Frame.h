#pragma once

#include <exception>
#include <mutex>

#include "cm/scc/interface/SccResults.h"
#include "providers/subversion/runtime/BrokenPipeShield.h"
#include "providers/subversion/runtime/Failure.h"
#include "providers/subversion/session/Context.h"
#include "providers/subversion/session/Records.h"

/// What every entry point does before and after its own work.
namespace veldra::subversion {

/// Turns whatever goes wrong in `body` into a result, and tells the user through `output`.
template <class Body>
scc::SCCRTN guarded(const TextOutput& output, Body body) noexcept {
  try {
    return body();
  } catch (const Failure& failure) {
    if (!failure.text().empty()) output.error(failure.text());
    return failure.result();
  } catch (const std::exception& problem) {
    output.error(problem.what());
    return scc::SCC_E_NONSPECIFICERROR;
  } catch (...) {
    return scc::SCC_E_NONSPECIFICERROR;
  }
}

/// For entry points that need a context only: `body(Context&)`.
template <class Body>
scc::SCCRTN withContext(scc::LPVOID pointer, Body body) noexcept {
  try {
    const std::shared_ptr<Context> context = Context::find(pointer);
    if (!context) return scc::SCC_E_INITIALIZEFAILED;
    const std::lock_guard guard(context->mutex());
    const BrokenPipeShield shield;
    return guarded(TextOutput(), [&] { return body(*context); });
  } catch (...) {
    return scc::SCC_E_NONSPECIFICERROR;
  }
}

/// For entry points that need an open project: `body(Project&)`.
template <class Body>
scc::SCCRTN withProject(scc::LPVOID pointer, Body body) noexcept {
  return withContext(pointer, [&](Context& context) -> scc::SCCRTN {
    if (!context.project) return scc::SCC_E_PROJNOTOPEN;
    Project& project = *context.project;
    project.output.setCancelMode(context.hasCancelMode);
    return guarded(project.output, [&] {
      try {
        return body(project);
      } catch (const Failure& failure) {
        if (!failure.isAboutRecords() || !mendRecords(project)) throw;
      }
      return body(project);
    });
  });
}

}  // namespace veldra::subversion
