#include "resources/UserLocale.h"

#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <QtGlobal>

namespace lurkwell {
namespace {

struct Signs {
  QLocale numbers = QLocale::c();
  QLocale dates = QLocale::c();
  /// Null where figures are written as programs write them.
  QString decimalPoint;
  ushort zero = u'0';
  QString time = QStringLiteral("HH:mm:ss");
  QString timeWithoutSeconds = QStringLiteral("HH:mm");
  QString date = QStringLiteral("yyyy-MM-dd");
  QString dateWithoutYear = QStringLiteral("MM-dd");
};

Signs gSigns;

QLocale LocaleOf(const char* category) {
  for (const char* variable : {"LC_ALL", category, "LANG"})
    if (const auto name = qEnvironmentVariable(variable); !name.isEmpty()) return QLocale(name);
  return QLocale::c();
}

void TakeDates(Signs& signs) {
  const auto& locale = signs.dates;
  if (locale.language() == QLocale::C) return;
  signs.timeWithoutSeconds = locale.timeFormat(QLocale::ShortFormat);
  signs.timeWithoutSeconds.remove(QLatin1Char('t'));
  signs.timeWithoutSeconds = signs.timeWithoutSeconds.trimmed();
  signs.time = signs.timeWithoutSeconds;
  // With the sign that stands before the minutes.
  static const QRegularExpression minutes(QStringLiteral("([^hHmsa-zA-Z]*)mm"));
  if (!signs.time.contains(QLatin1String("ss")))
    signs.time.replace(minutes, QStringLiteral("\\1mm\\1ss"));
  signs.date = locale.dateFormat(QLocale::ShortFormat);
  static const QRegularExpression year(QStringLiteral("y+"));
  signs.date.replace(year, QStringLiteral("yyyy"));
  signs.dateWithoutYear = signs.date;
  // "dd.MM.yyyy" keeps its last point, "dd/MM/yyyy" and "yyyy/MM/dd" have one sign less.
  static const QRegularExpression yearAndSign(QStringLiteral("^yyyy[^dM]*|[^dM.]*yyyy[^dM]*$"));
  signs.dateWithoutYear.remove(yearAndSign);
}

}  // namespace

void UseUserLocale() {
  Signs signs;
  signs.numbers = LocaleOf("LC_NUMERIC");
  signs.dates = LocaleOf("LC_TIME");
  const QString point(signs.numbers.decimalPoint());
  const QString zero(signs.numbers.zeroDigit());
  if (zero.size() == 1) signs.zero = zero.front().unicode();
  if (point != QLatin1String(".") || signs.zero != u'0') signs.decimalPoint = point;
  TakeDates(signs);
  gSigns = signs;
  // What Qt's own fields show and read.
  QLocale::setDefault(signs.numbers);
}

QString LocalNumber(qint64 number) {
  return gSigns.numbers.toString(number);
}

QString LocalNumber(double number, char format, int precision) {
  return LocalFigure(QString::number(number, format, precision));
}

QString LocalFigure(const QString& text) {
  if (gSigns.decimalPoint.isNull()) return text;
  QString local;
  local.reserve(text.size() + 2);
  const auto isDigit = [&text](qsizetype place) {
    return place >= 0 && place < text.size() && text[place] >= u'0' && text[place] <= u'9';
  };
  for (qsizetype place = 0; place < text.size(); ++place) {
    if (isDigit(place))
      local += QChar(static_cast<ushort>(text[place].unicode() - u'0' + gSigns.zero));
    else if (text[place] == u'.' && isDigit(place - 1) && isDigit(place + 1))
      local += gSigns.decimalPoint;
    else
      local += text[place];
  }
  return local;
}

double NumberFromUser(const QString& text, bool* isNumber) {
  // First as it is shown: in German 1.234 is more than a thousand.
  const double value = gSigns.numbers.toDouble(text, isNumber);
  return *isNumber ? value : text.toDouble(isNumber);
}

QString LocalTimeText(QTime time) {
  return gSigns.dates.toString(time, gSigns.time);
}

QString LocalDateTimeText(const QDateTime& moment) {
  return gSigns.dates.toString(moment, gSigns.date + QLatin1Char(' ') + gSigns.timeWithoutSeconds);
}

bool HasOwnDates() {
  return gSigns.dates.language() != QLocale::C && gSigns.dates.language() != QLocale::English;
}

QString LocalMoment(std::int64_t secondsSinceEpoch, int width) {
  const auto moment = QDateTime::fromSecsSinceEpoch(secondsSinceEpoch);
  for (const auto& date : {gSigns.date, gSigns.dateWithoutYear}) {
    auto text = gSigns.dates.toString(moment, date + QLatin1Char(' ') + gSigns.time);
    if (width <= 0 || text.size() <= width) return text;
  }
  return LocalTimeText(moment.time());
}

}  // namespace lurkwell
