#include <QProgressBar>

#include "qt/bind.h"
#include "qt/dialogs.h"
#include "qt/grid.h"

namespace velmora::qt {

namespace {

constexpr int textWidth = 110 * unit;
constexpr int textLines = 2;

}  // namespace

DialogWindow* makeDialog1(const ViewContext& context, ui::Dialog1& dialog1) {
  Refresher& refresher = context.refresher;
  auto* dialog = new DialogWindow;
  QVBoxLayout* layout = dialogColumn(dialog);

  // As high as its longest text, so that the window keeps its size while the text changes.
  auto* text = described(new QLabel, "What is being done", {});
  text->setWordWrap(true);
  text->setFixedSize(textWidth, text->fontMetrics().lineSpacing() * textLines);
  text->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
  bindLabel(refresher, dialog1.text, text);
  auto* bar = described(new QProgressBar, "Progress", {});
  bindProgressBar(refresher, dialog1.bar, bar);
  layout->addWidget(text);
  layout->addWidget(bar);

  auto* minimize = described(button("&Minimize"), "Minimize", "Out of the way until it is done");
  auto* stop = described(button("&Stop", "stop"), "Stop", "End at the next file. What was done so far stays");
  bindButton(refresher, dialog1.minimize, minimize);
  bindButton(refresher, dialog1.stop, stop);
  layout->addLayout(dialogButtons({minimize, stop}));
  layout->setSizeConstraint(QLayout::SetFixedSize);
  bindWindow(context, dialog1, dialog);
  return dialog;
}

}  // namespace velmora::qt
