#include "support/look.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QScreen>
#include <QScrollArea>
#include <QSlider>
#include <QStyle>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>

namespace tarnwick::tests {

QWidgetList controlsOf(const QWidget* window) {
  QWidgetList controls = window->findChildren<QWidget*>();
  controls.removeIf([](const QWidget* control) {
    return control->objectName().isEmpty() || control->objectName().startsWith("qt_") ||
           control->parentWidget()->inherits("QComboBox");
  });
  return controls;
}

bool isCell(const QWidget* control) {
  return control->parentWidget()->inherits("tarnwick::ui::PixelGrid");
}

std::optional<bool> isResult(const QWidget* control) {
  const QVariant readOnly = control->property("readOnly");
  return readOnly.isValid() ? std::optional(readOnly.toBool()) : std::nullopt;
}

std::string fullName(const QWidget* control) {
  return (control->window()->objectName() + "." + control->objectName()).toStdString();
}

QString textOf(const QWidget* control) {
  if (const auto* slider = qobject_cast<const QSlider*>(control))
    return QString::asprintf("%d of %d to %d", slider->value(), slider->minimum(),
                             slider->maximum());
  for (const char* property : {"title", "currentText", "plainText", "text"})
    if (const QVariant text = control->property(property); text.isValid())
      return text.toString() + (control->property("checked").toBool() ? " (on)" : "");
  return {};
}

QImage onScreen(QWidget* control) {
  if (auto* area = control->window()->findChild<QScrollArea*>(); area != nullptr)
    area->ensureWidgetVisible(control);
  if (QGuiApplication::platformName() == "windows") return control->grab().toImage();
  QCoreApplication::processEvents();
  const QWidget* window = control->window();
  const QImage all = window->screen()->grabWindow(window->winId()).toImage();
  const QPoint corner = control->mapTo(window, QPoint()) * all.devicePixelRatio();
  return all.copy({corner, control->size() * all.devicePixelRatio()});
}

void expectWhole(const QWidget* control) {
  const auto* button = qobject_cast<const QAbstractButton*>(control);
  const QString text = button != nullptr ? button->text() : textOf(control);
  if (text.isEmpty() || control->inherits("QSlider")) return;
  int width = 0;
  for (const QString& line : text.split('\n'))
    width = std::max(width, control->fontMetrics().horizontalAdvance(line));
  if (const auto* field = qobject_cast<const QLineEdit*>(control)) {
    const int frame = field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, field);
    width += (field->hasFrame() ? 2 * frame : 0) + 2 * 2 + 1;  // its margins and the cursor
  } else if (control->inherits("QPlainTextEdit")) {
    width += 2 * 4;  // the document's margins
  } else if (!control->inherits("QLabel") && control->window()->objectName() != "fMain") {
    constexpr int rounding = 1;  // what a fractional scale factor may take from a window
    width = std::max(width, control->sizeHint().width() - rounding);
  }
  EXPECT_GE(control->width(), width) << fullName(control) << ": " << text.toStdString();
  EXPECT_GE(control->height(), control->fontMetrics().height()) << fullName(control);
}

void expectGoodLook(QWidget* window) {
  const auto isPaintedAnew = [window] {
    const QImage anew = window->grab().toImage();
    return onScreen(window).convertToFormat(QImage::Format_RGB32) ==
           anew.convertToFormat(QImage::Format_RGB32);
  };
  EXPECT_TRUE(QTest::qWaitFor(isPaintedAnew, 1000)) << fullName(window) << " is not painted anew";
  for (const auto* control : controlsOf(window)) {
    const bool isTyped = control->inherits("QComboBox") || !isResult(control).value_or(true);
    if (control->isVisible() && !isTyped && textOf(control).size() < 200) expectWhole(control);
  }
}

}  // namespace tarnwick::tests
