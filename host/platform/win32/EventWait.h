#pragma once

#include "host/platform/ChildWait.h"
#include "host/platform/win32/CancelSignal.h"
#include "host/platform/win32/ChildProcess.h"
#include "host/platform/win32/OutputPipe.h"

namespace veldra::host {

/// Waits for a child and both its outputs by the system's wait for several things.
class EventWait : public ChildWait {
 public:
  EventWait(ChildProcess& child, OutputPipe& output, OutputPipe& errors, const CancelSignal& cancel,
            const ChildSettings& settings);

 private:
  void wait(int milliseconds) override;
  bool isCancelled() const override { return m_cancel.isRaised(); }
  /// A program without a window can only be ended.
  bool askToEnd() override { return false; }
  void kill() override { m_child.endJob(); }
  bool isAnyOutputOpen() const override { return m_output.isOpen() || m_errors.isOpen(); }
  void closeOutputs() override;

  ChildProcess& m_child;
  OutputPipe& m_output;
  OutputPipe& m_errors;
  const CancelSignal& m_cancel;
};

}  // namespace veldra::host
