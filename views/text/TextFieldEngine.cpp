#include "views/text/TextFieldEngine.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "views/text/Utf8.h"

namespace views {

namespace {

// Nobody takes more steps back in a path, and each keeps a whole text.
constexpr std::size_t mostSteps = 200;

// Whether it has a letter of a script that runs from right to left: all begin with one of these pairs of bytes.
bool mayRunBothWays(std::string_view text) {
    struct Lead {
        unsigned char first, last, secondLow, secondHigh;
    };
    static constexpr Lead leads[] = {{0xD6, 0xD6, 0x90, 0xBF}, {0xD7, 0xDF, 0x80, 0xBF}, {0xE0, 0xE0, 0xA0, 0xA3},
                                     {0xEF, 0xEF, 0xAC, 0xBB}, {0xF0, 0xF0, 0x90, 0x90}, {0xF0, 0xF0, 0x9E, 0x9E}};
    const auto isOne = [](char a, char b) {
        const auto first = static_cast<unsigned char>(a);
        const auto second = static_cast<unsigned char>(b);
        return std::any_of(std::begin(leads), std::end(leads), [&](const Lead& lead) {
            return first >= lead.first && first <= lead.last && second >= lead.secondLow && second <= lead.secondHigh;
        });
    };
    return std::adjacent_find(text.begin(), text.end(), isOne) != text.end();
}

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
        {"moveLeft:", move, character, left},
        {"moveRight:", move, character, right},
        {"moveWordLeft:", move, word, left},
        {"moveWordRight:", move, word, right},
        {"moveToBeginningOfLine:", move, line, backward},
        {"moveToEndOfLine:", move, line, forward},
        {"moveUp:", move, line, backward},
        {"moveDown:", move, line, forward},
        {"moveLeftAndModifySelection:", extend, character, left},
        {"moveRightAndModifySelection:", extend, character, right},
        {"moveWordLeftAndModifySelection:", extend, word, left},
        {"moveWordRightAndModifySelection:", extend, word, right},
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

// Left and right are by sight: in text that runs from right to left they are forward and backward. Text without a letter of such a script isn't asked for places.
TextFieldEngine::Way TextFieldEngine::along(Way way, std::size_t from) const {
    if (way == Way::backward || way == Way::forward) return way;
    const Way usual = way == Way::right ? Way::forward : Way::backward;
    if (!mayRunBothWays(now.text)) return usual;
    const std::size_t neighbour = beside(way, from);
    if (neighbour == from) return usual;
    return neighbour > from ? Way::forward : Way::backward;
}

// The nearest place of the caret on that side; the same one at the end of the line.
std::size_t TextFieldEngine::beside(Way way, std::size_t from) const {
    constexpr double least = 0.01;
    const double sign = way == Way::right ? 1 : -1;
    const double here = caretPosition(now.text, from);
    std::size_t nearest = from;
    double leastDistance = std::numeric_limits<double>::infinity();
    for (std::size_t offset = 0;; offset = boundaries.nextCharacter(now.text, offset)) {
        const double distance = sign * (caretPosition(now.text, offset) - here);
        if (distance > least && distance < leastDistance) {
            leastDistance = distance;
            nearest = offset;
        }
        if (offset >= now.text.size()) return nearest;
    }
}

std::size_t TextFieldEngine::target(const Motion& motion, std::size_t from) const {
    const bool isBySight = motion.way == Way::left || motion.way == Way::right;
    if (isBySight && motion.reach == Reach::character && mayRunBothWays(now.text)) return beside(motion.way, from);
    return reached(motion.reach, along(motion.way, from), from);
}

// A step by one character only gives a selection up, at the end that it steps to.
void TextFieldEngine::move(const Motion& motion) {
    const std::size_t edge = along(motion.way, now.caret) == Way::forward ? selectionEnd() : selectionBegin();
    const bool onlyCollapses = motion.reach == Reach::character && selectionBegin() != selectionEnd();
    placeCaret(onlyCollapses ? edge : target(motion, edge));
}

// As the platform's fields do: by words it halts at the anchor before it goes to the other side, and to the ends of the line it only ever grows.
void TextFieldEngine::extend(const Motion& motion) {
    openGroup = Group::none;
    const std::size_t begin = selectionBegin();
    const std::size_t end = selectionEnd();
    const bool isForward = along(motion.way, now.caret) == Way::forward;
    if (now.isUndirected || motion.reach == Reach::line) {
        now.anchor = isForward ? begin : end;
        now.caret = isForward ? end : begin;
        now.isUndirected = false;
    }
    std::size_t next = target(motion, now.caret);
    const bool crosses =
        isForward ? now.caret < now.anchor && next > now.anchor : now.caret > now.anchor && next < now.anchor;
    if (motion.reach == Reach::word && crosses) next = now.anchor;
    now.caret = next;
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
