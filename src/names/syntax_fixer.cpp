#include "names/syntax_fixer.h"

#include "core/text.h"

namespace velmora::names {

namespace {

Capitals chosenCapitals(const ui::CheckBox& on, const ui::OptionButton& everyUpper,
                        const ui::OptionButton& firstOfWord, const ui::OptionButton& onlyFirst) {
  if (!on.checked()) return Capitals::Keep;
  if (everyUpper.chosen()) return Capitals::EveryUpper;
  if (firstOfWord.chosen()) return Capitals::FirstUpperOfWord;
  if (onlyFirst.chosen()) return Capitals::OnlyFirstUpper;
  return Capitals::Keep;
}

}  // namespace

SyntaxFixer::SyntaxFixer(const core::TrackTable& table, const ui::Dialog2& options, ui::Form1& form1)
    : table_(table), options_(options), form1_(form1) {}

Capitals SyntaxFixer::Filautora() const {
  return chosenCapitals(options_.fix2, options_.fixo1, options_.fixo2, options_.fixo3);
}

Capitals SyntaxFixer::Filpesme() const {
  return chosenCapitals(options_.fix3, options_.fixo4, options_.fixo5, options_.fixo6);
}

Text SyntaxFixer::Filter(TextView text, Capitals capitals) const {
  return names::Filter(text, capitals,
                       {.spaceInParentheses = options_.fix13.checked(),
                        .djUpper = options_.fix14.checked(),
                        .featLower = options_.fix15.checked()});
}

Text SyntaxFixer::fixedName(TextView name) const {
  const std::size_t dash = name.find(u'-');
  if (dash == TextView::npos) return Filter(core::trim(name), Filpesme());
  const Text artist = Filter(name.substr(0, dash), Filautora());
  const Text title = Filter(name.substr(dash), Filpesme());
  if (artist.empty() != title.empty()) return artist.empty() ? title : artist;
  return artist + u" - " + title;
}

void SyntaxFixer::fixTextBox() {
  form1_.Text1.setText(fixedName(form1_.Text1.text()));
  if (table_.vrsta != core::Review::ArtistList) return;
  form1_.Text8.setText(Filter(form1_.Text8.text(), Filautora()));
  form1_.Text5.setText(Filter(form1_.Text5.text(), Filpesme()));
}

}  // namespace velmora::names
