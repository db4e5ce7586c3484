#include "support/story.h"

#include <QDir>

namespace tarnwick::tests {
namespace {

using Acts = QList<Story::Act>;

QStringList cells(const QString& row) {
  QStringList all = row.split(';');
  for (QString& cell : all) cell = cell.trimmed();
  return all;
}

// Unrolls the loops from a place on up to the end of the loop that the place stands in.
Acts unrolled(const Acts& acts, qsizetype& at) {
  Acts all;
  for (; at < acts.size() && acts[at].text != "end"; ++at) {
    if (!acts[at].text.startsWith("for ")) {
      all << acts[at];
      continue;
    }
    const QString head = acts[at++].text.mid(4);
    const qsizetype in = head.indexOf(" in");
    const QStringList names = head.left(in).split(' ');
    QList<QStringList> rows;
    if (const QString values = head.mid(in + 4); !values.isEmpty())
      for (const QString& value : cells(values)) rows << QStringList(value);
    else
      while (acts[at++].text != "do") rows << cells(acts[at - 1].text);
    const Acts body = unrolled(acts, at);
    for (const QStringList& row : rows)
      for (Story::Act act : body) {
        for (int i = 0; i < names.size(); ++i) act.text.replace(names[i], row.value(i));
        all << act;
      }
  }
  return all;
}

QList<Story> readFile(const QFileInfo& info) {
  QFile file(info.filePath());
  if (!file.open(QIODevice::ReadOnly)) qFatal("no story in %s", qPrintable(info.filePath()));
  QList<std::pair<QString, QString>> abbreviations;
  Acts beginning;
  QList<Story> stories;
  const QStringList lines = QString::fromUtf8(file.readAll()).split('\n');
  for (int i = 0; i < lines.size(); ++i) {
    QString text = lines[i].trimmed();
    for (const auto& [shortForm, meaning] : abbreviations) text.replace(shortForm, meaning);
    Acts& acts = stories.isEmpty() ? beginning : stories.last().acts;
    if (text.startsWith("let ")) {
      abbreviations << std::pair(text.section(' ', 1, 1), text.section(' ', 2));
    } else if (text.startsWith("== ")) {
      stories << Story{(info.baseName() + "_" + text.mid(3)).toStdString(), beginning};
    } else if (text.startsWith('|')) {
      QString& above = acts.last().text;
      above += (above.contains(' ') ? "" : " ") + text.mid(1);
    } else if (!text.isEmpty() && !text.startsWith('#')) {
      acts << Story::Act{i + 1, text};
    }
  }
  for (Story& story : stories) {
    qsizetype start = 0;
    story.acts = unrolled(story.acts, start);
  }
  return stories;
}

}  // namespace

QList<Story> readStories(const QString& folder) {
  QList<Story> all;
  for (const QFileInfo& file : QDir(folder).entryInfoList({"*.txt"}, QDir::Files, QDir::Name))
    all << readFile(file);
  return all;
}

}  // namespace tarnwick::tests
