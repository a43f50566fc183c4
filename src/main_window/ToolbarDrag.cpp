#include "main_window/ToolbarDrag.h"

#include <QCoreApplication>
#include <QMimeData>

namespace lurkwell {

QString ToolbarDrag::MimeType() {
  // Whatever another instance drags is none of ours.
  return QStringLiteral("application/x-lurkwell-toolbar-item-%1")
      .arg(QCoreApplication::applicationPid());
}

std::unique_ptr<QMimeData> ToolbarDrag::ToMime() const {
  auto data = std::make_unique<QMimeData>();
  data->setData(MimeType(), QByteArray::number(from) + ' ' + identifier.toLatin1());
  return data;
}

std::optional<ToolbarDrag> ToolbarDrag::FromMime(const QMimeData* data) {
  if (data == nullptr || !data->hasFormat(MimeType())) return {};
  const auto words = data->data(MimeType()).split(' ');
  if (words.size() != 2) return {};
  return ToolbarDrag{QString::fromLatin1(words[1]), words[0].toInt()};
}

}  // namespace lurkwell
