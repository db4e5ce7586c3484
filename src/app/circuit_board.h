#pragma once

#include <QPicture>

namespace tarnwick::app {

// The launcher's picture of a microcontroller on its board, 313 by 241 pixels: each trace on its
// right ends in the middle of one of the nine buttons. Drawn, not read, it takes less of the start
// and is sharp at every scale.
[[nodiscard]] QPicture circuitBoard();

}  // namespace tarnwick::app
