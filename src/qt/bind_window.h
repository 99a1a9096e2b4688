#pragma once

#include <QDialog>
#include <QSize>

#include "qt/input_gate.h"
#include "qt/refresher.h"
#include "ui/window.h"

namespace velmora::qt {

/// A small window that opens over the middle of whichever main window is in sight, and stays above it. Escape
/// asks it to close, as the button of its frame does.
class DialogWindow : public QDialog {
  Q_OBJECT

 public:
  DialogWindow();
  void setVisible(bool visible) override;
  void accept() override {}
  void reject() override { close(); }
};

/// The views of windows share these.
struct ViewContext {
  Refresher& refresher;
  InputGate& gate;
};

/// Binds a top-level widget: visible, state, caption, place in twips and front from the model; place, state,
/// activation and close requests to the model. The widget never closes by itself,
/// and a request to close it goes to the model even while that is disabled. `size` is what the window
/// has while its model tells none; whatever is asked is made to fit the screen.
void bindWindow(const ViewContext& context, ui::Window& model, QWidget* widget, QSize size = {});

}  // namespace velmora::qt
