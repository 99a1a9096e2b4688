#pragma once

#include "core/track_table.h"
#include "names/filter.h"
#include "ui/dialog2.h"
#include "ui/form1.h"

namespace velmora::names {

/// The syntax fixer as the user set it up in "FIX OPTIONS".
class SyntaxFixer {
 public:
  SyntaxFixer(const core::TrackTable& table, const ui::Dialog2& options, ui::Form1& form1);

  /// What happens to capitals in artist parts; in title parts.
  Capitals Filautora() const;
  Capitals Filpesme() const;
  Text Filter(TextView text, Capitals capitals) const;

  /// A bare name with both its parts fixed. The first dash of the name divides it, wherever the row has its
  /// dash; a part that comes out empty takes the dash with it.
  Text fixedName(TextView name) const;
  /// "Fix syntax in text box": fixes the name box, and in the Artist List view the two boxes of the parts.
  void fixTextBox();

 private:
  const core::TrackTable& table_;
  const ui::Dialog2& options_;
  ui::Form1& form1_;
};

}  // namespace velmora::names
