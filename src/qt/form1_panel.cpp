#include <QCheckBox>
#include <QGridLayout>
#include <QScrollArea>

#include "qt/bind.h"
#include "qt/completion_list.h"
#include "qt/elided_label.h"
#include "qt/form1_view.h"
#include "qt/grid.h"
#include "qt/pane.h"
#include "qt/repair_view.h"

namespace velmora::qt {

namespace {

const QString nothing = QStringLiteral("–");

// A fact about the file: what it is, small, above what it says.
QLayout* fact(Refresher& refresher, const QString& name, ui::Label& model, QLabel* value = new QLabel) {
  QVBoxLayout* layout = column(nullptr, 0);
  layout->addWidget(scaled(secondary(name), 0.9));
  layout->addWidget(described(value, name, {}));
  bindLabel(refresher, model, value, nothing);
  return layout;
}

QLayout* makeNames(Refresher& refresher, ui::Form1& form1, QWidget* window) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(gap);
  grid->setVerticalSpacing(tight);
  auto* name = described(textField(), "File name", "Name of the selected file, without folder and extension");
  bindTextBox(refresher, form1.Text1, name);
  QObject::connect(name, &QLineEdit::returnPressed, name, [&form1] { form1.repair.rename.click(); });
  new CompletionList(refresher, form1.List3, name, window);
  grid->addWidget(caption("F&ile name", name), 0, 0, 1, 2);
  grid->addWidget(name, 1, 0, 1, 2);
  grid->addWidget(makeNameTools(refresher, form1.repair), 2, 0, 1, 2);

  // How the name is understood. The boxes are filled in from it, and cannot be typed in here.
  const auto part = [&](int place, const QString& text, const QString& tip, ui::TextBox& model) {
    auto* box = described(textField(), tip, tip);
    box->setReadOnly(true);
    bindTextBox(refresher, model, box);
    grid->addWidget(caption(text, box), 3, place);
    grid->addWidget(box, 4, place);
  };
  part(0, "Artist &part", "Artist part of filename", form1.Text8);
  part(1, "Title part", "Name of song part of filename", form1.Text5);
  grid->setColumnStretch(0, 1);
  grid->setColumnStretch(1, 1);
  return grid;
}

QLayout* makeFacts(Refresher& refresher, ui::Form1& form1) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(edge);
  grid->setVerticalSpacing(gap);
  grid->addLayout(fact(refresher, "Length", form1.fileLength), 0, 0);
  grid->addLayout(fact(refresher, "Bit rate", form1.bitRate), 0, 1);
  grid->addLayout(fact(refresher, "Frequency", form1.frequency), 0, 2);
  grid->addLayout(fact(refresher, "Size", form1.fileSize), 1, 0);
  grid->addLayout(fact(refresher, "Mode", form1.mode), 1, 1, 1, 2);
  grid->addLayout(fact(refresher, "Path", form1.path, new ElidedLabel), 2, 0, 1, 3);
  for (int place = 0; place < 3; ++place) grid->setColumnStretch(place, 1);
  return grid;
}

}  // namespace

QWidget* makeFilePanel(Refresher& refresher, ui::Form1& form1, QWidget* window) {
  auto* pane = new Pane;
  pane->header()->addWidget(heading("Selected file"), 1);

  auto* content = new QWidget;
  QVBoxLayout* layout = column(content, section);
  layout->setContentsMargins(edge, edge, edge, edge);
  layout->addLayout(makeNames(refresher, form1, window));
  layout->addLayout(makeFacts(refresher, form1));
  layout->addWidget(line());
  layout->addWidget(makeTagGroup(refresher, form1));
  layout->addStretch(1);

  auto* scroll = new QScrollArea;  // for small screens and large fonts
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(content);
  scroll->setMinimumWidth(content->minimumSizeHint().width() + 2 * edge);
  pane->setContent(scroll);

  auto* writeV1 = described(new QCheckBox("&Write ID3v1"), "Write ID3v1", "UPDATE writes the ID3v1 tag");
  auto* writeV2 = described(new QCheckBox("Write ID3&v2"), "Write ID3v2", "UPDATE writes the ID3v2 tag");
  bindCheckBox(refresher, form1.tags.writeID3v1, writeV1);
  bindCheckBox(refresher, form1.tags.writeID3v2, writeV2);
  QPushButton* update =
      described(button("&UPDATE", "update-tags"), "UPDATE", "Write what stands in the tag boxes to the file");
  bindButton(refresher, form1.update, update);
  pane->footer()->addWidget(writeV1);
  pane->footer()->addWidget(writeV2);
  pane->footer()->addStretch();
  pane->footer()->addWidget(update);
  return pane;
}

}  // namespace velmora::qt
