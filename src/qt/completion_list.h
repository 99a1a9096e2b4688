#pragma once

#include "qt/list_view.h"
#include "qt/refresher.h"
#include "ui/list_box.h"

class QLineEdit;

namespace velmora::qt {

/// A list of completions that opens over the window below its text box. The focus stays in the box. Escape
/// closes it, and so does leaving the box.
class CompletionList : public ListView {
  Q_OBJECT

 public:
  CompletionList(Refresher& refresher, ui::ListBox& list, QLineEdit* box, QWidget* window);

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void place();

  ui::ListBox& list_;
  QLineEdit* box_;
};

}  // namespace velmora::qt
