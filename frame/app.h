#pragma once

#include "platform/application.h"

/// The application object. It has no logic, only the version data that it is given at start-up; the about
/// window shows a version of its own.
class App final : public Application {
public:
    App();
};
