#include "support/look.h"

#include "support/program.h"
#include "ui/drawing.h"
#include "ui/entry_field.h"

#include <QAbstractButton>
#include <QApplication>
#include <QStyle>

#include <algorithm>
#include <map>
#include <tuple>

namespace tarnwick::tests {
namespace {

// Whether two controls cover no more of each other than the line that two cells of the grid share.
// What lies on the launcher's picture is meant to.
bool areApart(const QWidget* one, const QWidget* other) {
  constexpr QMargins line(1, 1, 1, 1);
  return one == other || !other->isVisible() || one->objectName() == "Picture1" ||
         other->objectName() == "Picture1" ||
         !one->geometry().marginsRemoved(line).intersects(other->geometry().marginsRemoved(line));
}

// Holds with every font and at every scale factor: the list of tests has it with some of them.
TEST_F(EveryWindow, ShowsItsTextsWholeAndApart) {
  window("fSerinSerout2")->findChild<QAbstractButton*>("oParity(0)")->click();  // one button more
  for (const QWidget* opened : all) {
    for (const auto* control : controlsOf(opened)) {
      if (!control->isVisible()) continue;
      const QWidget* around = control->parentWidget();
      EXPECT_TRUE(around->rect().contains(control->geometry())) << fullName(control);
      expectWhole(control);
      for (const auto* other :
           around->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        EXPECT_TRUE(areApart(control, other)) << fullName(control) << ", " << fullName(other);
    }
  }
  EXPECT_FALSE(window("fMain")->findChild<QWidget*>("qt_menubar_ext_button")->isVisible());
}

using Look = Program;

TEST_F(Look, ShowsTheWidestRatesWhole) {
  for (const auto& [port, oscillator, field] :
       {std::tuple("USART", "36.57142", "tCalcBaud1"), {"EUSART", "64", "tCalcBaud16_1"}}) {
    open(std::string("c") + port, std::string("f") + port);
    enter("fOSC", std::string(oscillator) + "\r");
    click("cKBaud");
    enter("BaudRate", "2285.714\r");
    EXPECT_EQ(shown(field), "2285.714 K");
    expectGoodLook(current());
  }
}

// Where a control has its text, and nothing else.
QRect textPlace(const QWidget* control) {
  const int mark = 2 * control->style()->pixelMetric(QStyle::PM_IndicatorWidth);
  const bool isOption = control->inherits("QRadioButton") || control->inherits("QCheckBox");
  if (control->inherits("QLabel")) return control->rect();
  if (control->inherits("QGroupBox")) return {0, 0, control->width(), mark / 2};
  return control->rect().adjusted(isOption ? mark : 4, 3,
                                  control->inherits("QComboBox") ? -mark : -4, -3);
}

// Where a control shows that it can be operated: the box of an option, the left edge of an entry
// with its ground; nothing where its text shows that.
QRect edgePlace(const QWidget* control) {
  if (control->inherits("QRadioButton") || control->inherits("QCheckBox"))
    return {0, 0, control->style()->pixelMetric(QStyle::PM_IndicatorWidth), control->height()};
  const bool isEntry = isResult(control) == std::optional(false);
  return isEntry ? QRect(-3, control->height() / 2, 5, 1) : QRect();
}

// How much a place of a control stands out from its ground, as painted (1 is not at all, 21 is
// black on white), and its ground, the colour that most of it has.
std::pair<double, QColor> contrastOf(QWidget* control, QRect place) {
  const QPoint corner = control->mapTo(control->window(), QPoint());
  const QImage image = control->window()->grab(place.translated(corner)).toImage();
  std::map<QRgb, int> colours;
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) ++colours[image.pixel(x, y)];
  const auto most = std::ranges::max_element(colours, {}, [](auto& each) { return each.second; });
  double ratio = 1;
  for (const auto& [colour, times] : colours)
    ratio = std::max(ratio, ui::contrast(QColor(colour), QColor(most->first)));
  return {ratio, most->first};
}

// Results stand on the window's own ground, entries on that of entries; the display's colours are
// always the same.
TEST_F(EveryWindow, CanBeReadInTheLightAndInTheDark) {
  auto* lcd = window("fCustomCharacter");
  lcd->findChild<QAbstractButton*>("chk(12)")->click();
  QList<QImage> pictures;
  for (const QColor colour : {QColor(0xef, 0xf0, 0xf1), QColor(0x2a, 0x2e, 0x32)}) {
    QPalette palette(colour, colour);
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
    QApplication::style()->polish(palette);
    QApplication::setPalette(palette);
    QCoreApplication::processEvents();
    for (const QWidget* opened : all) {
      for (auto* field : opened->findChildren<ui::EntryField*>()) field->setText("7");  // dims
      for (QWidget* control : controlsOf(opened)) {
        const bool hasText = !textOf(control).isEmpty() && !control->inherits("QSlider");
        if (!hasText || isCell(control)) continue;
        // Neither hidden nor scrolled away.
        if (control->visibleRegion().boundingRect() != control->rect()) continue;
        const auto [ratio, ground] = contrastOf(control, textPlace(control));
        const bool isLarge = control->font().bold() && control->font().pointSize() >= 14;
        EXPECT_GE(ratio, isLarge ? 3 : 4.5) << fullName(control) << " on " << qGray(colour.rgb());
        const QRect edge = edgePlace(control);
        const double edgeRatio = edge.isValid() ? contrastOf(control, edge).first : 3;
        EXPECT_GE(edgeRatio, 3) << fullName(control) << ", its edge";
        if (control->parentWidget()->objectName() == "Image2" || !isResult(control)) continue;
        EXPECT_EQ(ground, palette.color(*isResult(control) ? QPalette::Window : QPalette::Base))
            << fullName(control);
      }
    }
    for (const char* name : {"Image2", "Char0", "chk(12)", "chk(13)"})
      pictures << lcd->findChild<QWidget*>(name)->grab().toImage();
  }
  QApplication::setPalette(QPalette());
  EXPECT_TRUE(pictures.mid(0, 4) == pictures.mid(4));
}

}  // namespace
}  // namespace tarnwick::tests
