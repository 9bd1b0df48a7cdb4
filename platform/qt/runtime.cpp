#include "platform/runtime.h"

#include "platform/browser.h"
#include "platform/file_dialogs.h"
#include "platform/message_box.h"
#include "platform/printing.h"
#include "platform/qt/doors.h"
#include "platform/qt/guarded.h"
#include "platform/qt/system/native.h"
#include "platform/qt/system/runtime_object.h"
#include "platform/qt/text.h"
#include "platform/qt/widgets/accessible_field.h"
#include "platform/qt/widgets/program.h"

#include <QAccessible>
#include <QIcon>
#include <QStandardPaths>
#include <QStyleHints>

#include <cstdlib>
#include <iostream>
#include <optional>

namespace {

/// Returns the exit status if the command line asks a question or is not understood.
std::optional<int> AnswerCommandLine(int count, char const* const* arguments)
{
    // A desktop may restart the program with "-session" and a name, which are ignored.
    for (int i = 1; i < count; i += 2) {
        std::string_view const argument = arguments[i];
        if (argument == "-session") {
            continue;
        }
        AttachToParentConsole();
        if (argument == "--version") {
            std::cout << PROGRAM_NAME " " PROGRAM_VERSION "\n";
            return EXIT_SUCCESS;
        }
        if (argument == "--help") {
            std::cout << "Usage: " PROGRAM_NAME "\n" PROGRAM_DESCRIPTION
                         ".\nFiles are opened from its menu.\n\n"
                         "  --help     show this text and end\n"
                         "  --version  show the version and end\n";
            return EXIT_SUCCESS;
        }
        std::cerr << PROGRAM_NAME ": unknown argument \"" << argument << "\"; see --help\n";
        return 2;
    }
    return std::nullopt;
}

/// Handles Qt's messages while it starts. Without a display it would abort the process.
void EndWithoutDisplay(QtMsgType type, QMessageLogContext const& context, QString const& text)
{
    if (type == QtFatalMsg) {
        AttachToParentConsole();
        std::cerr << PROGRAM_NAME ": there is no display that its windows could be shown on\n";
        std::_Exit(EXIT_FAILURE); // Qt is only half created, so no destructor may use it
    }
    if (type == QtDebugMsg) { // a developer switched it on
        std::cerr << FromQt(qFormatLogMessage(type, context, text)) << '\n';
    }
}

/// The installed icon. QIcon::fromTheme would read whole icon themes at every start.
QIcon InstalledIcon()
{
    QIcon icon;
    for (int const size : {16, 32, 48, 128}) {
        QString const file = QStringLiteral("icons/hicolor/%1x%1/apps/" PROGRAM_NAME ".png").arg(size);
        icon.addFile(QStandardPaths::locate(QStandardPaths::GenericDataLocation, file));
    }
    return icon;
}

} // namespace

void RuntimeInit(int count, char const* const* arguments)
{
    if (std::optional<int> const status = AnswerCommandLine(count, arguments)) {
        std::exit(*status);
    }
    QtMessageHandler const usual = qInstallMessageHandler(EndWithoutDisplay);
    Runtime::instance().start(PROGRAM_NAME);
    qInstallMessageHandler(usual);
}

void RuntimePerformInitializers()
{
    QApplication::setApplicationName(QStringLiteral(PROGRAM_NAME));
    QApplication::setDesktopFileName(QStringLiteral(PROGRAM_NAME));
    QApplication::setWindowIcon(InstalledIcon());
    QApplication::setQuitOnLastWindowClosed(false); // Window::Close ends the process, on every platform
    QApplication::styleHints()->setTabFocusBehavior(Qt::TabFocusAllControls);
    QAccessible::installFactory(MakeAccessibleField);
    auto const end = [] { Runtime::instance().end(); };
    Program::instance().quitRequested = end;
    HandleSignals(end);
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
    AttachToParentConsole();
    std::cerr << PROGRAM_NAME << ": " << ReasonOf(exception) << '\n';
    Runtime::instance().exitStatus = 1;
}

void _RuntimeInitExternalClasses() {}

void _InitPluginEntrypoints() {}
