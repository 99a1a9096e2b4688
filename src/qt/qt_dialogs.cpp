#include "qt/qt_dialogs.h"

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPushButton>

#include "qt/folder_icons.h"
#include "qt/folder_tree.h"
#include "qt/text.h"

namespace velmora::qt {

using platform::Answer;
using platform::Buttons;

namespace {

struct Choice {
  QMessageBox::StandardButtons buttons;
  QMessageBox::StandardButton preset;   // pressed by Enter
  QMessageBox::StandardButton unasked;  // pressed by Escape and by closing the box
};

Choice choiceOf(Buttons buttons) {
  switch (buttons) {
    case Buttons::OkCancel:
      return {QMessageBox::Ok | QMessageBox::Cancel, QMessageBox::Ok, QMessageBox::Cancel};
    case Buttons::YesNo:
      return {QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, QMessageBox::No};
    case Buttons::AbortRetryIgnore:
      return {QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore, QMessageBox::Retry,
              QMessageBox::Ignore};
    case Buttons::Ok:
      break;
  }
  return {QMessageBox::Ok, QMessageBox::Ok, QMessageBox::Ok};
}

Answer answerOf(QMessageBox::StandardButton button) {
  switch (button) {
    case QMessageBox::Cancel:
      return Answer::Cancel;
    case QMessageBox::Abort:
      return Answer::Abort;
    case QMessageBox::Retry:
      return Answer::Retry;
    case QMessageBox::Ignore:
      return Answer::Ignore;
    case QMessageBox::Yes:
      return Answer::Yes;
    case QMessageBox::No:
      return Answer::No;
    default:
      return Answer::Ok;
  }
}

QMessageBox::Icon iconOf(platform::Icon icon) {
  switch (icon) {
    case platform::Icon::Information:
      return QMessageBox::Information;
    case platform::Icon::Question:
      return QMessageBox::Question;
    case platform::Icon::Exclamation:
      return QMessageBox::Warning;
    case platform::Icon::Critical:
      return QMessageBox::Critical;
    case platform::Icon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

}  // namespace

QWidget* QtDialogs::owner() {
  refresher_.flush();
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  if (QWidget* active = QApplication::activeWindow()) return active;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget->isVisible() && widget->windowType() == Qt::Window) return widget;
  return nullptr;
}

bool QtDialogs::run(QDialog& dialog) {
  if (dismissed_) return false;
  open_.emplace_back(&dialog);
  const int result = dialog.exec();
  open_.pop_back();
  return result != QDialog::Rejected;
}

void QtDialogs::dismiss() {
  dismissed_ = true;
  for (auto box = open_.rbegin(); box != open_.rend(); ++box)
    if (*box) (*box)->reject();
}

Answer QtDialogs::message(const Text& text, const Text& title, Buttons buttons, platform::Icon icon) {
  const Choice choice = choiceOf(buttons);
  QMessageBox box(iconOf(icon), shown(title), {}, choice.buttons, owner());
  box.setTextFormat(Qt::PlainText);
  box.setText(toQString(text));
  box.setDefaultButton(choice.preset);
  box.setEscapeButton(choice.unasked);
  run(box);
  // A box that was dismissed has no clicked button.
  QAbstractButton* clicked = box.clickedButton();
  return answerOf(clicked ? box.standardButton(clicked) : choice.unasked);
}

platform::FailureAnswer QtDialogs::failure(const Text& text, const Text& title, bool manyFollow) {
  const Choice choice = choiceOf(Buttons::AbortRetryIgnore);
  QMessageBox box(QMessageBox::Critical, shown(title), {}, choice.buttons, owner());
  box.setTextFormat(Qt::PlainText);
  box.setText(toQString(text));
  box.setDefaultButton(choice.preset);
  box.setEscapeButton(choice.unasked);
  if (manyFollow) box.setCheckBox(new QCheckBox(QStringLiteral("Ignore &all that follow"), &box));
  run(box);
  QAbstractButton* clicked = box.clickedButton();
  const Answer answer = answerOf(clicked ? box.standardButton(clicked) : choice.unasked);
  return {answer, answer == Answer::Ignore && manyFollow && box.checkBox()->isChecked()};
}

void QtDialogs::report(const Text& text, const Text& title, const Text& details) {
  QMessageBox box(QMessageBox::Warning, shown(title), {}, QMessageBox::Ok, owner());
  box.setTextFormat(Qt::PlainText);
  box.setText(toQString(text));
  if (!details.empty()) box.setDetailedText(toQString(details));
  run(box);
}

std::optional<Text> QtDialogs::input(const Text& prompt, const Text& title, const Text& initial) {
  QInputDialog dialog(owner());
  dialog.setWindowTitle(shown(title));
  dialog.setLabelText(toQString(prompt));
  dialog.setTextValue(toQString(initial));
  dialog.resize(std::max(dialog.sizeHint().width(), 420), dialog.sizeHint().height());
  if (!run(dialog)) return {};
  return toText(dialog.textValue());
}

std::optional<Text> QtDialogs::pickFolder(const Text& title, const Text& start) {
  const QString first = QDir::fromNativeSeparators(toQString(start));
  const bool known = !first.isEmpty() && QDir(first).exists();
  FolderIcons icons;  // told before a folder is, and it outlives the dialog
  QFileDialog dialog(owner(), shown(title));
  dialog.setIconProvider(&icons);
  dialog.setDirectory(known ? first : FolderTree::defaultFolder());
  dialog.setFileMode(QFileDialog::Directory);
  dialog.setOption(QFileDialog::ShowDirsOnly);
  if (!run(dialog) || dialog.selectedFiles().isEmpty()) return {};
  const QString folder = dialog.selectedFiles().first();
  if (!QDir(folder).exists()) return {};
  return toText(QDir::toNativeSeparators(folder));
}

}  // namespace velmora::qt
