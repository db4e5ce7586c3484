#pragma once

#include <QPicture>

#include <vector>

namespace tarnwick::app {

// The launcher's picture of a microcontroller on its board, in pixels: from each of its pins on the
// right a trace runs to the picture's edge, to end there at one of the heights given. Drawn, it
// is sharp at every scale; read from a PNG, it would make a start 1.5 ms longer, from one of twice
// the size 4 ms.
[[nodiscard]] QPicture circuitBoard(QSize size, const std::vector<double>& traceEnds);

}  // namespace tarnwick::app
