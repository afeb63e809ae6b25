// What it costs to paint a bar at 2x, and to measure a text that is known and one that isn't. The drawing is that of a typical bar: plate with its
// line, brand, dividers, six crumbs, copy button.
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <string>

#include "desk/display/GuiApplication.h"
#include "desk/display/Painter.h"
#include "desk/display/QtTextSystem.h"

namespace {

using platform::CGRectMake;
using platform::Color;
using platform::ColorRole;
using platform::CornerStyle;
using platform::Font;
using platform::FontWeight;

constexpr double barHeight = 44;
constexpr double scale = 2;
constexpr Font titleFont{13, FontWeight::regular};
constexpr std::array<const char*, 6> titles{"Macintosh HD", "Users", "ana", "Documents", "Projects", "Harbour Survey"};

desk::GuiApplication& toolkit() {
    static desk::GuiApplication application;
    return application;
}

void addText(platform::Drawing& drawing, desk::QtTextSystem& text, const std::string& title, Font font, double x) {
    const double height = text.metrics(font).lineHeight();
    drawing.operations.emplace_back(
        platform::DrawText{title, font, Color::of(ColorRole::secondary),
                           CGRectMake(x, (barHeight - height) / 2, text.width(title, font), height)});
}

platform::Drawing barDrawing(desk::QtTextSystem& text, double width) {
    platform::Drawing drawing;
    auto& operations = drawing.operations;
    const platform::CGRect plate = CGRectMake(6, 6, width - 12, 32);
    operations.emplace_back(platform::FillShape{{plate, 7, CornerStyle::continuous}, Color::of(ColorRole::white)});
    operations.emplace_back(platform::StrokeShape{
        {CGRectInset(plate, 0.5, 0.5), 6.5, CornerStyle::continuous}, Color::of(ColorRole::primary, 0.16), 1});
    const Color divider = Color::of(ColorRole::primary, 0.12);
    operations.emplace_back(platform::FillShape{{CGRectMake(117, 13, 1, 18)}, divider});
    operations.emplace_back(platform::FillShape{{CGRectMake(width - 42, 13, 1, 18)}, divider});
    addText(drawing, text, "Orvane", {13, FontWeight::semibold}, 38);
    double x = 130;
    for (const char* title : titles) {
        const double taken = text.width(title, titleFont);
        if (x + taken > width - 60) break;
        addText(drawing, text, title, titleFont, x);
        x += taken;
        operations.emplace_back(platform::DrawSymbol{
            "chevron.right", {10, FontWeight::semibold}, Color::of(ColorRole::secondary), CGRectMake(x, 6, 22, 32)});
        x += 22;
    }
    operations.emplace_back(platform::DrawSymbol{
        "doc.on.doc", {13, FontWeight::medium}, Color::of(ColorRole::secondary), CGRectMake(width - 39, 8, 30, 28)});
    return drawing;
}

void Bar_Render(benchmark::State& state) {
    toolkit();
    desk::QtTextSystem text;
    desk::Painter painter;
    const auto width = static_cast<double>(state.range(0));
    const platform::Drawing drawing = barDrawing(text, width);
    QImage image(static_cast<int>(width * scale), static_cast<int>(barHeight * scale),
                 QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        image.fill(Qt::transparent);
        QPainter target(&image);
        painter.paint(target, drawing, {}, scale);
        target.end();
        benchmark::DoNotOptimize(image.constBits());
    }
}
BENCHMARK(Bar_Render)->Arg(400)->Arg(1200)->Arg(2400)->Unit(benchmark::kMicrosecond);

// Nothing is known yet: every text is shaped, every symbol and corner drawn.
void Bar_RenderFirst(benchmark::State& state) {
    toolkit();
    desk::QtTextSystem text;
    const platform::Drawing drawing = barDrawing(text, 1200);
    QImage image(2400, static_cast<int>(barHeight * scale), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        desk::Painter painter;
        image.fill(Qt::transparent);
        QPainter target(&image);
        painter.paint(target, drawing, {}, scale);
    }
}
BENCHMARK(Bar_RenderFirst)->Unit(benchmark::kMicrosecond);

void Text_WidthKnown(benchmark::State& state) {
    toolkit();
    desk::QtTextSystem text;
    std::size_t next = 0;
    for (auto _ : state) benchmark::DoNotOptimize(text.width(titles[next++ % titles.size()], titleFont));
}
BENCHMARK(Text_WidthKnown);

void Text_WidthUnknown(benchmark::State& state) {
    toolkit();
    desk::QtTextSystem text;
    std::size_t next = 0;
    for (auto _ : state) benchmark::DoNotOptimize(text.width("Folder " + std::to_string(next++), titleFont));
}
BENCHMARK(Text_WidthUnknown);

void Text_Truncate(benchmark::State& state) {
    toolkit();
    desk::QtTextSystem text;
    const std::string name = "A folder whose name is a good deal longer than any bar has room for";
    double width = 100;
    for (auto _ : state) {
        width = width > 200 ? 100 : width + 0.25;
        benchmark::DoNotOptimize(text.truncatedInMiddle(name, titleFont, width));
    }
}
BENCHMARK(Text_Truncate);

}  // namespace
