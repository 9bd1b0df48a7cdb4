#include "frame/app.h"

App::App() = default;
