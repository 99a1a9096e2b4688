#pragma once

#include <QWidget>

#include "qt/bind_window.h"
#include "ui/form2.h"
#include "ui/form3.h"

namespace velmora::qt {

/// The New Music Window: the new files in four columns, whose commands move them up into the base; above them
/// what concerns all of them, below them the song last clicked.
class Form2View : public QWidget {
  Q_OBJECT

 public:
  /// `form3` holds the option "Auto List Focus" and the splitters, so that the columns stand beneath those of
  /// the base. The window comes to the front with `base`.
  Form2View(const ViewContext& context, ui::Form2& form2, ui::Form3& form3, QWidget* base);

  void setVisible(bool visible) override;

 private:
  QWidget* base_;
};

/// Its four columns.
QWidget* makeNewMusicColumns(Refresher& refresher, ui::Form2& form2, ui::Form3& form3);

}  // namespace velmora::qt
