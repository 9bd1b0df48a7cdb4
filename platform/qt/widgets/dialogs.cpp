#include "platform/qt/widgets/dialogs.h"

#include <QDialog>
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
