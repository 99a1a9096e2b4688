#include "ui/closing_step.h"

#include <cstdint>

#include "core/number_text.h"
#include "platform/file_error.h"
#include "platform/trace.h"

namespace velmora::ui {

ClosingStep::ClosingStep(core::TrackTable& table, ui::Windows& windows, ui::Progress& progress,
                         platform::Desktop& desktop)
    : table_(table), windows_(windows), progress_(progress), desktop_(desktop) {}

void ClosingStep::moze() {
  ui::Form1& form1 = windows_.form1;
  if (!form1.ostali.chosen()) {
    form1.countLabel.setText(core::number(std::int64_t{table_.brojfajlova()}) + u"  new songs ");
    form1.sizeLabel.setText(core::sizeText(table_.velicinasfiles));
  }
  progress_.close();
  form1.setEnabled(true);
  desktop_.pumpEvents();
  table_.puniliste = 0;
  if (form1.visible()) form1.bringToFront();
}

void ClosingStep::run(const std::function<void()>& command) {
  try {
    command();
  } catch (const platform::FileError& error) {
    platform::caughtSilently(error);
    // The command ends with the state as far as it got.
  } catch (...) {
    moze();
    throw;
  }
  moze();
}

}  // namespace velmora::ui
