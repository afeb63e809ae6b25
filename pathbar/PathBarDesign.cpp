#include "pathbar/PathBarDesign.h"

namespace brindle {

namespace {

struct Texts {
    PathBarDesign design;
    std::string_view rawValue;
    std::string_view title;
    std::string_view description;
};

// In the order of the enumeration.
constexpr std::array<Texts, 5> table{
    {{PathBarDesign::standard, "standard", "Accent Outline", "Crisp blue outline"},
     {PathBarDesign::finderSimple, "finderSimple", "Default", "Native Finder control style"},
     {PathBarDesign::searchField, "searchField", "Rounded", "Smooth capsule shape"},
     {PathBarDesign::minimalLine, "minimalLine", "Minimal Line", "Bottom focus line"},
     {PathBarDesign::graphite, "graphite", "Graphite", "Strong neutral outline"}}};

const Texts& textsOf(PathBarDesign design) {
    return table[static_cast<std::size_t>(design)];
}

}  // namespace

std::string_view rawValue(PathBarDesign design) {
    return textsOf(design).rawValue;
}

std::optional<PathBarDesign> pathBarDesign(std::string_view rawValue) {
    for (const Texts& texts : table)
        if (texts.rawValue == rawValue) return texts.design;
    return std::nullopt;
}

std::string_view title(PathBarDesign design) {
    return textsOf(design).title;
}

std::string_view description(PathBarDesign design) {
    return textsOf(design).description;
}

}  // namespace brindle
