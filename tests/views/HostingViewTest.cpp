// The host: when it evaluates and lays out, what it keeps between evaluations, and where clicks go.
#include <gtest/gtest.h>

#include "tests/kit/ViewPlatform.h"
#include "views/Views.h"

namespace {

using namespace views;

struct Model : platform::ObservableObject {
    platform::Published<std::string> title{*this, "one"};
    platform::Published<int> unseen{*this, 0};
    platform::Published<bool> isOpen{*this, true};
};

// Counts its own clicks; made anew by every evaluation of its parent.
struct Counter {
    State<int> count{0};
    int declared = 0;  // differs from one declaration to the next

    void connect(Context& context) { context.connect(count); }
    View body() const {
        return Button([this] { count.set(count.get() + 1); },
                      Text(std::to_string(count.get())).frame({.width = 20, .height = 20}))
            .accessibilityIdentifier("counter");
    }
};

Task work(platform::Dispatch& /*dispatch*/, std::vector<std::string>* log,
          std::shared_ptr<std::function<void()>> between) {
    log->push_back("task");
    while (true) {
        co_await Task::sleep(platform::seconds(1));
        log->push_back("slept");
        if (*between) (*between)();
    }
}

struct Root {
    platform::Platform* platform = nullptr;
    ObservedObject<Model> model;
    ColorSchemeEnvironment colorScheme;
    bool readsScheme = false;
    std::vector<std::string>* log = nullptr;
    std::shared_ptr<std::function<void()>> between = nullptr;

    void connect(Context& context) { context.connect(model, colorScheme); }
    View body() const {
        log->push_back("body");
        if (readsScheme) colorScheme.get();
        return HStack({.spacing = 0}, Text(model->title.get()).font({.size = 10}),
                      model->isOpen.get() ? View(Counter{State<int>{0}, static_cast<int>(log->size())}) : EmptyView(),
                      View(Color::of(ColorRole::clear)).onTapGesture([this] {
                          log->push_back("tap " + model->title.get());
                      }))
            .task([this] { return work(platform->dispatch, log, between); })
            .onChange(model->unseen.get(), [this] { log->push_back("unseen " + std::to_string(model->unseen.get())); });
    }
};

class HostingViewTest : public testing::Test {
protected:
    void show(bool readsScheme = false) {
        host = std::make_unique<NSHostingView<Root>>(
            machine.platform, Root{&machine.platform, ObservedObject<Model>(model), {}, readsScheme, &log, between},
            HostRole::bar);
        host->setSize({200, 20});
        machine.endTurn();
        log.clear();
    }
    std::int64_t layouts() { return machine.platform.shared<RenderCounts>().barLayouts(); }
    std::string counter() {
        for (const auto& element : host->elements())
            if (element.identifier == "counter") return element.label;
        return "none";
    }
    // In view space; the window's own space has y upward.
    void send(platform::NSEventType type, double x) {
        platform::NSEvent event;
        event.type = type;
        event.locationInWindow = {x, 10};
        host->handleEvent(event);
    }
    void click(double x) {
        send(platform::NSEventType::leftMouseDown, x);
        send(platform::NSEventType::leftMouseUp, x);
    }

    kit::ViewPlatform machine;
    Model model;
    std::vector<std::string> log;
    std::shared_ptr<std::function<void()>> between = std::make_shared<std::function<void()>>();
    std::unique_ptr<HostingView> host;
};

TEST_F(HostingViewTest, ABurstOfChangesIsOneEvaluationAndOneLayout) {
    show();
    const auto before = layouts();
    model.title.set("two");
    model.title.set("three");
    model.unseen.set(1);
    EXPECT_TRUE(log.empty()) << "nothing happens before the end of the turn";
    machine.endTurn();
    EXPECT_EQ(log, (std::vector<std::string>{"body", "unseen 1"}));
    EXPECT_EQ(layouts(), before + 1);
    machine.endTurn();
    EXPECT_EQ(layouts(), before + 1);
}

TEST_F(HostingViewTest, ATreeThatLooksTheSameIsNeitherLaidOutNorRepainted) {
    show();
    const auto before = layouts();
    const auto version = host->drawingVersion();
    model.unseen.set(1);
    host->setSize({200, 20});
    machine.endTurn();
    model.unseen.set(1);
    machine.endTurn();
    EXPECT_EQ(log, (std::vector<std::string>{"body", "unseen 1", "body"}));
    EXPECT_EQ(layouts(), before);
    EXPECT_EQ(host->drawingVersion(), version);
    // Yet it acts as declared last.
    click(150);
    EXPECT_EQ(log.back(), "tap one");
}

TEST_F(HostingViewTest, StateStaysWithItsPlaceAndGoesWithIt) {
    show();
    click(20);
    click(20);
    machine.endTurn();
    EXPECT_EQ(counter(), "2");
    model.title.set("two");
    machine.endTurn();
    EXPECT_EQ(counter(), "2") << "the view around it was declared anew";
    model.isOpen.set(false);
    machine.endTurn();
    model.isOpen.set(true);
    machine.endTurn();
    EXPECT_EQ(counter(), "0");
}

TEST_F(HostingViewTest, AClickCountsWhereItBeganAndEndedOnTheSameView) {
    show();
    send(platform::NSEventType::leftMouseDown, 20);
    send(platform::NSEventType::leftMouseUp, 150);
    send(platform::NSEventType::leftMouseDown, 5);  // a text reacts to nothing
    send(platform::NSEventType::leftMouseUp, 20);
    machine.endTurn();
    EXPECT_EQ(counter(), "0");
    EXPECT_TRUE(log.empty());
    // Rebuilt between press and release, it is still the same view.
    send(platform::NSEventType::leftMouseDown, 25);
    model.title.set("two");
    machine.endTurn();
    send(platform::NSEventType::leftMouseUp, 25);
    machine.endTurn();
    EXPECT_EQ(counter(), "1");
}

TEST_F(HostingViewTest, TheColourSchemeIsObservedOnlyByThoseWhoReadIt) {
    show(false);
    machine.appearance.colorScheme.set(platform::ColorScheme::dark);
    machine.endTurn();
    EXPECT_TRUE(log.empty());
    show(true);
    machine.appearance.colorScheme.set(platform::ColorScheme::light);
    machine.endTurn();
    EXPECT_EQ(log, std::vector<std::string>{"body"});
}

TEST_F(HostingViewTest, ATaskRunsWhileItsWindowIsOrderedIn) {
    show();
    host->setOrderedIn(true);
    EXPECT_TRUE(log.empty()) << "it begins in a later turn";
    machine.advance({});
    host->setOnScreen(false);  // as when the user goes to another space
    model.title.set("two");
    machine.endTurn();
    machine.advance(platform::seconds(2));
    EXPECT_EQ(log, (std::vector<std::string>{"task", "body", "slept", "slept"}))
        << "declaring it again doesn't start it again";
    EXPECT_GT(between.use_count(), 2);

    host->setOrderedIn(false);
    EXPECT_EQ(between.use_count(), 2) << "what it held is gone at once";
    log.clear();
    host->setOrderedIn(true);
    host->setOrderedIn(false);
    machine.advance(platform::seconds(2));
    EXPECT_TRUE(log.empty()) << "cancelled before it began";

    // Cancelled by what it does itself, it goes on to its next sleep.
    *between = [this] {
        host->setOrderedIn(false);
        log.emplace_back("closed");
    };
    host->setOrderedIn(true);
    machine.advance(platform::seconds(5));
    EXPECT_EQ(log, (std::vector<std::string>{"task", "slept", "closed"}));
    EXPECT_EQ(between.use_count(), 2);
}

TEST_F(HostingViewTest, NothingReachesAHostThatIsGone) {
    show();
    host->setOrderedIn(true);
    machine.advance(platform::seconds(0.5));
    model.title.set("two");
    host.reset();
    log.clear();
    EXPECT_EQ(model.observerCount(), 0U);
    EXPECT_EQ(between.use_count(), 1);
    machine.advance(platform::seconds(2));
    EXPECT_TRUE(log.empty());
}

// A button whose action changes what is shown, and runs a turn before it returns, as a modal alert does.
struct Reentrant {
    kit::ViewPlatform* machine;
    ObservedObject<Model> model;
    std::unique_ptr<HostingView>* host;

    void connect(Context& context) { context.connect(model); }
    View body() const {
        return Button(
            [this] {
                model->unseen.set(model->unseen.get() + 1);
                machine->endTurn();
                model->title.set("acted");
                machine->endTurn();
                if (model->unseen.get() == 2) host->reset();
                model->isOpen.set(false);
            },
            Text(model->title.get()));
    }
};

TEST_F(HostingViewTest, AnActionMayRunTurnsAndEvenEndItsHost) {
    host = std::make_unique<NSHostingView<Reentrant>>(machine.platform,
                                                      Reentrant{&machine, ObservedObject<Model>(model), &host});
    host->setSize({200, 20});
    machine.endTurn();
    click(100);
    EXPECT_EQ(host->elements().at(0).label, "acted");
    click(100);
    EXPECT_EQ(host, nullptr);
    EXPECT_FALSE(model.isOpen.get());
}

struct Pictured {
    View body() const {
        return ZStack({}, RoundedRectangle(10).strokeBorder(Color::of(ColorRole::accent, 0.5), 2),
                      HStack({.spacing = 0},
                             Text("abcdefgh").font({.size = 10}).lineLimit(1).truncationMode(TextTruncation::middle),
                             Image("folder").font({.size = 20}),
                             Rectangle().fill(Color::of(ColorRole::primary)).frame({.width = 1.25, .height = 18})))
            .foregroundStyle(ColorRole::secondary);
    }
};

TEST(Drawing, ShapesComeFirstAndTextIsShortenedToItsFrame) {
    kit::ViewPlatform machine;
    NSHostingView<Pictured> host(machine.platform, {});
    host.setSize({51.25, 32});
    machine.endTurn();
    // 30 points are left for the text of 48: two of its letters and the ellipsis make 5 characters of 6 points.
    const platform::Drawing expected{{
        platform::StrokeShape{{{{1, 1}, {49.5, 30}}, 9, CornerStyle::continuous}, Color::of(ColorRole::accent, 0.5), 2},
        platform::FillShape{{{{50, 7}, {1.5, 18}}, 0, CornerStyle::circular}, Color::of(ColorRole::primary)},
        platform::DrawText{"ab…gh", {.size = 10}, Color::of(ColorRole::secondary), {{0, 10}, {30, 12}}},
        platform::DrawSymbol{"folder", {.size = 20}, Color::of(ColorRole::secondary), {{30, 6}, {20, 20}}},
    }};
    EXPECT_EQ(host.drawing(), expected);
}

struct Described {
    View body() const {
        return VStack({.spacing = 0}, Button("Open", [] {}).help("Opens it"),
                      Menu({}, Image("gear")).accessibilityLabel("More").accessibilityIdentifier("more"),
                      VStack({}, Text("passed over")).accessibilityHidden(), Text("plain"));
    }
};

TEST(Accessibility, SaysWhatEachElementIs) {
    kit::ViewPlatform machine;
    NSHostingView<Described> host(machine.platform, {});
    host.setSize({100, 100});
    machine.endTurn();
    std::vector<std::string> said;
    for (const auto& element : host.elements())
        said.push_back(std::to_string(static_cast<int>(element.role)) + '|' + element.label + '|' + element.identifier +
                       '|' + element.help);
    EXPECT_EQ(said, (std::vector<std::string>{"3|Open||Opens it", "4|More|more|", "1|plain||"}));
}

}  // namespace
