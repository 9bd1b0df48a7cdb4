#pragma once

class QKeyEvent;

// The repeats of a key that is held down. On X11 a repeat is a release and a press with one time stamp; the
// toolkit recognises it only if both have arrived by the time that it looks, so the rest is recognised here.

/// Remembers a key event. Every one must pass here before its receiver gets it.
void NoteKey(QKeyEvent const& event);

/// The press repeats a key that is held down.
bool IsRepeat(QKeyEvent const& event);

/// The last press was such a repeat. A shortcut is triggered right after its key event.
bool IsLastPressRepeat();

/// The time stamp of the last press in milliseconds; 0 if it had none.
unsigned long long LastPressTime();
