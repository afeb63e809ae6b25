// Many rows of one height, of which only those in sight are made: LazyRows. It has the height of all of them.
// Rows keep their state only while they are in sight.
#pragma once

#include <cstddef>
#include <functional>
#include <utility>

#include "views/View.h"

namespace views {

class RowsNode final : public NodeOf<RowsNode> {
public:
    using Build = std::function<View(std::size_t row)>;
    RowsNode(std::size_t theCount, double theHeight, Build theBuild)
        : count(theCount), height(theHeight), build(std::move(theBuild)) {}

    const char* name() const override { return "rows"; }
    // What the rows show isn't known before they are made.
    bool looksLike(const Node& /*other*/) const override { return false; }
    bool update(Reconciler& reconciler, View& fresh, View* previous) override;
    void takeBehaviour(Node& fresh) override { build = std::move(same(fresh).build); }

    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override;

private:
    std::size_t count;
    double height;
    Build build;
};

struct LazyRowsArguments {
    std::size_t count = 0;
    double rowHeight = 0;
};

inline View LazyRows(LazyRowsArguments arguments, std::function<View(std::size_t row)> build) {
    return View(RowsNode(arguments.count, arguments.rowHeight, std::move(build)));
}

}  // namespace views
