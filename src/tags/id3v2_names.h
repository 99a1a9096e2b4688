#pragma once

#include "platform/text.h"

namespace velmora::tags {

/// The four-character name that a version 2 frame has from version 3 on. One that has none gets an X in
/// front, since names with an X are free for any use: "ABC" becomes "XABC".
Bytes MapFrameID(BytesView name);

/// The body that a version 2 frame has from version 3 on: a picture tells its format by a media type there.
/// `name` is that of version 2.
Bytes mapFrameBody(BytesView name, BytesView body);

}  // namespace velmora::tags
