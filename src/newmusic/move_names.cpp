#include "newmusic/move_names.h"

#include "base/base_tree.h"
#include "core/text.h"
#include "names/grammar.h"

namespace velmora::newmusic {

namespace {

constexpr TextView everyAutorsFolder = u" Every Autors";
constexpr TextView withoutGenreeFolder = u" Without Genree";
constexpr TextView withoutAutorFolder = u" Without Autor";
constexpr TextView everySongsFolder = u"Every Songs";

/// A folder of such a name would be another one than a new one below its parent.
bool leadsElsewhere(TextView name) {
  return name == u"." || name == u"..";
}

}  // namespace

Text pathLevel(TextView name) {
  Text clean(name);
  for (char16_t& character : clean)
    if (character < u' ') character = u' ';
  const TextView trimmed = core::trimRight(clean);
  return trimmed.empty() || leadsElsewhere(trimmed) ? Text() : base::AppendPath(trimmed);
}

Text genreFolder(const GenreRow& genre) {
  if (genre.index == 0) return Text(everyAutorsFolder);
  if (genre.index == 1) return Text(withoutGenreeFolder);
  return names::OcistiIme(genre.text);
}

Text artistFolder(TextView artist) {
  const TextView trimmed = core::trim(artist);
  return Text(trimmed.empty() || leadsElsewhere(trimmed) ? withoutAutorFolder : trimmed);
}

Text albumFolder(int index, TextView row) {
  if (index == 0) return Text(everySongsFolder);
  return index == 1 ? Text() : names::OcistiIme(row);
}

Text albumFolderOfFolder(int index, TextView row) {
  return index == 0 ? Text(everySongsFolder) : folderOfRow(row);
}

}  // namespace velmora::newmusic
