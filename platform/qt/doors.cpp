#include "platform/doors.h"

#include "platform/browser.h"
#include "platform/qt/desktop_doors.h"
#include "platform/qt/text.h"

#include <QDesktopServices>
#include <QUrl>

Doors& PlatformDoors()
{
    static Doors doors = {ShowMessageBox, OpenInBrowser, ShowFileDialog, ShowPrintDialog};
    return doors;
}

void OpenInBrowser(std::string const& address)
{
    QDesktopServices::openUrl(QUrl(ToQt(address)));
}

void ShowURL(std::string_view address)
{
    PlatformDoors().browser(std::string(address));
}
