#include "platform/browser.h"

#include "platform/qt/doors.h"
#include "platform/qt/text.h"

#include <QDesktopServices>
#include <QUrl>

void ShowURL(std::string_view address)
{
    PlatformDoors().browser(std::string(address));
}

void OpenInBrowser(std::string const& address)
{
    QDesktopServices::openUrl(QUrl(ToQt(address)));
}
