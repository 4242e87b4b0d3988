#pragma once

namespace kestrel::cli {

// From here on the first SIGINT only asks to end, and a second one ends the program at once.
void WatchForInterrupt();
bool IsInterrupted();
// Waits until this open file can be read from; false when the program is asked to end first.
bool WaitForInput(int file);

}  // namespace kestrel::cli
