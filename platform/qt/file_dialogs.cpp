#include "platform/file_dialogs.h"

#include "platform/qt/doors.h"
#include "platform/qt/system/runtime_object.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/dialogs.h"
#include "platform/qt/widgets/program.h"
#include "platform/qt/widgets/top_level.h"

#include <QDir>
#include <QFileDialog>
#include <QGuiApplication>
#include <QStandardPaths>

namespace {

/// The folder asked for, else the user's documents, else the user's home.
std::string StartFolder(FolderItem const& wanted)
{
    if (wanted.IsFolder()) {
        return wanted.Path();
    }
    QString const documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return FromQt(QDir(documents).exists() ? documents : QDir::homePath());
}

std::optional<FolderItem> Ask(FileDialogRequest const& request)
{
    std::optional<std::string> const path = PlatformDoors().fileDialog(request);
    return path ? std::optional(FolderItem(*path)) : std::nullopt;
}

} // namespace

std::optional<std::string> ShowFileDialog(FileDialogRequest const& request)
{
    if (Runtime::instance().isEnding) {
        return std::nullopt;
    }
    QFileDialog dialog(Program::instance().front.window(), ToQt(request.title), ToQt(request.folder));
    dialog.setOption(QFileDialog::DontUseNativeDialog, !HasNativeDialogs());
    dialog.setAcceptMode(request.saving ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    dialog.setFileMode(request.saving ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
    if (!request.prompt.empty()) {
        dialog.setLabelText(QFileDialog::FileName, ToQt(request.prompt));
    }
    dialog.selectFile(ToQt(request.suggestedName));
    if (RunDialog(dialog) != QDialog::Accepted || dialog.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return FromQt(dialog.selectedFiles().constFirst());
}

std::optional<FolderItem> OpenDialog::ShowModal() const
{
    return Ask({false, Title, "", StartFolder(InitialDirectory), ""});
}

std::optional<FolderItem> SaveAsDialog::ShowModal() const
{
    return Ask({true, Title, PromptText, StartFolder(InitialDirectory), SuggestedFileName});
}
