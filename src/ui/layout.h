#pragma once

#include "ui/widgets.h"

#include <QGridLayout>

#include <initializer_list>
#include <string_view>

// The spacing of every window, said once.
namespace tarnwick::ui {

// Gives a window or a group a grid with the usual spacing.
QGridLayout* grid(QWidget* parent);

// Puts controls side by side into a window or a group.
void row(QWidget* parent, std::initializer_list<QWidget*> controls);

// Adds a row to the grid: a label, right-aligned to the field beside it, which is named after it.
void labelledRow(QGridLayout* grid, std::string_view labelName, std::string_view labelText,
                 QWidget* field);

// Adds a result column to the right end of the grid, under its heading, which names it; `widest`
// and `lines` are those of the column.
ResultColumn* headedColumn(QGridLayout* grid, std::string_view name, std::string_view heading,
                           std::string_view widest, int lines);

// Keeps the grid's cells at the size of their content, together at its top left; called once all
// of them are there.
void packTopLeft(QGridLayout* grid);

// Keeps a window at the size of its content, leads the Tab key through its inputs, then its
// buttons, then its results, and puts the captions of their groups before the names by which
// assistive tools call its controls where two of these would be the same; called once all controls
// are there.
void fixToContent(QWidget* window);

}  // namespace tarnwick::ui
