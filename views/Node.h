// What a view of one kind is. Each kind is a type of its own in nodes/, which says how such a view is laid out, drawn, compared with the one before it, described and pressed;
// nobody else asks for its kind. Defaults are those of a view that only adds something to the one child it has.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <typeinfo>
#include <utility>
#include <vector>

#include "platform/Events.h"
#include "views/AccessibilityRole.h"
#include "views/LayoutRule.h"

namespace platform {
struct MenuItem;
class NSImage;
}  // namespace platform

namespace views {

class HostingView;
class NSView;
class Reconciler;
class View;
struct AccessibilityElement;
struct Opening;
struct Popover;
struct Siblings;
struct Surroundings;

class Node : public LayoutRule {
public:
    virtual void moveTo(void* storage) noexcept = 0;

    // Comparing and carrying over. The other node is of the same type. What happens on a click is no difference to look at.
    virtual bool looksLike(const Node& /*other*/) const { return true; }
    // Keeps what the place of the view has kept, and goes on with its children. Answers whether those look alike; `previous` is null where there was nothing.
    virtual bool update(Reconciler& reconciler, View& fresh, View* previous);
    // Acts as the fresh one from now on. A closure that is replaced may be what is running: see HostingView.
    virtual void takeBehaviour(Node& /*fresh*/) {}

    // Layout. Makes its items; the default makes one for itself and has the children's inside.
    virtual void append(LayoutPass& pass, View& view, const Opening& opening);
    // Of a view among others in a stack that counts for as many as it has children: makes their items and answers true.
    virtual bool appendAmong(LayoutPass& /*pass*/, View& /*view*/, Siblings& /*siblings*/,
                             const Surroundings& /*around*/) {
        return false;
    }
    CGSize measure(LayoutPass& pass, std::int32_t index, const ProposedSize& proposal) const override;
    void place(LayoutPass& pass, std::int32_t index, const CGRect& frame) const override;

    // Input. What reacts takes the clicks on its whole frame; one that is disabled takes them and does nothing.
    virtual bool reacts() const { return false; }
    // The default waits for the release on the same view.
    virtual void mouseDown(HostingView& host, const LayoutItem& item, const platform::NSEvent& event) const;
    virtual void clicked(HostingView& /*host*/) const {}
    // Moves what it shows with the wheel; false when there is nothing to move that way.
    virtual bool scrolls() const { return false; }
    virtual bool scrolled(const LayoutItem& /*item*/, double /*deltaY*/) const { return false; }
    virtual const std::function<View()>* contextMenu() const { return nullptr; }
    virtual const std::string* help() const { return nullptr; }
    virtual const Popover* popover() const { return nullptr; }
    virtual NSView* wrappedView() const { return nullptr; }

    // Description, for assistive tools, scripts and tests. Without a role it is no element of its own.
    virtual std::optional<AccessibilityRole> role() const { return std::nullopt; }
    virtual const std::string* shownText() const { return nullptr; }
    virtual const std::string* shownSymbol() const { return nullptr; }
    virtual const platform::NSImage* shownPicture() const { return nullptr; }
    // Adds to what the views around have said about the element inside.
    virtual void describe(AccessibilityElement& /*element*/) const {}
    // What a menu shows of it; the default are its children. Through addMenuItemsOf() alone, which knows what is disabled.
    virtual void addMenuItems(const View& view, std::vector<platform::MenuItem>& items) const;
};

// The base of every kind of node.
template <typename Derived>
class NodeOf : public Node {
public:
    void moveTo(void* storage) noexcept final { ::new (storage) Derived(std::move(static_cast<Derived&>(*this))); }

protected:
    static const Derived& same(const Node& other) { return static_cast<const Derived&>(other); }
    static Derived& same(Node& other) { return static_cast<Derived&>(other); }
};

// The base of those that have nothing inside.
template <typename Derived>
class LeafOf : public NodeOf<Derived> {
public:
    void place(LayoutPass& /*pass*/, std::int32_t /*index*/, const CGRect& /*frame*/) const final {}
};

}  // namespace views
