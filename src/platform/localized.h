#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

namespace tarnel {

// The one lookup that every user-facing text of the core passes through, keyed by its English
// text. The core carries no table: the key itself is the English text. The shell translates.
inline std::string localized(std::string_view key) {
    return std::string(key);
}

// A localized format key ("Retrying (%lld/%lld)...") with its placeholders (%lld, %d, %@)
// filled in order by `args`.
inline std::string localizedFormat(std::string_view key, std::initializer_list<std::string> args) {
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
