#pragma once

#include <QSplitter>
#include <QWidget>

class QHBoxLayout;
class QVBoxLayout;

namespace velmora::qt {

/// A column of a main window: a bar with its heading, the content from edge to edge, and a bar with what can
/// be done. The bars of neighbouring panes stand at the same height.
class Pane : public QWidget {
  Q_OBJECT

 public:
  Pane();
  QHBoxLayout* header() { return header_; }
  QHBoxLayout* footer() { return footer_; }
  void setContent(QWidget* content);

 private:
  QHBoxLayout* header_;
  QHBoxLayout* footer_;
  QVBoxLayout* column_;
};

/// Panes side by side with a hairline between them that can be dragged.
class PaneSplitter : public QSplitter {
  Q_OBJECT

 public:
  PaneSplitter();

 protected:
  QSplitterHandle* createHandle() override;
};

}  // namespace velmora::qt
