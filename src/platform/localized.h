#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tarnel {

// Where the core's texts are translated: the program sets one at start, before any thread runs.
// Given a key, it answers the key's text in the user's language, or the key itself when it has
// no translation. A text with a count (`count` from 0 on; below 0 for a text without one) comes
// back in the form that the language gives that count, with "%n" replaced by it, or as its key
// with "%n" replaced when there is no translation.
using TextLookup = std::string (*)(std::string_view key, int count);
void setTextLookup(TextLookup lookup);

// The one lookup that every user-facing text of the core passes through, keyed by its English
// text, or by a name ("ext.cat.images") for the few texts that have their English here.
std::string localized(std::string_view key);

// A text with a count, keyed by its English with "%n" for the count and "(s)" where English adds
// an "s" to more than one ("%n file(s) found" gives "1 file found", "0 files found"): each
// language has as many forms as its grammar needs (Polish "1 plik", "2 pliki", "5 plików").
std::string localizedCount(std::string_view key, int count);

// A localized format key ("Retrying (%lld/%lld)...") with its placeholders (%lld, %d, %@)
// filled in order by `args`.
std::string localizedFormat(std::string_view key, std::initializer_list<std::string> args);

// Marks an English text for the translation table where the core hands it to `localized` later.
#define LOCALIZED_TEXT(english) english

}  // namespace tarnel
