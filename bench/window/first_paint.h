#pragma once

namespace tarnwick::bench {

// Writes one line to standard output when the first window has been painted, and ends the
// program: the monotonic clock in nanoseconds and the resident memory in KiB. Call it once the
// application object exists.
void reportFirstPaint();

}  // namespace tarnwick::bench
