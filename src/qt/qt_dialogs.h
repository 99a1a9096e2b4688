#pragma once

#include <vector>

#include <QPointer>

#include "platform/dialogs.h"
#include "qt/refresher.h"

class QDialog;

namespace velmora::qt {

/// Boxes of the toolkit, before whichever of the program's windows is in front.
class QtDialogs final : public platform::Dialogs {
 public:
  explicit QtDialogs(Refresher& refresher) : refresher_(refresher) {}

  platform::Answer message(const Text& text, const Text& title, platform::Buttons buttons,
                           platform::Icon icon) override;
  platform::FailureAnswer failure(const Text& text, const Text& title, bool manyFollow) override;
  void report(const Text& text, const Text& title, const Text& details) override;
  std::optional<Text> input(const Text& prompt, const Text& title, const Text& initial) override;
  std::optional<Text> pickFolder(const Text& title, const Text& start) override;

  /// Closes the boxes that are open without an answer, and from now on answers at once in their place: the
  /// session ends and nobody is there to ask.
  void dismiss();

 private:
  QWidget* owner();
  /// Runs the dialog until it is answered; false when it was closed without an answer.
  bool run(QDialog& dialog);

  Refresher& refresher_;
  std::vector<QPointer<QDialog>> open_;
  bool dismissed_ = false;
};

}  // namespace velmora::qt
