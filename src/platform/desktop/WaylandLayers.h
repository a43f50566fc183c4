#pragma once

#include <QObject>

#include "platform/desktop/LayerSurfaces.h"

namespace lurkwell {

/// The plugin that puts windows on the layers of a Wayland compositor. The only part of the program
/// that is linked with Wayland's libraries.
class WaylandLayers final : public QObject, public LayerSurfaces {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID "com.velquarin.lurkwell.LayerSurfaces/1")
  Q_INTERFACES(lurkwell::LayerSurfaces)

 public:
  bool AreThere() override;
  void Float(QWindow& window) override;
  void Cover(QWindow& window) override;
};

}  // namespace lurkwell
