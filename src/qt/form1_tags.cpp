#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>

#include "qt/bind.h"
#include "qt/form1_view.h"
#include "qt/grid.h"
#include "qt/segment.h"

namespace velmora::qt {

namespace {

/// The boxes of the tag, a line each. While several files are selected a check box stands in the place of
/// each caption: it says whether what is typed goes to all of them.
class TagBoxes {
 public:
  TagBoxes(Refresher& refresher, QGridLayout* grid) : refresher_(refresher), grid_(grid) {}

  void addText(int line, int place, int width, const QString& text, ui::TextBox& model, ui::CheckBox& check) {
    QLineEdit* box = textField();
    bindTextBox(refresher_, model, box);
    add(line, place, width, text, box, check);
    hint(box, check);
  }

  void addCombo(int line, const QString& text, ui::ComboBox& model, ui::CheckBox& check) {
    auto* box = roomy(new QComboBox);
    box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    box->setMinimumContentsLength(12);
    bindComboBox(refresher_, model, box);
    add(line, 0, 3, text, box, check);
    box->lineEdit()->setAccessibleName(box->accessibleName());
    hint(box->lineEdit(), check);
  }

 private:
  void add(int line, int place, int width, const QString& text, QWidget* box, ui::CheckBox& check) {
    const QString name = QString(text).remove(u'&');
    described(box, name, name + " in the tag");
    QLabel* label = caption(text, box);
    auto* mark = described(new QCheckBox(text), name + " for all selected files",
                           "Write this " + name.toLower() + " to all selected files");
    bindCheckBox(refresher_, check, mark);
    // As wide for one as for many, so that nothing moves when the selection changes.
    label->setMinimumWidth(mark->sizeHint().width());
    refresher_.watch(check, mark, [label, mark, &check] {
      mark->setVisible(check.enabled());
      label->setVisible(!check.enabled());
    });
    grid_->addWidget(label, line, place);
    grid_->addWidget(mark, line, place);
    grid_->addWidget(box, line, place + 1, 1, width);
  }

  void hint(QLineEdit* line, ui::CheckBox& check) {
    refresher_.watch(check, line, [line, &check] {
      line->setPlaceholderText(check.enabled() && !check.checked() ? "stays as it is" : "");
    });
  }

  Refresher& refresher_;
  QGridLayout* grid_;
};

}  // namespace

QWidget* makeTagGroup(Refresher& refresher, ui::Form1& form1) {
  ui::TagPanel& tags = form1.tags;
  ui::FieldChecks& checks = form1.fieldChecks;
  auto* group = new QWidget;
  auto* grid = new QGridLayout(group);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(gap);
  grid->setVerticalSpacing(gap);

  auto* v1 = described(new Segment("ID3v&1"), "ID3v1", "Show the values of the ID3v1 tag");
  auto* v2 = described(new Segment("ID3v&2"), "ID3v2", "Show the values of the ID3v2 tag");
  QWidget* view = joined({v1, v2});
  bindOptionButton(refresher, tags.viewID3v1, v1);
  bindOptionButton(refresher, tags.viewID3v2, v2);
  QHBoxLayout* head = row();
  head->addWidget(heading("Tags"), 1);
  head->addWidget(view);
  grid->addLayout(head, 0, 0, 1, 4);

  TagBoxes boxes(refresher, grid);
  boxes.addText(1, 0, 3, "&Title", tags.title, checks.title);
  boxes.addText(2, 0, 3, "A&rtist", tags.artist, checks.artist);
  boxes.addText(3, 0, 3, "A&lbum", tags.album, checks.album);
  boxes.addText(4, 0, 1, "&Year", tags.year, checks.year);
  boxes.addText(4, 2, 1, "Trac&k", tags.track, checks.track);
  boxes.addCombo(5, "&Genre", tags.genre, checks.genre);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  return group;
}

}  // namespace velmora::qt
