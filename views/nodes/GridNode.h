// Views in rows of so many columns, which share the width evenly: LazyVGrid with flexible columns. A row is as high as
// its highest view. All of its views are made, in sight or not.
#pragma once

#include <utility>
#include <vector>

#include "views/View.h"

namespace views {

// A flexible column.
struct GridItem {
    double spacing = 8;  // to the next column
    friend bool operator==(const GridItem&, const GridItem&) = default;
};

class GridNode final : public NodeOf<GridNode> {
public:
    GridNode(std::vector<GridItem> theColumns, Alignment theAlignment, double theSpacing)
        : columns(std::move(theColumns)), alignment(theAlignment), spacing(theSpacing) {
        if (columns.empty()) columns.emplace_back();
    }

    const char* name() const override { return "grid"; }
    bool looksLike(const Node& other) const override;
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override {
        return remembered(pass, index, proposal);
    }
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override;

protected:
    CGSize measureAnew(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;

private:
    double gaps() const;
    double columnWidth(double width) const;
    // Calls visit(child, cell) for each view, with its cell's place from the grid's top left; answers the height of all rows.
    template <typename Visit>
    double forEachCell(LayoutPass& pass, std::int32_t index, double width, Visit visit) const;

    std::vector<GridItem> columns;
    Alignment alignment;  // of each view in its cell
    double spacing;       // between rows
};

struct LazyVGridArguments {
    std::vector<GridItem> columns;
    Alignment alignment = Alignment::center;
    double spacing = 8;
};

inline View LazyVGrid(LazyVGridArguments arguments, std::vector<View> cells) {
    View view{GridNode(std::move(arguments.columns), arguments.alignment, arguments.spacing)};
    view.children = std::move(cells);
    return view;
}

}  // namespace views
