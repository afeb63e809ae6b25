// What a text field edits: one text, its selection and what can be undone, driven by the platform's names of commands. It knows nothing of widgets, keys or the clipboard.
// The text is UTF-8; the outside is told ranges in UTF-16 units; the selection always ends between grapheme clusters.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/TextBoundaries.h"
#include "views/text/NSRange.h"

namespace views {

class TextFieldEngine {
public:
    // Where a caret in front of that byte is seen, from the left.
    using CaretPosition = std::function<double(std::string_view text, std::size_t offset)>;

    TextFieldEngine(platform::TextBoundaries& theBoundaries, CaretPosition theCaretPosition)
        : boundaries(theBoundaries), caretPosition(std::move(theCaretPosition)) {}

    const std::string& text() const { return now.text; }
    // Text from outside: the caret goes to its end, and there is nothing to undo.
    void setText(std::string text);

    NSRange selectedRange() const;
    // Cut to the text; widened to whole grapheme clusters.
    void setSelectedRange(NSRange range);
    std::string_view selectedText() const;
    // Bytes. The caret is the end of the selection that moves; they are equal when nothing is selected.
    std::size_t selectionBegin() const;
    std::size_t selectionEnd() const;
    std::size_t caret() const { return now.caret; }
    // By selecting all or from outside: neither end has been moved yet.
    bool isSelectedAsAWhole() const { return now.isUndirected; }

    // Typed text takes the selection's place, and is undone together with what was typed just before. Malformed bytes are replaced.
    void type(std::string_view text);
    // The same as one step of its own: pasting, cutting.
    void replaceSelection(std::string_view text);
    void selectAll();
    void undo();
    void redo();

    // Moves, extends or removes as the command says ("moveWordLeft:"); false for names it doesn't know.
    bool perform(std::string_view command);

private:
    struct Snapshot {
        std::string text;
        std::size_t anchor = 0;
        std::size_t caret = 0;
        // Selected as a whole, so that the first extension chooses which end moves.
        bool isUndirected = false;
    };
    enum class Group { none, typing, deletingBackward, deletingForward };
    enum class Deed { move, extend, remove };
    enum class Reach { character, word, line };
    enum class Way { backward, forward, left, right };
    struct Motion {
        std::string_view command;
        Deed deed;
        Reach reach;
        Way way;
    };

    std::size_t reached(Reach reach, Way way, std::size_t from) const;
    Way along(Way way, std::size_t from) const;
    std::size_t beside(Way way, std::size_t from) const;
    std::size_t target(const Motion& motion, std::size_t from) const;
    void move(const Motion& motion);
    void extend(const Motion& motion);
    void remove(const Motion& motion);
    void placeCaret(std::size_t offset);
    void replace(Snapshot before, std::string_view text, Group group);
    bool isBoundary(std::size_t offset) const;
    void exchange(std::vector<Snapshot>& from, std::vector<Snapshot>& to);

    platform::TextBoundaries& boundaries;
    const CaretPosition caretPosition;
    Snapshot now;
    std::vector<Snapshot> undone;
    std::vector<Snapshot> done;
    Group openGroup = Group::none;
};

}  // namespace views
