#include <QCheckBox>

#include "qt/bind.h"
#include "qt/dialogs.h"
#include "qt/grid.h"
#include "qt/icons.h"

namespace velmora::qt {

namespace {

constexpr int iconSize = 12 * unit;
constexpr int textWidth = 100 * unit;
constexpr int textLines = 5;

QLabel* picture(const QIcon& icon, int size) {
  auto* label = new QLabel;
  label->setPixmap(icon.pixmap(QSize(size, size), label->devicePixelRatioF()));
  label->setAlignment(Qt::AlignTop);
  return label;
}

QLabel* large(const QString& text) {
  return scaled(heading(text), 1.3);
}

}  // namespace

DialogWindow* makeFrmTip(const ViewContext& context, ui::FrmTip& frmTip) {
  Refresher& refresher = context.refresher;
  auto* dialog = new DialogWindow;
  QVBoxLayout* layout = dialogColumn(dialog);

  auto* tip = described(new QLabel, "Tip", {});
  tip->setWordWrap(true);
  tip->setFixedSize(textWidth, tip->fontMetrics().lineSpacing() * textLines);
  tip->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  bindLabel(refresher, frmTip.tip, tip);
  QVBoxLayout* words = column();
  words->addWidget(large("Did you know..."));
  words->addWidget(tip);
  QHBoxLayout* body = row(nullptr, section);
  body->addWidget(picture(glyph("tip"), iconSize));
  body->addLayout(words, 1);
  layout->addLayout(body);
  layout->addWidget(line());

  auto* show = described(new QCheckBox("&Show Tips at Startup"), "Show Tips at Startup",
                         "Whether this window comes up when the program starts");
  bindCheckBox(refresher, frmTip.showAtStartup, show);
  auto* next = described(button("&Next Tip"), "Next Tip", "Show another tip");
  auto* ok = described(button("OK"), "OK", "Close");
  ok->setDefault(true);
  bindButton(refresher, frmTip.nextTip, next);
  bindButton(refresher, frmTip.ok, ok);
  layout->addLayout(dialogButtons({next, ok}, show));
  layout->setSizeConstraint(QLayout::SetFixedSize);
  bindWindow(context, frmTip, dialog);
  return dialog;
}

DialogWindow* makeFrmAbout(const ViewContext& context, ui::FrmAbout& frmAbout) {
  Refresher& refresher = context.refresher;
  auto* dialog = new DialogWindow;
  QVBoxLayout* layout = dialogColumn(dialog);

  auto* version = described(large({}), "Version", {});
  bindLabel(refresher, frmAbout.version, version);
  auto* purpose = new QLabel("Lists, repairs and files a personal collection of music.");
  auto* folder = described(new QLabel, "Program folder", "Settings, lists and the undo history lie here");
  folder->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  bindLabel(refresher, frmAbout.programFolder, folder);

  QVBoxLayout* words = column(nullptr, tight);
  words->addWidget(version);
  words->addSpacing(gap);
  words->addWidget(purpose);
  words->addSpacing(gap);
  words->addWidget(secondary("Everything that Velmora remembers lies in this folder:"));
  words->addWidget(folder);
  words->addStretch();
  QHBoxLayout* body = row(nullptr, section);
  body->addWidget(picture(programIcon(), 2 * iconSize));
  body->addLayout(words, 1);
  layout->addLayout(body);

  auto* ok = described(button("OK"), "OK", "Close");
  ok->setDefault(true);
  bindButton(refresher, frmAbout.ok, ok);
  layout->addLayout(dialogButtons({ok}));
  layout->setSizeConstraint(QLayout::SetFixedSize);
  bindWindow(context, frmAbout, dialog);
  return dialog;
}

}  // namespace velmora::qt
