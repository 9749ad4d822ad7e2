#pragma once

#include <QFrame>
#include <QLabel>
#include <QString>
#include <functional>

class QHBoxLayout;
class QPushButton;
class QToolButton;
class QVBoxLayout;

namespace veldra::host::desktop {

/// A line above the content that says why something is as it is, with a way out.
class Banner : public QFrame {
  Q_OBJECT

 public:
  explicit Banner(QWidget* parent = nullptr);
  QLabel* label() { return m_label; }
  /// `purpose` is for screen readers.
  QPushButton* addButton(const QString& text, const QString& purpose);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void colour();

  QLabel* m_label;
  QHBoxLayout* m_layout;
};

/// A line that is cut in the middle where there is no room for it; its tool tip is the whole.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);
  void setWhole(const QString& text);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void fit();

  QString m_whole;
};

/// A tab of the editor: a row of small buttons over its content.
class EditorPage : public QWidget {
  Q_OBJECT

 public:
  explicit EditorPage(QWidget* parent = nullptr);
  void setContent(QWidget* content);
  /// A button that does something; its text is shown as tool tip and told to screen readers.
  QToolButton* addTool(const QString& iconName, const QString& text, std::function<void()> action);

 private:
  QHBoxLayout* m_tools;
  QVBoxLayout* m_layout;
};

}  // namespace veldra::host::desktop
