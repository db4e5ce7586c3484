#include "ui/lcd_panel.h"

#include "ui/text.h"
#include "ui/twips.h"
#include "ui/widgets.h"

#include <QFontDatabase>

namespace tarnwick::ui {
namespace {

// The texts' place, seen from the top left corner of the picture between them.
constexpr int textTop = fromTwips(40);
constexpr int leftTextLeft = fromTwips(-620);
constexpr int rightTextLeft = fromTwips(250);
constexpr int textWidth = -leftTextLeft;
constexpr int margin = 8;
constexpr QColor lcdGreen(0, 128, 0);

QFont terminalFont(int scale) {
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setFamilies({QStringLiteral("Terminal"), font.family()});
  font.setPointSize(18 * scale);
  font.setBold(true);
  return font;
}

QPalette lcdPalette(QPalette palette) {
  for (const auto role : {QPalette::Window, QPalette::Base}) palette.setColor(role, lcdGreen);
  for (const auto role : {QPalette::WindowText, QPalette::Text}) palette.setColor(role, pixelOn);
  return palette;
}

QLineEdit* lockedText(QWidget* parent, std::string_view name, Qt::Alignment alignment) {
  auto* field = textField(parent, name, 2);
  field->setReadOnly(true);
  field->setFocusPolicy(Qt::ClickFocus);
  field->setFrame(false);
  field->setAlignment(alignment);
  const int scale = pictureScale(*parent);
  field->setFont(terminalFont(scale));
  // Set for the field itself: the style of Windows paints an inherited background as its own.
  field->setPalette(lcdPalette(field->palette()));
  field->setFixedWidth(textWidth * scale);
  return field;
}

}  // namespace

LcdPanel::LcdPanel(QWidget* parent) : QWidget(parent) {
  setObjectName(QStringLiteral("Image2"));
  nameAfter(this, "LCD");
  setPalette(lcdPalette(palette()));
  setAutoFillBackground(true);

  tLeft = lockedText(this, "tLeft", Qt::AlignRight);
  nameAfter(tLeft, "Lead text on the LCD");
  Preview = new PixelPicture(this, "Preview", {.off = lcdGreen, .bordered = false});
  nameAfter(Preview, "Preview");
  tRight = lockedText(this, "tRight", Qt::AlignLeft);
  nameAfter(tRight, "Follow text on the LCD");

  const int scale = pictureScale(*this);
  Preview->move(QPoint(margin + textWidth, margin) * scale);
  tLeft->move(Preview->pos() + QPoint(leftTextLeft, textTop) * scale);
  const int overlap = Preview->width() / scale - rightTextLeft;
  tRight->move(Preview->pos() + QPoint(Preview->width() - overlap, textTop * scale));
  const int textHeight = tLeft->sizeHint().height();
  for (QLineEdit* text : {tLeft, tRight}) text->setFixedHeight(textHeight);
  setFixedSize(tRight->x() + (textWidth + margin) * scale,
               tRight->y() + textHeight + margin * scale);
}

void LcdPanel::setPixels(const common::PixelMatrix& pixels) {
  Preview->setPixels(pixels);
}

void LcdPanel::setTexts(std::string_view left, std::string_view right) {
  tLeft->setText(toQt(left));
  tRight->setText(toQt(right));
}

}  // namespace tarnwick::ui
