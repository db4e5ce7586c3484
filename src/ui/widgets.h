#pragma once

#include "ui/window.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// The controls that the windows are made of, beside the entry fields. Each takes its design name
// as object name; what an assistive tool calls it is its caption or the label beside it.
namespace tarnwick::ui {

// Makes a one-line field just wide enough to show the text whole, heavy or not.
void fitWidth(QLineEdit& field, std::string_view widest);

// Makes a one-line field take a pasted line break as the blank that it is shown as.
void keepOnOneLine(QLineEdit& field);

// Answers the object name of a member of an indexed family: "oPrescaller(3)".
[[nodiscard]] std::string indexed(std::string_view family, int index);

// Shows a control's text in the system's fixed-pitch font.
void useFixedPitch(QWidget& control);

// A one-line field for free text in the fixed-pitch font, as wide as its longest text.
[[nodiscard]] QLineEdit* textField(QWidget* parent, std::string_view name, int maxLength);

// How much a result weighs for the eye: an answer more than what led to it, and of several answers
// the final one most.
enum class Weight { Usual, Answer, FinalAnswer };

// Gives the text of a control this weight.
void weigh(QWidget& control, Weight weight);

// Says whether a field or a column stands for the limit that the inputs exceed: it then has a heavy
// frame and a heavy text.
void showExceeded(QWidget& control, bool exceeded);
// Draws that frame, over what the control itself has drawn.
void drawExceeded(QWidget& control);

// A read-only one-line field for a result: fixed-pitch, right-aligned and as wide as `widest`, so
// that the digits of fields above each other stand in line. A longer text is shown by the tooltip.
// While it is empty, the Tab key passes it by, as it does an empty column.
class ResultField : public QLineEdit {
  Q_OBJECT

public:
  ResultField(QWidget* parent, std::string_view name, std::string_view widest,
              Weight weight = Weight::Usual);

  void setContents(std::string_view text);
  [[nodiscard]] QSize sizeHint() const override;

signals:
  // The contents were set, be it to the same text.
  void written();

protected:
  void paintEvent(QPaintEvent* event) override;
};

// A read-only column of lines, right-aligned. Its text as the program sees it ends each line with
// CR LF and is kept as it was set; what is shown has one line for each of them.
class ResultColumn : public QPlainTextEdit {
  Q_OBJECT

public:
  // `widest` is the longest line, `lines` the number of lines to be seen without scrolling.
  ResultColumn(QWidget* parent, std::string_view name, std::string_view widest, int lines);

  [[nodiscard]] const std::string& contents() const { return contents_; }
  // `best` is the line, counted from 0, that is marked as the best of them.
  void setContents(std::string_view text, std::optional<int> best = std::nullopt);
  [[nodiscard]] QSize sizeHint() const override { return minimumSize(); }
  [[nodiscard]] QSize minimumSizeHint() const override { return minimumSize(); }

signals:
  // The contents were set, be it to the same text.
  void written();

protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  void showLines(const QString& lines, std::optional<int> best);

  std::string contents_;
  std::optional<int> best_;
};

// Option buttons of which exactly one is selected, each with its index.
class OptionGroup : public QObject {
  Q_OBJECT

public:
  OptionGroup(QWidget* parent, std::string_view family);

  // Adds an option, not selected yet, and answers its button, a child of the group's parent.
  QRadioButton* add(int index, std::string_view caption);
  [[nodiscard]] QRadioButton* button(int index) const;
  // The selected index, -1 while there is none.
  [[nodiscard]] int selected() const;
  // Selects an option; `chosen` is raised when it was not selected already.
  void select(int index);

signals:
  void chosen(int index);

private:
  QWidget* parent_;
  std::string family_;
  QButtonGroup group_;
};

// A horizontal slider that reports each new position, also in the middle of a drag. Where the range
// is long, a page is a sixteenth of it and a notch of the wheel a sixteenth of a page.
class Slider : public QSlider {
  Q_OBJECT

public:
  Slider(QWidget* parent, std::string_view name, int minimum, int maximum);

  // Goes to the position nearest to the one given; `moved` is raised when it is a new one.
  void setPosition(int position) { setValue(position); }
  // The same, but `moved` is raised also when the slider stands there already.
  void refreshPosition(int position);
  // Changes range and position in one step: `moved` is raised once, with both in place, even when
  // the position happens to be the same number as before.
  void setRangeAndPosition(int minimum, int maximum, int position);

signals:
  void moved(int position);

protected:
  void wheelEvent(QWheelEvent* event) override;

private:
  int turned_ = 0;  // by the wheel, in 1/120 of a position, what has not moved the slider yet
};

// A drop-down list. As it is it can only be chosen from.
class SelectionList : public QComboBox {
  Q_OBJECT

public:
  SelectionList(QWidget* parent, std::string_view name, std::span<const std::string_view> items);

  [[nodiscard]] std::string contents() const;
  // Selects an item from code; `chosen` is raised as when a user picks it.
  void choose(int index);

signals:
  // The user picked an item, be it the current one again, or `choose` was called.
  void chosen(int index);
};

// A drop-down list that also takes any typed text as it stands: nothing is completed, corrected
// or added, and typing an item's text is not choosing it.
class EditableList : public SelectionList, public FocusListener {
  Q_OBJECT

public:
  EditableList(QWidget* parent, std::string_view name, std::span<const std::string_view> items,
               std::string_view widest);

  void focusEntered() override {}
  void focusLeft() override { emit focusLost(); }

signals:
  // The text changed, by typing, by a choice or from code.
  void edited();
  void focusLost();
};

// A check box, a button (Enter presses it as Space does), a label (plain text, which is also what
// an assistive tool calls it) with their design names.
[[nodiscard]] QCheckBox* checkBox(QWidget* parent, std::string_view name, std::string_view caption);
[[nodiscard]] QPushButton* button(QWidget* parent, std::string_view name, std::string_view caption);
[[nodiscard]] QLabel* label(QWidget* parent, std::string_view name, std::string_view text);

// A captioned group; its controls are its children.
[[nodiscard]] QGroupBox* group(QWidget* parent, std::string_view name, std::string_view caption);

// Gives a control the name that assistive tools announce: a label's text without its colon. A
// drop-down list, which they call by its current item, has it as description.
void nameAfter(QWidget* control, std::string_view labelText);

}  // namespace tarnwick::ui
