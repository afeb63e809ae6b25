// Where the parts of one bar are, read from what its host shows, in view space.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "views/AccessibilityElement.h"

namespace kit {

struct BarParts {
    struct Crumb {
        std::string id;
        std::string title;
        platform::CGRect frame;
        std::optional<platform::CGRect> chevron;  // the last crumb of a path has none

        friend bool operator==(const Crumb&, const Crumb&) = default;
    };

    std::vector<Crumb> crumbs;  // from left to right; none while the field is open
    std::optional<platform::CGRect> row;
    std::optional<platform::CGRect> ellipsis;
    std::optional<platform::CGRect> copy;
    std::optional<platform::CGRect> brand;
    std::optional<platform::CGRect> plate;
    std::optional<platform::CGRect> field;  // while the bar is edited

    static BarParts of(const std::vector<views::AccessibilityElement>& elements) {
        struct Single {
            const char* identifier;
            std::optional<platform::CGRect> BarParts::*part;
        };
        static constexpr Single singles[] = {{"row", &BarParts::row},     {"ellipsis", &BarParts::ellipsis},
                                             {"copy", &BarParts::copy},   {"brand", &BarParts::brand},
                                             {"plate", &BarParts::plate}, {"field", &BarParts::field}};
        BarParts parts;
        for (const auto& element : elements) {
            for (const Single& single : singles)
                if (element.identifier == single.identifier) parts.*single.part = element.frame;
            if (element.identifier == "crumb")
                parts.crumbs.push_back({element.key, element.label, element.frame, std::nullopt});
            if (element.identifier == "chevron" && !parts.crumbs.empty()) parts.crumbs.back().chevron = element.frame;
        }
        return parts;
    }
};

}  // namespace kit
