#include "platform/runtime.h"

#include "platform/browser.h"
#include "platform/doors.h"
#include "platform/file_dialogs.h"
#include "platform/guarded.h"
#include "platform/message_box.h"
#include "platform/printing.h"
#include "platform/qt/system/native.h"
#include "platform/qt/system/runtime_object.h"
#include "platform/qt/widgets/focus_order.h"

#include <QApplication>
#include <QIcon>
#include <QStyleHints>

#include <iostream>

namespace {

/// The desktop asks the program to end, at a log-out for one. Its windows are not asked whether they close.
class QuitFilter final : public QObject {
public:
    using QObject::QObject;

    bool eventFilter(QObject* /*receiver*/, QEvent* event) override
    {
        bool const isQuit = event->type() == QEvent::Quit;
        if (isQuit) {
            Runtime::instance().end();
        }
        return isQuit;
    }
};

} // namespace

void RuntimeInit()
{
    Runtime::instance().start(PROGRAM_NAME);
}

void RuntimePerformInitializers()
{
    QApplication::setApplicationName(QStringLiteral(PROGRAM_NAME));
    QApplication::setDesktopFileName(QStringLiteral(PROGRAM_NAME));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral(PROGRAM_NAME)));
    QApplication::setQuitOnLastWindowClosed(false); // Window::Close ends the process, on every platform
    QApplication::styleHints()->setTabFocusBehavior(Qt::TabFocusAllControls);
    new FocusOrder(qApp);
    qApp->installEventFilter(new QuitFilter(qApp));
    HandleSignals([] { Runtime::instance().end(); });
    PlatformDoors() = {ShowMessageBox, OpenInBrowser, ShowFileDialog, ShowPrintDialog};
}

void _RunFrameworkInitialization(std::function<void()> const& lateStartup)
{
    lateStartup();
}

void _RuntimeRun()
{
    Runtime::instance().run();
}

void RuntimePerformFinalizers()
{
    Runtime::instance().finish();
    ExceptionHelper() = nullptr;
}

int RuntimeExit()
{
    return Runtime::instance().exitStatus;
}

void _InstallExceptionHelper(std::function<void(std::string_view reason)> helper)
{
    ExceptionHelper() = std::move(helper);
}

void _UnhandledException(std::exception_ptr const& exception)
{
    std::cerr << PROGRAM_NAME << ": " << ReasonOf(exception) << std::endl;
    Runtime::instance().exitStatus = 1;
}

void _RuntimeInitExternalClasses() {}

void _InitPluginEntrypoints() {}
