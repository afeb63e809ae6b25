// Measures text of the desk's system font for layout, and remembers what it measured. It paints nothing; Painter shapes the same text with the
// same fonts. Needs a GuiApplication.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "desk/display/BoundedCache.h"
#include "desk/display/LaidOutLine.h"
#include "desk/display/LineBreaker.h"
#include "desk/display/SymbolSet.h"
#include "desk/display/SystemFonts.h"
#include "desk/display/TextKey.h"
#include "desk/text/IcuTextBoundaries.h"
#include "platform/Text.h"

namespace desk {

class QtTextSystem final : public platform::TextSystem {
public:
    QtTextSystem();

    double width(std::string_view text, platform::Font font) override;
    platform::FontMetrics metrics(platform::Font font) override;
    double caretPosition(std::string_view text, platform::Font font, std::size_t offset) override;
    std::vector<platform::LineStretch> stretches(std::string_view text, platform::Font font, std::size_t begin,
                                                 std::size_t end) override;
    std::string truncatedInMiddle(std::string_view text, platform::Font font, double width) override;
    std::vector<std::string> lines(std::string_view text, platform::Font font, double width, std::size_t limit,
                                   platform::TextTruncation truncation) override;
    std::optional<platform::CGSize> symbolSize(std::string_view name, platform::Font font) override;

private:
    struct Truncation {
        double width = 0;
        std::string result;
    };

    struct BrokenText {
        double width = 0;
        std::size_t limit = 0;
        platform::TextTruncation truncation{};
        std::vector<std::string> lines;

        bool isFor(double thatWidth, std::size_t thatLimit, platform::TextTruncation thatTruncation) const {
            return width == thatWidth && limit == thatLimit && truncation == thatTruncation;
        }
    };

    std::string truncate(std::string_view text, platform::Font font, double width, platform::TextTruncation truncation);
    std::vector<std::string> breakIntoLines(std::string_view text, platform::Font font, double width, std::size_t limit,
                                            platform::TextTruncation truncation);
    const LaidOutLine& laidOut(std::string_view text, platform::Font font);

    SystemFonts fonts;
    SymbolSet symbols;
    std::unique_ptr<LaidOutLine> latest;  // at each key of a field its width, caret and selection are asked for
    IcuTextBoundaries boundaries;
    LineBreaker breaker{boundaries};
    BoundedCache<TextKey, double, TextHash, TextEqual> widths;
    BoundedCache<TextKey, Truncation, TextHash, TextEqual> truncations;  // the last one of each text
    // The latest of each text: a layout asks for its least width, for its shares of the room, and for what is drawn.
    BoundedCache<TextKey, std::vector<BrokenText>, TextHash, TextEqual> brokenTexts;
};

}  // namespace desk
