#pragma once

#include <QPicture>

#include <vector>

namespace tarnwick::app {

// The launcher's picture of a microcontroller on its board, in pixels: from each of its pins on the
// right a trace runs to the picture's edge, to end there at one of the heights given. Drawn, not
// read, it is sharp at every scale.
[[nodiscard]] QPicture circuitBoard(QSize size, const std::vector<double>& traceEnds);

}  // namespace tarnwick::app
