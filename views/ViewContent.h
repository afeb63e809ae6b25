// What a node holds beside its children and modifiers, by kind of node. Plain data and closures; the builders fill it,
// layout and drawing read it.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <variant>

#include "platform/Geometry.h"
#include "views/Alignment.h"
#include "views/Binding.h"
#include "views/Modifier.h"
#include "views/Task.h"

namespace views {

using platform::CGPoint;
using platform::CGRect;
using platform::CGRectMake;
using platform::CGSize;
using platform::CornerStyle;

class Composite;
class Context;
class Representable;
class View;
struct Instance;
struct RepresentedView;

enum class ViewKind : std::uint8_t {
    empty,
    group,
    hStack,
    vStack,
    zStack,
    geometryReader,
    text,
    image,
    picture,
    shape,
    spacer,
    divider,
    button,
    menu,
    background,
    overlay,
    tapGesture,
    contextMenu,
    popover,
    help,
    accessibilityLabel,
    task,
    composite,
    representable
};

struct TextContent {
    std::string text;
};
// Of a symbol by name, else of a picture.
struct ImageContent {
    std::string systemName;
    platform::NSImage picture;
    bool isResizable = false;
    platform::ImageInterpolation interpolation = platform::ImageInterpolation::low;
    friend bool operator==(const ImageContent&, const ImageContent&) = default;
};
struct LengthContent {
    double value = 0;
};

// Alignment and spacing of stacks; alignment alone of an overlay.
struct StackContent {
    Alignment alignment;
    double spacing = 0;
};

enum class ShapeForm : std::uint8_t { rectangle, rounded, capsule };
enum class ShapeStyle : std::uint8_t { inherited, filled, strokedInside };

struct ShapeContent {
    ShapeForm form = ShapeForm::rectangle;
    ShapeStyle style = ShapeStyle::inherited;
    CornerStyle corners = CornerStyle::circular;
    double radius = 0;
    Color color;
    double lineWidth = 0;
    friend bool operator==(const ShapeContent&, const ShapeContent&) = default;
};

// Of a button and a tap gesture.
struct ActionContent {
    std::function<void()> action;
};
// Of menus, evaluated when they open.
struct MenuContent {
    std::function<View()> entries;
};
// The child is what `build` answered for `size`, once it has been asked.
struct ReaderContent {
    std::function<View(CGSize)> build;
    CGSize size;
};
struct Popover {
    Binding<bool> isPresented;
    Edge arrowEdge = Edge::bottom;
    std::function<View()> content;
};
struct PopoverContent {
    std::unique_ptr<Popover> popover;
};
// A task in its place: running while the place is on screen.
struct TaskSlot {
    std::function<Task()> start;
    Task running;
    bool isRunning = false;

    TaskSlot() = default;
    TaskSlot(const TaskSlot&) = delete;
    TaskSlot& operator=(const TaskSlot&) = delete;
    ~TaskSlot() { running.cancel(); }
};
struct TaskContent {
    std::function<Task()> start;
    std::shared_ptr<TaskSlot> slot;
};
struct CompositeContent {
    std::shared_ptr<Composite> view;
    std::shared_ptr<Instance> instance;
};

// An NSView in its place, once it has been made.
struct RepresentableContent {
    std::shared_ptr<Representable> view;
    std::shared_ptr<RepresentedView> made;
};

using ViewContent =
    std::variant<std::monostate, TextContent, ImageContent, LengthContent, StackContent, ShapeContent, ActionContent,
                 MenuContent, ReaderContent, PopoverContent, TaskContent, CompositeContent, RepresentableContent>;

}  // namespace views
