#pragma once

/// Ends every window that is still open; the process is about to end.
void EndOpenWindows();
