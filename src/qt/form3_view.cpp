#include "qt/form3_view.h"

#include <QAction>
#include <QMenuBar>

#include "qt/bind.h"
#include "qt/elided_label.h"
#include "qt/grid.h"
#include "qt/icons.h"

namespace velmora::qt {

namespace {

constexpr QSize designSize(1100, 680);
constexpr int pictureSize = 24 * unit;
constexpr int charactersPerLine = 96;

}  // namespace

Form3View::Form3View(const ViewContext& context, ui::Form3& form3) {
  makeMenus(context.refresher, form3);
  setCentralWidget(makeWelcome(context.refresher, form3));
  setWindowIcon(programIcon());
  bindWindow(context, form3, this, designSize);
}

void Form3View::makeMenus(Refresher& refresher, ui::Form3& form3) {
  const auto add = [&](QMenu* menu, const QString& text, const QString& icon, ui::Button& model) {
    QAction* action = menu->addAction(icon.isEmpty() ? QIcon() : glyph(icon), text);
    bindAction(refresher, model, action);
    return action;
  };
  QMenu* base = menuBar()->addMenu("&Music Base");
  add(base, "&Select main folder for Your Music Base", "music-base", form3.selectMainFolder);
  add(base, "Show &Processing Window", "processing", form3.showProcessingWindow)
      ->setShortcut(QKeySequence("Ctrl+P"));
  base->addSeparator();
  add(base, "E&xit", "exit", form3.exit)->setShortcut(QKeySequence("Ctrl+Q"));

  QMenu* options = menuBar()->addMenu("&Options");
  bindCheckAction(refresher, form3.autoListFocus, options->addAction("&Auto List Focus"));
  bindCheckAction(refresher, form3.showTips, options->addAction("Show &Tips At Startup"));

  QMenu* help = menuBar()->addMenu("&Help");
  add(help, "&About", "about", form3.about);
}

QWidget* Form3View::makeWelcome(Refresher& refresher, ui::Form3& form3) {
  auto* page = new QWidget;
  QVBoxLayout* layout = column(page, section);
  layout->setContentsMargins(section, section, section, section);
  layout->setAlignment(Qt::AlignCenter);

  auto* picture = new QLabel;
  picture->setPixmap(programIcon().pixmap(QSize(pictureSize, pictureSize), devicePixelRatioF()));
  layout->addWidget(picture, 0, Qt::AlignHCenter);

  auto* title = scaled(heading({}), 1.5);
  auto* text = new QLabel;
  text->setWordWrap(true);
  text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  text->setFixedWidth(text->fontMetrics().averageCharWidth() * charactersPerLine);
  layout->addWidget(title, 0, Qt::AlignHCenter);
  layout->addWidget(text, 0, Qt::AlignHCenter);
  auto* root = described(new ElidedLabel, "Music Base folder", "The folder of your Music Base");
  root->setAlignment(Qt::AlignHCenter);
  bindLabel(refresher, form3.rootLabel, root);
  layout->addWidget(root);

  auto* choose = described(button("&Select main folder for Your Music Base", "folder"),
                           "Select main folder for Your Music Base",
                           "The folder with your collection: Genre, Artist, Album-Year, file");
  auto* process = described(button("Show &Processing Window", "processing"), "Show Processing Window",
                            "Add new music, look it over and repair names and tags");
  bindButton(refresher, form3.selectMainFolder, choose);
  bindButton(refresher, form3.showProcessingWindow, process);
  QHBoxLayout* steps = row(nullptr, gap);
  steps->addStretch();
  steps->addWidget(choose);
  steps->addWidget(process);
  steps->addStretch();
  layout->addLayout(steps);

  refresher.watch(form3.rootLabel, page, [&form3, title, text, root, process, choose] {
    const bool chosen = !form3.rootLabel.text().empty();
    title->setText(chosen ? "Your Music Base" : "Welcome to Velmora");
    text->setText(chosen
                      ? "Go on with the new music: add its folders in the Processing Window, look the songs "
                        "over, and put their names and tags right."
                      : "Choose the folder that holds your collection, or an empty one where it shall grow. "
                        "You can also begin with new music right away and choose the folder later.");
    // A layout that centres a label asks for the height of one line.
    text->setFixedHeight(text->heightForWidth(text->width()));
    root->setVisible(chosen);
    (chosen ? process : choose)->setFocus();
  });
  return page;
}

}  // namespace velmora::qt
