// A switch with its label beside it: Toggle, in switch style. The switch reacts, the label doesn't. What it is set to is
// the binding's; it keeps nothing but what it showed last.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "views/AccessibilityElement.h"
#include "views/Canvas.h"
#include "views/HostingView.h"
#include "views/LayoutPass.h"
#include "views/nodes/StackNode.h"
#include "views/nodes/TextNode.h"

namespace views {

class SwitchNode final : public LeafOf<SwitchNode> {
public:
    explicit SwitchNode(Binding<bool> theValue)
        : value(std::make_unique<Binding<bool>>(std::move(theValue))), isOn(value->get()) {}

    const char* name() const override { return "switch"; }
    bool looksLike(const Node& other) const override { return isOn == same(other).isOn; }
    void takeBehaviour(Node& fresh) override { value = std::move(same(fresh).value); }

    CGSize measure(LayoutPass& /*pass*/, std::int32_t /*index*/, const ProposedSize& /*proposal*/) const override {
        return {38, height};
    }
    void draw(Canvas& canvas, const LayoutItem& item) const override {
        if (!canvas.isAt(Canvas::Stratum::shapes)) return;
        const double opacity = item.control.isEnabled ? 1 : 0.4;
        const CGRect track = canvas.crisp(item.frame);
        canvas.fill(track, track.height() / 2, CornerStyle::circular,
                    isOn ? Color::of(ColorRole::accent, opacity) : Color::of(ColorRole::secondary, 0.3 * opacity));
        CGRect knob = platform::CGRectInset(item.frame, 2, 2);
        knob.size.width = knob.height();
        if (isOn) knob.origin.x = item.frame.maxX() - 2 - knob.width();
        canvas.fill(canvas.crisp(knob), knob.height() / 2, CornerStyle::circular, Color::of(ColorRole::white, opacity));
    }

    bool reacts() const override { return true; }
    void clicked(HostingView& host) const override {
        host.run([set = value->set, next = !isOn] { set(next); });
    }
    std::optional<AccessibilityRole> role() const override { return AccessibilityRole::switchControl; }
    void describe(AccessibilityElement& element) const override { element.isOn = isOn; }

private:
    static constexpr double height = 22;

    std::unique_ptr<Binding<bool>> value;
    bool isOn;
};

inline View Toggle(std::string title, Binding<bool> isOn) {
    View control = View(SwitchNode(std::move(isOn))).accessibilityLabel(title);
    return HStack({}, Text(std::move(title)), std::move(control));
}

}  // namespace views
