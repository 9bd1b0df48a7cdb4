#include "platform/qt/system/runtime_object.h"

#include "platform/application.h"
#include "platform/menu_bar.h"
#include "platform/qt/widgets/program.h"
#include "platform/window.h"

Runtime::Runtime() = default;
Runtime::~Runtime() = default;

Runtime& Runtime::instance()
{
    static auto* const runtime = new Runtime;
    return *runtime;
}

void Runtime::start(char const* programName)
{
    name_ = programName;
    arguments_ = {name_.data(), nullptr};
    toolkit_ = std::make_unique<Program>(argumentCount_, arguments_.data());
    isEnding = false;
}

void Runtime::run()
{
    if (!isEnding) {
        exitStatus = QApplication::exec();
    }
}

void Runtime::end()
{
    isEnding = true;
    QCoreApplication::exit(0);
}

void Runtime::finish()
{
    windows.clear();
    menuBars.clear();
    application.reset();
    toolkit_.reset();
}
