#include "qt/form2_view.h"

#include <QShortcut>
#include <QWindow>

#include "qt/bind.h"
#include "qt/elided_label.h"
#include "qt/grid.h"
#include "qt/icons.h"

namespace velmora::qt {

namespace {

constexpr QSize designSize(1100, 360);

QWidget* makeTopBar(Refresher& refresher, ui::Form2& form2) {
  auto* bar = new QWidget;
  QHBoxLayout* layout = row(bar);
  layout->setContentsMargins(gap, tight, gap, tight);
  const auto add = [&](const QString& text, const QString& icon, const QString& tip, ui::Button& model) {
    auto* made = described(button(text, icon), QString(text).remove(u'&'), tip);
    bindButton(refresher, model, made);
    layout->addWidget(made);
    return made;
  };
  add("&Undo Last Operation", "undo", "Put back what the last MOVE moved (Ctrl+Z)", form2.undoLastOperation);
  add("&Scan ID3 Of Every New Music Files", "scan-tags",
      "Read the tags of all new files, so that they are listed by genre and album", form2.scanTags);
  layout->addStretch(1);
  add("&Close", "exit", "Back to the Music Base alone (Ctrl+W)", form2.close);
  return bar;
}

QWidget* makeStatusBar(Refresher& refresher, ui::Form2& form2) {
  auto* bar = new QWidget;
  QHBoxLayout* layout = row(bar, section);
  layout->setContentsMargins(edge, tight, edge, tight);
  auto* status = described(new ElidedLabel, "Path", "The song last clicked");
  status->setForegroundRole(QPalette::PlaceholderText);
  bindLabel(refresher, form2.statusLabel, status);
  layout->addWidget(status, 1);
  const auto add = [&](const QString& name, const QString& tip, ui::Label& model) {
    auto* label = described(new QLabel, name, tip);
    bindLabel(refresher, model, label);
    layout->addWidget(label);
  };
  add("New", "New files that are not in the base yet", form2.newLabel);
  add("Need", "The room that they need where your Music Base lies", form2.needLabel);
  add("Free", "The room that is left where your Music Base lies", form2.freeLabel);
  return bar;
}

}  // namespace

Form2View::Form2View(const ViewContext& context, ui::Form2& form2, ui::Form3& form3, QWidget* base)
    : base_(base) {
  Refresher& refresher = context.refresher;
  QVBoxLayout* layout = column(this, 0);
  layout->addWidget(makeTopBar(refresher, form2));
  layout->addWidget(line());
  layout->addWidget(makeNewMusicColumns(refresher, form2, form3), 1);
  layout->addWidget(line());
  layout->addWidget(makeStatusBar(refresher, form2));
  new QShortcut(QKeySequence::Undo, this, [&form2] { form2.undoLastOperation.click(); });
  new QShortcut(QKeySequence("Ctrl+W"), this, [&form2] { form2.close.click(); });
  setWindowIcon(programIcon());
  bindWindow(context, form2, this, designSize);
}

// The two share the screen: whoever brings one of them to the front wants both.
void Form2View::setVisible(bool visible) {
  if (visible && isHidden()) {
    winId();
    base_->winId();
    windowHandle()->setTransientParent(base_->windowHandle());
  }
  QWidget::setVisible(visible);
}

}  // namespace velmora::qt
