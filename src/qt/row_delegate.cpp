#include "qt/row_delegate.h"

#include <QApplication>
#include <QPainter>

#include "qt/grid.h"
#include "qt/list_model.h"
#include "qt/list_view.h"

namespace velmora::qt {

namespace {

constexpr int margin = edge;
constexpr int air = 5;  // above and below the text
constexpr double nameShare = 0.62;
constexpr int widthForFolder = 360;  // below it the name takes the whole row

void dim(QPalette& palette) {
  const QColor base = palette.color(QPalette::Base);
  const QColor mark = palette.color(QPalette::Highlight);
  const auto mix = [](int a, int b) { return (a + 2 * b) / 3; };
  palette.setColor(QPalette::Highlight, QColor(mix(mark.red(), base.red()), mix(mark.green(), base.green()),
                                               mix(mark.blue(), base.blue())));
  palette.setColor(QPalette::HighlightedText, palette.color(QPalette::Text));
}

// Rows such as "-<< Without Folder >>-", which are no names.
bool standsForGroup(const QString& row) {
  return row.startsWith(u"-<<") || row.startsWith(u"<<");
}

void slant(QPainter* painter) {
  QFont font = painter->font();
  font.setItalic(true);
  painter->setFont(font);
}

}  // namespace

QSize RowDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
  return {100, option.fontMetrics.height() + 2 * air};
}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& given,
                        const QModelIndex& index) const {
  QStyleOptionViewItem option = given;
  initStyleOption(&option, index);
  const QString name = option.text;
  const QString folder = index.data(ListModel::FolderRole).toString();
  option.text.clear();
  const auto* list = qobject_cast<const ListView*>(option.widget);
  const bool selected = option.state & QStyle::State_Selected;
  // Among several lists with something selected, the one that hears the keys stands out.
  const bool dimmed = selected && list && !list->hasFocus();
  if (dimmed) dim(option.palette);
  const QStyle* style = option.widget ? option.widget->style() : QApplication::style();
  style->drawControl(QStyle::CE_ItemViewItem, &option, painter, option.widget);
  if (!selected && (option.state & QStyle::State_MouseOver)) {
    QColor glow = option.palette.color(QPalette::Highlight);
    glow.setAlphaF(0.1F);
    painter->fillRect(option.rect, glow);
  }

  const QRect inner = option.rect.adjusted(margin, 0, -margin, 0);
  const bool withFolder = !folder.isEmpty() && inner.width() >= widthForFolder;
  QRect nameRect = inner;
  if (withFolder) nameRect.setWidth(static_cast<int>(inner.width() * nameShare) - edge);

  const bool enabled = option.state & QStyle::State_Enabled;
  const bool active = option.state & QStyle::State_Active;
  const auto group = !enabled ? QPalette::Disabled : active ? QPalette::Normal : QPalette::Inactive;
  const QColor colour = option.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text);
  painter->save();
  painter->setFont(option.font);
  painter->setPen(colour);
  QColor faint = colour;
  faint.setAlphaF(0.6F);
  const auto draw = [&](const QRect& rect, const QString& text, Qt::TextElideMode elide) {
    painter->drawText(rect, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine,
                      option.fontMetrics.elidedText(text, elide, rect.width()));
  };
  if (name.isEmpty() && list) {
    painter->setPen(faint);
    draw(nameRect, list->emptyRow, Qt::ElideRight);
  } else {
    if (standsForGroup(name)) slant(painter);
    draw(nameRect, name, Qt::ElideMiddle);
  }
  if (withFolder) {
    QRect folderRect = inner;
    folderRect.setLeft(inner.left() + static_cast<int>(inner.width() * nameShare));
    painter->setPen(faint);
    draw(folderRect, folder, Qt::ElideLeft);
  }
  painter->restore();
}

}  // namespace velmora::qt
