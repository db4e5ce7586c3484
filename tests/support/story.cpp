#include "support/story.h"

#include <QFileInfo>
#include <QRegularExpression>

#include <utility>

namespace tarnwick::tests {
namespace {

using Acts = QList<Story::Act>;

struct Mistake {
  int line;
  QString what;
};

void require(bool condition, int line, const QString& otherwise) {
  if (!condition) throw Mistake{line, otherwise};
}

QStringList cells(const QString& row) {
  static const QRegularExpression separator("\\s*;\\s*");
  return row.trimmed().split(separator);
}

// The file's lines with continuations put together and abbreviations spelled out.
Acts readLines(const QString& text) {
  QList<std::pair<QString, QString>> abbreviations;
  Acts all;
  for (int number = 1; QString line : text.split('\n')) {
    line = line.trimmed();
    for (const auto& [shortForm, meaning] : abbreviations) line.replace(shortForm, meaning);
    if (line.startsWith("let ")) {
      abbreviations << std::pair(line.section(' ', 1, 1), line.section(' ', 2));
    } else if (line.startsWith('|')) {
      const bool hasAct = !all.isEmpty() && !all.last().text.startsWith("== ");
      require(hasAct, number, "continues nothing");
      all.last().text += (all.last().text.contains(' ') ? "" : " ") + line.mid(1);
    } else if (!line.isEmpty() && !line.startsWith('#')) {
      all << Story::Act{number, line};
    }
    ++number;
  }
  return all;
}

// The loop that begins at a place, unrolled; the place then is that of its end.
Acts unrolledLoop(const Acts& lines, qsizetype& at);

// Unrolls the loops from a place on up to the end of the loop that the place stands in.
Acts unrolled(const Acts& lines, qsizetype& at) {
  Acts all;
  for (; at < lines.size() && lines[at].text != "end"; ++at)
    all << (lines[at].text.startsWith("for ") ? unrolledLoop(lines, at) : Acts{lines[at]});
  return all;
}

Acts unrolledLoop(const Acts& lines, qsizetype& at) {
  const auto [line, text] = lines[at++];
  const qsizetype in = text.indexOf(" in");
  const QStringList names = text.mid(4, in - 4).split(' ');
  const QString values = text.mid(in + 4);
  Acts rows;
  for (const QString& value : cells(values)) rows << Story::Act{line, value};
  if (values.isEmpty()) {
    for (rows.clear(); at < lines.size() && lines[at].text != "do"; ++at) rows << lines[at];
    require(at++ < lines.size(), line, "the table has no do");
  }
  const Acts body = unrolled(lines, at);
  require(at < lines.size(), line, "the loop has no end");
  Acts all;
  for (const Story::Act& row : rows) {
    const QStringList inRow = cells(row.text);
    const auto counts = QString("%1 values, not %2").arg(inRow.size()).arg(names.size());
    require(inRow.size() == names.size(), row.line, counts);
    for (Story::Act act : body) {
      for (int i = 0; i < names.size(); ++i) act.text.replace(names[i], inRow[i]);
      all << act;
    }
  }
  return all;
}

QList<Story> read(const QString& file, const QString& text, const QStringList& verbs) {
  Acts beginning;
  QList<Story> stories;
  for (const auto& [line, act] : readLines(text)) {
    const std::string name = (QFileInfo(file).baseName() + "_" + act.mid(3)).toStdString();
    if (act.startsWith("== "))
      stories << Story{name, beginning, {}};
    else
      (stories.isEmpty() ? beginning : stories.last().acts) << Story::Act{line, act};
  }
  const int first = beginning.isEmpty() ? 1 : beginning.first().line;
  require(!stories.isEmpty(), first, "stands outside of a story");
  for (Story& story : stories) {
    qsizetype at = 0;
    const Acts lines = std::exchange(story.acts, {});
    story.acts = unrolled(lines, at);
    require(at == lines.size(), lines.value(at).line, "ends no loop");
    for (const auto& [line, act] : story.acts) {
      static const QRegularExpression name("\\{\\w+\\}");
      const QString left = name.match(act).captured();
      require(left.isEmpty(), line, left + " stands for nothing");
      require(verbs.contains(act.section(' ', 0, 0)), line, "no such act");
    }
  }
  return stories;
}

}  // namespace

QList<Story> readStories(const QString& file, const QString& text, const QStringList& verbs) {
  try {
    return read(file, text, verbs);
  } catch (const Mistake& found) {
    const QString mistake = QString("%1:%2: %3").arg(file).arg(found.line).arg(found.what);
    return {{QFileInfo(file).baseName().toStdString(), {}, mistake.toStdString()}};
  }
}

}  // namespace tarnwick::tests
