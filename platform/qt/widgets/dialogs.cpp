#include "platform/qt/widgets/dialogs.h"

#include <QApplication>
#include <QDialog>
#include <QGuiApplication>
#include <QPointer>

int RunDialog(QDialog& dialog)
{
    QPointer<QWidget> const asking(dialog.parentWidget());
    QPointer<QWidget> const focused(asking != nullptr ? asking->focusWidget() : nullptr);
    int const result = dialog.exec();
    if (focused != nullptr) {
        focused->setFocus(); // an assistive program may have moved it
    }
    if (asking != nullptr) {
        asking->activateWindow();
    }
    return result;
}

bool IsDialogOpen()
{
    return QApplication::activeModalWidget() != nullptr;
}

bool HasNativeDialogs()
{
    QString const platform = QGuiApplication::platformName();
    return platform == QLatin1String("cocoa") || platform == QLatin1String("windows");
}
