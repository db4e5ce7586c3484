#include "app/fMain.h"

#include "app/circuit_board.h"
#include "common/product.h"
#include "ui/text.h"
#include "ui/twips.h"
#include "ui/widgets.h"

#include <QFont>
#include <QFontInfo>
#include <QFontMetrics>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwick::app {
namespace {

namespace product = common::product;

struct LauncherButton {
  std::string_view control;
  std::string_view caption;
  int topTwips;
  std::string_view window;
  std::string_view question;
};

// Top to bottom, which is also the tab order.
constexpr auto launcherButtons = std::to_array<LauncherButton>({
    {"cTimer", "Timer calc", 200, "fTimer",
     "How often a timer overflows: its interrupt period and frequency"},
    {"cTimerHelper", "Timer helper", 560, "fTimerHelper",
     "Which prescaler and preload give a wanted interrupt period or frequency"},
    {"cUSART", "USART calc", 920, "fUSART", "Which SPBRG and BRGH give a wanted baud rate"},
    {"cEUSART", "EUSART calc", 1280, "fEUSART",
     "Which SPBRG, BRGH and BRG16 give a wanted baud rate"},
    {"cSerinSerout2", "SERIN/OUT2", 1635, "fSerinSerout2",
     "Which mode number SERIN2 and SEROUT2 take"},
    {"cPWM", "PWM calc", 2000, "fPWM",
     "Which Timer2 settings give a wanted PWM frequency and duty cycle"},
    {"cAD", "A/D Calc", 2360, "fMinADTime",
     "Which conversion clock and acquisition time the A/D converter needs"},
    {"Command1", "Comparator Vref", 2715, "fComparator",
     "Which voltages the comparator reference makes of the supply"},
    {"cCustomChar", "LCD custom character", 3075, "fCustomCharacter",
     "Draws characters of an LCD and writes the PBP text for them"},
});

constexpr int buttonTwips = 350;  // high
constexpr int restTwips = 190;    // of the picture below the last button
constexpr int buttonLeft = ui::fromTwips(2700);
constexpr QSize buttonSize(ui::fromTwips(1815), ui::fromTwips(buttonTwips));
constexpr QSize pictureSize(ui::fromTwips(4695), ui::fromTwips(launcherButtons.back().topTwips +
                                                               buttonTwips + restTwips));

std::vector<double> buttonMiddles() {
  std::vector<double> middles(launcherButtons.size());
  std::ranges::transform(launcherButtons, middles.begin(), [](const LauncherButton& button) {
    return ui::fromTwips(button.topTwips) + buttonSize.height() / 2.0;
  });
  return middles;
}

// By far the widest in every typeface: to measure each would be a noticeable part of the start.
constexpr std::string_view longestCaption =
    std::ranges::max(launcherButtons, {}, [](const auto& each) {
      return each.caption.size();
    }).caption;

// How many times larger than this the font may be for every caption to fit a button of the size.
double room(const QFont& font, QSize button) {
  constexpr int marginX = 8;
  constexpr int marginY = 4;
  const QFontMetricsF metrics(font);
  return std::min((button.height() - marginY) / metrics.height(),
                  (button.width() - marginX) / metrics.horizontalAdvance(ui::toQt(longestCaption)));
}

// Answers the font, made smaller where the longest caption would not fit a button whole. To load a
// size takes a noticeable part of the start: the first guess fits.
QFont fittingFont(QFont font, QSize button) {
  constexpr double step = 0.5;
  constexpr double smallest = 5;
  double fits = room(font, button);
  while (fits < 1) {
    const double size = std::floor(QFontInfo(font).pointSizeF() * fits / step) * step;
    if (size < smallest) break;
    font.setPointSizeF(size);
    fits = room(font, button);
  }
  return font;
}

}  // namespace

fMain::fMain(WindowSet& windows, GenVar& genVar)
    : Window("fMain", product::title), windows_(windows), genVar_(genVar) {
  auto* client = new QWidget(this);
  QMenuBar* menu = makeMenu();
  // With a font too large for the whole menu to be seen, the launcher grows.
  constexpr int rounding = 2;  // what fractional scale factors may take from a width
  const double menuWidth = menu->sizeHint().width() + rounding;
  double scale = std::max(1.0, menuWidth / pictureSize.width());
  constexpr double captionSize = 2 / 3.0;  // of the font's, at least, where the launcher has grown
  if (scale > 1) scale = std::max(scale, captionSize / room(font(), buttonSize));
  client->setFixedSize(pictureSize * scale);
  layOutPicture(client);
  layOutButtons(client, scale);

  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  layout->setMenuBar(menu);
  layout->addWidget(client);

  connect(this, &Window::unloading, this, &fMain::Form_Unload);
  Form_Load();
}

void fMain::layOutPicture(QWidget* client) {
  auto* Picture1 = ui::label(client, "Picture1", "");
  Picture1->setAccessibleName(ui::toQt(product::name));
  Picture1->setPicture(circuitBoard(pictureSize, buttonMiddles()));
  Picture1->setScaledContents(true);
  Picture1->resize(client->size());
}

void fMain::layOutButtons(QWidget* client, double scale) {
  const QSize size = buttonSize * scale;
  const QFont font = fittingFont(client->font(), size);
  for (const LauncherButton& button : launcherButtons) {
    auto* push = ui::button(client, button.control, button.caption);
    push->setFont(font);
    push->setToolTip(ui::toQt(button.question));
    push->setAccessibleDescription(push->toolTip());
    push->setGeometry(QRect(QPoint(buttonLeft, ui::fromTwips(button.topTwips)) * scale, size));
    connect(push, &QPushButton::clicked, this,
            [this, button] { windows_.open(button.window, this); });
  }
}

QMenuBar* fMain::makeMenu() {
  auto* menu = new QMenuBar(this);
  menu->setAccessibleName(QStringLiteral("Commands"));
  menu->setNativeMenuBar(false);  // a desktop's own menu bar leaves out commands without submenus
  const auto add = [&](std::string_view name, std::string_view caption, auto command) {
    QAction* action = menu->addAction(ui::toQt(caption), this, command);
    action->setObjectName(ui::toQt(name));
    return action;
  };
  QAction* exit = add("Exit", "Exit", [this] { close(); });
  exit->setShortcut(Qt::CTRL | Qt::Key_Q);
  exit->setShortcutContext(Qt::ApplicationShortcut);  // in every window of the program
  add("Visite_our_Website", "Website", [] { OpenWebSite(std::string(product::webSite)); });
  add("Contact_us", "Contact us",
      [] { SendMail(std::string(product::email), std::string(product::name), ""); });
  add("About", "About", [this] { windows_.open("fAbout", this); });
  return menu;
}

void fMain::Form_Load() {
  genVar_.oscillator.MaxOsc = 64;
}

void fMain::Form_Unload() {
  windows_.unloadAll();
}

}  // namespace tarnwick::app
