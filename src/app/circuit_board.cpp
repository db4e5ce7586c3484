#include "app/circuit_board.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cstdlib>

namespace tarnwick::app {
namespace {

constexpr QSize pinSize(16, 7);
constexpr int pinPitch = 18;
constexpr int traceWidth = 3;

struct Package {
  int pinsOnASide;
  QRect body;

  int pinTop(int pin) const { return body.y() + 14 + pinPitch * pin; }
  double pinMiddle(int pin) const { return pinTop(pin) + pinSize.height() / 2.0; }
};

// In the middle of the board's height.
Package packageOn(QSize board, int pinsOnASide) {
  const int height = pinPitch * pinsOnASide + 17;
  return {.pinsOnASide = pinsOnASide, .body = {56, (board.height() - height) / 2, 68, height}};
}

QLinearGradient downwards(double top, double bottom, const char* first, const char* last) {
  QLinearGradient gradient(0, top, 0, bottom);
  gradient.setColorAt(0, QColor(first));
  gradient.setColorAt(1, QColor(last));
  return gradient;
}

QPen trace(const char* colour) {
  return {QColor(colour), traceWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin};
}

// A trace that runs level, then by 45 degrees up or down, then level again to the end.
void addTrace(QPainterPath& path, QPointF start, double firstRun, double rise, double end) {
  path.moveTo(start);
  path.lineTo(start.x() + firstRun, start.y());
  path.lineTo(start.x() + firstRun + std::abs(rise), start.y() + rise);
  path.lineTo(end, start.y() + rise);
}

void drawTraces(QPainter& painter, const Package& package, const std::vector<double>& ends,
                int boardWidth) {
  const int right = package.body.x() + package.body.width() + 10;
  const int left = package.body.x() - 10;
  constexpr double pad = 30;
  QPainterPath traces;
  for (int pin = 0; pin < package.pinsOnASide; ++pin) {
    const double middle = package.pinMiddle(pin);
    const double rise = ends[static_cast<std::size_t>(pin)] - middle;
    addTrace(traces, QPointF(right, middle), 20 - std::abs(rise) / 2, rise, boardWidth);
  }
  for (const int pin : {2, 6}) {
    traces.moveTo(left, package.pinMiddle(pin));
    traces.lineTo(pad, package.pinMiddle(pin));
    traces.addEllipse(QPointF(pad - 5.5, package.pinMiddle(pin)), 5, 5);
  }
  for (const int pin : {3, 4}) {
    traces.moveTo(left, package.pinMiddle(pin));
    traces.lineTo(0, package.pinMiddle(pin));
  }
  for (const int pin : {0, package.pinsOnASide - 1}) {
    const int slope = pin == 0 ? -1 : 1;
    traces.moveTo(left, package.pinMiddle(pin));
    traces.lineTo(left - 8, package.pinMiddle(pin));
    traces.lineTo(left - 68, package.pinMiddle(pin) + 60 * slope);
  }
  painter.strokePath(traces, trace("#6fa9aa"));
}

void drawPackage(QPainter& painter, const Package& package) {
  const QRect& body = package.body;
  const int bottom = body.y() + body.height();
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor("#2c5660"));
  painter.drawRoundedRect(body.x(), bottom - 30, body.width(), 34, 4, 4);

  painter.setBrush(QColor("#dbe8e8"));
  for (int pin = 0; pin < package.pinsOnASide; ++pin) {
    for (const int x : {body.x() - 12, body.x() + body.width() - 4})
      painter.drawRect(QRect({x, package.pinTop(pin)}, pinSize));
  }

  QPainterPath notched;
  notched.addRoundedRect(body, 4, 4);
  QPainterPath notch;
  notch.addEllipse(QPointF(90, body.y()), 10, 10);
  painter.fillPath(notched.subtracted(notch), downwards(body.y(), bottom, "#26424e", "#1a303b"));
  painter.setBrush(QColor("#4a848b"));
  painter.drawEllipse(QPointF(67.5, package.pinMiddle(0)), 3.5, 3.5);

  const double high = body.y() + body.height() / 2.0 - 18;
  const double low = high + 36;
  painter.setPen(trace("#8fe0cf"));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(
      QPolygonF({{56, low}, {75.5, low}, {75.5, high}, {104.5, high}, {104.5, low}, {124, low}}));
}

}  // namespace

QPicture circuitBoard(QSize size, const std::vector<double>& traceEnds) {
  const Package package = packageOn(size, static_cast<int>(traceEnds.size()));
  QPicture picture;
  QPainter painter(&picture);
  painter.fillRect(QRect({}, size), downwards(0, size.height(), "#4f8a90", "#386973"));
  painter.setRenderHint(QPainter::Antialiasing);
  drawTraces(painter, package, traceEnds, size.width());
  drawPackage(painter, package);
  painter.end();
  picture.setBoundingRect(QRect({}, size));
  return picture;
}

}  // namespace tarnwick::app
