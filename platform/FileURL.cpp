#include "platform/FileURL.h"

namespace platform {

namespace {

template <typename Visit>
void forEachName(std::string_view path, Visit visit) {
    std::size_t begin = 0;
    while (begin < path.size()) {
        std::size_t end = path.find('/', begin);
        if (end == std::string_view::npos) end = path.size();
        if (end > begin) visit(path.substr(begin, end - begin));
        begin = end + 1;
    }
}

}  // namespace

std::string stringByExpandingTildeInPath(std::string_view path, std::string_view homeDirectory) {
    const std::string_view first = path.substr(0, path.find('/'));
    const bool isHome = !first.empty() && first.front() == '~' &&
                        (first.size() == 1 || first.substr(1) == lastPathComponent(homeDirectory));
    if (!isHome) return std::string(path);
    std::string expanded(homeDirectory);
    expanded += path.substr(first.size());
    return expanded;
}

std::string standardizedPath(std::string_view path, std::string_view currentDirectory) {
    std::string absolute;
    if (path.empty() || path.front() != '/') {
        absolute = currentDirectory;
        absolute += '/';
    }
    absolute += path;

    std::string result;
    forEachName(absolute, [&](std::string_view name) {
        if (name == ".") return;
        if (name == "..") {
            const std::size_t slash = result.rfind('/');
            result.resize(slash == std::string::npos ? 0 : slash);
            return;
        }
        result += '/';
        result += name;
    });
    return result.empty() ? "/" : result;
}

std::vector<std::string> pathComponents(std::string_view path) {
    std::vector<std::string> components{"/"};
    forEachName(path, [&](std::string_view name) { components.emplace_back(name); });
    return components;
}

std::string_view withoutTrailingSlashes(std::string_view path) {
    while (path.size() > 1 && path.back() == '/') path.remove_suffix(1);
    return path;
}

std::string appendingPathComponent(std::string_view path, std::string_view name) {
    std::string whole;
    whole.reserve(path.size() + 1 + name.size());
    whole += path;
    if (whole.empty() || whole.back() != '/') whole += '/';
    return whole += name;
}

std::string_view lastPathComponent(std::string_view path) {
    path = withoutTrailingSlashes(path);
    if (path.size() <= 1) return path;
    const std::size_t slash = path.rfind('/');
    return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

std::string deletingLastPathComponent(std::string_view path) {
    path = withoutTrailingSlashes(path);
    const std::size_t slash = path.rfind('/');
    if (slash == std::string_view::npos) return {};
    return std::string(slash == 0 ? "/" : withoutTrailingSlashes(path.substr(0, slash)));
}

}  // namespace platform
