#include "monitor_windows/LogSaving.h"

#include <QFile>
#include <QSaveFile>

namespace lurkwell {

QString SaveLogFile(const std::string& logFile, const QString& target) {
  QFile source(QFile::decodeName(logFile.c_str()));
  if (!source.open(QIODevice::ReadOnly)) return source.errorString();
  QSaveFile file(target);
  if (!file.open(QIODevice::WriteOnly)) return file.errorString();
  constexpr qint64 kPart = 1 << 20;
  while (!source.atEnd()) {
    const auto part = source.read(kPart);
    if (part.isEmpty()) return source.errorString();
    if (file.write(part) != part.size()) return file.errorString();
  }
  return file.commit() ? QString() : file.errorString();
}

QString SaveLogRows(const std::string& header, const std::deque<LoggedRow>& rows,
                    const QString& target) {
  QSaveFile file(target);
  if (!file.open(QIODevice::WriteOnly)) return file.errorString();
  const auto write = [&file](const std::string& line) {
    file.write(line.data(), static_cast<qint64>(line.size()));
    file.write("\n", 1);
  };
  write(header);
  for (const auto& row : rows) write(row.line);
  return file.commit() ? QString() : file.errorString();
}

}  // namespace lurkwell
