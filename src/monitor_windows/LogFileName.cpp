#include "monitor_windows/LogFileName.h"

#include <QDateTime>

namespace lurkwell {

QString LogFileName(const QString& program, std::int32_t pid, TimeValue now) {
  constexpr int kMostCharacters = 40;
  QString name;
  for (const QChar c : program.left(kMostCharacters)) {
    const bool isKept = c.isLetterOrNumber() || c == QLatin1Char('.') || c == QLatin1Char('_') ||
                        c == QLatin1Char('-');
    name += isKept ? c : QLatin1Char('_');
  }
  // Neither a hidden file nor an option.
  if (name.isEmpty() || name.startsWith(QLatin1Char('.')) || name.startsWith(QLatin1Char('-')))
    name.prepend(QLatin1Char('_'));
  const auto time = QDateTime::fromSecsSinceEpoch(now.seconds);
  return name + QLatin1Char('-') + QString::number(pid) + QLatin1Char('-') +
         time.toString(QStringLiteral("yyyyMMdd-HHmmss"));
}

}  // namespace lurkwell
