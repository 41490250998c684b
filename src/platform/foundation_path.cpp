#include "platform/foundation_path.h"

namespace tarnel {

namespace {

// Runs of "/" folded into one, and one trailing "/" dropped unless the path is the root.
std::string fixSlashes(std::string_view path) {
    std::string out;
    out.reserve(path.size());
    for (char c : path) {
        if (c == '/' && !out.empty() && out.back() == '/')
            continue;
        out.push_back(c);
    }
    if (out.size() > 1 && out.back() == '/')
        out.pop_back();
    return out;
}

// Where the last component of a fixed path starts.
std::size_t lastComponentStart(const std::string& fixed) {
    auto slash = fixed.rfind('/');
    return slash == std::string::npos ? 0 : slash + 1;
}

// Where the extension's "." stands in a fixed path, or npos when it has none.
std::size_t extensionDot(const std::string& fixed) {
    if (fixed.size() <= 1)
        return std::string::npos;
    std::size_t start = lastComponentStart(fixed);
    std::string_view component = std::string_view(fixed).substr(start);
    auto dot = component.rfind('.');
    if (dot == std::string_view::npos || dot == 0 || dot + 1 == component.size()) {
        return std::string::npos;
    }
    return start + dot;
}

}  // namespace

std::string lastPathComponent(std::string_view path) {
    std::string fixed = fixSlashes(path);
    if (fixed.size() <= 1)
        return fixed;
    return fixed.substr(lastComponentStart(fixed));
}

std::string stringByDeletingLastPathComponent(std::string_view path) {
    std::string fixed = fixSlashes(path);
    if (fixed == "/")
        return fixed;
    auto slash = fixed.rfind('/');
    if (slash == std::string::npos)
        return "";
    if (slash == 0)
        return "/";
    return fixed.substr(0, slash);
}

std::string pathExtension(std::string_view path) {
    std::string fixed = fixSlashes(path);
    auto dot = extensionDot(fixed);
    return dot == std::string::npos ? std::string() : fixed.substr(dot + 1);
}

std::string stringByDeletingPathExtension(std::string_view path) {
    std::string fixed = fixSlashes(path);
    auto dot = extensionDot(fixed);
    return dot == std::string::npos ? fixed : fixed.substr(0, dot);
}

std::string stringByAppendingPathComponent(std::string_view path, std::string_view component) {
    if (component.empty())
        return std::string(path);
    std::string joined(path);
    if (!joined.empty())
        joined += '/';
    joined += component;
    return fixSlashes(joined);
}

}  // namespace tarnel
