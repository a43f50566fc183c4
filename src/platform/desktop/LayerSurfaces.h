#pragma once

#include <QtPlugin>

class QWindow;

namespace lurkwell {

/// The layers that Wayland compositors may have above and below all ordinary windows
/// (zwlr_layer_shell_v1). A plugin has them, so that the program needs nothing of Wayland's to be
/// there. Main thread only; windows are this program's own.
class LayerSurfaces {
 public:
  virtual ~LayerSurfaces() = default;

  /// Whether the compositor that shows this program's windows has layers. Waits for its answer,
  /// half a second at most; one that is silent has none.
  virtual bool AreThere() = 0;

  /// Before the window is shown for the first time: it lies above all ordinary windows where its
  /// geometry says, also when that changes, and takes no keys.
  virtual void Float(QWindow& window) = 0;

  /// Before each time that the window is shown: it fills its screen above everything, and takes
  /// neither keys nor, when its flags say so, clicks.
  virtual void Cover(QWindow& window) = 0;
};

/// Of the plugin; null, which is printed once, when it is not there or does not fit the toolkit.
LayerSurfaces* LayersOfThisProgram();

}  // namespace lurkwell

Q_DECLARE_INTERFACE(lurkwell::LayerSurfaces, "com.velquarin.lurkwell.LayerSurfaces/1")
