#pragma once

/// A colour by its red, green and blue parts, each 0 to 255.
struct Color {
    int red = 0;
    int green = 0;
    int blue = 0;
};
