#include <utility>

#include "app/house.h"
#include "app/wiring.h"

namespace velmora::app {

namespace {

/// OK stores and closes; Cancel, and closing the window by itself, put the stored values back.
template <typename OptionWindow>
void wireAnswers(OptionWindow& window, const std::function<void()>& save,
                 const std::function<void()>& putBack) {
  window.ok.onClick = [&window, save] {
    save();
    window.hide();
  };
  const auto cancel = [&window, putBack] {
    putBack();
    window.hide();
  };
  window.cancel.onClick = cancel;
  window.onCloseRequest = cancel;
}

}  // namespace

void wireOptions(House& house) {
  ui::Windows& windows = house.windows;
  ui::OptionStore& options = house.options;
  wireAnswers(
      windows.form5, [&] { options.saveForm5(); }, [&] { options.loadForm5(); });
  wireAnswers(
      windows.form6, [&] { options.saveForm6(); }, [&] { options.loadForm6(); });
  wireAnswers(
      windows.form7, [&] { options.saveForm7(); }, [&] { options.loadForm7(); });
  wireAnswers(
      windows.dialog2, [&] { options.saveDialog2(); }, [&] { options.loadDialog2(); });

  windows.form5.clearBaseList.onClick = [&] { house.data.remove(u"bazaniz.txt"); };
  for (ui::OptionButton* rule :
       {&windows.form7.similarFilename, &windows.form7.completeTheSame, &windows.form7.differentFilename})
    rule->onClick = [&] { options.ruleOfForm7Chosen(); };
}

}  // namespace velmora::app
