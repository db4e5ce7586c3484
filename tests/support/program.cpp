#include "support/program.h"

#include "app/windows.h"
#include "ui/widgets.h"

#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QDesktopServices>
#include <QLabel>
#include <QListView>
#include <QMessageBox>
#include <QProcess>
#include <QPushButton>
#include <QSlider>
#include <QUrl>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

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

// Takes what the desktop would open in a browser or a mail program.
class Program::Shell : public QObject {
  Q_OBJECT

public:
  explicit Shell(QStringList& addresses) : addresses_(addresses) {
    for (const char* scheme : {"https", "mailto"})
      QDesktopServices::setUrlHandler(QLatin1String(scheme), this, "take");
  }
  ~Shell() override {
    for (const char* scheme : {"https", "mailto"})
      QDesktopServices::unsetUrlHandler(QLatin1String(scheme));
  }

public slots:
  void take(const QUrl& address) { addresses_ << address.toString(); }

private:
  QStringList& addresses_;
};

Program::Program() : shell_(std::make_unique<Shell>(addresses)) {
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
  auto* target = control(name);
  QPoint place = target->rect().center();
  if (qobject_cast<QAbstractButton*>(target) != nullptr) place.setX(std::min(place.x(), 10));
  clickAt(name, place, button);
}

void Program::clickAt(const std::string& name, QPoint place, Qt::MouseButton button) {
  auto* target = control(name);
  QTest::mouseClick(current_->windowHandle(), button, {}, target->mapTo(target->window(), place));
  settle();
}

void Program::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QWindow* target = QGuiApplication::focusWindow();
  ASSERT_NE(target, nullptr);
  QTest::keyClick(target, key, modifiers);
  settle();
}

void Program::type(const std::string& characters) {
  for (const char c : characters) QTest::keyClick(QGuiApplication::focusWindow(), c);
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

void Program::enterAndConfirm(const std::string& field, const std::string& characters) {
  enter(field, characters);
  press(Qt::Key_Return);
}

void Program::paste(const std::string& field, const std::string& text) {
  QGuiApplication::clipboard()->setText(ui::toQt(text));
  goTo(field)->paste();
}

void Program::pick(const std::string& list, int item) {
  auto* box = control<QComboBox>(list);
  constexpr int arrow = 8;  // from the right edge; the rest of an editable list is its text
  clickAt(list, {box->width() - arrow, box->height() / 2});
  auto* view = box->view();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(view->window()));
  const QModelIndex index = view->model()->index(item, 0);
  view->scrollTo(index);
  const QPoint place = view->visualRect(index).center();
  QTest::qWait(QApplication::doubleClickInterval() + 50);  // the popup ignores an early release
  QTest::mouseClick(view->window()->windowHandle(), Qt::LeftButton, {},
                    view->viewport()->mapTo(view->window(), place));
  settle();
}

std::string Program::shown(const std::string& name) {
  auto* target = control(name);
  if (const auto* column = qobject_cast<ui::ResultColumn*>(target)) return column->contents();
  if (const auto* field = qobject_cast<QLineEdit*>(target)) return ui::fromQt(field->text());
  if (const auto* list = qobject_cast<QComboBox*>(target)) return ui::fromQt(list->currentText());
  if (const auto* label = qobject_cast<QLabel*>(target)) return ui::fromQt(label->text());
  if (const auto* slider = qobject_cast<QSlider*>(target)) return std::to_string(slider->value());
  if (const auto* button = qobject_cast<QAbstractButton*>(target))
    return button->isChecked() ? "on" : "off";
  ADD_FAILURE() << name << " shows no text";
  return {};
}

QWidget* Program::message() const {
  return QApplication::activeModalWidget();
}

std::string Program::messageShown() const {
  const auto* box = qobject_cast<QMessageBox*>(message());
  if (box == nullptr) return "";
  const char* kind = box->icon() == QMessageBox::Critical ? "critical, " : "";
  return kind + ui::fromQt(box->windowTitle() + ": " + box->text());
}

void Program::confirmMessage() {
  auto* box = qobject_cast<QMessageBox*>(message());
  ASSERT_NE(box, nullptr);
  turnToWindow(box);
  press(Qt::Key_Return);
  turnToWindow(current_);
}

std::string clipboardSeenByAnotherProgram() {
#ifdef Q_OS_WIN
  if (OpenClipboard(nullptr) == FALSE) return "no clipboard";
  const auto* text = static_cast<const wchar_t*>(GlobalLock(GetClipboardData(CF_UNICODETEXT)));
  const QString seen = text == nullptr ? QString() : QString::fromWCharArray(text);
  CloseClipboard();
  return ui::fromQt(seen);
#else
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

#include "program.moc"
