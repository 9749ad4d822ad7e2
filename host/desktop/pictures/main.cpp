// Makes the pictures of the user guide: takes a model through the guide's ten steps in the real
// windows, with a real Subversion repository, and grabs them: veldra-pictures SAMPLE FOLDER.

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>
#include <cstdio>
#include <filesystem>

#include "host/desktop/Appearance.h"
#include "host/desktop/Words.h"
#include "host/desktop/pictures/ArchiveWindows.h"
#include "host/desktop/pictures/WindowDriver.h"
#include "host/desktop/window/MainWindow.h"
#include "host/desktop/window/UnitEditor.h"
#include "host/platform/Environment.h"

namespace {

using namespace veldra::host::desktop;
namespace fs = std::filesystem;

class Guide {
 public:
  Guide(const QString& sample, const QDir& folder, const QString& ending)
      : m_folder(folder), m_ending(ending), m_project(m_place.filePath("coffee-machine")) {
    const fs::path copy = m_project.toStdString();
    fs::copy(sample.toStdString(), copy, fs::copy_options::recursive);
    for (const auto& entry : fs::recursive_directory_iterator(copy)) {
      fs::permissions(entry, fs::perms::owner_write, fs::perm_options::add);
    }
    m_window.resize(1120, 720);
    m_window.show();
  }

  bool make() {
    open();
    connect();
    add();
    change();
    lookAround();
    lookIntoArchive();
    m_window.close();
    return m_isFine;
  }

 private:
  void open() {
    grab(m_window, "1-start");
    expect(m_window.openProject(m_project), "open");
    m_window.selectUnits({"Brewing/Brewing Parts.vdgm"});
    grab(m_window, "2-project");
  }

  void connect() {
    expect(perform(m_window, "connect",
                   [this](QDialog& dialog) {
                     auto& tool = *dialog.findChild<QComboBox*>("Tool");
                     tool.setCurrentIndex(tool.findData("Subversion"));
                     dialog.findChild<QLineEdit*>("Archive")->setText(m_place.filePath("archive"));
                     grab(dialog, "3-connect");
                   }),
           "connect");
    grab(m_window, "4-connected");
  }

  void add() {
    m_window.selectUnits({"."});
    expect(perform(m_window, "add",
                   [this](QDialog& dialog) {
                     write(dialog, "The model as it was drawn");
                     below(dialog).setChecked(true);
                     grab(dialog, "5-add");
                   }),
           "add");
    m_window.selectUnits({"Brewing/Grinder.vcmp"});
    grab(m_window, "6-added");
  }

  void change() {
    expect(perform(m_window, "check-out", [this](QDialog& dialog) { grab(dialog, "7-check-out"); }),
           "check-out");
    auto& editor = *m_window.findChild<UnitEditor*>();
    editor.findChild<QPlainTextEdit*>()->setPlainText("Grinds exactly one portion of beans.");
    editor.commit();
    grab(m_window, "8-edit");
    expect(perform(m_window, "check-in",
                   [this](QDialog& dialog) {
                     write(dialog, "One portion is exactly one");
                     grab(dialog, "9-check-in");
                   }),
           "check-in");
    expect(perform(m_window, "history"), "history");
    grab(m_window, "10-history");
  }

  void lookAround() {
    m_window.selectUnits({"Brewing/Extraction.vdgm"});
    grab(m_window, "diagram");
    expect(perform(m_window, "settings", [this](QDialog& dialog) { grab(dialog, "settings"); }),
           "settings");
    expect(perform(m_window, "dialog", [this](QDialog& dialog) { grab(dialog, "cm-dialog"); }),
           "dialog");
  }

  void lookIntoArchive() {
    const std::string copy = m_place.filePath("colleague").toStdString();
    expect(workAsColleague(m_place.filePath("archive").toStdString(), copy), "colleague");
    const Grab keep = [this](QWidget& widget, const QString& name) { grab(widget, name); };
    expect(perform(m_window, "dialog",
                   [&](QDialog& dialog) {
                     expect(grabItemWindow(dialog, veldra::ControlId::ListArchive, "archive", keep),
                            "list archive");
                     expect(grabItemWindow(dialog, veldra::ControlId::Synchronize, "synchronize",
                                           keep),
                            "synchronize");
                   }),
           "archive");
    grabVersions(keep);
    const std::string unit = "/Brewing/Grinder.vcmp";
    grabComparison(m_project.toStdString() + unit, copy + unit, keep);
  }

  static QAbstractButton& below(QDialog& dialog) {
    return *veldra::findControl<QAbstractButton>(dialog, veldra::ControlId::CheckInDescendants);
  }

  static void write(QDialog& dialog, const char* comment) {
    dialog.findChild<QPlainTextEdit*>()->setPlainText(comment);
  }

  void expect(bool isDone, const char* step) {
    if (!isDone) std::fprintf(stderr, "The step \"%s\" cannot be done.\n", step);
    m_isFine = m_isFine && isDone;
  }

  void grab(QWidget& widget, const QString& name) {
    QTest::qWait(60);
    expect(widget.grab().save(m_folder.filePath(name + m_ending)), qPrintable(name));
  }

  QDir m_folder;
  QString m_ending;
  QTemporaryDir m_place;
  QString m_project;
  MessageBoxes m_questions;
  DesktopSession m_session{m_questions};
  MainWindow m_window{m_session};
  bool m_isFine = true;
};

}  // namespace

int main(int argc, char** argv) {
  // Nothing of this user's settings shall be seen, and nothing is left in them.
  const QTemporaryDir home;
  qputenv("XDG_CONFIG_HOME", home.path().toUtf8());
  // Nor where this machine keeps the program.
  const QString root = home.filePath("veldra-cm");
  QFile::link(QString::fromStdString(veldra::host::findInstallationRoot()), root);
  qputenv("VELDRA_ROOT", root.toUtf8());
  QApplication::setApplicationName("Veldra");
  const QApplication application(argc, argv);
  if (argc != 3) {
    std::fprintf(stderr, "usage: veldra-pictures SAMPLE FOLDER\n");
    return 2;
  }
  installWords();
  setAppearance(Appearance::Light);
  const bool isLightFine = Guide(argv[1], QDir(argv[2]), ".png").make();
  setAppearance(Appearance::Dark);
  const bool isDarkFine = Guide(argv[1], QDir(argv[2]), "-dark.png").make();
  return isLightFine && isDarkFine ? 0 : 1;
}
