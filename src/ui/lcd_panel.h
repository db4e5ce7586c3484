#pragma once

#include "ui/pixels.h"

#include <QLineEdit>

#include <string_view>

namespace tarnwick::ui {

// A piece of a simulated LCD: the panel Image2 with the character Preview between the texts tLeft
// and tRight of two characters each, in the display's colours under every palette.
class LcdPanel : public QWidget {
  Q_OBJECT

public:
  explicit LcdPanel(QWidget* parent);

  void setPixels(const common::PixelMatrix& pixels);
  void setTexts(std::string_view left, std::string_view right);

private:
  PixelPicture* Preview;
  QLineEdit* tLeft;
  QLineEdit* tRight;
};

}  // namespace tarnwick::ui
