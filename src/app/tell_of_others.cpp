#include "app/tell_of_others.h"

#include <cstdint>

#include "app/house.h"
#include "core/number_text.h"

namespace velmora::app {

void tellOfOthers(House& house) {
  const auto kept = house.data.takeNoticeOfOthers();
  if (!kept) return;
  Text text = u"Another instance of this program has saved its list meanwhile. ";
  if (*kept > 0)
    text += u"Its files that are not on this list were kept (" +
            core::plain(static_cast<std::int64_t>(*kept)) + u"): the next start shows them. ";
  text += u"All tags will be read again.";
  house.services.dialogs.message(text, u"Velmora", platform::Buttons::Ok, platform::Icon::Information);
}

}  // namespace velmora::app
