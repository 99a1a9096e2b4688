#pragma once

#include "platform/text.h"

namespace velmora::core {

/// Tag text is single-byte, in Windows-1252. A character that the code page lacks becomes "?".
Bytes toCodePage(TextView text);
/// The five bytes that the code page leaves unassigned become the control characters of the same code.
Text fromCodePage(BytesView bytes);

}  // namespace velmora::core
