#pragma once

#include <QBoxLayout>

#include "qt/bind_window.h"
#include "ui/windows.h"

namespace velmora::qt {

/// The small windows: layout and bindings, nothing else. Each deletes itself with nothing but the program;
/// the caller owns what is returned.
DialogWindow* makeForm5(const ViewContext& context, ui::Form5& form5);
DialogWindow* makeForm6(const ViewContext& context, ui::Form6& form6);
DialogWindow* makeForm7(const ViewContext& context, ui::Form7& form7);
DialogWindow* makeForm8(const ViewContext& context, ui::Form8& form8);
DialogWindow* makeDialog1(const ViewContext& context, ui::Dialog1& dialog1);
DialogWindow* makeDialog2(const ViewContext& context, ui::Dialog2& dialog2);
DialogWindow* makeFrmTip(const ViewContext& context, ui::FrmTip& frmTip);
DialogWindow* makeFrmAbout(const ViewContext& context, ui::FrmAbout& frmAbout);

/// The column that a dialog is laid out in, with the margins that all dialogs share.
QVBoxLayout* dialogColumn(DialogWindow* dialog);
/// "OK" and "Cancel" at the right edge of the last row, with `left` at the left.
void addOkCancel(Refresher& refresher, QVBoxLayout* layout, ui::Button& ok, ui::Button& cancel,
                 QWidget* left = nullptr);

}  // namespace velmora::qt
