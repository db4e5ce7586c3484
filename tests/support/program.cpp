#include "support/program.h"

#include "app/windows.h"
#include "support/look.h"
#include "ui/widgets.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QListView>
#include <QMessageBox>
#include <QProcess>
#include <QScrollArea>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

#include <map>

namespace tarnwick::tests {
namespace {

void settle() {
  QCoreApplication::processEvents();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void turnToWindow(QWidget* window) {
  window->activateWindow();
  // isActiveWindow() holds for the parent of an active message box too: the focus tells them apart.
  EXPECT_TRUE(QTest::qWaitFor(
      [&] { return QGuiApplication::focusWindow() == window->windowHandle(); }, 5000))
      << window->objectName().toStdString();
}

}  // namespace

Shell::Shell() {
  for (const char* scheme : {"https", "mailto"})
    QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "take");
}

Shell::~Shell() {
  for (const char* scheme : {"https", "mailto"})
    QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
}

Program::Program() {
  app::addWindows(windows, genVar);
  windows.open("fMain");
  turnTo("fMain");
}

Program::~Program() {
  windows.unloadAll();
  settle();
}

void Program::open(const std::string& launcherButton, const std::string& name) {
  turnTo("fMain");
  click(launcherButton);
  turnTo(name);
}

QWidget* Program::window(const std::string& name) {
  QWidget* found = windows.loaded(name);
  EXPECT_NE(found, nullptr) << name;
  return found;
}

void Program::turnTo(const std::string& name) {
  current_ = window(name);
  turnToWindow(current_);
}

std::string Program::focused() const {
  const QWidget* focus = QApplication::focusWidget();
  return focus == nullptr ? "" : ui::fromQt(focus->objectName());
}

void Program::click(const std::string& name, Qt::MouseButton button) {
  const auto* target = control(name);
  QPoint place = target->rect().center();
  if (qobject_cast<const QAbstractButton*>(target) != nullptr) place.setX(std::min(place.x(), 10));
  clickAt(*target, place, button);
}

void Program::clickAt(const QWidget& target, QPoint place, Qt::MouseButton button) {
  if (auto* area = current_->findChild<QScrollArea*>(); area != nullptr)
    area->ensureWidgetVisible(const_cast<QWidget*>(&target));
  QTest::mouseClick(current_->windowHandle(), button, {}, target.mapTo(target.window(), place));
  settle();
}

void Program::press(QKeyCombination keys) {
  QWindow* target = QGuiApplication::focusWindow();
  ASSERT_TRUE(target != nullptr && keys.key() != Qt::Key_unknown);
  QTest::keyClick(target, keys.key(), keys.keyboardModifiers());
  settle();
}

void Program::type(const std::string& characters) {
  for (const char c : characters) QTest::keyClick(QGuiApplication::focusWindow(), c);
  settle();
}

// Takes the focus there and selects all text.
QLineEdit* Program::goTo(const std::string& name) {
  auto* target = control(name);
  auto* list = qobject_cast<QComboBox*>(target);
  auto* field = list != nullptr ? list->lineEdit() : control<QLineEdit>(name);
  target->setFocus(Qt::MouseFocusReason);
  field->selectAll();
  return field;
}

void Program::enter(const std::string& field, const std::string& characters) {
  goTo(field);
  press(Qt::Key_Delete);
  type(characters);
}

void Program::paste(const std::string& field, const std::string& text) {
  QGuiApplication::clipboard()->setText(ui::toQt(text));
  goTo(field)->paste();
}

void Program::pick(const std::string& list, int item) {
  auto* box = control<QComboBox>(list);
  constexpr int arrow = 8;  // from the right edge; the rest of an editable list is its text
  // For as long as a double click takes, the popup ignores that the button is released.
  const int usual = QApplication::doubleClickInterval();
  QApplication::setDoubleClickInterval(1);
  clickAt(*box, {box->width() - arrow, box->height() / 2}, Qt::LeftButton);
  QApplication::setDoubleClickInterval(usual);
  auto* view = box->view();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(view->window()));
  const QModelIndex index = view->model()->index(item, 0);
  view->scrollTo(index);
  QTest::qWait(20);
  QTest::mouseClick(view->window()->windowHandle(), Qt::LeftButton, {},
                    view->viewport()->mapTo(view->window(), view->visualRect(index).center()));
  settle();
}

std::string Program::shown(const std::string& name) {
  auto* target = control(name);
  EXPECT_TRUE(target->isVisible()) << name;
  const QString text = textOf(target);
  if (target->inherits("QAbstractButton")) return text.endsWith("(on)") ? "on" : "off";
  if (target->inherits("QSlider")) return ui::fromQt(text.section(' ', 0, 0));
  const auto* column = qobject_cast<ui::ResultColumn*>(target);
  if (column == nullptr) return ui::fromQt(text);
  QString lines = ui::toQt(column->contents()).remove('\r');
  if (lines.endsWith('\n')) lines.chop(1);
  EXPECT_EQ(text, lines) << name;
  return column->contents();
}

QWidget* Program::message() const {
  return QApplication::activeModalWidget();
}

std::string Program::messageShown() const {
  const auto* box = qobject_cast<QMessageBox*>(message());
  if (box == nullptr) return "";
  constexpr int frameButtons = 100;
  EXPECT_GE(box->width(), box->fontMetrics().horizontalAdvance(box->windowTitle()) + frameButtons);
  QString all = box->windowTitle() + ": " + box->text();
  if (box->icon() != QMessageBox::Warning)
    all.prepend(box->icon() == QMessageBox::Critical ? "critical, " : "of another kind, ");
  for (auto* button : box->buttons())
    if (box->standardButton(button) != QMessageBox::Ok) all += " [" + button->text() + "]";
  return ui::fromQt(all);
}

void Program::confirmMessage() {
  auto* box = qobject_cast<QMessageBox*>(message());
  ASSERT_NE(box, nullptr);
  turnToWindow(box);
  press(Qt::Key_Return);
  turnToWindow(current_);
}

// Each window opens with its controls where they stay.
void EveryWindow::openAll() {
  const auto placesIn = [](const QWidget* window) {
    std::map<std::string, QRect> places;
    for (const QWidget* control : controlsOf(window))
      places[fullName(control)] = control->geometry();
    return places;
  };
  all.clear();
  for (const char* name : windowNames) {
    windows.open(name);
    const auto opened = placesIn(window(name));
    turnTo(name);
    for (const auto& [control, place] : placesIn(current()))
      EXPECT_EQ(place, opened.at(control)) << control;
    all.push_back(current());
  }
}

std::string clipboardSeen() {
#ifdef Q_OS_WIN
  if (OpenClipboard(nullptr) == FALSE) return "no clipboard";
  const auto* text = static_cast<const wchar_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
  const QString seen = text == nullptr ? QString() : QString::fromWCharArray(text);
  CloseClipboard();
  return ui::fromQt(seen);
#else
  if (QGuiApplication::platformName() == "offscreen")
    return ui::fromQt(QGuiApplication::clipboard()->text());
  QProcess reader;
  reader.start(QStringLiteral("xclip"),
               {QStringLiteral("-selection"), QStringLiteral("clipboard"), QStringLiteral("-o")});
  const bool finished =
      QTest::qWaitFor([&] { return reader.state() == QProcess::NotRunning; }, 5000);
  EXPECT_TRUE(finished && reader.exitCode() == 0) << "xclip could not read the clipboard";
  return reader.readAllStandardOutput().toStdString();
#endif
}

}  // namespace tarnwick::tests
