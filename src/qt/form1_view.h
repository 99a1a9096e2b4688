#pragma once

#include <QWidget>

#include "qt/bind_window.h"
#include "ui/form1.h"
#include "ui/form3.h"

namespace velmora::qt {

/// The Processing Window: from the left to the right the folders to add from, the list, and the file that is
/// selected; above them the commands on the selected files, below them the player and the way on.
class Form1View : public QWidget {
  Q_OBJECT

 public:
  /// `base` holds the option "Auto List Focus".
  Form1View(const ViewContext& context, ui::Form1& form1, const ui::Form3& base);
};

/// The panes that it is made of, each for itself so that it can be read on a page.
QWidget* makeFolderPane(Refresher& refresher, ui::Form1& form1);
QWidget* makeFileListPane(Refresher& refresher, ui::Form1& form1, const ui::Form3& base);
/// `window` is what the list of completions opens over.
QWidget* makeFilePanel(Refresher& refresher, ui::Form1& form1, QWidget* window);
QWidget* makeTagGroup(Refresher& refresher, ui::Form1& form1);

}  // namespace velmora::qt
