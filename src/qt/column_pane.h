#pragma once

#include <vector>

#include <QWidget>

#include "qt/refresher.h"
#include "ui/list_box.h"

class QAction;
class QHBoxLayout;
class QLabel;
class QToolButton;
class QVBoxLayout;

namespace velmora::qt {

class CountLabel;

/// One of four columns side by side: its heading with the count, the rows from edge to edge, and below them
/// the name box with the commands. It can be made very narrow; commands without room are left to the menu of
/// the list.
class ColumnPane : public QWidget {
  Q_OBJECT

 public:
  /// `heading` bears the mnemonic of the column.
  explicit ColumnPane(const QString& heading);

  /// What there is one of, and what there are several of.
  struct Noun {
    QString one, many;
  };
  /// "12 artists, 3 selected" in the heading, while `list` is in sight. Rows that stand for a whole group
  /// are not counted.
  void showCount(Refresher& refresher, const ui::ListBox& list, const Noun& noun);
  /// At the right end of the heading.
  void addToHeading(QWidget* widget);
  /// Below the heading; several share the place, and those that are hidden give their room to the others.
  /// The heading's mnemonic leads to the first one.
  void addContent(QWidget* content, int stretch = 1);
  void addName(QWidget* box, int stretch = 1);
  /// A command beside the name box, and the name that a screen reader speaks. A narrow column shows icons
  /// alone.
  void addCommand(QAction* action, const QString& name, Qt::ToolButtonStyle style);
  /// Shows or hides the commands, and leaves the name box.
  void setCommandsVisible(bool visible);

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  QHBoxLayout* heading_;
  QVBoxLayout* contents_;
  QHBoxLayout* names_;
  QLabel* title_;
  CountLabel* count_;
  struct Command {
    QToolButton* button;
    Qt::ToolButtonStyle style;
    int width;  // with its words
  };
  void arrange();

  std::vector<Command> commands_;
  bool commandsVisible_ = true;
  int namesWidth_ = 0;  // that the name boxes need at least
  int comfort_ = 0;     // and what they want beyond before commands get words
};

/// Takes the keyboard from one list to its neighbour in sight by Left and Right.
class ColumnKeys : public QObject {
  Q_OBJECT

 public:
  explicit ColumnKeys(QObject* owner) : QObject(owner) {}
  /// Widgets that share a place follow one another.
  void add(QWidget* column);
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  std::vector<QWidget*> columns_;
};

/// F2 in the list leads to the name box, Escape in the box back to the list.
void joinListAndName(QWidget* list, QWidget* name);

}  // namespace velmora::qt
