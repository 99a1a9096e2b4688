#include <algorithm>
#include <utility>

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include "qt/bind.h"
#include "qt/keys.h"
#include "qt/list_drag.h"
#include "qt/list_model.h"
#include "qt/list_view.h"

namespace velmora::qt {

namespace {

std::vector<int> rowNumbers(const QItemSelection& selection) {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : selection)
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  std::ranges::sort(rows);
  return rows;
}

// Runs of neighbouring rows as one range each.
QItemSelection selectionOf(const QAbstractItemModel& model, const std::vector<int>& rows) {
  QItemSelection selection;
  for (std::size_t from = 0; from < rows.size();) {
    std::size_t to = from + 1;
    while (to < rows.size() && rows[to] == rows[to - 1] + 1) ++to;
    selection.append(QItemSelectionRange(model.index(rows[from], 0), model.index(rows[to - 1], 0)));
    from = to;
  }
  return selection;
}

/// A selection that may hold many separate rows. The toolkit compares an old and a new selection range by
/// range, which takes seconds when both hold thousands; so one that is to be replaced goes first.
class Selection final : public QItemSelectionModel {
 public:
  using QItemSelectionModel::QItemSelectionModel;
  using QItemSelectionModel::select;

  void select(const QItemSelection& selection, SelectionFlags command) override {
    if ((command & Clear) && !selection.isEmpty()) QItemSelectionModel::select(QItemSelection(), Clear);
    QItemSelectionModel::select(selection, command);
  }
};

/// Keeps a ListBox and its view in step. What the user selects goes to the list after the toolkit has done
/// with the event that selected it, so that a command may refill the list from within its click.
class ListBinding final : public QObject {
 public:
  ListBinding(Refresher& refresher, ui::ListBox& list, ListView* view, Rows rows)
      : QObject(view), list_(list), view_(view), viewport_(view->viewport()), model_(list, rows) {
    view->setModel(&model_);
    delete view->selectionModel();
    view->setSelectionModel(new Selection(&model_, view));
    view->setSelectionMode(list.selection() == ui::ListBox::Selection::Multi
                               ? QAbstractItemView::ExtendedSelection
                               : QAbstractItemView::SingleSelection);
    view->afterEvent = [this] { deliver(); };
    view->onKey = [this](const QKeyEvent& event) { return key(event); };
    bindDrag();
    view->installEventFilter(this);
    view->viewport()->installEventFilter(this);
    connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            [this] { noteSelection(); });
    connect(view, &QAbstractItemView::clicked, this, [this] { clicked_ = true; });
    connect(view, &QAbstractItemView::doubleClicked, this, [this] { doubleClicked_ = true; });
    connect(view->verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { reportTop(); });
    refresher.watch(list, this, [this] { refresh(); });
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    const QEvent::Type type = event->type();
    if (object == viewport_ && type == QEvent::MouseButtonPress) {
      pressDelivered_ = false;
      // Rows that cannot be dragged are selected by dragging over them instead.
      view_->setDragEnabled(!list_.dragWord.empty() || list_.dragFiles);
    }
    if (object == viewport_ && type == QEvent::MouseButtonRelease) released_ = true;
    if (object == viewport_ && type == QEvent::Resize) list_.setVisibleRows(view_->wholeRows());
    if (object == view_ && type == QEvent::Show) shown_ = true;
    return false;
  }

 private:
  void bindDrag() {
    view_->setAcceptDrops(true);
    view_->carried = [this] { return carriedBy(list_); };
    view_->accepts = [this](const QMimeData& data) {
      const Text word = wordIn(data);
      return list_.onDrop && list_.enabled() && !word.empty() &&
             (list_.dropWord.empty() || list_.dropWord == word);
    };
    view_->onDropped = [this](const QMimeData& data) {
      if (list_.onDrop) list_.onDrop(wordIn(data));
    };
  }

  void noteSelection() {
    if (refreshing_) return;
    selectionChanged_ = true;
    // For what selects without an event of the user, as a screen reader does.
    QMetaObject::invokeMethod(
        this, [this] { deliver(); }, Qt::QueuedConnection);
  }

  bool key(const QKeyEvent& event) {
    const auto press = keyPress(event);
    if (!press) return false;
    if (list_.onKey && list_.onKey(*press)) return true;
    if (press->key != ui::Key::Enter || !list_.onDoubleClick) return false;
    list_.doubleClick();
    return true;
  }

  void deliver() {
    if (std::exchange(shown_, false)) {
      list_.setVisibleRows(view_->wholeRows());
      showTop();
    }
    // A click that selected nothing new still is a click, once for each press.
    const bool again = std::exchange(clicked_, false) && !pressDelivered_;
    const bool twice = std::exchange(doubleClicked_, false);
    if (std::exchange(selectionChanged_, false) || again) {
      pressDelivered_ = true;
      list_.select(rowNumbers(view_->selectionModel()->selection()), view_->currentIndex().row());
    }
    if (twice) {
      pressDelivered_ = true;
      list_.doubleClick();
    }
    if (std::exchange(released_, false) && list_.onMouseUp) list_.onMouseUp();
  }

  void refresh() {
    refreshing_ = true;
    view_->keepPlace = true;
    model_.refresh();
    const bool moved = showCurrent();
    showSelection();
    view_->keepPlace = false;
    refreshing_ = false;
    if (list_.TopIndex() != top_) {
      showTop();
    } else if (moved) {
      view_->scrollTo(view_->currentIndex());
    }
  }

  // Returns whether code gave the focus to another row.
  bool showCurrent() {
    if (view_->currentIndex().row() == list_.ListIndex()) return false;
    view_->selectionModel()->setCurrentIndex(model_.index(list_.ListIndex()), QItemSelectionModel::NoUpdate);
    return list_.ListIndex() >= 0;
  }

  void showSelection() {
    QItemSelectionModel& selected = *view_->selectionModel();
    const std::vector<int> wanted = list_.selectedIndexes();
    if (wanted != rowNumbers(selected.selection()))
      selected.select(selectionOf(model_, wanted), QItemSelectionModel::ClearAndSelect);
  }

  void showTop() {
    top_ = list_.TopIndex();
    view_->setTopRow(top_);
    reportTop();
  }

  // A view that is not on the screen yet has no say in what is in sight.
  void reportTop() {
    if (refreshing_ || !view_->isVisible()) return;
    top_ = view_->topRow();
    list_.setTopIndex(top_);
  }

  ui::ListBox& list_;
  ListView* view_;
  const QObject* viewport_;  // to be told apart even while the view goes
  ListModel model_;
  int top_ = 0;  // as last shown or reported
  bool refreshing_ = false;
  bool selectionChanged_ = false;
  bool clicked_ = false;
  bool doubleClicked_ = false;
  bool pressDelivered_ = false;
  bool released_ = false;
  bool shown_ = false;
};

// Gives a list the focus when the mouse moves over it.
class HoverFocus final : public QObject {
 public:
  HoverFocus(const ui::CheckBox& option, ListView* list) : QObject(list), option_(option), list_(list) {
    list->viewport()->installEventFilter(this);
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::MouseMove && option_.checked() && !list_->hasFocus() &&
        list_->isActiveWindow())
      list_->setFocus(Qt::MouseFocusReason);
    return false;
  }

 private:
  const ui::CheckBox& option_;
  ListView* list_;
};

}  // namespace

void bindList(Refresher& refresher, ui::ListBox& model, ListView* widget, Rows rows) {
  bindControl(refresher, model, widget);
  new ListBinding(refresher, model, widget, rows);
}

void focusUnderMouse(const ui::CheckBox& option, ListView* list) {
  new HoverFocus(option, list);
}

}  // namespace velmora::qt
