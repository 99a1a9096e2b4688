#pragma once

#include "newmusic/new_music_rows.h"
#include "platform/text.h"

/// How the rows of the New Music Window name folders in the base.
namespace velmora::newmusic {

/// A level of a path: the name with a separator at its end. A name of which nothing is left that a folder can
/// bear gives nothing, so that what it names falls together with the level above it. Line breaks and their
/// like become blanks.
Text pathLevel(TextView name);

/// Names of the folders; pathLevel makes levels of them. The leading blanks of " Every Autors" and its like
/// sort these folders first.
Text genreFolder(const GenreRow& genre);
Text artistFolder(TextView artist);
/// Of a row of List3 by its index and text; empty for files that go straight to the artist's folder.
Text albumFolder(int index, TextView row);
/// The same for a row of List8.
Text albumFolderOfFolder(int index, TextView row);

}  // namespace velmora::newmusic
