#include "ui/pixels.h"

#include "common/number_text.h"
#include "ui/text.h"
#include "ui/twips.h"
#include "ui/widgets.h"

#include <QKeyEvent>
#include <QPainter>

#include <algorithm>
#include <functional>
#include <utility>

namespace tarnwick::ui {
namespace {

using common::PixelMatrix;

constexpr int rows = common::matrixRows;
constexpr int columns = common::matrixColumns;

// Neighbouring cells share their border line, of one pixel.
constexpr int cellTwips = 255;
constexpr int cellPitch = fromTwips(240);
constexpr int sharedLine = fromTwips(cellTwips) - cellPitch;

// A picture's cell is one fifth of the grid's; the cells overlap by 5 twips, so that in whole
// pixels they lie side by side.
constexpr int smallTwips = cellTwips / 5;
constexpr int smallPitch = fromTwips(smallTwips - 5);
constexpr QPoint firstSmallCell(fromTwips(30 - 5), fromTwips(40 - 5));
constexpr QSize panelSize(fromTwips(columns* smallTwips + 30), fromTwips(rows* smallTwips + 30));

// Where a pixel stands, counted from the top left.
struct Place {
  int row;
  int column;
};

constexpr Place placeOf(int pixel) {
  return {pixel / columns, columns - 1 - pixel % columns};
}

constexpr int pixelAt(Place place) {
  return place.row * columns + columns - 1 - place.column;
}

class PixelCell : public QAbstractButton {
public:
  PixelCell(QWidget* parent, std::function<void()> entered)
      : QAbstractButton(parent), entered_(std::move(entered)) {
    setCheckable(true);
    setFocusPolicy(Qt::ClickFocus);
  }

protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::gray);
    const QColor fill = isChecked() ? pixelOn : pixelOff;
    const QRect inside = rect().adjusted(1, 1, -1, -1);
    painter.fillRect(inside, fill);
    if (!hasFocus()) return;
    painter.fillRect(inside.adjusted(1, 1, -1, -1), palette().highlight());
    painter.fillRect(inside.adjusted(3, 3, -3, -3), fill);
  }

  void keyPressEvent(QKeyEvent* event) override {
    switch (event->key()) {
      case Qt::Key_Up:
      case Qt::Key_Down:
      case Qt::Key_Left:
      case Qt::Key_Right:
        return event->ignore();  // left to the grid
      default:
        QAbstractButton::keyPressEvent(event);
    }
  }

  void focusInEvent(QFocusEvent* event) override {
    entered_();
    QAbstractButton::focusInEvent(event);
  }

private:
  std::function<void()> entered_;
};

}  // namespace

PixelGrid::PixelGrid(QWidget* parent, std::string_view family) : QWidget(parent) {
  nameAfter(this, "Pixels");
  useFixedPitch(*this);
  pitch_ = std::max(cellPitch, fontMetrics().height() - sharedLine);
  setFixedSize(columns * pitch_ + sharedLine, rows * pitch_ + sharedLine);
  for (int i = 0; i < rows * columns; ++i) {
    // From the top left on, so that cells are found in reading order.
    const Place place{i / columns, i % columns};
    const int pixel = pixelAt(place);
    auto* cell = new PixelCell(this, [this, pixel] { stopTabAt(pixel); });
    cells_.at(static_cast<std::size_t>(pixel)) = cell;
    cell->setObjectName(toQt(indexed(family, pixel)));
    cell->setAccessibleName(toQt("Row " + common::wholeText(place.row + 1) + ", column " +
                                 common::wholeText(place.column + 1)));
    cell->setGeometry(place.column * pitch_, rowTop(place.row), rowHeight(), rowHeight());
    connect(cell, &QAbstractButton::clicked, this, [this, pixel] { emit clicked(pixel); });
  }
  stopTabAt(pixelAt({0, 0}));
}

void PixelGrid::setPixels(const PixelMatrix& pixels) {
  for (std::size_t i = 0; i < cells_.size(); ++i) cells_[i]->setChecked(pixels.test(i));
}

int PixelGrid::rowTop(int row) const {
  return row * pitch_;
}

int PixelGrid::rowHeight() const {
  return pitch_ + sharedLine;
}

void PixelGrid::stopTabAt(int pixel) {
  for (QAbstractButton* cell : cells_) cell->setFocusPolicy(Qt::ClickFocus);
  cells_.at(static_cast<std::size_t>(pixel))->setFocusPolicy(Qt::StrongFocus);
}

void PixelGrid::keyPressEvent(QKeyEvent* event) {
  const auto current = std::ranges::find_if(cells_, &QWidget::hasFocus);
  if (current == cells_.end()) return QWidget::keyPressEvent(event);
  Place place = placeOf(static_cast<int>(current - cells_.begin()));
  switch (event->key()) {
    case Qt::Key_Up:
      --place.row;
      break;
    case Qt::Key_Down:
      ++place.row;
      break;
    case Qt::Key_Left:
      --place.column;
      break;
    case Qt::Key_Right:
      ++place.column;
      break;
    default:
      return QWidget::keyPressEvent(event);
  }
  place = {std::clamp(place.row, 0, rows - 1), std::clamp(place.column, 0, columns - 1)};
  cells_.at(static_cast<std::size_t>(pixelAt(place)))->setFocus(Qt::OtherFocusReason);
}

PixelPicture::PixelPicture(QWidget* parent, std::string_view name, const Look& look)
    : QWidget(parent), look_(look) {
  setObjectName(toQt(name));
  setFixedSize(panelSize);
}

void PixelPicture::setPixels(const PixelMatrix& pixels) {
  if (pixels == pixels_) return;
  pixels_ = pixels;
  update();
}

void PixelPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  if (look_.bordered) painter.fillRect(rect(), Qt::black);
  const int border = look_.bordered ? 1 : 0;
  painter.fillRect(rect().adjusted(border, border, -border, -border), look_.off);
  for (int pixel = 0; pixel < rows * columns; ++pixel) {
    if (!pixels_.test(static_cast<std::size_t>(pixel))) continue;
    const Place place = placeOf(pixel);
    painter.fillRect(firstSmallCell.x() + place.column * smallPitch,
                     firstSmallCell.y() + place.row * smallPitch, smallPitch, smallPitch, pixelOn);
  }
}

}  // namespace tarnwick::ui
