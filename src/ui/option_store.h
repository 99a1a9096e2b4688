#pragma once

#include "core/settings.h"
#include "ui/windows.h"

namespace velmora::ui {

/// Carries the options between Settings.ini and the windows whose controls are their live store. Each load
/// puts the design state first, so that a key that is missing or empty leaves its control there; the
/// constructor puts all controls in their design state.
class OptionStore {
 public:
  OptionStore(core::Settings& settings, Windows& windows);

  void loadForm5();
  void saveForm5();
  void loadForm6();
  void saveForm6();
  void loadForm7();
  void saveForm7();
  void loadDialog2();
  void saveDialog2();

  /// Puts "Same filesize" in step with the option that was chosen: "Different filename" ticks and disables
  /// it, the other two enable it and bring its stored state back.
  void ruleOfForm7Chosen();

 private:
  core::Settings& settings_;
  Windows& windows_;
};

}  // namespace velmora::ui
