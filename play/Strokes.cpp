#include "play/Strokes.h"

#include <algorithm>
#include <array>
#include <utility>
#include <variant>
#include <vector>

#include <QJsonObject>

#include "play/Json.h"

namespace play {

namespace {

using platform::CGRect;
using platform::ColorRole;
using platform::FontWeight;

constexpr std::pair<ColorRole, const char*> roleNames[] = {{ColorRole::primary, "primary"},
                                                           {ColorRole::secondary, "secondary"},
                                                           {ColorRole::tertiary, "tertiary"},
                                                           {ColorRole::accent, "accent"},
                                                           {ColorRole::white, "white"},
                                                           {ColorRole::black, "black"},
                                                           {ColorRole::red, "red"},
                                                           {ColorRole::green, "green"},
                                                           {ColorRole::orange, "orange"},
                                                           {ColorRole::separator, "separator"},
                                                           {ColorRole::windowBackground, "windowBackground"},
                                                           {ColorRole::controlBackground, "controlBackground"},
                                                           {ColorRole::selectedText, "selectedText"}};
constexpr std::pair<FontWeight, const char*> weightNames[] = {{FontWeight::regular, "regular"},
                                                              {FontWeight::medium, "medium"},
                                                              {FontWeight::semibold, "semibold"},
                                                              {FontWeight::bold, "bold"}};

QString colorName(const platform::Color& color) {
    for (const auto& [role, name] : roleNames)
        if (role == color.role) return QString::fromLatin1(name);
    return QStringLiteral("#%1").arg(color.rgb, 6, 16, QLatin1Char('0')).toUpper();
}

const char* weightName(FontWeight weight) {
    const auto* found = std::find_if(std::begin(weightNames), std::end(weightNames),
                                     [&](const auto& each) { return each.first == weight; });
    return found->second;
}

QJsonArray arrayOf(const CGRect& rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

QJsonObject stroke(const char* operation, const CGRect& rect) {
    return {{"op", operation}, {"rect", arrayOf(rect)}};
}

void addColor(const platform::Color& color, QJsonObject& into) {
    into["color"] = colorName(color);
    into["opacity"] = color.opacity;
}

void addFont(const platform::Font& font, QJsonObject& into) {
    into["size"] = font.size;
    into["weight"] = weightName(font.weight);
}

QJsonObject shapeOf(const char* operation, const platform::RoundedShape& shape, const platform::Color& color) {
    QJsonObject described = stroke(operation, shape.rect);
    described["radius"] = std::min(shape.radius, std::min(shape.rect.width(), shape.rect.height()) / 2);
    described["corners"] = shape.corners == platform::CornerStyle::circular ? "circular" : "continuous";
    addColor(color, described);
    return described;
}

QJsonObject shadowOf(const platform::Shadow& shadow) {
    QJsonObject described{{"radius", shadow.radius}, {"offset", QJsonArray{shadow.offset.x, shadow.offset.y}}};
    addColor(shadow.color, described);
    return described;
}

// Goes through a drawing and keeps what can be seen of it.
class StrokeList {
public:
    QJsonArray strokes;

    void operator()(const platform::FillShape& fill) {
        add(fill.shape.rect, [&] {
            QJsonObject described = shapeOf("fill", fill.shape, fill.color);
            if (fill.shadow) described["shadow"] = shadowOf(*fill.shadow);
            return described;
        });
    }
    void operator()(const platform::StrokeShape& line) {
        const CGRect painted = platform::CGRectInset(line.shape.rect, -line.lineWidth / 2, -line.lineWidth / 2);
        add(painted, [&] {
            QJsonObject described = shapeOf("stroke", line.shape, line.color);
            described["lineWidth"] = line.lineWidth;
            return described;
        });
    }
    void operator()(const platform::StrokePath& line) {
        add(boundsOf(line), [&] {
            QJsonArray points;
            for (const platform::CGPoint& point : line.points) points.append(QJsonArray{point.x, point.y});
            QJsonObject described{{"op", "line"}, {"points", points}, {"lineWidth", line.lineWidth}};
            described["cap"] = line.cap == platform::LineCap::butt ? "butt" : "round";
            described["join"] = line.join == platform::LineJoin::miter ? "miter" : "round";
            addColor(line.color, described);
            return described;
        });
    }
    void operator()(const platform::DrawText& text) {
        add(text.rect, [&] {
            QJsonObject described = stroke("text", text.rect);
            described["text"] = jsonText(std::string_view(text.text));
            addFont(text.font, described);
            addColor(text.color, described);
            return described;
        });
    }
    void operator()(const platform::DrawSymbol& symbol) {
        add(symbol.rect, [&] {
            QJsonObject described = stroke("symbol", symbol.rect);
            described["name"] = jsonText(std::string_view(symbol.name));
            addFont(symbol.font, described);
            addColor(symbol.color, described);
            return described;
        });
    }
    void operator()(const platform::DrawImage& image) {
        add(image.rect, [&] {
            QJsonObject described = stroke("image", image.rect);
            described["name"] = jsonText(std::string_view(image.image.name()));
            described["clip"] = clips.empty() ? QJsonValue() : clipOf(clips.back().said);
            return described;
        });
    }
    void operator()(const platform::BeginClip& clip) {
        const CGRect open = clips.empty() ? clip.rect : platform::CGRectIntersection(clips.back().open, clip.rect);
        clips.push_back({clip, open});
    }
    void operator()(const platform::EndClip& /*end*/) {
        if (!clips.empty()) clips.pop_back();
    }

private:
    struct Clip {
        platform::BeginClip said;
        CGRect open;  // what it and those around it leave open
    };

    // With its width around all points.
    static CGRect boundsOf(const platform::StrokePath& line) {
        CGRect bounds{line.points.empty() ? platform::CGPoint{} : line.points.front(), {}};
        for (const platform::CGPoint& point : line.points) {
            const double x = std::min(bounds.minX(), point.x);
            const double y = std::min(bounds.minY(), point.y);
            bounds = {{x, y}, {std::max(bounds.maxX(), point.x) - x, std::max(bounds.maxY(), point.y) - y}};
        }
        return platform::CGRectInset(bounds, -line.lineWidth / 2, -line.lineWidth / 2);
    }
    static QJsonObject clipOf(const platform::BeginClip& clip) {
        return {{"rect", arrayOf(clip.rect)}, {"radius", clip.radius}};
    }
    template <typename Describe>
    void add(const CGRect& painted, Describe describe) {
        const bool isHidden = !clips.empty() && !overlaps(clips.back().open, painted);
        if (!isHidden) strokes.append(describe());
    }
    static bool overlaps(const CGRect& a, const CGRect& b) {
        return a.minX() < b.maxX() && b.minX() < a.maxX() && a.minY() < b.maxY() && b.minY() < a.maxY();
    }

    std::vector<Clip> clips;
};

}  // namespace

QJsonArray strokesOf(const platform::Drawing& drawing) {
    StrokeList list;
    for (const auto& operation : drawing.operations) std::visit(list, operation);
    return list.strokes;
}

}  // namespace play
