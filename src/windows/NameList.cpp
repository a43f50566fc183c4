#include "windows/NameList.h"

#include <QUrl>

namespace lurkwell {

QStringList DecodedNames(const QByteArray& text) {
  QStringList names;
  for (const auto& name : text.split(' '))
    if (!name.isEmpty()) names.append(QUrl::fromPercentEncoding(name));
  return names;
}

QByteArray EncodedNames(QStringList& names, qsizetype room) {
  QByteArray text;
  for (qsizetype i = 0; i < names.size(); ++i) {
    const auto name = QUrl::toPercentEncoding(names[i], ":<>=!/|,\"()^$*+-");
    if (text.size() + name.size() + 2 > room) {
      names.resize(i);
      break;
    }
    text += (text.isEmpty() ? "" : " ") + name;
  }
  return text;
}

}  // namespace lurkwell
