#pragma once

/// Each part is 0 to 255.
struct Color {
    int red;
    int green;
    int blue;
};
