#include <QScrollArea>

#include "qt/bind.h"
#include "qt/form3_view.h"
#include "qt/grid.h"
#include "qt/icons.h"

namespace velmora::qt {

namespace {

constexpr int pictureSize = 20 * unit;
constexpr int charactersPerLine = 96;

}  // namespace

QWidget* makeWelcome(Refresher& refresher, ui::Form3& form3) {
  auto* page = new QWidget;
  QVBoxLayout* layout = column(page, 3 * unit);
  layout->setContentsMargins(edge, gap, edge, gap);
  layout->setAlignment(Qt::AlignCenter);

  auto* picture = new QLabel;
  picture->setPixmap(programIcon().pixmap(QSize(pictureSize, pictureSize), page->devicePixelRatioF()));
  layout->addWidget(picture, 0, Qt::AlignHCenter);
  layout->addWidget(scaled(heading("Welcome to Velmora"), 1.5), 0, Qt::AlignHCenter);
  auto* text = new QLabel(
      "Choose the folder that holds your collection, or an empty one where it shall grow. You can also begin "
      "with new music right away and choose the folder later.");
  text->setWordWrap(true);
  text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  text->setFixedWidth(text->fontMetrics().averageCharWidth() * charactersPerLine);
  text->setFixedHeight(text->heightForWidth(text->width()));  // a layout that centres asks for one line
  layout->addWidget(text, 0, Qt::AlignHCenter);

  auto* choose = described(button("&Select main folder for Your Music Base", "folder"),
                           "Choose main folder for Your Music Base",
                           "The folder with your collection: Genre, Artist, Album-Year, file");
  auto* process = described(button("Add new m&usic", "processing"), "Add new music",
                            "Show Processing Window: add new music, look it over and repair names and tags");
  bindButton(refresher, form3.selectMainFolder, choose);
  bindButton(refresher, form3.showProcessingWindow, process);
  QHBoxLayout* steps = row(nullptr, gap);
  steps->addStretch();
  steps->addWidget(choose);
  steps->addWidget(process);
  steps->addStretch();
  layout->addLayout(steps);

  auto* scroll = new QScrollArea;  // the window may be low when it shares the screen
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setWidget(page);
  scroll->setFocusProxy(choose);
  return scroll;
}

}  // namespace velmora::qt
