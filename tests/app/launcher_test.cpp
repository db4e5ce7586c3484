#include "support/look.h"
#include "support/program.h"

#include <QAction>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>

namespace tarnwick::tests {
namespace {

class Launcher : public Program {
protected:
  void command(const std::string& name) {
    turnTo("fMain");
    const auto* menu = current()->findChild<QMenuBar*>();
    auto* action = current()->findChild<QAction*>(ui::toQt(name));
    QTest::mouseClick(current()->windowHandle(), Qt::LeftButton, {},
                      menu->mapTo(current(), menu->actionGeometry(action).center()));
  }
};

TEST_F(Launcher, StandsWhereItWasDrawn) {
  auto* picture = control<QLabel>("Picture1");
  EXPECT_EQ(picture->geometry(), QRect(0, 0, 313, 241));
  const QImage drawn = picture->grab().toImage();
  const QColor trace(0x6f, 0xa9, 0xaa);
  int top = 13;
  for (const char* name : {"cTimer", "cTimerHelper", "cUSART", "cEUSART", "cSerinSerout2", "cPWM",
                           "cAD", "Command1", "cCustomChar"}) {
    const auto* button = control<QPushButton>(name);
    EXPECT_EQ(button->geometry(), QRect(180, top, 121, 23)) << name;
    EXPECT_EQ(drawn.pixelColor(button->geometry().center()), trace) << name;
    EXPECT_NE(drawn.pixelColor(240, top + 23), trace) << name;
    EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), 115) << name;
    top += 24;
  }
}

// Reading the picture of that button would take a noticeable part of the start.
TEST_F(Launcher, LeavesTheButtonForMoreCommandsEmpty) {
  EXPECT_TRUE(control<QToolButton>("qt_menubar_ext_button")->icon().isNull());
}

TEST_F(Launcher, HasTheIconThatADesktopShows) {
  const QIcon icon = window("fMain")->windowIcon();
  EXPECT_TRUE(icon.availableSizes().contains(QSize(96, 96)));  // the About box at a factor of 2
  for (const int size : {16, 32, 48}) {
    const QImage desktops(QStringLiteral(TESTS_FOLDER "/../resources/tarnwick-%1.png").arg(size));
    EXPECT_EQ(icon.pixmap({size, size}, 1.0).toImage().convertToFormat(QImage::Format_ARGB32),
              desktops.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                  .convertToFormat(QImage::Format_ARGB32))
        << size;
  }
}

TEST_F(Launcher, OpensEachWindowOnceAndBringsItForward) {
  open("cTimer", "fTimer");
  enter("tOSC", "20\r");
  const QWidget* first = current();
  current()->showMinimized();
  QTest::qWait(200);  // a window manager takes its time
  open("cTimer", "fTimer");
  EXPECT_EQ(current(), first);
  EXPECT_FALSE(first->isMinimized());
  EXPECT_EQ(shown("tOSC"), "20");
  EXPECT_TRUE(window("fMain")->isVisible());
}

using OnDisplayWindows = Program;

TEST_F(OnDisplayWindows, ComeBackWhereTheyStood) {
  open("cTimer", "fTimer");
  current()->move(300, 200);
  QTest::qWait(200);
  const QRect stood = current()->frameGeometry();
  for (int i = 0; i < 2; ++i) {
    current()->close();
    open("cTimer", "fTimer");
    EXPECT_TRUE(QTest::qWaitFor([&] { return current()->frameGeometry() == stood; }, 1000));
  }
}

TEST_F(Launcher, ShowsTheCommandThatTheKeyboardOrTheMouseHas) {
  auto* menu = window("fMain")->findChild<QMenuBar*>();
  const auto look = [&](int command) {
    return menu->grab(menu->actionGeometry(menu->actions()[command])).toImage();
  };
  const QImage exit = look(0);
  const QImage webSite = look(1);
  press(Qt::Key_Alt);
  EXPECT_NE(look(0), exit);
  press(Qt::Key_Right);
  EXPECT_TRUE(look(0) == exit && look(1) != webSite);
  press(Qt::Key_Escape);
  EXPECT_EQ(look(1), webSite);
  QTest::mouseMove(current()->windowHandle(), menu->actionGeometry(menu->actions()[0]).center());
  EXPECT_NE(look(0), exit);
}

TEST_F(Launcher, AsksTheDesktopForWebSiteAndMail) {
  command("Visite_our_Website");
  command("Contact_us");
  EXPECT_EQ(shell.addresses,
            QStringList({"https://tarnwick.example/",
                         "mailto:contact@tarnwick.example?subject=Tarnwick&body="}));
}

// Also in the middle of an edit, which is not validated then, and with a message open.
TEST_F(Launcher, ClosesEveryWindowInItsOrder) {
  for (const auto& [typed, accepted] : {std::pair("100", 0), {"", 0}, {"100\r", 64}}) {
    windows.open("fMain");
    open("cTimer", "fTimer");
    enter("tOSC", typed);
    windows.open("fAbout");
    std::vector<std::string> closed;
    for (const char* name : {"fTimer", "fAbout", "fMain"})
      QObject::connect(windows.loaded(name), &ui::Window::unloading, windows.loaded(name),
                       [&closed, name] { closed.emplace_back(name); });
    window("fMain")->close();
    EXPECT_EQ(closed, (std::vector<std::string>{"fAbout", "fTimer", "fMain"})) << typed;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(message(), nullptr) << typed;
    EXPECT_EQ(genVar.oscillator.Osc, accepted) << typed;
  }
}

}  // namespace
}  // namespace tarnwick::tests
