#pragma once

namespace veldra {

/// Whatever the host wants to carry from the view that started an operation to its undo manager.
class IViewParameters {
 public:
  virtual ~IViewParameters() = default;
};

/// The host's undo manager. A host without undo has none.
class Undoer {
 public:
  virtual ~Undoer() = default;
  /// Opens a transaction; transactions nest. `view` may be null.
  virtual void startTransaction(const IViewParameters* view, int undoFlag) = 0;
  virtual void endTransaction() = 0;
  /// Around changes that nobody can take back; they keep what was done before undoable.
  virtual void startDoNothingTransaction() {}
  virtual void endDoNothingTransaction() {}
};

}  // namespace veldra
