#include "qt/views.h"

#include <QWidget>

#include "qt/bind.h"
#include "qt/dialogs.h"
#include "qt/form1_view.h"
#include "qt/form2_view.h"
#include "qt/form3_view.h"

namespace velmora::qt {

Views::Views(ui::Windows& windows, const ViewContext& context) {
  const auto add = [this](QWidget* window) { windows_.emplace_back(window); };
  add(new Form1View(context, windows.form1, windows.form3));
  auto* base = new Form3View(context, windows);
  add(base);
  add(new Form2View(context, windows.form2, windows.form3, base));
  add(makeForm5(context, windows.form5));
  add(makeForm6(context, windows.form6));
  add(makeForm7(context, windows.form7));
  add(makeForm8(context, windows.form8));
  add(makeDialog1(context, windows.dialog1));
  add(makeDialog2(context, windows.dialog2));
  add(makeFrmTip(context, windows.frmTip));
  add(makeFrmAbout(context, windows.frmAbout));
  bindTimer(context.refresher, windows.form1.player.Timer4, windows_.front().get());
}

Views::~Views() = default;

}  // namespace velmora::qt
