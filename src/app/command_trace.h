#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace velmora::app {

struct House;

/// Runs `command`, and leaves two lines in the trace if there is one: "command fixSyntax: rows 4-6,9 of 120"
/// before it, and the time that it took behind it.
void runTraced(House& house, std::string_view name, const std::function<void()>& command);

}  // namespace velmora::app
