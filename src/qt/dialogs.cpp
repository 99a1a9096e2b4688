#include "qt/dialogs.h"

#include "qt/bind.h"
#include "qt/grid.h"

namespace velmora::qt {

QVBoxLayout* dialogColumn(DialogWindow* dialog) {
  QVBoxLayout* layout = column(dialog, section);
  layout->setContentsMargins(section, section, section, edge);
  return layout;
}

void addOkCancel(Refresher& refresher, QVBoxLayout* layout, ui::Button& ok, ui::Button& cancel,
                 QWidget* left) {
  auto* okButton = described(button("OK"), "OK", "Keep these options and close");
  auto* cancelButton = described(button("Cancel"), "Cancel", "Close and leave the options as they were");
  okButton->setDefault(true);
  bindButton(refresher, ok, okButton);
  bindButton(refresher, cancel, cancelButton);
  layout->addLayout(dialogButtons({okButton, cancelButton}, left));
}

}  // namespace velmora::qt
