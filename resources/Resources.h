#pragma once

#include <QIcon>
#include <QString>

class QCoreApplication;

namespace lurkwell {

/// The texts, pictures and forms that are compiled into the program. Main thread only. A form lies
/// at ":/forms/NAME.ui", a picture at ":/images/NAME.svg".

/// Makes the resources known and the texts findable: the English ones, and before them those of the
/// first of the user's languages that has any, with Qt's own where they are installed. Windows of a
/// language that is written from the right are turned round. Figures and dates are the user's from
/// then on (UserLocale.h). Once, before anything else here; the application owns what is installed
/// and takes it along when it ends.
void InstallResources(QCoreApplication& application);

/// The same with one language, "de" or "zh_CN", in place of what there was; "en" is English alone.
/// Its texts are `folder`/lurkwell_LANGUAGE.qm. False when there are none.
bool InstallLanguage(QCoreApplication& application, const QString& language,
                     const QString& folder = QStringLiteral(":/strings"));

/// The first language of the list, in its order, that has texts; "en" when English comes before, or
/// none has. Entries are such as "de-AT" or "zh-Hans-CN". Pure but for the texts' being there.
QString LanguageFor(const QStringList& wanted);

/// The language that is installed, "en" or "zh_CN".
QString InstalledLanguage();

/// The text for an id, or the id itself when there is none.
QString LocalizedString(const char* id);
/// The same in the form that the number asks for, the number itself in the place of "%n", in the
/// user's digits and groups.
QString LocalizedString(const char* id, qint64 count);
/// The same for what may be a fraction: its text stands in the place of "%n".
QString LocalizedString(const char* id, double count, const QString& figure);
bool HasLocalizedString(const char* id);

/// An item's text without its letter of access: "Kill" for "&Kill", and for "Kill (&K)", as
/// languages without Latin letters have it. "&&", a plain ampersand, stays.
QString WithoutLetter(QString text);

/// A picture of the application, sharp at any size and on light as on dark ground; a null icon when
/// there is none of that name. Needs a QGuiApplication.
QIcon NamedImage(const char* name);

}  // namespace lurkwell
