#include "desk/applescript/Failure.h"
#include "desk/applescript/FilePath.h"
#include "desk/applescript/FinderTerms.h"

#include <algorithm>
#include <utility>

namespace desk::applescript {

std::optional<Value> FinderTerms::property(const Reference& owner, PropertyTerm term) {
    switch (owner.kind) {
    case Reference::Kind::application:
        return applicationProperty(term);
    case Reference::Kind::window:
        return windowProperty(owner, term);
    case Reference::Kind::item:
    case Reference::Kind::alias:
    case Reference::Kind::posixFile:
        return fileProperty(owner, term);
    default:
        return std::nullopt;
    }
}

std::optional<Value> FinderTerms::applicationProperty(PropertyTerm term) {
    if (term == PropertyTerm::running) {
        const std::optional<ScriptError> refusal = host.refusal();
        return Value::boolean(!refusal || refusal->number != ErrorNumber::applicationNotRunning);
    }
    requireFinder();
    switch (term) {
    case PropertyTerm::name:
        return Value::text("Finder");
    case PropertyTerm::identifier:
        return Value::text("com.apple.finder");
    case PropertyTerm::home:
        return file(Reference::Kind::item, host.homePath(), true);
    case PropertyTerm::desktop:
        return file(Reference::Kind::item, joinedPath(host.homePath(), "Desktop"), true);
    case PropertyTerm::startupDisk:
        return file(Reference::Kind::item, "/", true);
    case PropertyTerm::selection: {
        std::vector<Value> items;
        for (const std::string& path : host.selection()) {
            items.push_back(file(Reference::Kind::item, path));
        }
        return Value::list(std::move(items));
    }
    default:
        return std::nullopt;
    }
}

std::optional<Value> FinderTerms::windowProperty(const Reference& owner, PropertyTerm term) {
    requireFinder();
    ScriptWindow window = requiredWindow(owner);
    switch (term) {
    case PropertyTerm::identifier:
        return Value::number(owner.windowIdentifier);
    case PropertyTerm::name:
    case PropertyTerm::displayedName:
        return Value::text(std::move(window.name));
    case PropertyTerm::target:
        return window.path ? file(Reference::Kind::item, *window.path, true)
                           : Value::reference({Reference::Kind::virtualTarget, "", false, owner.windowIdentifier});
    case PropertyTerm::index: {
        const std::vector<std::int64_t> order = host.windowIdentifiers();
        return Value::number(std::find(order.begin(), order.end(), owner.windowIdentifier) - order.begin() + 1);
    }
    case PropertyTerm::bounds: {
        std::vector<Value> edges;
        for (const std::int64_t edge : window.bounds) {
            edges.push_back(Value::number(edge));
        }
        return Value::list(std::move(edges));
    }
    default:
        return std::nullopt;
    }
}

std::optional<Value> FinderTerms::fileProperty(const Reference& owner, PropertyTerm term) {
    if (term != PropertyTerm::name && term != PropertyTerm::displayedName && term != PropertyTerm::container) {
        return std::nullopt;
    }
    requireFinder();
    if (host.pathKind(owner.path) == ScriptPathKind::missing) {
        failToFind(Value::reference(owner));
    }
    if (term != PropertyTerm::container) {
        return Value::text(finderName(lastComponent(owner.path)));
    }
    return owner.path == "/" ? std::nullopt : std::optional(file(Reference::Kind::item, parentPath(owner.path), true));
}

bool FinderTerms::setProperty(const Reference& owner, PropertyTerm term, const Value& value) {
    requireFinder();
    if (owner.kind == Reference::Kind::application && term == PropertyTerm::selection) {
        select(value);
        return true;
    }
    if (owner.kind != Reference::Kind::window || term != PropertyTerm::target) {
        return false;
    }
    requiredWindow(owner);
    const std::optional<std::string> path = pathOf(value);
    if (!path || host.pathKind(*path) != ScriptPathKind::folder) {
        failInFinder(ErrorNumber::writeDenied,
                     "Can’t set target of " + described(Value::reference(owner)) + " to " + described(value) + ".");
    }
    requireSuccess(host.setTarget(owner.windowIdentifier, *path));
    return true;
}

}  // namespace desk::applescript
