#pragma once

#include <QString>
#include <QTime>
#include <cstdint>

class QDateTime;

namespace lurkwell {

/// Figures and dates as the user writes them, in whatever language the texts are: by LC_NUMERIC and
/// LC_TIME, and LC_ALL and LANG as usual. For what people read; what programs read has a point and
/// no groups. With no locale ("C") all is as programs have it. Any thread but for UseUserLocale.

/// Takes them from the environment. Main thread, before others ask; InstallResources does it.
void UseUserLocale();

/// A whole number, in groups where they are usual.
QString LocalNumber(qint64 number);

/// A number as QString::number writes it, with the user's signs; without groups.
QString LocalNumber(double number, char format, int precision);

/// A text with figures that were written with a point, in the user's signs. Points that stand
/// between digits are changed, and the digits themselves.
QString LocalFigure(const QString& text);

/// The number that is written in a text, with the user's signs or with a point.
double NumberFromUser(const QString& text, bool* isNumber);

/// The time of day with seconds.
QString LocalTimeText(QTime time);

/// The date, with the year in full, and the time of day without seconds.
QString LocalDateTimeText(const QDateTime& moment);

/// Whether dates are written in another way than in English.
bool HasOwnDates();

/// As much of date and time as fits so many characters, the time of day at least: the year is left
/// out first. 0 or less is room for all of it.
QString LocalMoment(std::int64_t secondsSinceEpoch, int width);

}  // namespace lurkwell
