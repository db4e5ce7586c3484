#include "ui/drawing.h"

#include <QPainter>
#include <QPalette>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace tarnwick::ui {
namespace {

double luminance(const QColor& color) {
  const auto linear = [](double channel) {
    return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
         0.0722 * linear(color.blueF());
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
  const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

QColor distinct(const QColor& color, const QColor& ground, double wanted) {
  constexpr int steps = 32;
  const QColor end =
      contrast(Qt::black, ground) > contrast(Qt::white, ground) ? Qt::black : Qt::white;
  for (int step = 0; step < steps; ++step) {
    const QColor moved = between(color, end, step / static_cast<double>(steps));
    if (contrast(moved, ground) >= wanted) return moved;
  }
  return end;
}

QColor between(const QColor& first, const QColor& second, double part) {
  const auto mixed = [part](int one, int other) {
    return static_cast<int>(std::lround(one + (other - one) * part));
  };
  return {mixed(first.red(), second.red()), mixed(first.green(), second.green()),
          mixed(first.blue(), second.blue())};
}

QColor frameColor(const QPalette& palette) {
  constexpr double seen = 1.7;
  const QColor ground = palette.color(QPalette::Window);
  return distinct(ground, ground, seen);
}

QColor markColor(const QPalette& palette) {
  constexpr double tint = 0.25;
  return between(palette.color(QPalette::Window), palette.color(QPalette::Highlight), tint);
}

QColor focusColor(const QPalette& palette) {
  return distinct(palette.color(QPalette::Highlight), palette.color(QPalette::Window),
                  edgeContrast);
}

void drawEdge(QPainter& painter, const QRectF& rect, const QColor& color, int width) {
  const QTransform toDevice = painter.deviceTransform();
  const QRectF exact = toDevice.mapRect(rect);
  const QRectF whole(QPointF(std::ceil(exact.left()), std::ceil(exact.top())),
                     QPointF(std::floor(exact.right()), std::floor(exact.bottom())));
  const double line = std::max(1.0, std::floor(width * toDevice.m22()));
  const double half = line / 2;
  painter.save();
  painter.setTransform(toDevice.inverted(), true);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(color, line));
  constexpr double radius = 2;
  painter.drawRoundedRect(whole.adjusted(half, half, -half, -half), radius * toDevice.m11(),
                          radius * toDevice.m22());
  painter.restore();
}

}  // namespace tarnwick::ui
