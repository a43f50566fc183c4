#pragma once

#include <QIcon>
#include <QString>

class QCoreApplication;

namespace lurkwell {

/// The texts, pictures and forms that are compiled into the program. Main thread only. A form lies
/// at ":/forms/NAME.ui", a picture at ":/images/NAME.svg".

/// Makes the resources known and the texts findable: the English ones, and before them those of the
/// user's language where there are any. Once, before anything else here; the application owns what
/// is installed and takes it along when it ends.
void InstallResources(QCoreApplication& application);

/// The text for an id, or the id itself when there is none.
QString LocalizedString(const char* id);
bool HasLocalizedString(const char* id);

/// A picture of the application, sharp at any size and on light as on dark ground; a null icon when
/// there is none of that name. Needs a QGuiApplication.
QIcon NamedImage(const char* name);

}  // namespace lurkwell
