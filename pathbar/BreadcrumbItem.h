// One crumb of a path: what it is called and which folder it stands for. A plain value, made from the text of a path
// alone; see BreadcrumbModel.h.
#pragma once

#include <string>

namespace brindle {

struct BreadcrumbItem {
    std::string id;     // unique within one list
    std::string title;  // what is shown and measured
    std::string path;   // absolute; empty when the window shows no folder
    bool isLast = false;

    friend bool operator==(const BreadcrumbItem&, const BreadcrumbItem&) = default;
};

}  // namespace brindle
