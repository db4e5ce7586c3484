#include "ui/widgets.h"

#include "common/lines.h"
#include "common/number_text.h"
#include "ui/text.h"

#include <QEvent>
#include <QFontDatabase>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionFrame>
#include <QValidator>

#include <algorithm>

namespace tarnwick::ui {
namespace {

class OneLine : public QValidator {
public:
  using QValidator::QValidator;

  State validate(QString& text, int& /*cursor*/) const override {
    for (QChar& c : text)
      if (c == QLatin1Char('\n') || c == QLatin1Char('\r')) c = QLatin1Char(' ');
    return Acceptable;
  }
};

void giveNames(QWidget& control, std::string_view name, std::string_view accessibleName) {
  control.setObjectName(toQt(name));
  control.setAccessibleName(toQt(accessibleName));
}

template <typename Control>
Control* captioned(QWidget* parent, std::string_view name, std::string_view caption) {
  auto* control = new Control(toQt(caption), parent);
  giveNames(*control, name, caption);
  return control;
}

// Puts a result on the window's own background, so that it is not taken for an input; follows the
// desktop when it turns from light to dark.
class WindowBackground : public QObject {
public:
  explicit WindowBackground(QWidget* result) : QObject(result), result_(result) {
    result->installEventFilter(this);
    apply();
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::PaletteChange) apply();
    return false;
  }

private:
  void apply() {
    QPalette own;
    own.setBrush(QPalette::Base, own.brush(QPalette::Window));
    own.setBrush(QPalette::WindowText,
                 own.brush(QPalette::Mid));  // what a plain frame is drawn with
    result_->setPalette(own);
  }

  QWidget* result_;
};

// Shows that a control has the focus where its style does not.
void outline(QWidget& control) {
  QPainter painter(&control);
  painter.setPen(control.palette().color(QPalette::Highlight));
  painter.drawRect(control.rect().adjusted(0, 0, -1, -1));
}

}  // namespace

std::string indexed(std::string_view family, int index) {
  return std::string(family) + "(" + common::wholeText(index) + ")";
}

void fitWidth(QLineEdit& field, std::string_view widest) {
  field.ensurePolished();
  constexpr int textMargins = 2 * 2 + 2;  // those of QLineEdit, and one pixel for the cursor
  const QMargins margins = field.textMargins();
  const QSize text(field.fontMetrics().horizontalAdvance(toQt(widest)) + margins.left() +
                       margins.right() + textMargins,
                   field.fontMetrics().height());
  QStyleOptionFrame option;
  option.initFrom(&field);
  option.lineWidth = field.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &field);
  field.setMinimumWidth(
      field.style()->sizeFromContents(QStyle::CT_LineEdit, &option, text, &field).width());
}

void keepOnOneLine(QLineEdit& field) {
  field.setValidator(new OneLine(&field));
}

void useFixedPitch(QWidget& control) {
  control.setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
}

QLineEdit* textField(QWidget* parent, std::string_view name, int maxLength) {
  auto* field = new QLineEdit(parent);
  keepOnOneLine(*field);
  field->setObjectName(toQt(name));
  field->setMaxLength(maxLength);
  useFixedPitch(*field);
  fitWidth(*field, std::string(static_cast<std::size_t>(maxLength), 'W'));
  field->setFixedWidth(field->minimumWidth());
  return field;
}

ResultField::ResultField(QWidget* parent, std::string_view name, std::string_view widest)
    : QLineEdit(parent) {
  setObjectName(toQt(name));
  setReadOnly(true);
  new WindowBackground(this);
  fitWidth(*this, widest);
}

std::string ResultField::contents() const {
  return fromQt(text());
}

// The field may have just got the focus from an entry that is validated: what the Tab key selected
// stays selected, which with some styles is all that shows the focus.
void ResultField::setContents(std::string_view text) {
  setText(toQt(text));
  if (hasFocus()) selectAll();
}

QSize ResultField::sizeHint() const {
  return {minimumWidth(), QLineEdit::sizeHint().height()};
}

// Without a frame, the toolkit would not show the focus on an empty field.
void ResultField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (hasFocus() && !hasFrame()) outline(*this);
}

void alignInColumn(ResultField& field, std::string_view widest) {
  useFixedPitch(field);
  field.setAlignment(Qt::AlignRight);
  fitWidth(field, widest);
  field.setFixedWidth(field.minimumWidth());
}

ResultColumn::ResultColumn(QWidget* parent, std::string_view name, std::string_view widest,
                           int lines)
    : QPlainTextEdit(parent) {
  setObjectName(toQt(name));
  setReadOnly(true);
  new WindowBackground(this);
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  useFixedPitch(*this);
  ensurePolished();
  // The plain frame keeps its lines at fractional scale factors, with a gap to the text's
  // background.
  setFrameStyle(QFrame::Box | QFrame::Plain);
  constexpr int gap = 1;
  setViewportMargins(gap, gap, gap, gap);
  const int margins = 2 * (frameWidth() + gap + static_cast<int>(document()->documentMargin()));
  setMinimumWidth(fontMetrics().horizontalAdvance(toQt(widest)) + margins + 1);
  setFixedHeight(fontMetrics().lineSpacing() * lines + margins + 1);
}

void ResultColumn::setContents(std::string_view text) {
  contents_ = text;
  std::string_view shown = text;
  if (shown.ends_with(common::lineEnd)) shown.remove_suffix(common::lineEnd.size());
  const QString lines = toQt(shown).remove(QLatin1Char('\r'));
  if (lines != toPlainText()) setPlainText(lines);
}

// The toolkit draws the frame of a column alike with and without the focus.
bool ResultColumn::event(QEvent* event) {
  const bool done = QPlainTextEdit::event(event);
  if (event->type() == QEvent::Paint && hasFocus()) outline(*this);
  return done;
}

OptionGroup::OptionGroup(QWidget* parent, std::string_view family)
    : QObject(parent), parent_(parent), family_(family) {
  connect(&group_, &QButtonGroup::idToggled, this, [this](int index, bool on) {
    // The Tab key stops at the option that is selected; the toolkit leads it to the first one.
    button(index)->setFocusPolicy(on ? Qt::StrongFocus : Qt::ClickFocus);
    if (on) emit chosen(index);
  });
}

QRadioButton* OptionGroup::add(int index, std::string_view caption) {
  auto* option = captioned<QRadioButton>(parent_, indexed(family_, index), caption);
  option->setFocusPolicy(Qt::ClickFocus);
  group_.addButton(option, index);
  return option;
}

QRadioButton* OptionGroup::button(int index) const {
  return static_cast<QRadioButton*>(group_.button(index));
}

int OptionGroup::selected() const {
  return group_.checkedId();
}

void OptionGroup::select(int index) {
  group_.button(index)->setChecked(true);
}

Slider::Slider(QWidget* parent, std::string_view name, int minimum, int maximum)
    : QSlider(Qt::Horizontal, parent) {
  setObjectName(toQt(name));
  setRange(minimum, maximum);
  connect(this, &QSlider::valueChanged, this, &Slider::moved);
}

void Slider::refreshPosition(int position) {
  setRangeAndPosition(minimum(), maximum(), position);
}

void Slider::setRangeAndPosition(int minimum, int maximum, int position) {
  {
    const QSignalBlocker quiet(this);
    setRange(minimum, maximum);
    setValue(position);
  }
  emit moved(value());
}

SelectionList::SelectionList(QWidget* parent, std::string_view name,
                             std::span<const std::string_view> items)
    : QComboBox(parent) {
  setObjectName(toQt(name));
  for (const std::string_view item : items) addItem(toQt(item));
  connect(this, &QComboBox::activated, this, &SelectionList::chosen);
}

std::string SelectionList::contents() const {
  return fromQt(currentText());
}

void SelectionList::choose(int index) {
  setCurrentIndex(index);
  emit chosen(index);
}

EditableList::EditableList(QWidget* parent, std::string_view name,
                           std::span<const std::string_view> items, std::string_view widest)
    : SelectionList(parent, name, items) {
  // Before the entry field is made, which fixes the width until the list is first shown.
  setMinimumContentsLength(static_cast<int>(widest.size()));
  setEditable(true);
  setInsertPolicy(QComboBox::NoInsert);
  setCompleter(nullptr);
  keepOnOneLine(*lineEdit());
  // The list would take a typed text that equals an item for a choice of that item.
  disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
  connect(this, &QComboBox::editTextChanged, this, &EditableList::edited);
}

QCheckBox* checkBox(QWidget* parent, std::string_view name, std::string_view caption) {
  return captioned<QCheckBox>(parent, name, caption);
}

QPushButton* button(QWidget* parent, std::string_view name, std::string_view caption) {
  auto* push = captioned<QPushButton>(parent, name, caption);
  push->setAutoDefault(true);  // Enter presses it
  return push;
}

QLabel* label(QWidget* parent, std::string_view name, std::string_view text) {
  auto* plain = new QLabel(parent);
  plain->setTextFormat(Qt::PlainText);
  plain->setText(toQt(text));
  plain->setObjectName(toQt(name));
  return plain;
}

QGroupBox* group(QWidget* parent, std::string_view name, std::string_view caption) {
  return captioned<QGroupBox>(parent, name, caption);
}

void nameAfter(QWidget* control, std::string_view labelText) {
  while (labelText.ends_with(':') || labelText.ends_with(' ')) labelText.remove_suffix(1);
  const QString name = toQt(labelText);
  control->setAccessibleName(name);
  auto* list = qobject_cast<QComboBox*>(control);
  if (list == nullptr) return;
  list->setAccessibleDescription(name);  // its name, says the toolkit, is the current item
  if (list->isEditable()) list->lineEdit()->setAccessibleName(name);
}

}  // namespace tarnwick::ui
