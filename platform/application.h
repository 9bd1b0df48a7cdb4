#pragma once

#include <memory>
#include <string>

/// What the program says of its own version.
class Application {
public:
    virtual ~Application() = default;

    int MajorVersion = 0;
    int MinorVersion = 0;
    int BugVersion = 0;
    int NonReleaseVersion = 0;
    int StageCode = 0; ///< 0 development, 1 alpha, 2 beta, 3 final
    std::string LongVersion;
    std::string ShortVersion;
    std::string PackageInfo;
};

/// Makes this the application object until the process ends.
void _RuntimeRegisterAppObject(std::unique_ptr<Application> application);

/// Null until one is registered.
Application* _RuntimeAppObject();
