#pragma once

namespace tarnwick::bench {

// Writes one line to standard output when that many windows have been painted, and ends the
// program: the monotonic clock in nanoseconds and the resident memory in KiB. Call it once the
// application object exists.
void reportWhenPainted(int windows);

}  // namespace tarnwick::bench
