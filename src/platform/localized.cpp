#include "platform/localized.h"

#include <map>

namespace tarnel {
namespace {

TextLookup installedLookup = nullptr;

// The English of the texts keyed by name; every other key is its own English.
std::string_view englishOf(std::string_view key) {
    static const std::map<std::string_view, std::string_view> english = {
        {"dead.rule.warning", "Never used: an earlier rule already takes these files"},
        {"ext.cat.images", "Images"},
        {"ext.cat.video", "Video"},
        {"ext.cat.audio", "Audio"},
        {"ext.cat.documents", "Documents"},
        {"ext.cat.temp", "Temporary files"},
        {"ext.reset.button", "Reset to preset"},
        {"ext.unspecified.label", "Other extensions"},
        {"ext.unspecified.download", "Download"},
        {"ext.unspecified.ignore", "Ignore"},
    };
    const auto found = english.find(key);
    return found == english.end() ? key : found->second;
}

// `text` with every `from` replaced by `to`.
std::string replaced(std::string_view text, std::string_view from, std::string_view to) {
    std::string out;
    std::size_t start = 0;
    for (auto at = text.find(from); at != std::string_view::npos; at = text.find(from, start)) {
        out.append(text, start, at - start).append(to);
        start = at + from.size();
    }
    return out.append(text.substr(start));
}

}  // namespace

void setTextLookup(TextLookup lookup) {
    installedLookup = lookup;
}

std::string localized(std::string_view key) {
    std::string text = installedLookup ? installedLookup(key, -1) : std::string(key);
    return text == key ? std::string(englishOf(key)) : text;
}

std::string localizedCount(std::string_view key, int count) {
    const std::string untranslated = replaced(key, "%n", std::to_string(count));
    if (installedLookup) {
        std::string text = installedLookup(key, count);
        if (text != untranslated) return text;
    }
    return replaced(untranslated, "(s)", count == 1 ? "" : "s");
}

std::string localizedFormat(std::string_view key, std::initializer_list<std::string> args) {
    const std::string format = localized(key);
    std::string out;
    auto arg = args.begin();
    std::size_t i = 0;
    while (i < format.size()) {
        std::size_t taken = 0;
        if (format[i] == '%' && arg != args.end()) {
            for (std::string_view p : {"%lld", "%d", "%@"})
                if (std::string_view(format).substr(i).starts_with(p)) taken = p.size();
        }
        if (taken) {
            out += *arg++;
            i += taken;
        } else {
            out += format[i++];
        }
    }
    return out;
}

}  // namespace tarnel
