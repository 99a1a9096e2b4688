
#include "qt/bind.h"
#include "qt/dialogs.h"
#include "qt/grid.h"
#include "qt/list_view.h"

namespace velmora::qt {

namespace {

constexpr QSize designSize(760, 480);

}  // namespace

DialogWindow* makeForm8(const ViewContext& context, ui::Form8& form8) {
  Refresher& refresher = context.refresher;
  auto* dialog = new DialogWindow;
  QVBoxLayout* layout = column(dialog, 0);
  auto* list = described(new ListView, "Other files", {});
  list->emptyState = [] {
    return EmptyState{"No other files",
                      "What lies beside the music in the folders that you add is listed here."};
  };
  bindList(refresher, form8.list, list, Rows::Paths);
  layout->addWidget(list, 1);
  layout->addWidget(line());

  const auto bound = [&](ui::Button& model, const QString& text, const QString& icon, const QString& tip) {
    QPushButton* made = described(button(text, icon), QString(text).remove(u'&'), tip);
    bindButton(refresher, model, made);
    return made;
  };
  QWidget* remove = bound(form8.deleteFiles, "&Delete", "delete", "Send the selected files to the trash");
  QWidget* move =
      bound(form8.moveTo, "&Move To", "move-to", "Move the selected files into a folder that you choose");
  QWidget* close = bound(form8.close, "&Close", {}, "Back to the Processing Window");
  QHBoxLayout* buttons = row();
  buttons->setContentsMargins(edge, edge, edge, edge);
  buttons->addWidget(remove);
  buttons->addWidget(move);
  buttons->addStretch();
  buttons->addWidget(close);
  layout->addLayout(buttons);
  dialog->resize(designSize);
  bindWindow(context, form8, dialog);
  return dialog;
}

}  // namespace velmora::qt
