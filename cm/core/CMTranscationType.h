#pragma once

namespace veldra {

/// The kind of operation that a transaction surrounds. The numbers are part of the host's
/// interface.
enum CMTranscationType : int {
  TxnLock = 0,
  TxnFetch = 1,
  TxnUnlock = 2,
  TxnHistory = 3,
  TxnCheckIn = 4,
  TxnCheckOut = 5,
  TxnAddMember = 6,
  TxnAddDirectory = 7,
  TxnMove = 8,
  TxnUncheckout = 9,
  TxnProperties = 10,
  TxnListArchive = 11,
  TxnDeleteMember = 12,
  TxnDeleteDirectory = 13,
  TxnRename = 14,
  TxnConnect = 15,
  TxnFreeCommand = 16,  ///< User-defined commands and the like; opens no undo transaction.
};

}  // namespace veldra
