#pragma once

#include <vector>

#include "ui/controls.h"

namespace velmora::tags {

/// What a genre box proposes: an empty first row with item data 255, then every genre that has a name, each
/// with its code as item data.
std::vector<ui::ComboRow> genreRows();

}  // namespace velmora::tags
