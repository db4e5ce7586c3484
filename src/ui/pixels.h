#pragma once

#include "common/pixel_matrix.h"

#include <QAbstractButton>
#include <QColor>
#include <QWidget>

#include <array>
#include <optional>
#include <string_view>

// What shows a character of a dot-matrix display pixel by pixel.
namespace tarnwick::ui {

inline constexpr QColor pixelOff(255, 255, 255);
inline constexpr QColor pixelOn(0, 0, 0);

// The grid on which a character is drawn: one cell a pixel, white while it is off and black while
// it is on, each a button that is checked while its pixel is on. A press of the mouse clicks the
// cell under it, and dragging on clicks every further cell on the pointer's way that is not yet as
// that one has become. The grid is one stop of the Tab key; the arrow keys move among its cells,
// with Shift they give the next cell the state of the last one, Space clicks. Its context menu
// offers the actions that were added to it.
class PixelGrid : public QWidget {
  Q_OBJECT

public:
  // The cell of pixel p is named family(p).
  PixelGrid(QWidget* parent, std::string_view family);
  ~PixelGrid() override;

  void setPixels(const common::PixelMatrix& pixels);
  // The top edge of a row of cells, and their height, in logical pixels: a line of the fixed-pitch
  // font finds room beside each row.
  [[nodiscard]] int rowTop(int row) const;
  [[nodiscard]] int rowHeight() const;

signals:
  // The clicks up to the next stroke belong together.
  void strokeBegan();
  void clicked(int pixel);

protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  // A drag of the mouse, from its press on.
  struct Stroke {
    QPoint at;
    bool on;  // what the cells on its way become
  };

  void begin();
  // Leads the stroke straight to a place, which like its start may lie outside the grid.
  void strokeTo(QPoint end);
  void paint(int pixel, bool on);
  // Makes the pixel's cell the one that the Tab key stops at.
  void stopTabAt(int pixel);
  [[nodiscard]] std::optional<int> pixelUnder(QPoint place) const;
  [[nodiscard]] QAbstractButton* cell(int pixel) const;

  int pitch_;
  std::array<QAbstractButton*, common::matrixPixels> cells_;
  std::optional<Stroke> stroke_;
  bool keyStroke_ = false;  // goes on while Shift is held
};

// Answers how many times as large as designed pictures are shown beside the font of a control.
[[nodiscard]] int pictureScale(const QWidget& control);

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
