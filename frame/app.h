#pragma once

#include "platform/application.h"

/// The application object. It has no logic, only the version data set at start-up, which the about window does not
/// show: it has a version of its own.
class App final : public Application {
public:
    App();
};
