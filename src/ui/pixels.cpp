#include "ui/pixels.h"

#include "common/number_text.h"
#include "ui/text.h"
#include "ui/twips.h"
#include "ui/widgets.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <utility>

namespace tarnwick::ui {
namespace {

using common::PixelMatrix;

constexpr int rows = common::matrixRows;
constexpr int columns = common::matrixColumns;

// Neighbouring cells share their border line. They are larger than the 240 twips that are the
// least, 16 pixels: a mouse or a finger wants 24. Source: Web Content Accessibility Guidelines 2.2,
// target size minimum.
constexpr int cellPitch = 28;
constexpr int sharedLine = 1;

// A picture's cell is one fifth of the design's cell of 255 twips; the cells overlap by 5 twips, so
// that in whole pixels they lie side by side.
constexpr int smallTwips = 255 / 5;
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

constexpr bool exists(Place place) {
  return place.row >= 0 && place.row < rows && place.column >= 0 && place.column < columns;
}

// The place beside another to which a key leads; none where it is no arrow key.
std::optional<Place> beside(Place place, int key) {
  switch (key) {
    case Qt::Key_Up:
      return Place{place.row - 1, place.column};
    case Qt::Key_Down:
      return Place{place.row + 1, place.column};
    case Qt::Key_Left:
      return Place{place.row, place.column - 1};
    case Qt::Key_Right:
      return Place{place.row, place.column + 1};
    default:
      return std::nullopt;
  }
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

  // The mouse and the arrow keys are left to the grid.
  void mousePressEvent(QMouseEvent* event) override { event->ignore(); }
  void mouseReleaseEvent(QMouseEvent* event) override { event->ignore(); }

  void keyPressEvent(QKeyEvent* event) override {
    if (beside({}, event->key())) return event->ignore();
    QAbstractButton::keyPressEvent(event);
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
    connect(cell, &QAbstractButton::clicked, this, [this, pixel] {
      begin();
      emit clicked(pixel);
    });
  }
  stopTabAt(pixelAt({0, 0}));
  connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) {
    if (now == nullptr || now->parentWidget() != this) keyStroke_ = false;
  });
}

// The toolkit may still move the focus while it takes the grid apart: nothing follows it then.
PixelGrid::~PixelGrid() {
  disconnect(qApp, nullptr, this, nullptr);
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

QAbstractButton* PixelGrid::cell(int pixel) const {
  return cells_.at(static_cast<std::size_t>(pixel));
}

void PixelGrid::stopTabAt(int pixel) {
  for (QAbstractButton* cell : cells_) cell->setFocusPolicy(Qt::ClickFocus);
  cell(pixel)->setFocusPolicy(Qt::StrongFocus);
}

void PixelGrid::begin() {
  keyStroke_ = false;
  stroke_.reset();
  emit strokeBegan();
}

void PixelGrid::paint(int pixel, bool on) {
  if (cell(pixel)->isChecked() != on) emit clicked(pixel);
}

// The last line of cells shares its far border with no other.
std::optional<int> PixelGrid::pixelUnder(QPoint place) const {
  if (!rect().contains(place)) return std::nullopt;
  return pixelAt(
      {std::min(place.y() / pitch_, rows - 1), std::min(place.x() / pitch_, columns - 1)});
}

// On a line between cells the pointer is in none of them: where it passes from one to the next
// across a corner, it crosses no third.
void PixelGrid::strokeTo(QPoint end) {
  const QPointF start = stroke_->at;
  const QPoint way = end - stroke_->at;
  const int steps = std::max(std::abs(way.x()), std::abs(way.y()));
  for (int i = 1; i <= steps; ++i) {
    const QPoint place = (start + QPointF(way) * i / steps).toPoint();
    const bool onLine = (way.x() != 0 && place.x() % pitch_ < sharedLine) ||
                        (way.y() != 0 && place.y() % pitch_ < sharedLine);
    if (const auto pixel = pixelUnder(place); pixel && !onLine) paint(*pixel, stroke_->on);
  }
  stroke_->at = end;
}

void PixelGrid::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  stroke_.reset();
  const QPoint place = event->position().toPoint();
  const auto pixel = pixelUnder(place);
  if (!pixel) return;
  begin();
  stroke_ = Stroke{place, !cell(*pixel)->isChecked()};
  paint(*pixel, stroke_->on);
}

void PixelGrid::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) stroke_.reset();
  if (stroke_) strokeTo(event->position().toPoint());
}

void PixelGrid::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  if (stroke_) strokeTo(event->position().toPoint());
  stroke_.reset();
}

void PixelGrid::keyPressEvent(QKeyEvent* event) {
  const auto current = std::ranges::find_if(cells_, &QWidget::hasFocus);
  const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const bool paints = modifiers == Qt::ShiftModifier;
  if (current == cells_.end() || (modifiers != Qt::NoModifier && !paints))
    return QWidget::keyPressEvent(event);
  const auto next = beside(placeOf(static_cast<int>(current - cells_.begin())), event->key());
  if (!next) return QWidget::keyPressEvent(event);
  if (!exists(*next)) return;
  if (paints && !keyStroke_) begin();
  keyStroke_ = paints;
  cell(pixelAt(*next))->setFocus(Qt::OtherFocusReason);
  if (paints) paint(pixelAt(*next), (*current)->isChecked());
}

void PixelGrid::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Shift) keyStroke_ = false;
  QWidget::keyReleaseEvent(event);
}

void PixelGrid::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addActions(actions());
  menu->popup(event->globalPos());
}

int pictureScale(const QWidget& control) {
  constexpr double usualHeight = 18;  // of a line, with the fonts that desktops start with
  return std::max(1, qRound(control.fontMetrics().height() / usualHeight));
}

PixelPicture::PixelPicture(QWidget* parent, std::string_view name, const Look& look)
    : QWidget(parent), look_(look) {
  setObjectName(toQt(name));
  setFixedSize(panelSize * pictureScale(*this));
}

void PixelPicture::setPixels(const PixelMatrix& pixels) {
  if (pixels == pixels_) return;
  pixels_ = pixels;
  update();
}

void PixelPicture::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const int scale = pictureScale(*this);
  painter.scale(scale, scale);
  const QRect panel(QPoint(), panelSize);
  if (look_.bordered) painter.fillRect(panel, Qt::black);
  const int border = look_.bordered ? 1 : 0;
  painter.fillRect(panel.adjusted(border, border, -border, -border), look_.off);
  for (int pixel = 0; pixel < rows * columns; ++pixel) {
    if (!pixels_.test(static_cast<std::size_t>(pixel))) continue;
    const Place place = placeOf(pixel);
    painter.fillRect(firstSmallCell.x() + place.column * smallPitch,
                     firstSmallCell.y() + place.row * smallPitch, smallPitch, smallPitch, pixelOn);
  }
}

}  // namespace tarnwick::ui
