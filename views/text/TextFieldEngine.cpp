#include "views/text/TextFieldEngine.h"

#include <algorithm>
#include <utility>

#include "views/text/Utf8.h"

namespace views {

namespace {

// Nobody takes more steps back in a path, and each keeps a whole text.
constexpr std::size_t mostSteps = 200;

}  // namespace

void TextFieldEngine::setText(std::string text) {
    now = {std::move(text), 0, 0, false};
    placeCaret(now.text.size());
    done.clear();
    undone.clear();
}

std::size_t TextFieldEngine::selectionBegin() const {
    return std::min(now.anchor, now.caret);
}

std::size_t TextFieldEngine::selectionEnd() const {
    return std::max(now.anchor, now.caret);
}

std::string_view TextFieldEngine::selectedText() const {
    return std::string_view(now.text).substr(selectionBegin(), selectionEnd() - selectionBegin());
}

NSRange TextFieldEngine::selectedRange() const {
    return {utf16Length(std::string_view(now.text).substr(0, selectionBegin())), utf16Length(selectedText())};
}

void TextFieldEngine::setSelectedRange(NSRange range) {
    const std::size_t first = std::min(range.location, now.text.size());
    std::size_t begin = byteOffset(now.text, first);
    std::size_t end = byteOffset(now.text, first + std::min(range.length, now.text.size()));
    if (!isBoundary(end)) end = boundaries.nextCharacter(now.text, end);
    if (!isBoundary(begin)) begin = range.length == 0 ? end : boundaries.previousCharacter(now.text, begin);
    now.anchor = begin;
    now.caret = end;
    now.isUndirected = begin != end;
    openGroup = Group::none;
}

void TextFieldEngine::selectAll() {
    now.anchor = 0;
    now.caret = now.text.size();
    now.isUndirected = true;
    openGroup = Group::none;
}

void TextFieldEngine::type(std::string_view text) {
    if (!text.empty()) replace(now, repaired(text), Group::typing);
}

void TextFieldEngine::replaceSelection(std::string_view text) {
    if (!text.empty() || selectionBegin() != selectionEnd()) replace(now, repaired(text), Group::none);
}

void TextFieldEngine::undo() {
    exchange(done, undone);
}

void TextFieldEngine::redo() {
    exchange(undone, done);
}

void TextFieldEngine::exchange(std::vector<Snapshot>& from, std::vector<Snapshot>& to) {
    openGroup = Group::none;
    if (from.empty()) return;
    to.push_back(std::exchange(now, std::move(from.back())));
    from.pop_back();
}

bool TextFieldEngine::perform(std::string_view command) {
    using enum Deed;
    using enum Reach;
    using enum Way;
    static constexpr Motion motions[] = {
        {"moveLeft:", move, character, backward},
        {"moveRight:", move, character, forward},
        {"moveWordLeft:", move, word, backward},
        {"moveWordRight:", move, word, forward},
        {"moveToBeginningOfLine:", move, line, backward},
        {"moveToEndOfLine:", move, line, forward},
        {"moveUp:", move, line, backward},
        {"moveDown:", move, line, forward},
        {"moveLeftAndModifySelection:", extend, character, backward},
        {"moveRightAndModifySelection:", extend, character, forward},
        {"moveWordLeftAndModifySelection:", extend, word, backward},
        {"moveWordRightAndModifySelection:", extend, word, forward},
        {"moveToBeginningOfLineAndModifySelection:", extend, line, backward},
        {"moveToEndOfLineAndModifySelection:", extend, line, forward},
        {"moveUpAndModifySelection:", extend, line, backward},
        {"moveDownAndModifySelection:", extend, line, forward},
        {"deleteBackward:", remove, character, backward},
        {"deleteForward:", remove, character, forward},
        {"deleteWordBackward:", remove, word, backward},
        {"deleteWordForward:", remove, word, forward},
        {"deleteToBeginningOfLine:", remove, line, backward},
        {"deleteToEndOfLine:", remove, line, forward},
    };
    const auto* motion = std::find_if(std::begin(motions), std::end(motions),
                                      [&](const Motion& each) { return each.command == command; });
    if (motion == std::end(motions)) return false;
    static constexpr void (TextFieldEngine::*deeds[])(const Motion&) = {
        &TextFieldEngine::move, &TextFieldEngine::extend, &TextFieldEngine::remove};
    (this->*deeds[static_cast<std::size_t>(motion->deed)])(*motion);
    return true;
}

std::size_t TextFieldEngine::reached(Reach reach, Way way, std::size_t from) const {
    const bool isForward = way == Way::forward;
    switch (reach) {
    case Reach::character:
        return isForward ? boundaries.nextCharacter(now.text, from) : boundaries.previousCharacter(now.text, from);
    case Reach::word: {
        const std::size_t edge =
            isForward ? boundaries.nextWord(now.text, from) : boundaries.previousWord(now.text, from);
        return isBoundary(edge) ? edge : reached(Reach::character, way, edge);
    }
    case Reach::line:
        break;
    }
    return isForward ? now.text.size() : 0;
}

// A step by one character only gives a selection up, at the end that it steps to.
void TextFieldEngine::move(const Motion& motion) {
    const std::size_t edge = motion.way == Way::forward ? selectionEnd() : selectionBegin();
    const bool onlyCollapses = motion.reach == Reach::character && selectionBegin() != selectionEnd();
    placeCaret(onlyCollapses ? edge : reached(motion.reach, motion.way, edge));
}

// As the platform's fields do: by words it halts at the anchor before it goes to the other side, and to the ends of the line it only ever grows.
void TextFieldEngine::extend(const Motion& motion) {
    openGroup = Group::none;
    const std::size_t begin = selectionBegin();
    const std::size_t end = selectionEnd();
    const bool isForward = motion.way == Way::forward;
    if (now.isUndirected || motion.reach == Reach::line) {
        now.anchor = isForward ? begin : end;
        now.caret = isForward ? end : begin;
        now.isUndirected = false;
    }
    std::size_t target = reached(motion.reach, motion.way, now.caret);
    const bool crosses =
        isForward ? now.caret < now.anchor && target > now.anchor : now.caret > now.anchor && target < now.anchor;
    if (motion.reach == Reach::word && crosses) target = now.anchor;
    now.caret = target;
}

void TextFieldEngine::remove(const Motion& motion) {
    Snapshot before = now;
    const bool hasSelection = selectionBegin() != selectionEnd();
    if (!hasSelection) now.anchor = reached(motion.reach, motion.way, now.caret);
    if (now.anchor == now.caret) return;
    const bool isStep = !hasSelection && motion.reach == Reach::character;
    const Group group = motion.way == Way::forward ? Group::deletingForward : Group::deletingBackward;
    replace(std::move(before), {}, isStep ? group : Group::none);
}

void TextFieldEngine::placeCaret(std::size_t offset) {
    now.anchor = now.caret = offset;
    now.isUndirected = false;
    openGroup = Group::none;
}

// What stands around may join with what has come to stand beside it: the caret then goes behind the whole cluster.
void TextFieldEngine::replace(Snapshot before, std::string_view text, Group group) {
    if (group == Group::none || group != openGroup) {
        done.push_back(std::move(before));
        if (done.size() > mostSteps) done.erase(done.begin());
    }
    undone.clear();
    const std::size_t begin = selectionBegin();
    now.text.replace(begin, selectionEnd() - begin, text);
    const std::size_t end = begin + text.size();
    placeCaret(isBoundary(end) ? end : boundaries.nextCharacter(now.text, end));
    openGroup = group;
}

bool TextFieldEngine::isBoundary(std::size_t offset) const {
    if (offset == 0 || offset >= now.text.size()) return true;
    return boundaries.nextCharacter(now.text, boundaries.previousCharacter(now.text, offset)) == offset;
}

}  // namespace views
