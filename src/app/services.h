#pragma once

#include "platform/desktop.h"
#include "platform/dialogs.h"
#include "platform/files.h"
#include "platform/media_player.h"
#include "platform/text.h"
#include "platform/trash.h"

namespace velmora::app {

/// What the program asks of the machine, each with a real and a scripted implementation.
struct Services {
  platform::Files& files;
  platform::Trash& trash;
  platform::Dialogs& dialogs;
  platform::Desktop& desktop;
  platform::MediaPlayer& media;
};

/// Where the program keeps its state, and where its shipped files lie when they are not there.
struct Folders {
  Text program;
  Text shipped;
};

}  // namespace velmora::app
