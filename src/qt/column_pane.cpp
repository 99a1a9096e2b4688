#include "qt/column_pane.h"

#include <QAction>
#include <QComboBox>
#include <QKeyEvent>
#include <QPainter>
#include <QShortcut>
#include <QToolButton>

#include "qt/grid.h"

namespace velmora::qt {

namespace {

constexpr int headingHeight = 9 * unit;
constexpr int commandWidth = 7 * unit;
constexpr int leastNameWidth = 8 * unit;
constexpr int comfortableNameWidth = 15 * unit;

bool standsForGroup(const Text& row) {
  return row.starts_with(u"-<<");
}

int countOf(const ui::ListBox& list) {
  int rows = 0;
  for (int index = 0; index < list.ListCount(); ++index)
    if (!standsForGroup(list.List(index))) ++rows;
  return rows;
}

int selectedOf(const ui::ListBox& list) {
  int rows = 0;
  for (const int index : list.selectedIndexes())
    if (!standsForGroup(list.List(index))) ++rows;
  return rows;
}

}  // namespace

/// Says as much as there is room for: a narrow column tells the number alone.
class CountLabel final : public QLabel {
 public:
  CountLabel() {
    setForegroundRole(QPalette::PlaceholderText);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  }
  void show(int rows, int selected, const ColumnPane::Noun& noun) {
    const QString number = QString::number(rows);
    const QString of = number + u' ' + (rows == 1 ? noun.one : noun.many);
    variants_ = {of, number, {}};
    if (selected > 0) variants_.prepend(QStringLiteral("%1, %2 selected").arg(of).arg(selected));
    setText(variants_.first());
    setToolTip(variants_.first());
  }
  void clearCount() {
    variants_.clear();
    clear();
    setToolTip({});
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    for (const QString& text : variants_) {
      if (fontMetrics().horizontalAdvance(text) > contentsRect().width()) continue;
      QPainter painter(this);
      painter.setPen(palette().color(foregroundRole()));
      painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, text);
      return;
    }
  }

 private:
  QStringList variants_;  // from the longest to the shortest
};

/// A heading that is not shown by halves.
class Title final : public QLabel {
 public:
  explicit Title(const QString& text) : QLabel(text) {
    QFont bold = font();
    bold.setBold(true);
    setFont(bold);
    setMinimumWidth(1);  // of what stands in the heading, it gives way first
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    if (width() >= sizeHint().width()) QLabel::paintEvent(event);
  }
};

ColumnPane::ColumnPane(const QString& title) {
  QVBoxLayout* pane = column(this, 0);
  auto* head = new QWidget;
  head->setMinimumHeight(headingHeight);
  heading_ = row(head);
  heading_->setContentsMargins(edge, tight, gap, tight);
  title_ = new Title(title);
  count_ = new CountLabel;
  heading_->addWidget(title_);
  heading_->addWidget(count_, 1);
  pane->addWidget(head);
  pane->addWidget(line());

  contents_ = column(nullptr, 0);
  pane->addLayout(contents_, 1);
  pane->addWidget(line());

  auto* foot = new QWidget;
  names_ = row(foot, tight);
  names_->setContentsMargins(gap, tight, gap, tight);
  pane->addWidget(foot);
}

void ColumnPane::showCount(Refresher& refresher, const ui::ListBox& list, const Noun& noun) {
  // The count is the view's own; the list is only read.
  refresher.watch(const_cast<ui::ListBox&>(list), this, [this, &list, noun] {
    if (!list.visible()) return;
    if (list.ListCount() == 0) return count_->clearCount();
    count_->setAccessibleName("Number of " + noun.many);
    count_->show(countOf(list), selectedOf(list), noun);
  });
}

void ColumnPane::addToHeading(QWidget* widget) {
  heading_->addWidget(widget);
}

void ColumnPane::addContent(QWidget* content, int stretch) {
  contents_->addWidget(content, stretch);
  if (!title_->buddy() && stretch > 0) title_->setBuddy(content);
}

void ColumnPane::addName(QWidget* box, int stretch) {
  box->setMinimumWidth(leastNameWidth);
  names_->insertWidget(names_->count() - static_cast<int>(commands_.size()), box, stretch);
  namesWidth_ += leastNameWidth + tight;
  comfort_ += comfortableNameWidth - leastNameWidth;
}

void ColumnPane::addCommand(QAction* action, const QString& name, Qt::ToolButtonStyle style) {
  auto* button = new QToolButton;
  button->setDefaultAction(action);
  button->setToolButtonStyle(style);
  button->setIconSize({4 * unit, 4 * unit});
  button->setAutoRaise(style == Qt::ToolButtonIconOnly);
  button->setFocusPolicy(Qt::TabFocus);
  button->setAccessibleName(name);
  button->setMinimumSize(commandWidth, commandWidth);
  names_->addWidget(button);
  commands_.push_back({button, style, button->sizeHint().width()});
  connect(action, &QAction::changed, this, [this] { arrange(); });
}

void ColumnPane::setCommandsVisible(bool visible) {
  commandsVisible_ = visible;
  arrange();
}

void ColumnPane::resizeEvent(QResizeEvent* event) {
  arrange();
  QWidget::resizeEvent(event);
}

// The first commands keep their words, and their place, longest.
void ColumnPane::arrange() {
  int room = width() - 2 * gap - namesWidth_;
  for (const Command& command : commands_) {
    room -= commandWidth + tight;
    command.button->setVisible(commandsVisible_ && room >= 0 && command.button->defaultAction()->isVisible());
  }
  room -= comfort_;
  for (const Command& command : commands_) {
    const bool words = room >= command.width - commandWidth;
    if (words) room -= command.width - commandWidth;
    command.button->setToolButtonStyle(words ? command.style : Qt::ToolButtonIconOnly);
  }
}

void ColumnKeys::add(QWidget* column) {
  columns_.push_back(column);
  column->installEventFilter(this);
}

bool ColumnKeys::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (key.modifiers() || (key.key() != Qt::Key_Left && key.key() != Qt::Key_Right)) return false;
  auto place = std::ranges::find(columns_, object);
  const bool right = key.key() == Qt::Key_Right;
  while (place != columns_.end() && (right || place != columns_.begin())) {
    right ? ++place : --place;
    if (place == columns_.end() || !(*place)->isVisible()) continue;
    (*place)->setFocus(right ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    break;
  }
  return true;
}

void joinListAndName(QWidget* list, QWidget* name) {
  auto* box = qobject_cast<QComboBox*>(name);
  QLineEdit* line = box ? box->lineEdit() : qobject_cast<QLineEdit*>(name);
  auto* to = new QShortcut(Qt::Key_F2, list, nullptr, nullptr, Qt::WidgetShortcut);
  QObject::connect(to, &QShortcut::activated, line, [line] {
    line->setFocus(Qt::ShortcutFocusReason);
    line->selectAll();
  });
  auto* back = new QShortcut(Qt::Key_Escape, name, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
  QObject::connect(back, &QShortcut::activated, list, [list] { list->setFocus(Qt::ShortcutFocusReason); });
}

}  // namespace velmora::qt
