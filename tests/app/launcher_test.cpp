#include "support/program.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QMenuBar>
#include <QPushButton>
#include <QStyle>

namespace tarnwick::tests {
namespace {

class Launcher : public Program {
protected:
  void command(const std::string& name) {
    auto* menu = window("fMain")->findChild<QMenuBar*>();
    auto* action = window("fMain")->findChild<QAction*>(ui::toQt(name));
    ASSERT_NE(action, nullptr) << name;
    EXPECT_EQ(action->menu<QMenu*>(), nullptr);
    turnTo("fMain");
    QTest::mouseClick(current()->windowHandle(), Qt::LeftButton, {},
                      menu->mapTo(current(), menu->actionGeometry(action).center()));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
};

TEST_F(Launcher, StandsWhereItWasDrawn) {
  auto* picture = control<QLabel>("Picture1");
  EXPECT_EQ(picture->geometry(), QRect(0, 0, 313, 241));
  const QImage drawn = picture->grab().toImage();
  int top = 13;
  for (const char* name : {"cTimer", "cTimerHelper", "cUSART", "cEUSART", "cSerinSerout2", "cPWM",
                           "cAD", "Command1", "cCustomChar"}) {
    const auto* button = control<QPushButton>(name);
    EXPECT_EQ(button->geometry(), QRect(180, top, 121, 23)) << name;
    // A trace ends in its middle.
    EXPECT_EQ(drawn.pixelColor(button->geometry().center()), QColor(0x6f, 0xa9, 0xaa)) << name;
    EXPECT_NE(drawn.pixelColor(240, top + 23), QColor(0x6f, 0xa9, 0xaa)) << name;
    EXPECT_LE(button->fontMetrics().horizontalAdvance(button->text()), 115) << name;
    EXPECT_EQ(focused(), name);  // the tab order runs from top to bottom
    press(Qt::Key_Tab);
    top += 24;
  }
}

// Reading that button's picture would take a noticeable part of the start.
TEST(Style, HasAllPicturesButThatOfAButtonForMoreCommands) {
  const QStyle* style = QApplication::style();
  EXPECT_TRUE(style->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton).isNull());
  EXPECT_FALSE(style->standardIcon(QStyle::SP_MessageBoxCritical).isNull());
}

TEST_F(Launcher, HasTheIconThatADesktopShows) {
  const QSize large(96, 96);  // the About box at a scale factor of 2
  EXPECT_TRUE(window("fMain")->windowIcon().availableSizes().contains(large));
  for (const int size : {16, 32, 48}) {
    const QImage desktops(QStringLiteral(TESTS_FOLDER "/../resources/tarnwick-%1.png").arg(size));
    const QPixmap own = window("fMain")->windowIcon().pixmap({size, size}, 1.0);
    EXPECT_EQ(own.toImage().convertToFormat(QImage::Format_ARGB32),
              desktops.convertToFormat(QImage::Format_ARGB32_Premultiplied)
                  .convertToFormat(QImage::Format_ARGB32))
        << size;
  }
}

TEST_F(Launcher, OpensEachWindowOnceAndBringsItForward) {
  open("cTimer", "fTimer");
  enterAndConfirm("tOSC", "20");
  QWidget* first = current();
  first->showMinimized();
  QTest::qWait(200);  // a window manager takes its time
  open("cTimer", "fTimer");
  EXPECT_EQ(current(), first);
  EXPECT_FALSE(first->isMinimized());
  EXPECT_EQ(shown("tOSC"), "20");
  EXPECT_TRUE(window("fMain")->isVisible());
  EXPECT_EQ(first->parentWidget(), nullptr);
}

TEST_F(Launcher, AsksTheDesktopForWebSiteAndMail) {
  command("Visite_our_Website");
  command("Contact_us");
  EXPECT_EQ(addresses, QStringList({"https://tarnwick.example/",
                                    "mailto:contact@tarnwick.example?subject=Tarnwick&body="}));
}

TEST_F(Launcher, ClosesEveryWindowInItsOrder) {
  for (const bool byCommand : {true, false}) {
    windows.open("fMain");
    open("cTimer", "fTimer");
    command("About");
    std::vector<std::string> closed;
    for (const char* name : {"fTimer", "fAbout", "fMain"})
      QObject::connect(windows.loaded(name), &ui::Window::unloading, windows.loaded(name),
                       [&closed, name] { closed.emplace_back(name); });
    if (byCommand)
      command("Exit");
    else
      window("fMain")->close();
    EXPECT_EQ(closed, (std::vector<std::string>{"fAbout", "fTimer", "fMain"}));
    for (const char* name : {"fTimer", "fAbout", "fMain"}) EXPECT_EQ(windows.loaded(name), nullptr);
  }
}

TEST_F(Launcher, ClosesInTheMiddleOfAnEditWithoutValidating) {
  open("cTimer", "fTimer");
  enter("tOSC", "100");
  window("fMain")->close();
  EXPECT_EQ(windows.loaded("fTimer"), nullptr);
  EXPECT_EQ(genVar.oscillator.Osc, 0);
  EXPECT_EQ(message(), nullptr);
}

TEST_F(Launcher, ClosesWithAMessageOpen) {
  for (const char* closing : {"fTimer", "fMain"}) {
    windows.open("fMain");
    open("cTimer", "fTimer");
    enterAndConfirm("tOSC", "100");
    EXPECT_NE(messageShown(), "");
    windows.loaded(closing)->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(message(), nullptr) << closing;
    EXPECT_EQ(windows.loaded("fTimer"), nullptr) << closing;
  }
}

TEST_F(Launcher, ShowsTheAboutBox) {
  command("About");
  turnTo("fAbout");
  EXPECT_EQ(focused(), "cmdOK");
  press(Qt::Key_Space);
  EXPECT_EQ(windows.loaded("fAbout"), nullptr);
}

}  // namespace
}  // namespace tarnwick::tests
