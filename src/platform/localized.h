#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tarnel {

// Where the core's texts are translated: the program sets one at start, before any thread runs.
// Given a key, it answers the key's text in the user's language, or the key itself when it has
// no translation.
using TextLookup = std::string (*)(std::string_view key);
void setTextLookup(TextLookup lookup);

// The one lookup that every user-facing text of the core passes through, keyed by its English
// text, or by a name ("ext.cat.images") for the few texts that have their English here.
std::string localized(std::string_view key);

// A localized format key ("Retrying (%lld/%lld)...") with its placeholders (%lld, %d, %@)
// filled in order by `args`.
std::string localizedFormat(std::string_view key, std::initializer_list<std::string> args);

// Marks an English text for the translation table where the core hands it to `localized` later.
#define LOCALIZED_TEXT(english) english

}  // namespace tarnel
