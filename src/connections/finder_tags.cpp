#include "connections/finder_tags.h"

#include <algorithm>
#include <vector>

#include "connections/list_text.h"
#include "platform/posix/extended_attributes.h"

namespace tarnel {

namespace {

// Whether `text` is well-formed UTF-8 without control characters: what a tag list can hold.
bool isTagText(std::string_view text) {
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x20 || lead == 0x7F)
            return false;
        std::size_t length = 0;  // stays 0 for a byte that cannot start a character
        if (lead < 0x80)
            length = 1;
        else if (lead >= 0xC2 && lead <= 0xDF)
            length = 2;
        else if (lead >= 0xE0 && lead <= 0xEF)
            length = 3;
        else if (lead >= 0xF0 && lead <= 0xF4)
            length = 4;
        if (length == 0 || i + length > text.size())
            return false;
        for (std::size_t k = 1; k < length; ++k)
            if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80)
                return false;
        i += length;
    }
    return true;
}

// The tags a file carries; none when it has no attribute or one that is no tag list.
std::vector<std::string> readTags(const std::filesystem::path& file) {
    const std::optional<std::string> value = readExtendedAttribute(file, tagsAttribute);
    if (!value || !isTagText(*value))
        return {};
    std::vector<std::string> tags;
    for (std::string& tag : splitOnCommas(*value))
        if (!tag.empty())
            tags.push_back(std::move(tag));
    return tags;
}

}  // namespace

std::string colorTagName(FinderTagColor color) {
    switch (color) {
        case FinderTagColor::gray:
            return "Gray";
        case FinderTagColor::green:
            return "Green";
        case FinderTagColor::purple:
            return "Purple";
        case FinderTagColor::blue:
            return "Blue";
        case FinderTagColor::yellow:
            return "Yellow";
        case FinderTagColor::red:
            return "Red";
        case FinderTagColor::orange:
            return "Orange";
    }
    return {};
}

void applyFinderTags(const std::filesystem::path& to, std::optional<FinderTagColor> color,
                     const std::optional<std::string>& name) {
    if (color)
        addFinderTag(colorTagName(*color), to);
    if (name && !name->empty())
        addFinderTag(*name, to);
}

void addFinderTag(const std::string& tag, const std::filesystem::path& to) {
    std::vector<std::string> tags = readTags(to);
    if (std::find(tags.begin(), tags.end(), tag) != tags.end())
        return;
    tags.push_back(tag);
    std::string value;
    for (const std::string& t : tags)
        value += (value.empty() ? "" : ",") + t;
    writeExtendedAttribute(to, tagsAttribute, value);
}

}  // namespace tarnel
