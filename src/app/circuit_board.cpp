#include "app/circuit_board.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include <cstdlib>

namespace tarnwick::app {
namespace {

constexpr int width = 313;
constexpr int height = 241;
constexpr QRect body(56, 31, 68, 179);
constexpr int pinsOnASide = 9;
constexpr QSize pinSize(16, 7);
constexpr int traceWidth = 3;

int pinTop(int pin) {
  return 45 + 18 * pin;
}

double pinMiddle(int pin) {
  return pinTop(pin) + pinSize.height() / 2.0;
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

void drawTraces(QPainter& painter) {
  constexpr int right = body.x() + body.width() + 10;
  constexpr int left = body.x() - 10;
  constexpr double pad = 30;
  QPainterPath traces;
  for (int pin = 0; pin < pinsOnASide; ++pin) {
    const double rise = 24.5 + 24 * pin - pinMiddle(pin);
    addTrace(traces, {right, pinMiddle(pin)}, 20 - std::abs(rise) / 2, rise, width);
  }
  for (const int pin : {2, 6}) {
    traces.moveTo(left, pinMiddle(pin));
    traces.lineTo(pad, pinMiddle(pin));
    traces.addEllipse(QPointF(pad - 5.5, pinMiddle(pin)), 5, 5);
  }
  for (const int pin : {3, 4}) {
    traces.moveTo(left, pinMiddle(pin));
    traces.lineTo(0, pinMiddle(pin));
  }
  for (const int pin : {0, 8}) {
    const int slope = pin == 0 ? -1 : 1;
    traces.moveTo(left, pinMiddle(pin));
    traces.lineTo(left - 8, pinMiddle(pin));
    traces.lineTo(left - 68, pinMiddle(pin) + 60 * slope);
  }
  painter.strokePath(traces, trace("#6fa9aa"));
}

void drawPackage(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor("#2c5660"));
  painter.drawRoundedRect(body.x(), 180, body.width(), 34, 4, 4);

  painter.setBrush(QColor("#dbe8e8"));
  for (int pin = 0; pin < pinsOnASide; ++pin) {
    for (const int x : {body.x() - 12, body.x() + body.width() - 4})
      painter.drawRect(QRect({x, pinTop(pin)}, pinSize));
  }

  QPainterPath notched;
  notched.addRoundedRect(body, 4, 4);
  QPainterPath notch;
  notch.addEllipse(QPointF(90, body.y()), 10, 10);
  painter.fillPath(notched.subtracted(notch),
                   downwards(body.y(), body.y() + body.height(), "#26424e", "#1a303b"));
  painter.setBrush(QColor("#4a848b"));
  painter.drawEllipse(QPointF(67.5, pinMiddle(0)), 3.5, 3.5);
}

void drawPulse(QPainter& painter) {
  painter.setPen(trace("#8fe0cf"));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(QPolygonF(
      {{56, 138.5}, {75.5, 138.5}, {75.5, 102.5}, {104.5, 102.5}, {104.5, 138.5}, {124, 138.5}}));
}

}  // namespace

QPicture circuitBoard() {
  QPicture picture;
  QPainter painter(&picture);
  painter.fillRect(0, 0, width, height, downwards(0, height, "#4f8a90", "#386973"));
  painter.setRenderHint(QPainter::Antialiasing);
  drawTraces(painter);
  drawPackage(painter);
  drawPulse(painter);
  painter.end();
  picture.setBoundingRect(QRect(0, 0, width, height));
  return picture;
}

}  // namespace tarnwick::app
