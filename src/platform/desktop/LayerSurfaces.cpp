#include "platform/desktop/LayerSurfaces.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QPluginLoader>

#include "platform/Diagnostics.h"

namespace lurkwell {

LayerSurfaces* LayersOfThisProgram() {
  // The application's folder is beside that of the program, installed as in the build tree.
  const QString path = QDir::cleanPath(QCoreApplication::applicationDirPath() +
                                       QStringLiteral("/../" LURKWELL_LAYERS_PLUGIN));
  // Built without it, it is no fault that it is not there.
  if (!QFile::exists(path)) return nullptr;
  static QPluginLoader loader(path);
  auto* layers = qobject_cast<LayerSurfaces*>(loader.instance());
  if (layers == nullptr)
    Diagnose("windows cannot be kept above others: %s", qUtf8Printable(loader.errorString()));
  return layers;
}

}  // namespace lurkwell
