#pragma once

#include "common/pixel_matrix.h"

#include <QAbstractButton>
#include <QColor>
#include <QWidget>

#include <array>
#include <string_view>

// What shows a character of a dot-matrix display pixel by pixel.
namespace tarnwick::ui {

inline constexpr QColor pixelOff(255, 255, 255);
inline constexpr QColor pixelOn(0, 0, 0);

// The grid on which a character is drawn: one cell a pixel, white while it is off and black while
// it is on, each a button that is checked while its pixel is on. The grid is one stop of the Tab
// key; the arrow keys move among its cells, Space clicks.
class PixelGrid : public QWidget {
  Q_OBJECT

public:
  // The cell of pixel p is named family(p).
  PixelGrid(QWidget* parent, std::string_view family);

  void setPixels(const common::PixelMatrix& pixels);
  // The top edge of a row of cells, and their height, in logical pixels: a line of the fixed-pitch
  // font finds room beside each row.
  [[nodiscard]] int rowTop(int row) const;
  [[nodiscard]] int rowHeight() const;

signals:
  void clicked(int pixel);

protected:
  void keyPressEvent(QKeyEvent* event) override;

private:
  // Makes the pixel's cell the one that the Tab key stops at.
  void stopTabAt(int pixel);

  int pitch_;
  std::array<QAbstractButton*, common::matrixPixels> cells_;
};

// A small picture of a character on a panel of its own.
class PixelPicture : public QWidget {
  Q_OBJECT

public:
  struct Look {
    QColor off;
    bool bordered;
  };

  PixelPicture(QWidget* parent, std::string_view name, const Look& look);

  void setPixels(const common::PixelMatrix& pixels);

protected:
  void paintEvent(QPaintEvent* event) override;

private:
  Look look_;
  common::PixelMatrix pixels_;
};

}  // namespace tarnwick::ui
