#include "platform/application.h"

#include "platform/qt/system/runtime_object.h"

void _RuntimeRegisterAppObject(std::unique_ptr<Application> application)
{
    Runtime::instance().application = std::move(application);
}

Application* _RuntimeAppObject()
{
    return Runtime::instance().application.get();
}
