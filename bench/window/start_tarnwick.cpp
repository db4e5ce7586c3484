// The program as it is: its own main function, which knows of no measuring.

#include "painted.h"

#include <QCoreApplication>

namespace {

void measure() {
  tarnwick::bench::reportWhenPainted(1);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(measure)
