#include "tags/genre_rows.h"

#include "tags/genre.h"

namespace velmora::tags {

std::vector<ui::ComboRow> genreRows() {
  constexpr int noGenre = 255;
  std::vector<ui::ComboRow> rows = {{Text(), noGenre}};
  for (int code = 0; code <= noGenre; ++code)
    if (const Text& name = GenreName(code); !name.empty()) rows.push_back({name, code});
  return rows;
}

}  // namespace velmora::tags
