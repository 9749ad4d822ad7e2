#include "cm/ui/widgets/Control.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <algorithm>

#include "cm/ui/ControlIds.h"

namespace veldra {

namespace {

struct Description {
  int id;
  const char* text;
};

// Add the next control here, and its words to the translations.
constexpr Description Descriptions[] = {
    {ControlId::UnitTree,
     QT_TRANSLATE_NOOP(
         "veldra::Control",
         "The units of the project in their packages; commands work on the selected ones")},
    {ControlId::FlatList, QT_TRANSLATE_NOOP("veldra::Control",
                                            "The units of the project, sorted by the column that "
                                            "was clicked; commands work on the selected ones")},
    {ControlId::Close,
     QT_TRANSLATE_NOOP("veldra::Control", "Closes the window; nothing is changed by that")},
    {ControlId::SelectFailed,
     QT_TRANSLATE_NOOP("veldra::Control", "Selects the units on which the last command failed")},
    {ControlId::CheckInMode,
     QT_TRANSLATE_NOOP("veldra::Control", "You go on changing the units and keep their locks")},
    {ControlId::CheckInLabel,
     QT_TRANSLATE_NOOP("veldra::Control",
                       "A name under which this version can be found again; may stay empty")},
    {ControlId::CheckInDescendants,
     QT_TRANSLATE_NOOP("veldra::Control",
                       "Everything inside the selected units is checked in, too")},
    {ControlId::CheckInInformationFiles,
     QT_TRANSLATE_NOOP("veldra::Control", "What code generation keeps about the units goes along")},
    {ControlId::CheckOutLabel,
     QT_TRANSLATE_NOOP("veldra::Control", "The version to check out; empty for the newest")},
    {ControlId::CheckOutLock,
     QT_TRANSLATE_NOOP("veldra::Control",
                       "Nobody else can change the units until you check them in")},
    {ControlId::CheckOutDescendants,
     QT_TRANSLATE_NOOP("veldra::Control",
                       "Everything inside the selected units is checked out, too")},
    {ControlId::CheckOutInformationFiles,
     QT_TRANSLATE_NOOP("veldra::Control", "What code generation keeps about the units goes along")},
    {ControlId::ProviderMode,
     QT_TRANSLATE_NOOP("veldra::Control", "The units stay checked out by you")},
    {ControlId::ProviderDescendants,
     QT_TRANSLATE_NOOP("veldra::Control", "Everything inside the selected units takes part, too")},
    {ControlId::ProviderInformationFiles,
     QT_TRANSLATE_NOOP("veldra::Control", "What code generation keeps about the units goes along")},
    {ControlId::ProviderAdvanced,
     QT_TRANSLATE_NOOP("veldra::Control",
                       "Opens the options that the source control provider has of its own")},
    {ControlId::LockLabel,
     QT_TRANSLATE_NOOP("veldra::Control", "The version that is meant; empty for the newest")},
    {ControlId::LockDescendants,
     QT_TRANSLATE_NOOP("veldra::Control", "Everything inside the selected units takes part, too")},
    {ControlId::LockInformationFiles,
     QT_TRANSLATE_NOOP("veldra::Control", "What code generation keeps about the units goes along")},
    {ControlId::ConnectArchive,
     QT_TRANSLATE_NOOP("veldra::Control", "The folder, file or address of the archive")},
    {ControlId::ConnectBrowse,
     QT_TRANSLATE_NOOP("veldra::Control", "Lets you choose a file or a folder")},
    {ControlId::FetchLabel,
     QT_TRANSLATE_NOOP("veldra::Control",
                       "The label or version to compare with; empty for the newest")},
    {ControlId::FetchDescendants,
     QT_TRANSLATE_NOOP("veldra::Control", "Everything inside the unit takes part, too")},
    {ControlId::DiffFirst, QT_TRANSLATE_NOOP("veldra::Control", "The version on the left side")},
    {ControlId::DiffSecond, QT_TRANSLATE_NOOP("veldra::Control", "The version on the right side")},
    {ControlId::FetchSelectionCheckOut,
     QT_TRANSLATE_NOOP("veldra::Control", "The units are yours to change")},
    {ControlId::FetchSelectionFetch,
     QT_TRANSLATE_NOOP("veldra::Control", "The units are only read")},
    {ControlId::ArchiveList,
     QT_TRANSLATE_NOOP("veldra::Control",
                       "What the archive holds; commands work on the selected entries")},
    {ControlId::SyncList,
     QT_TRANSLATE_NOOP(
         "veldra::Control",
         "What differs between the model and the archive; the selected entries are taken over")},
    {ControlId::UnitArchivePath,
     QT_TRANSLATE_NOOP("veldra::Control", "Where the unit is kept in the archive")},
    {ControlId::UnitArchiveAssociate,
     QT_TRANSLATE_NOOP("veldra::Control", "Connects the unit with that path")},
    {ControlId::UnitArchiveAssociateNew,
     QT_TRANSLATE_NOOP("veldra::Control",
                       "Connects the unit with an archive project of your choice")},
    {ControlId::UnitArchiveDisassociate,
     QT_TRANSLATE_NOOP("veldra::Control", "Takes the connection of the unit away")},
    {ControlId::UnitArchiveBrowseFile,
     QT_TRANSLATE_NOOP("veldra::Control", "Lets you choose a file")},
    {ControlId::UnitArchiveBrowseFolder,
     QT_TRANSLATE_NOOP("veldra::Control", "Lets you choose a folder")},
    {ControlId::BranchName, QT_TRANSLATE_NOOP("veldra::Control", "The branch to check out")},
    {ControlId::QuestionUnit, QT_TRANSLATE_NOOP("veldra::Control", "The unit that is asked about")},
    {ControlId::QuestionYes, QT_TRANSLATE_NOOP("veldra::Control", "For this one")},
    {ControlId::QuestionYesToAll,
     QT_TRANSLATE_NOOP("veldra::Control", "For this one and all that follow")},
    {ControlId::QuestionNo, QT_TRANSLATE_NOOP("veldra::Control", "Not for this one")},
    {ControlId::QuestionNoToAll,
     QT_TRANSLATE_NOOP("veldra::Control", "Neither for this one nor for any that follows")},
    {ControlId::QuestionCancel, QT_TRANSLATE_NOOP("veldra::Control", "Ends the command")},
};

QString words(const char* text) {
  return QCoreApplication::translate("veldra::Control", text);
}

}  // namespace

QString controlDescription(int id) {
  const auto* const found = std::find_if(std::begin(Descriptions), std::end(Descriptions),
                                         [id](const Description& row) { return row.id == id; });
  return found != std::end(Descriptions) ? words(found->text) : QString();
}

void describeButtons(const QDialogButtonBox& buttons) {
  for (QAbstractButton* button : buttons.buttons()) {
    const bool accepts = buttons.buttonRole(button) == QDialogButtonBox::AcceptRole;
    button->setAccessibleDescription(words(
        accepts
            ? QT_TRANSLATE_NOOP("veldra::Control", "Does it and closes the window")
            : QT_TRANSLATE_NOOP("veldra::Control", "Closes the window without doing anything")));
  }
}

}  // namespace veldra
