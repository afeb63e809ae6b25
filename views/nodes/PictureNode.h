// A picture: as large as it is, or stretched to the size it is offered. A drawn one is the strokes it is made of, a template's in the colour of what is around it.
// It counts as a shape in paint order, so text is always in front of it.
#pragma once

#include <memory>
#include <utility>

#include "platform/Images.h"
#include "views/View.h"

namespace views {

class PictureNode final : public LeafOf<PictureNode> {
public:
    struct Content {
        platform::NSImage image;
        bool isResizable = false;
        platform::ImageInterpolation interpolation = platform::ImageInterpolation::low;
        friend bool operator==(const Content&, const Content&) = default;
    };
    explicit PictureNode(Content theContent) : content(std::make_unique<Content>(std::move(theContent))) {}

    const char* name() const override { return "picture"; }
    bool looksLike(const Node& other) const override { return *content == *same(other).content; }
    void append(LayoutPass& pass, View& view, const Opening& opening) override;
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void draw(Canvas& canvas, const LayoutItem& item) const override;

    std::optional<AccessibilityRole> role() const override { return AccessibilityRole::image; }
    const std::string* shownSymbol() const override { return &content->image.name(); }
    const platform::NSImage* shownPicture() const override { return &content->image; }

private:
    std::unique_ptr<Content> content;
};

// What Image() answers for a picture: it has words of its own and becomes a view with the first of a view's.
class Picture {
public:
    explicit Picture(platform::NSImage image) { content.image = std::move(image); }

    Picture&& resizable() && {
        content.isResizable = true;
        return std::move(*this);
    }
    Picture&& interpolation(platform::ImageInterpolation value) && {
        content.interpolation = value;
        return std::move(*this);
    }
    operator View() && { return View(PictureNode(std::move(content))); }  // NOLINT(google-explicit-constructor)
    View frame(const FrameArguments& arguments) && { return View(std::move(*this)).frame(arguments); }
    View accessibilityLabel(std::string label) && {
        return View(std::move(*this)).accessibilityLabel(std::move(label));
    }

private:
    PictureNode::Content content;
};

inline Picture Image(platform::NSImage image) {
    return Picture(std::move(image));
}

}  // namespace views
