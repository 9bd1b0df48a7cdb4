#pragma once

#include "platform/application.h"

/// The version data set at the start. The about window does not show it: it states a version of its own.
class App final : public Application {
public:
    App();
};
