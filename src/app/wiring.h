#pragma once

#include <functional>
#include <string_view>

namespace velmora::ui {
class Window;
}

namespace velmora::app {

struct House;

// One function per window binds its controls to the commands, so that the wiring of a window can be read on a
// page.
void wireForm1(House& house);
/// The player, the batches, Delete and the undo commands of the Processing Window.
void wireRepair(House& house);
/// Check+Fix and the panel that it shares with Find Duplicates.
void wireReviews(House& house);
void wireForm2(House& house);
void wireForm3(House& house);
void wireForm8(House& house);
/// Form5, Form6, Form7 and Dialog2.
void wireOptions(House& house);
/// Dialog1, frmTip and frmAbout.
void wireSmallWindows(House& house);

/// A handler that runs `run` as a command: not while its window is disabled, and not inside another command.
/// `name` is what the trace calls it, a literal.
std::function<void()> command(House& house, ui::Window& window, std::string_view name,
                              std::function<void()> run);
/// A handler that opens `opened` over `parent` and returns when it is closed.
std::function<void()> opens(House& house, ui::Window& parent, std::string_view name, ui::Window& opened);

}  // namespace velmora::app
