#pragma once

#include <QList>
#include <QString>

#include <ostream>
#include <string>

namespace tarnwick::tests {

// What a user does and sees in one sitting, an act a line.
struct Story {
  struct Act {
    int line;
    QString text;
  };

  std::string name;
  QList<Act> acts;
  // Why it cannot be told, after the file's name and the line; empty where it can.
  std::string mistake;

  friend void PrintTo(const Story& story, std::ostream* out) { *out << story.name; }
};

// The stories of a file, their loops unrolled; one that cannot be told where the file has a
// mistake. `verbs` are the first words of acts. A file reads
//   let {name} TEXT            {name} stands for TEXT from here on
//   ACT ...                    begins each of the file's stories
//   == NAME                    begins a story
//   |TEXT                      continues the line above
//   for {a} in X; Y; ... end   the acts between for each of the values
//   for {a} {b} in             the same with a table of values
//     X ; Y
//   do ... end
QList<Story> readStories(const QString& file, const QString& text, const QStringList& verbs);

}  // namespace tarnwick::tests
