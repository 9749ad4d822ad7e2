#pragma once

#include "host/platform/ChildWait.h"
#include "host/platform/posix/CancelSignal.h"
#include "host/platform/posix/ChildProcess.h"
#include "host/platform/posix/OutputPipe.h"

namespace veldra::host {

/// Waits for a child and both its outputs by `poll`.
class PolledWait : public ChildWait {
 public:
  PolledWait(ChildProcess& child, OutputPipe& output, OutputPipe& errors,
             const CancelSignal& cancel, const ChildSettings& settings);

 private:
  void wait(int milliseconds) override;
  bool isCancelled() const override { return m_cancel.isRaised(); }
  bool askToEnd() override;
  void kill() override;
  bool isAnyOutputOpen() const override { return m_output.isOpen() || m_errors.isOpen(); }
  void closeOutputs() override;
  bool mustAsk() const override;

  ChildProcess& m_child;
  OutputPipe& m_output;
  OutputPipe& m_errors;
  const CancelSignal& m_cancel;
};

}  // namespace veldra::host
