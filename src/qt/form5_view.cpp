#include <QCheckBox>
#include <QGridLayout>

#include "qt/bind.h"
#include "qt/dialogs.h"
#include "qt/grid.h"

namespace velmora::qt {

namespace {

constexpr int perColumn = 6;

QLayout* makeExtensions(Refresher& refresher, ui::Form5& form5) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(gap);
  grid->setVerticalSpacing(gap);
  for (int i = 0; i < static_cast<int>(form5.extensions.size()); ++i) {
    ui::Form5::Extension& extension = form5.extensions[static_cast<std::size_t>(i)];
    const QString number = QString::number(i + 1);
    auto* check = described(new QCheckBox, "Use extension " + number, "Files with this extension are music");
    auto* text = described(textField(), "Extension " + number, "The last three characters of a file name");
    bindCheckBox(refresher, extension.check, check);
    bindTextBox(refresher, extension.text, text);
    const int place = i / perColumn * 3;
    grid->addWidget(check, i % perColumn, place);
    grid->addWidget(text, i % perColumn, place + 1);
  }
  grid->setColumnMinimumWidth(2, edge);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(4, 1);
  return grid;
}

}  // namespace

DialogWindow* makeForm5(const ViewContext& context, ui::Form5& form5) {
  Refresher& refresher = context.refresher;
  auto* dialog = new DialogWindow;
  QVBoxLayout* layout = dialogColumn(dialog);
  auto* hint = secondary("A file is music when the last three characters of its name are one of these.");
  layout->addWidget(hint);
  layout->addLayout(makeExtensions(refresher, form5));
  layout->addWidget(line());

  QVBoxLayout* base = column(nullptr, tight);
  auto* refresh =
      described(new QCheckBox("When loading &refresh old music list"), "When loading refresh old music list",
                "Adding a folder reads all tags and lists the Music Base again");
  bindCheckBox(refresher, form5.refreshOldMusicList, refresh);
  base->addWidget(refresh);
  layout->addLayout(base);

  auto* clear = described(button("Clear &M. Base List"), "Clear M. Base List",
                          "Forget which files the Music Base holds. The files themselves stay");
  bindButton(refresher, form5.clearBaseList, clear);
  addOkCancel(refresher, layout, form5.ok, form5.cancel, clear);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  bindWindow(context, form5, dialog);
  return dialog;
}

}  // namespace velmora::qt
