// What a person finds and does inside folder windows: the list and how far it is scrolled, selecting by rows, opening, the way back and forward. Everything goes through Finder's own
// operations, so that Accessibility hears of it. What was pressed is FinderMouse's and FinderKeys' affair. A number that is no folder window's is ignored.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "desk/finder/FinderLayout.h"
#include "desk/finder/FinderListing.h"
#include "desk/finder/FinderNeighbours.h"
#include "desk/finder/FinderPlaces.h"
#include "desk/finder/FinderWindow.h"
#include "platform/Collation.h"
#include "platform/Time.h"
#include "views/LaidOutView.h"

namespace desk {

class Finder;

enum class Selecting { alone, extending };

// Nobody wants a window for each of ten thousand items.
inline constexpr std::size_t mostOpenedAtOnce = 20;

class FinderBrowser {
public:
    FinderBrowser(Finder& theFinder, const FinderNeighbours& theNeighbours);
    ~FinderBrowser();

    // As the disk is now. The window is one of Finder's folder windows.
    const FinderListing& listing(const FinderWindow& window);
    platform::CGSize sizeOf(const FinderWindow& window) const;
    FinderLayout layout(const FinderWindow& window);
    // The window as it stands, with what is needed to know what a press hits: see FinderHit.h.
    views::LaidOutView parts(const FinderWindow& window);
    const std::vector<FinderPlace>& places();

    void selectRow(std::int64_t number, std::size_t row, Selecting how);
    void toggleRow(std::int64_t number, std::size_t row);
    void selectAll(std::int64_t number);
    void selectNothing(std::int64_t number);
    // A rectangle of the whole list that is being dragged open: it selects the rows that it touches, beside those that are kept.
    void openBand(std::int64_t number, const platform::CGRect& band, const std::vector<std::string>& kept);
    void closeBand(std::int64_t number);
    std::optional<platform::CGRect> band(const FinderWindow& window) { return view(window).band; }
    // From the row that was reached last, or from the list's end when nothing is selected.
    void step(std::int64_t number, int direction, Selecting how);
    // The selection follows what is typed; a second's pause begins a new word.
    void type(std::int64_t number, const std::string& text);
    bool isTyping(std::int64_t number) const;

    // Positive: towards the end.
    void scrollBy(std::int64_t number, double distance);
    void scrollTo(std::int64_t number, double offset);

    // The selected items: a folder in the same window, several in windows of their own, files with their application.
    void openSelection(std::int64_t number);
    void goTo(std::int64_t number, const FinderPlace& place);
    void goBack(std::int64_t number) { retrace(number, &View::back, &View::forward); }
    void goForward(std::int64_t number) { retrace(number, &View::forward, &View::back); }
    // The folder that holds the one shown, which is selected there.
    void goUp(std::int64_t number);
    bool canGoBack(std::int64_t number) const { return hasBeen(number, &View::back); }
    bool canGoForward(std::int64_t number) const { return hasBeen(number, &View::forward); }

    // Finder tells that the window is about to show another place, or is gone.
    void willLeave(const FinderWindow& window);
    void forget(std::int64_t number) { views.erase(number); }

private:
    struct Visit {
        std::optional<std::string> target;
        std::string name;
        std::vector<std::string> selection;
        double scrolled = 0;
    };
    using Visits = std::vector<Visit>;
    struct View {
        FinderListing listing;
        double scrolled = 0;
        std::string anchor;   // path of the row from which a selection is extended
        std::string reached;  // and of the one up to which it was
        std::optional<platform::CGRect> band;
        std::string typed;
        platform::Date lastTyped = platform::Date::distantPast();
        Visits back;
        Visits forward;
    };

    const FinderWindow* folderWindow(std::int64_t number) const;
    platform::Collation& names();
    View& view(const FinderWindow& window) { return views[window.number]; }
    Visit visit(const FinderWindow& window);
    void retrace(std::int64_t number, Visits View::*from, Visits View::*to);
    bool hasBeen(std::int64_t number, Visits View::*side) const;
    void selectRange(const FinderWindow& window, std::size_t from, std::size_t to);
    void reveal(const FinderWindow& window, std::size_t row);
    // The row of a path that is still selected.
    std::optional<std::size_t> selectedRow(const FinderWindow& window, const std::string& path);

    Finder& finder;
    FinderNeighbours neighbours;
    std::unique_ptr<platform::Collation> collation;
    std::map<std::int64_t, View> views;
    std::vector<FinderPlace> knownPlaces;
    std::optional<Disk::Stamp> stampOfVolumes;
};

}  // namespace desk
