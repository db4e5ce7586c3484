#pragma once

class QStyle;

namespace tarnwick::ui {

// Answers the style in which the program draws its controls, to be given to the application: the
// desktop's own. Where that is the toolkit's, what it draws too faintly to be seen is made
// distinct: texts, the edges of fields, lists, options, boxes and sliders, the frames of groups.
[[nodiscard]] QStyle* controlStyle();

}  // namespace tarnwick::ui
