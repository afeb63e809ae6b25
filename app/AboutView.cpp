#include "app/AboutView.h"

#include <utility>

#include "platform/URL.h"

namespace brindle {

using namespace views;

namespace {

constexpr double iconSide = 152;
constexpr double iconScale = 1.18;  // lets the icon's transparent margin end outside the frame
constexpr double iconRadius = 28;

}  // namespace

View AboutView::body() const {
    View stack = VStack({.spacing = 12},
                        Image(appIcon())
                            .resizable()
                            .interpolation(platform::ImageInterpolation::high)
                            .frame({.width = iconSide, .height = iconSide})
                            .scaleEffect(iconScale)
                            .clipShape(RoundedRectangle(iconRadius)),
                        Text("Orvane").font(Font{24, FontWeight::semibold}),
                        Text(versionText()).font(Font{13}).foregroundStyle(ColorRole::secondary), website());
    if (auto copyright = copyrightText())
        stack.addChildren(Text(std::move(*copyright)).font(Font{11}).foregroundStyle(ColorRole::secondary));
    return std::move(stack).padding(28).frame({.maxWidth = infinity, .maxHeight = infinity});
}

View AboutView::website() const {
    if (const auto url = websiteURL()) return Link("Website", *url).font(Font{13});
    return Text("Website coming soon").font(Font{13}).foregroundStyle(ColorRole::secondary);
}

platform::NSImage AboutView::appIcon() const {
    if (const auto file = platform.bundle.URLForResource("AppIcon", "png"))
        if (auto image = platform.images.imageWithContentsOf(*file)) return std::move(*image);
    return platform.application.applicationIconImage();
}

std::string AboutView::versionText() const {
    return "Version " + infoText("CFBundleShortVersionString").value_or("-") + " (" +
           infoText("CFBundleVersion").value_or("-") + ")";
}

std::optional<std::string> AboutView::websiteURL() const {
    const auto text = infoText("OrvaneWebsiteURL");
    return text ? platform::URLWithString(*text) : std::nullopt;
}

std::optional<std::string> AboutView::copyrightText() const {
    return infoText("NSHumanReadableCopyright");
}

std::optional<std::string> AboutView::infoText(const char* key) const {
    const auto value = platform.bundle.objectForInfoDictionaryKey(key);
    const auto* text = value ? value->as<std::string>() : nullptr;
    return text == nullptr ? std::nullopt : std::optional(*text);
}

}  // namespace brindle
