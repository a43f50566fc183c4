#include "main_window/NameList.h"

#include <QUrl>

namespace lurkwell {
namespace {

QByteArray Encoded(const QStringList& names) {
  QByteArray text;
  for (const auto& name : names)
    text += (text.isEmpty() ? "" : " ") + QUrl::toPercentEncoding(name, ":<>=!/|,\"()^$*+-");
  return text;
}

}  // namespace

QStringList DecodedNames(const QByteArray& text) {
  QStringList names;
  for (const auto& name : text.split(' '))
    if (!name.isEmpty()) names.append(QUrl::fromPercentEncoding(name));
  return names;
}

QByteArray EncodedNames(QStringList& names, qsizetype room) {
  auto text = Encoded(names);
  while (text.size() >= room) {
    names.removeLast();
    text = Encoded(names);
  }
  return text;
}

}  // namespace lurkwell
