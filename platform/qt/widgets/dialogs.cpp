#include "platform/qt/widgets/dialogs.h"

#include <QDialog>
#include <QGuiApplication>
#include <QPointer>

int RunDialog(QDialog& dialog)
{
    QPointer<QWidget> const asking(dialog.parentWidget());
    int const result = dialog.exec();
    if (asking != nullptr) {
        asking->activateWindow();
    }
    return result;
}

bool HasFamiliarDialogs()
{
    QString const platform = QGuiApplication::platformName();
    return platform == QLatin1String("cocoa") || platform == QLatin1String("windows");
}
