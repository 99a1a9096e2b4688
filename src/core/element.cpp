#include "core/element.h"

namespace velmora::core {

const Text Element::marks[2];
const Text Element::empty;

}  // namespace velmora::core
