#pragma once

#include <cstdint>

#include "platform/text.h"

namespace velmora::core {

/// Decimal text with a leading blank where the number is not negative: 12 gives " 12", -3 gives "-3".
Text number(std::int64_t value);
/// The same for a fraction, in at most 15 significant digits and without trailing zeros: 0.5 gives " .5".
Text number(double value);
/// Decimal text without the blank.
Text plain(std::int64_t value);
Text plain(double value);

/// Reads a number the forgiving way: blanks are skipped wherever they stand, reading stops at the first
/// character that cannot continue a number, and a text with no number gives 0.
double value(TextView text);
/// `value` rounded to a whole number and held within the range of int.
int intValue(TextView text);

/// Nearest whole number; a half goes to the even neighbour.
double roundHalfEven(double value);
/// The same at `places` decimal places.
double roundHalfEven(double value, int places);

/// A count of bytes as " 1.5 KB", " 3 MB" or " 2.25 GB", rounded to two places.
Text sizeText(double bytes);

}  // namespace velmora::core
