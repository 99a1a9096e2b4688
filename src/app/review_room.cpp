#include "app/review_room.h"

namespace velmora::app {

ReviewRoom::ReviewRoom(const Ground& on)
    : stepWait({.table = on.table,
                .desktop = on.services.desktop,
                .journal = on.journal,
                .player = on.player,
                .animation = animation,
                .form1 = on.windows.form1,
                .options = on.windows.form6,
                .state = state}),
      actions(on.table, on.windows.form1, state) {}

}  // namespace velmora::app
