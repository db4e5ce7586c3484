#include "ui/widgets.h"

#include "common/lines.h"
#include "common/number_text.h"
#include "ui/drawing.h"
#include "ui/result_look.h"
#include "ui/text.h"

#include <QApplication>
#include <QEvent>
#include <QFontDatabase>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionFrame>
#include <QTextBlock>
#include <QValidator>
#include <QWheelEvent>

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

// Whether the Tab key stops at a control; a click goes there all the same.
void setTabStop(QWidget& control, bool stop) {
  control.setFocusPolicy(stop ? Qt::StrongFocus : Qt::ClickFocus);
}

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

constexpr const char* exceededProperty = "exceeded";

bool isExceeded(const QWidget& control) {
  return control.property(exceededProperty).toBool();
}

int widthOf(const QWidget& control, std::string_view text) {
  QFont heavy = control.font();
  heavy.setBold(true);
  const QString shown = toQt(text);
  return std::max(control.fontMetrics().horizontalAdvance(shown),
                  QFontMetrics(heavy, &control).horizontalAdvance(shown));
}

// Shows that a control has the focus where its style does not.
void outline(QWidget& control) {
  QPainter painter(&control);
  drawEdge(painter, control.rect(), focusColor(control.palette()));
}

}  // namespace

std::string indexed(std::string_view family, int index) {
  return std::string(family) + "(" + common::wholeText(index) + ")";
}

void fitWidth(QLineEdit& field, std::string_view widest) {
  field.ensurePolished();
  constexpr int textMargins = 2 * 2 + 2;  // those of QLineEdit, and one pixel for the cursor
  const QMargins margins = field.textMargins();
  const QSize text(widthOf(field, widest) + margins.left() + margins.right() + textMargins,
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

void weigh(QWidget& control, Weight weight) {
  constexpr double finalAnswer = 1.25;  // times as large
  QFont font = control.font();
  font.setBold(weight != Weight::Usual);
  if (weight == Weight::FinalAnswer) font.setPointSizeF(QFontInfo(font).pointSizeF() * finalAnswer);
  control.setFont(font);
}

void showExceeded(QWidget& control, bool exceeded) {
  if (isExceeded(control) == exceeded) return;
  control.setProperty(exceededProperty, exceeded);
  weigh(control, exceeded ? Weight::Answer : Weight::Usual);
  control.update();
}

void drawExceeded(QWidget& control) {
  if (!isExceeded(control)) return;
  constexpr QColor warning(208, 96, 0);
  QPainter painter(&control);
  drawEdge(painter, control.rect(),
           distinct(warning, control.palette().color(QPalette::Window), edgeContrast), 2);
}

ResultField::ResultField(QWidget* parent, std::string_view name, std::string_view widest,
                         Weight weight)
    : QLineEdit(parent) {
  setObjectName(toQt(name));
  setReadOnly(true);
  setAlignment(Qt::AlignRight);
  useFixedPitch(*this);
  weigh(*this, weight);
  new ResultLook(this);
  fitWidth(*this, widest);
  setFixedWidth(minimumWidth());
  setTabStop(*this, false);
  connect(this, &QLineEdit::textChanged, this,
          [this](const QString& shown) { setTabStop(*this, !shown.isEmpty()); });
}

// The field may have just got the focus from an entry that is validated: what the Tab key selected
// stays selected, which with some styles is all that shows the focus.
void ResultField::setContents(std::string_view text) {
  setText(toQt(text));
  if (hasFocus()) selectAll();
  emit written();
}

QSize ResultField::sizeHint() const {
  return {minimumWidth(), QLineEdit::sizeHint().height()};
}

// Without a frame, the toolkit would not show the focus on an empty field.
void ResultField::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  drawExceeded(*this);
  if (hasFocus() && !hasFrame()) outline(*this);
}

ResultColumn::ResultColumn(QWidget* parent, std::string_view name, std::string_view widest,
                           int lines)
    : QPlainTextEdit(parent) {
  setObjectName(toQt(name));
  setReadOnly(true);
  setTabStop(*this, false);
  new ResultLook(this);
  setUndoRedoEnabled(false);
  setTabChangesFocus(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setLineWrapMode(QPlainTextEdit::NoWrap);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  QTextOption lineOption = document()->defaultTextOption();
  lineOption.setAlignment(Qt::AlignRight);
  document()->setDefaultTextOption(lineOption);
  useFixedPitch(*this);
  ensurePolished();
  setFrameShape(QFrame::NoFrame);  // drawn by the column itself, around the text's own ground
  constexpr int frame = 2;
  setViewportMargins(frame, frame, frame, frame);
  const int margins = 2 * (frame + static_cast<int>(document()->documentMargin()));
  setMinimumWidth(widthOf(*this, widest) + margins + 1);
  setFixedHeight(fontMetrics().lineSpacing() * lines + margins + 1);
}

void ResultColumn::setContents(std::string_view text, std::optional<int> best) {
  contents_ = text;
  std::string_view shown = text;
  if (shown.ends_with(common::lineEnd)) shown.remove_suffix(common::lineEnd.size());
  const QString lines = toQt(shown).remove(QLatin1Char('\r'));
  if (lines != toPlainText() || best != best_) showLines(lines, best);
  setTabStop(*this, !lines.isEmpty());
  emit written();
}

void ResultColumn::showLines(const QString& lines, std::optional<int> best) {
  setPlainText(lines);
  best_ = best;
  if (!best) return;
  QTextCursor line(document()->findBlockByNumber(*best));
  line.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  QTextCharFormat heavy;
  heavy.setFontWeight(QFont::Bold);
  line.mergeCharFormat(heavy);
}

bool ResultColumn::event(QEvent* event) {
  const bool done = QPlainTextEdit::event(event);
  if (event->type() != QEvent::Paint) return done;
  if (hasFocus()) {
    outline(*this);
  } else {
    QPainter painter(this);
    drawEdge(painter, rect(), frameColor(palette()));
  }
  drawExceeded(*this);
  return done;
}

void ResultColumn::paintEvent(QPaintEvent* event) {
  if (best_) {
    QRectF band =
        blockBoundingGeometry(document()->findBlockByNumber(*best_)).translated(contentOffset());
    band.setLeft(0);
    band.setWidth(viewport()->width());
    QPainter(viewport()).fillRect(band, markColor(palette()));
  }
  QPlainTextEdit::paintEvent(event);
}

OptionGroup::OptionGroup(QWidget* parent, std::string_view family)
    : QObject(parent), parent_(parent), family_(family) {
  connect(&group_, &QButtonGroup::idToggled, this, [this](int index, bool on) {
    // The Tab key stops at the option that is selected; the toolkit leads it to the first one.
    setTabStop(*button(index), on);
    if (on) emit chosen(index);
  });
}

QRadioButton* OptionGroup::add(int index, std::string_view caption) {
  auto* option = captioned<QRadioButton>(parent_, indexed(family_, index), caption);
  setTabStop(*option, false);
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
  setRangeAndPosition(minimum, maximum, minimum);
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
    constexpr int usualPage = 10;
    setPageStep(std::max(usualPage, (maximum - minimum + 1) / 16));
  }
  emit moved(value());
}

// The toolkit's own notch is a few positions, whatever the range.
void Slider::wheelEvent(QWheelEvent* event) {
  const int notch = pageStep() / 16;
  const int turn = event->angleDelta().y();
  if (notch <= QApplication::wheelScrollLines() || turn == 0 ||
      event->modifiers() != Qt::NoModifier) {
    QSlider::wheelEvent(event);
    return;
  }
  turned_ += turn * notch;
  setValue(value() + turned_ / QWheelEvent::DefaultDeltasPerStep);
  turned_ %= QWheelEvent::DefaultDeltasPerStep;
  event->accept();
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
