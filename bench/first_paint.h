#pragma once

/// Ends the process once the first window has been painted, and prints the processor time in microseconds since its
/// start and its memory in KiB. Memory shared with other processes is divided among them.
void EndAtFirstPaint();
