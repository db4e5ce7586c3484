#pragma once

#include <QPixmap>

namespace tarnwick::app {

// The launcher's picture of a microcontroller on its board, 313 by 241 pixels times the scale:
// each trace on its right ends in the middle of one of the nine buttons. Drawn, not read: that
// takes less of the start, and is sharp at every scale factor of the screen.
[[nodiscard]] QPixmap circuitBoard(double scale, double devicePixelRatio);

}  // namespace tarnwick::app
