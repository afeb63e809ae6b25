// Takes all it is offered, tells its builder how much that is, and shows the answer from the top left. The builder is
// called during layout, and again only when the size or the declaration has changed.
#pragma once

#include <functional>
#include <utility>

#include "views/View.h"

namespace views {

class GeometryReaderNode final : public NodeOf<GeometryReaderNode> {
public:
    using Build = std::function<View(CGSize)>;
    explicit GeometryReaderNode(Build theBuild) : build(std::move(theBuild)) {}

    const char* name() const override { return "geometryReader"; }
    bool update(Reconciler& reconciler, View& fresh, View* previous) override;
    void takeBehaviour(Node& fresh) override { build = std::move(same(fresh).build); }

    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override;

private:
    Build build;
    CGSize size;  // that the view's child was built for
};

inline View GeometryReader(std::function<View(CGSize)> content) {
    return View(GeometryReaderNode(std::move(content)));
}

}  // namespace views
