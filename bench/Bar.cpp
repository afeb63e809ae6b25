// A bar taking another path, without painting and painted at 2x, and a bar being made: evaluation, crumbs, fitting and layout.
#include <QImage>
#include <QPainter>
#include <benchmark/benchmark.h>

#include "desk/display/GuiApplication.h"
#include "desk/display/Painter.h"
#include "desk/display/QtTextSystem.h"
#include "pathbar/BreadcrumbModel.h"
#include "pathbar/PathBarView.h"
#include "tests/kit/ViewPlatform.h"

namespace {

using namespace brindle;

// The desk's fonts, as a bar on the desk has them.
platform::TextSystem& realText() {
    static desk::GuiApplication toolkit;
    static desk::QtTextSystem text;
    return text;
}

struct Model : platform::ObservableObject {
    platform::Published<FinderWindowState> windowState{*this, {}};
    platform::Published<bool> isEditing{*this, false};
    platform::Published<std::string> inputText{*this, ""};
    platform::Published<std::optional<std::string>> errorMessage{*this, std::nullopt};
};

struct Root {
    platform::Platform* platform;
    views::ObservedObject<Model> model;

    void connect(views::Context& context) { context.connect(model); }
    views::View body() const {
        PathBarView bar(*platform, model->windowState.get(), views::Binding<bool>::to(model->isEditing),
                        views::Binding<std::string>::to(model->inputText),
                        views::Binding<std::optional<std::string>>::to(model->errorMessage));
        const auto nothing = [this] { benchmark::DoNotOptimize(platform); };
        bar.beginEditing = bar.commitPath = bar.cancelEditing = nothing;
        bar.copyFullPath = bar.copyFolderName = bar.openInTerminal = bar.openInNewWindow = bar.openInVSCode = nothing;
        bar.openPath = [this](const std::string&) { benchmark::DoNotOptimize(platform); };
        return views::Group(std::move(bar)).frame({.maxWidth = views::infinity, .maxHeight = views::infinity});
    }
};

FinderWindowState window(std::string path) {
    FinderWindowState state;
    state.id = "finder-101";
    state.windowNumber = 101;
    state.path = std::move(path);
    state.displayName = "Reports";
    return state;
}

const char* const paths[] = {"/Users/ana/Documents/Projects/Brindle/Reports/",
                             "/Users/ana/Pictures/Holidays/Summer/Originals/"};

template <typename AfterEach>
void navigate(benchmark::State& state, AfterEach afterEach) {
    kit::ViewPlatform machine(realText());
    Model model;
    model.windowState.set(window(paths[0]));
    views::NSHostingView<Root> host(machine.platform, Root{&machine.platform, views::ObservedObject<Model>(model)},
                                    views::HostRole::bar);
    host.setSize({static_cast<double>(state.range(0)), 44});
    machine.endTurn();
    const FinderWindowState states[] = {window(paths[0]), window(paths[1])};
    std::size_t next = 0;
    for (auto _ : state) {
        next = 1 - next;
        model.windowState.set(states[next]);
        machine.endTurn();
        afterEach(host);
    }
    state.counters["items"] = static_cast<double>(host.layout().items.size());
}

void Bar_Navigate(benchmark::State& state) {
    navigate(state, [](views::HostingView&) {});
}
BENCHMARK(Bar_Navigate)->Arg(400)->Arg(1200)->Arg(2400);

void Bar_NavigateRender(benchmark::State& state) {
    realText();
    constexpr double scale = 2;
    desk::Painter painter;
    QImage image(static_cast<int>(static_cast<double>(state.range(0)) * scale), static_cast<int>(44 * scale),
                 QImage::Format_ARGB32_Premultiplied);
    navigate(state, [&](views::HostingView& host) {
        image.fill(Qt::transparent);
        QPainter target(&image);
        painter.paint(target, host.drawing(), {}, scale);
        target.end();
        benchmark::DoNotOptimize(image.constBits());
    });
}
BENCHMARK(Bar_NavigateRender)->Arg(400)->Arg(1200)->Arg(2400);

void Bar_Construct(benchmark::State& state) {
    kit::ViewPlatform machine(realText());
    Model model;
    model.windowState.set(window(paths[0]));
    for (auto _ : state) {
        views::NSHostingView<Root> host(machine.platform, Root{&machine.platform, views::ObservedObject<Model>(model)},
                                        views::HostRole::bar);
        host.setSize({1200, 44});
        machine.endTurn();
        benchmark::DoNotOptimize(host.layout().items.data());
    }
}
BENCHMARK(Bar_Construct);

void CrumbsAndFitting(benchmark::State& state) {
    platform::TextSystem& text = realText();
    std::string path;
    for (std::int64_t level = 0; level < state.range(0); ++level) path += "/Folder " + std::to_string(level);
    const FinderWindowState shown = window(path);
    for (auto _ : state) {
        const auto items = breadcrumbItems(shown);
        benchmark::DoNotOptimize(visibleItems(text, items, 600));
    }
}
BENCHMARK(CrumbsAndFitting)->Arg(5)->Arg(50)->Arg(200);

}  // namespace
