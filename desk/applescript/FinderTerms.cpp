#include "desk/applescript/FinderTerms.h"

#include "desk/applescript/Coercion.h"
#include "desk/applescript/Failure.h"
#include "desk/applescript/FilePath.h"

#include <algorithm>
#include <utility>

namespace desk::applescript {

namespace {

Value windowReference(std::int64_t identifier) {
    return Value::reference({Reference::Kind::window, "", false, identifier});
}

}  // namespace

void failInFinder(std::int64_t number, const std::string& sentence) {
    fail(number, "Finder got an error: " + sentence);
}

void failToFind(const Value& value) {
    failInFinder(ErrorNumber::noSuchObject, "Can’t get " + described(value) + ".");
}

Value FinderTerms::application() {
    return Value::reference({Reference::Kind::application, "", false, 0});
}

Value FinderTerms::file(Reference::Kind kind, std::string_view posixPath, bool isFolder) {
    return Value::reference({kind, withoutTrailingSlashes(posixPath), isFolder, 0});
}

Value FinderTerms::windows() {
    requireFinder();
    std::vector<Value> windows;
    for (const std::int64_t identifier : host.windowIdentifiers()) {
        windows.push_back(windowReference(identifier));
    }
    return Value::list(std::move(windows));
}

std::optional<Value> FinderTerms::window(std::int64_t identifier) {
    requireFinder();
    return host.window(identifier) ? std::optional(windowReference(identifier)) : std::nullopt;
}

std::optional<Value> FinderTerms::diskItem(ClassTerm kind, const Value& container, const std::string& name) {
    requireFinder();
    std::string path;
    if (name.find(':') != std::string::npos) {
        path = posixPathFromColons(name);
    } else if (kind == ClassTerm::disk) {
        path = posixPathFromColons(name);
    } else if (name.empty()) {
        return std::nullopt;
    } else {
        const Reference* owner = container.reference();
        const bool isImplicit = owner != nullptr && owner->kind == Reference::Kind::application;
        const std::optional<std::string> folder =
            isImplicit ? std::optional(joinedPath(host.homePath(), "Desktop")) : pathOf(container);
        if (!folder) {
            return std::nullopt;
        }
        path = joinedPath(*folder, diskName(name));
    }
    const ScriptPathKind found = host.pathKind(path);
    const bool wantsFolder = kind == ClassTerm::folder || kind == ClassTerm::disk;
    const bool fits = found == ScriptPathKind::folder ? kind != ClassTerm::file : !wantsFolder;
    if (found == ScriptPathKind::missing || !fits) {
        return std::nullopt;
    }
    return file(Reference::Kind::item, path, found == ScriptPathKind::folder);
}

bool FinderTerms::exists(const Value& value) {
    const Reference* reference = value.reference();
    if (reference == nullptr) {
        return !value.is<MissingValue>();
    }
    if (reference->kind == Reference::Kind::window) {
        return window(reference->windowIdentifier).has_value();
    }
    return !reference->isOnDisk() || host.pathKind(reference->path) != ScriptPathKind::missing;
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

void FinderTerms::close(const Value& windows) {
    requireFinder();
    const Value all = listOf(windows);
    for (const Value& each : all.list()->items) {
        const Reference* reference = each.reference();
        if (reference == nullptr || reference->kind != Reference::Kind::window) {
            failInFinder(ErrorNumber::notUnderstood, described(each) + " doesn’t understand the “close” message.");
        }
        requiredWindow(*reference);
        requireSuccess(host.closeWindow(reference->windowIdentifier));
    }
}

void FinderTerms::select(const Value& items) {
    requireFinder();
    requireSuccess(host.select(existingPaths(items)));
}

void FinderTerms::open(const Value& items) {
    requireFinder();
    for (const std::string& path : existingPaths(items)) {
        requireSuccess(host.open(path));
    }
}

Value FinderTerms::alias(const Value& value) {
    const List* list = value.list();
    if (list != nullptr && list->items.size() == 1) {
        return alias(list->items.front());
    }
    const Reference* reference = value.reference();
    if (reference != nullptr && reference->kind == Reference::Kind::virtualTarget) {
        failInFinder(ErrorNumber::badCoercion, "Can’t make " + described(value) + " into type alias.");
    }
    const bool isFile = reference != nullptr && reference->isOnDisk();
    const std::optional<std::string> path = isFile || value.is<Text>() ? pathOf(value) : std::nullopt;
    if (!path) {
        failCoercion(value, ClassTerm::alias);
    }
    const ScriptPathKind kind = host.pathKind(*path);
    if (kind == ScriptPathKind::missing) {
        fail(ErrorNumber::fileNotFound,
             "File " + described(file(Reference::Kind::posixFile, *path)) + " wasn’t found.");
    }
    return file(Reference::Kind::alias, *path, kind == ScriptPathKind::folder);
}

Value FinderTerms::aliasList(const Value& value) {
    std::vector<Value> aliases;
    const Value all = listOf(value);
    for (const Value& each : all.list()->items) {
        aliases.push_back(alias(each));
    }
    return Value::list(std::move(aliases));
}

Value FinderTerms::folderAt(std::string_view place) {
    if (place == "startup disk") {
        return alias(file(Reference::Kind::posixFile, "/"));
    }
    if (place == "applications folder") {
        return alias(file(Reference::Kind::posixFile, "/Applications"));
    }
    if (place == "home folder") {
        return alias(file(Reference::Kind::posixFile, host.homePath()));
    }
    std::string folder(place.substr(0, place.find(' ')));
    folder.front() = static_cast<char>(folder.front() - 'a' + 'A');
    return alias(file(Reference::Kind::posixFile, joinedPath(host.homePath(), folder)));
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

std::optional<std::string> FinderTerms::pathOf(const Value& value) const {
    if (const Text* text = value.as<Text>()) {
        const bool hasColon = text->view().find(':') != std::string_view::npos;
        return hasColon ? std::optional(posixPathFromColons(text->view())) : std::nullopt;
    }
    const List* list = value.list();
    if (list != nullptr && list->items.size() == 1) {
        return pathOf(list->items.front());
    }
    const Reference* reference = value.reference();
    if (reference != nullptr && reference->kind == Reference::Kind::window) {
        const std::optional<ScriptWindow> window = host.window(reference->windowIdentifier);
        return window ? window->path : std::nullopt;
    }
    return reference != nullptr && reference->isOnDisk() ? std::optional(reference->path) : std::nullopt;
}

std::string FinderTerms::existingPath(const Value& value) {
    std::optional<std::string> path = pathOf(value);
    if (!path || host.pathKind(*path) == ScriptPathKind::missing) {
        failToFind(value);
    }
    return std::move(*path);
}

std::vector<std::string> FinderTerms::existingPaths(const Value& items) {
    std::vector<std::string> paths;
    const Value all = listOf(items);
    for (const Value& item : all.list()->items) {
        paths.push_back(existingPath(item));
    }
    return paths;
}

}  // namespace desk::applescript
