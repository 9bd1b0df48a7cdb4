#include "frame/startup.h"

#include "frame/app.h"
#include "frame/instances.h"
#include "platform/message_box.h"
#include "platform/runtime.h"

#include <memory>
#include <string>

namespace {

constexpr int kFinal = 3; // the stage of a released version

void ShowFault(std::string_view reason)
{
    MsgBox("Gradeloom could not finish this step: " + std::string(reason) +
           ". The data you have entered so far has been kept.");
}

} // namespace

void _Main()
{
    try {
        _InstallExceptionHelper(ShowFault);
        _EarlyStartup();
        _RunFrameworkInitialization(_LateStartup);
        _RuntimeRun();
    } catch (...) {
        _UnhandledException(std::current_exception());
    }
}

void _EarlyStartup()
{
    _RuntimeInitExternalClasses();
    _InitPluginEntrypoints();
    _InitFileTypes();
    _NewAppInstance();
    _ApplicationAddMenuHandlers();
}

void _InitFileTypes() {}

void _NewAppInstance()
{
    auto app = std::make_unique<App>();
    app->MajorVersion = 1;
    app->MinorVersion = 2;
    app->BugVersion = 0;
    app->NonReleaseVersion = 0;
    app->StageCode = kFinal;
    app->LongVersion = "Gradeloom 1.2.2";
    app->ShortVersion = "Gradeloom X";
    app->PackageInfo = "Gradeloom 1.2.2 Orrin Vale";
    _RuntimeRegisterAppObject(std::move(app));
}

void _ApplicationAddMenuHandlers() {}

void _LateStartup()
{
    _MakeDefaultView();
}

void _MakeDefaultView()
{
    ::mainscreen();
}
