#include "platform/runtime.h"

#include "platform/application.h"
#include "platform/menu.h"
#include "platform/qt/guard.h"
#include "platform/qt/open_windows.h"
#include "platform/qt/top_level.h"

#include <QApplication>
#include <QIcon>
#include <QStyleHints>

#include <iostream>

namespace {

int exitStatus = 0;

std::unique_ptr<Application>& AppObject()
{
    static std::unique_ptr<Application> application;
    return application;
}

std::vector<std::unique_ptr<MenuBar>>& MenuBars()
{
    static std::vector<std::unique_ptr<MenuBar>> bars;
    return bars;
}

std::string Reason(std::exception_ptr const& exception)
{
    try {
        std::rethrow_exception(exception);
    } catch (std::exception const& known) {
        return known.what();
    } catch (...) {
        return "an unknown error";
    }
}

} // namespace

std::function<void(std::string_view reason)>& ExceptionHelper()
{
    static std::function<void(std::string_view)> helper;
    return helper;
}

void ReportException()
{
    if (!ExceptionHelper()) {
        throw;
    }
    ExceptionHelper()(Reason(std::current_exception()));
}

void RuntimeInit()
{
    static int count = 1;
    static char name[] = PROGRAM_NAME;
    static char* arguments[] = {name, nullptr};
    new QApplication(count, arguments); // until RuntimePerformFinalizers
}

void RuntimePerformInitializers()
{
    QApplication::setApplicationName(QStringLiteral(PROGRAM_NAME));
    QApplication::setDesktopFileName(QStringLiteral(PROGRAM_NAME));
    QApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral(PROGRAM_NAME)));
    QApplication::setQuitOnLastWindowClosed(false); // Window::Close ends the process, on every platform
    QApplication::styleHints()->setTabFocusBehavior(Qt::TabFocusAllControls);
    TopLevel::followFocus();
}

void _RunFrameworkInitialization(std::function<void()> const& lateStartup)
{
    lateStartup();
}

void _RuntimeRun()
{
    exitStatus = QApplication::exec();
}

void RuntimePerformFinalizers()
{
    EndOpenWindows();
    MenuBars().clear();
    AppObject().reset();
    ExceptionHelper() = nullptr;
    delete qApp;
}

int RuntimeExit()
{
    return exitStatus;
}

MenuBar& KeepMenuBar(std::unique_ptr<MenuBar> bar)
{
    return *MenuBars().emplace_back(std::move(bar));
}

void _InstallExceptionHelper(std::function<void(std::string_view reason)> helper)
{
    ExceptionHelper() = std::move(helper);
}

void _UnhandledException(std::exception_ptr const& exception)
{
    std::cerr << PROGRAM_NAME << ": " << Reason(exception) << std::endl;
    exitStatus = 1;
}

void _RuntimeInitExternalClasses() {}

void _InitPluginEntrypoints() {}

void _RuntimeRegisterAppObject(std::unique_ptr<Application> application)
{
    AppObject() = std::move(application);
}

Application* _RuntimeAppObject()
{
    return AppObject().get();
}
