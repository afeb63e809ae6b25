#include "views/Reconciler.h"

#include <typeinfo>
#include <utility>

namespace views {

namespace {

// What is drawn and measured; what happens on a click is no difference to look at.
struct LooksAlike {
    const ViewContent& other;

    template <typename T>
    bool operator()(const T& /*behaviour*/) const {
        return std::holds_alternative<T>(other);
    }
    bool operator()(const TextContent& a) const {
        return with(a, [](auto& x, auto& y) { return x.text == y.text; });
    }
    bool operator()(const ImageContent& a) const {
        return with(a, [](auto& x, auto& y) { return x == y; });
    }
    bool operator()(const LengthContent& a) const {
        return with(a, [](auto& x, auto& y) { return x.value == y.value; });
    }
    bool operator()(const StackContent& a) const {
        return with(a, [](auto& x, auto& y) { return x.alignment == y.alignment && x.spacing == y.spacing; });
    }
    bool operator()(const ShapeContent& a) const {
        return with(a, [](auto& x, auto& y) { return x == y; });
    }

    template <typename T, typename Compare>
    bool with(const T& a, Compare compare) const {
        const T* b = std::get_if<T>(&other);
        return b != nullptr && compare(a, *b);
    }
};

bool isSamePlace(const View& fresh, const View& previous) {
    return fresh.kind == previous.kind && fresh.key == previous.key;
}

// A closure that is replaced may be what is running: see HostingView.
template <typename Content>
void replace(View& kept, View& fresh) {
    kept.content = std::move(fresh.as<Content>());
}

}  // namespace

Reconciler::Reconciler(std::shared_ptr<HostLink> theHost, std::vector<std::weak_ptr<TaskSlot>>& theTasks)
    : host(std::move(theHost)), tasks(theTasks) {}

bool Reconciler::update(View& fresh, View* previous) {
    if (previous != nullptr && !isSamePlace(fresh, *previous)) previous = nullptr;
    bool same = previous != nullptr && fresh.modifiers == previous->modifiers &&
                std::visit(LooksAlike{previous->content}, fresh.content);
    if (fresh.kind == ViewKind::composite) return updateComposite(fresh, previous) && same;
    if (fresh.kind == ViewKind::geometryReader) return updateReader(fresh, previous) && same;
    if (fresh.kind == ViewKind::representable) return updateRepresentable(fresh, previous) && same;
    if (fresh.kind == ViewKind::task) updateTask(fresh, previous);
    return updateChildren(fresh, previous) && same;
}

bool Reconciler::updateComposite(View& fresh, View* previous) {
    auto& content = fresh.as<CompositeContent>();
    if (previous != nullptr && previous->as<CompositeContent>().view->type() != content.view->type())
        previous = nullptr;
    if (previous != nullptr)
        content.instance = std::move(previous->as<CompositeContent>().instance);
    else
        content.instance = std::make_shared<Instance>();

    Context context(host, *content.instance);
    content.view->connect(context);
    fresh.children.clear();
    host->isEvaluating = true;
    fresh.children.push_back(content.view->body());
    host->isEvaluating = false;
    return update(fresh.children.front(), previous == nullptr ? nullptr : &previous->children.front());
}

// With the size it had, so that a difference inside is found before anything is laid out. A new reader waits for its
// size.
bool Reconciler::updateReader(View& fresh, View* previous) {
    if (previous == nullptr || previous->children.empty()) return false;
    auto& content = fresh.as<ReaderContent>();
    content.size = previous->as<ReaderContent>().size;
    host->isEvaluating = true;
    fresh.children.push_back(content.build(content.size));
    host->isEvaluating = false;
    return update(fresh.children.front(), &previous->children.front());
}

void Reconciler::expand(View& reader, CGSize size) {
    auto& content = reader.as<ReaderContent>();
    if (!reader.children.empty() && content.size == size) return;
    content.size = size;
    std::vector<View> before = std::exchange(reader.children, {});
    host->isEvaluating = true;
    reader.children.push_back(content.build(size));
    host->isEvaluating = false;
    update(reader.children.front(), before.empty() ? nullptr : &before.front());
}

bool Reconciler::updateRepresentable(View& fresh, View* previous) {
    auto& content = fresh.as<RepresentableContent>();
    const auto* before = previous == nullptr ? nullptr : &previous->as<RepresentableContent>();
    const bool isKept = before != nullptr && before->made && before->view->type() == content.view->type();
    if (isKept)
        content.made = std::move(previous->as<RepresentableContent>().made);
    else
        content.made = std::make_shared<RepresentedView>(content.view->make());
    content.view->update(*content.made);
    return isKept;
}

void Reconciler::updateTask(View& fresh, View* previous) {
    auto& content = fresh.as<TaskContent>();
    if (previous != nullptr) {
        content.slot = std::move(previous->as<TaskContent>().slot);
    } else {
        content.slot = std::make_shared<TaskSlot>();
        tasks.push_back(content.slot);
    }
    content.slot->start = std::move(content.start);
}

bool Reconciler::updateChildren(View& fresh, View* previous) {
    bool same = previous != nullptr && fresh.children.size() == previous->children.size();
    for (std::size_t index = 0; index < fresh.children.size(); ++index) {
        View& child = fresh.children[index];
        View* match = nullptr;
        if (previous != nullptr && index < previous->children.size() && isSamePlace(child, previous->children[index]))
            match = &previous->children[index];
        if (match == nullptr && previous != nullptr && !child.key.empty()) {
            same = false;
            for (View& candidate : previous->children)
                if (isSamePlace(child, candidate)) match = &candidate;
        }
        same = update(child, match) && same;
    }
    return same;
}

void Reconciler::takeBehaviour(View& kept, View& fresh) {
    switch (kept.kind) {
    case ViewKind::button:
    case ViewKind::tapGesture:
        replace<ActionContent>(kept, fresh);
        break;
    case ViewKind::menu:
    case ViewKind::contextMenu:
        replace<MenuContent>(kept, fresh);
        break;
    case ViewKind::geometryReader:
        replace<ReaderContent>(kept, fresh);
        break;
    case ViewKind::popover:
        replace<PopoverContent>(kept, fresh);
        break;
    case ViewKind::task:
        replace<TaskContent>(kept, fresh);
        break;
    case ViewKind::composite:
        replace<CompositeContent>(kept, fresh);
        break;
    case ViewKind::representable:
        replace<RepresentableContent>(kept, fresh);
        break;
    default:
        break;
    }
    for (std::size_t index = 0; index < kept.children.size(); ++index)
        takeBehaviour(kept.children[index], fresh.children[index]);
}

}  // namespace views
