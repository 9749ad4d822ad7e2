#pragma once

#include <QPlainTextEdit>

#include "host/desktop/session/OutputSink.h"

namespace veldra::host::desktop {

/// A window of text that only grows: the CM output or the trace log.
class OutputView : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit OutputView(QWidget* parent = nullptr);

  /// Shows what the sink brings. Words of a running tool are shown as they come and give way to the
  /// module's own account of them.
  void follow(OutputSink& sink);
  void addText(const QString& text);
  void addLive(const QString& text);
  void dropLive();
  /// With the user's palette.
  void changeEvent(QEvent* event) override;

 private:
  void insert(const QString& text);
  void useFixedFont();

  int m_liveStart = -1;  ///< Where the words of the running tool begin; -1 for none.
};

}  // namespace veldra::host::desktop
