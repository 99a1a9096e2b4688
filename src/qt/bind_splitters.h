#pragma once

#include <QSplitter>

#include "qt/refresher.h"
#include "ui/form3.h"

namespace velmora::qt {

/// Keeps the places of the four lists and the panes of `splitter` in step, in twips. Panes keep their shares
/// of the width when the window changes its size.
void bindSplitters(Refresher& refresher, ui::Splitters& model, QSplitter* splitter);
/// Gives the panes of another window the same shares of its own width, and moves both when the user moves
/// one.
void followSplitters(Refresher& refresher, ui::Splitters& model, QSplitter* splitter);

}  // namespace velmora::qt
