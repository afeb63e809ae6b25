#include "desk/applescript/FinderTerms.h"

#include "desk/applescript/Coercion.h"
#include "desk/applescript/Failure.h"
#include "desk/applescript/FilePath.h"
#include "platform/FileURL.h"

#include <utility>

namespace desk::applescript {

namespace {

Value windowReference(std::int64_t identifier) {
    return Value::reference({Reference::Kind::window, "", false, identifier});
}

[[noreturn]] void failToFind(const Value& value) {
    failInFinder(ErrorNumber::noSuchObject, "Can’t get " + described(value) + ".");
}

// Of a file, or of the only one in a list.
std::optional<std::string> pathOf(const Value& value) {
    if (value.list() != nullptr && value.list()->size() == 1) {
        return pathOf(value.list()->front());
    }
    const Reference* reference = value.reference();
    return reference != nullptr && reference->isOnDisk() ? std::optional(reference->path) : std::nullopt;
}

}  // namespace

void failInFinder(std::int64_t number, const std::string& sentence) {
    fail(number, "Finder got an error: " + sentence);
}

Value FinderTerms::application() {
    return Value::reference({});
}

Value FinderTerms::file(Reference::Kind kind, std::string_view posixPath, bool isFolder) {
    return Value::reference({kind, std::string(platform::withoutTrailingSlashes(posixPath)), isFolder, 0});
}

Value FinderTerms::windows() {
    requireFinder();
    Value::List windows;
    for (const std::int64_t identifier : host.windowIdentifiers()) {
        windows.push_back(windowReference(identifier));
    }
    return Value::list(std::move(windows));
}

std::optional<Value> FinderTerms::window(std::int64_t identifier) {
    requireFinder();
    return host.window(identifier) ? std::optional(windowReference(identifier)) : std::nullopt;
}

std::optional<Value> FinderTerms::property(const Reference& owner, PropertyTerm term) {
    if (owner.kind == Reference::Kind::window) {
        return windowProperty(owner, term);
    }
    if (owner.kind != Reference::Kind::application || term != PropertyTerm::selection) {
        return std::nullopt;
    }
    requireFinder();
    Value::List items;
    for (const std::string& path : host.selection()) {
        items.push_back(file(Reference::Kind::item, path));
    }
    return Value::list(std::move(items));
}

std::optional<Value> FinderTerms::windowProperty(const Reference& owner, PropertyTerm term) {
    requireFinder();
    const ScriptWindow window = requiredWindow(owner);
    switch (term) {
    case PropertyTerm::identifier:
        return Value::number(owner.windowIdentifier);
    case PropertyTerm::name:
        return Value::text(window.name);
    case PropertyTerm::target:
        return window.path ? file(Reference::Kind::item, *window.path, true)
                           : Value::reference({Reference::Kind::virtualTarget, "", false, owner.windowIdentifier});
    default:
        return std::nullopt;
    }
}

bool FinderTerms::setProperty(const Reference& owner, PropertyTerm term, const Value& value) {
    requireFinder();
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

void FinderTerms::activate() {
    requireFinder();
    host.activate();
}

Value FinderTerms::makeWindow(const std::optional<Value>& target) {
    requireFinder();
    std::optional<std::string> path;
    if (target) {
        path = existingPath(*target);
        if (host.pathKind(*path) != ScriptPathKind::folder) {
            failInFinder(ErrorNumber::handlerFailed, "AppleEvent handler failed.");
        }
    }
    const std::variant<std::int64_t, ScriptError> opened = host.openWindow(path);
    if (const ScriptError* error = std::get_if<ScriptError>(&opened)) {
        throw Failure{*error};
    }
    return windowReference(std::get<std::int64_t>(opened));
}

void FinderTerms::select(const Value& item) {
    requireFinder();
    requireSuccess(host.select(existingPath(item)));
}

Value FinderTerms::alias(const Value& value) {
    const Reference* reference = value.reference();
    if (reference != nullptr && reference->kind == Reference::Kind::virtualTarget) {
        failInFinder(ErrorNumber::badCoercion, "Can’t make " + described(value) + " into type alias.");
    }
    const std::optional<std::string> path = pathOf(value);
    if (!path) {
        failCoercion(value, "alias");
    }
    const ScriptPathKind kind = host.pathKind(*path);
    if (kind == ScriptPathKind::missing) {
        fail(ErrorNumber::fileNotFound,
             "File " + described(file(Reference::Kind::posixFile, *path)) + " wasn’t found.");
    }
    return file(Reference::Kind::alias, *path, kind == ScriptPathKind::folder);
}

void FinderTerms::requireFinder() {
    requireSuccess(host.refusal());
}

void FinderTerms::requireSuccess(const std::optional<ScriptError>& error) {
    if (error) {
        throw Failure{*error};
    }
}

ScriptWindow FinderTerms::requiredWindow(const Reference& reference) {
    std::optional<ScriptWindow> window = host.window(reference.windowIdentifier);
    if (!window) {
        failToFind(Value::reference(reference));
    }
    return std::move(*window);
}

std::string FinderTerms::existingPath(const Value& value) {
    std::optional<std::string> path = pathOf(value);
    if (!path || host.pathKind(*path) == ScriptPathKind::missing) {
        failToFind(value);
    }
    return std::move(*path);
}

}  // namespace desk::applescript
