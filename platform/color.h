#pragma once

/// A colour by its red, green and blue parts, each 0 to 255.
struct Color {
    int red;
    int green;
    int blue;
};
