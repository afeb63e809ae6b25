// The composed picture, asked at probe points: what stands where, what covers what, and how often bars are painted.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "desk/desktop/DesktopLayers.h"
#include "desk/display/Compositor.h"
#include "desk/display/QtTextSystem.h"
#include "tests/desk/Probe.h"
#include "tests/desk/display_Picture.h"
#include "tests/kit/Desk.h"

namespace {

using picture::isNear;
using platform::CGRect;
using platform::CGRectMake;
using platform::Color;
using platform::ColorRole;

const QColor noScreen(0x0B, 0x0B, 0x0D);

// A plate of one colour with clear margins of 6 points, as a bar is.
class PlateView final : public platform::ContentView {
public:
    explicit PlateView(std::uint32_t rgb) { show(rgb); }
    void show(std::uint32_t rgb) {
        color = rgb;
        make();
    }

    void didMoveToWindow(platform::NSWindow*) override {}
    void setSize(platform::CGSize newSize) override {
        size = newSize;
        make();
    }
    void setOnScreen(bool) override {}
    bool acceptsFirstMouse(const platform::NSEvent&) override { return true; }
    void handleEvent(const platform::NSEvent&) override {}
    const platform::Drawing& drawing() override { return made; }
    std::uint64_t drawingVersion() const override { return version; }

private:
    void make() {
        const CGRect plate = CGRectMake(6, 6, size.width - 12, size.height - 12);
        made.operations = {platform::FillShape{{plate}, Color::hex(color)}};
        ++version;
    }

    std::uint32_t color = 0;
    platform::CGSize size;
    platform::Drawing made;
    std::uint64_t version = 0;
};

class Composed : public testing::Test {
protected:
    struct Bar {
        std::shared_ptr<kit::RecordingPanel> panel;
        PlateView* view;
    };

    Bar bar(const CGRect& frame, std::uint32_t rgb) {
        if (probe == nullptr) probe = &kit::launchProbe(desk);
        Bar made{probe->panel(frame), nullptr};
        made.panel->setBackgroundColor(Color::of(ColorRole::clear));
        made.panel->setHasShadow(false);
        auto view = std::make_unique<PlateView>(rgb);
        made.view = view.get();
        made.panel->setContentView(std::move(view));
        return made;
    }

    QImage compose() { return compositor.compose(layers.read(), 1); }
    // At an AppKit point of a picture of the one default screen.
    static QColor at(const QImage& image, int x, int y) { return image.pixelColor(x, image.height() - 1 - y); }

    kit::Desk desk{std::make_unique<desk::QtTextSystem>()};
    desk::DesktopLayers layers{desk.machine};
    desk::Compositor compositor;
    kit::Probe* probe = nullptr;
};

TEST_F(Composed, PictureCoversAllScreensAndIsDarkBetween) {
    auto& displays = desk.machine.displays;
    displays.add({CGRectMake(0, 0, 400, 300), 60, 24, 0});
    displays.add({CGRectMake(-200, 150, 200, 250), 60, 0, 0});
    const QImage image = compositor.compose(layers.read(), 2);
    EXPECT_EQ(image.size(), QSize(1200, 800));
    EXPECT_EQ(image.pixelColor(100, 700), noScreen);  // below the left screen
    EXPECT_EQ(image.pixelColor(600, 100), noScreen);  // above the right one
    EXPECT_NE(image.pixelColor(100, 400), noScreen);
    EXPECT_NE(image.pixelColor(1000, 700), noScreen);
}

TEST_F(Composed, WindowsStayWithinTheScreens) {
    auto& displays = desk.machine.displays;
    displays.add({CGRectMake(0, 0, 400, 300), 60, 24, 0});
    displays.add({CGRectMake(400, 100, 400, 300), 60, 24, 0});
    desk.machine.finder.open("/Users/ana", CGRectMake(200, 20, 400, 200));
    desk.machine.settle();
    const QImage image = compose();
    EXPECT_EQ(at(image, 500, 50), noScreen);
    EXPECT_FALSE(isNear(at(image, 300, 30), noScreen, 40));
}

TEST_F(Composed, WithoutScreensThereIsAPointOfDarkness) {
    desk.machine.displays.removeAll();
    EXPECT_EQ(compositor.compose(layers.read(), 2).size(), QSize(2, 2));
}

TEST_F(Composed, TooLargeAPictureIsNone) {
    desk.machine.displays.add({CGRectMake(0, 0, 1e9, 1e9), 60, 24, 0});
    EXPECT_TRUE(compose().isNull());
    EXPECT_FALSE(desk::savePng(QImage(), "/tmp/none.png"));
}

// The sidebar and the list have different shades; the close button is red while active.
TEST_F(Composed, FinderWindowsLookActiveOnlyInFront) {
    const auto [back, front] = desk.twoWindows();  // (100, 200, 800, 500), (400, 100, 700, 400)
    const QImage image = compose();
    EXPECT_TRUE(isNear(at(image, 420, 486), QColor(0xFF, 0x5F, 0x57))) << at(image, 420, 486).name().toStdString();
    EXPECT_TRUE(isNear(at(image, 120, 686), QColor(0xCF, 0xCE, 0xCF))) << at(image, 120, 686).name().toStdString();
    desk.machine.finder.raise(back);
    EXPECT_TRUE(isNear(at(compose(), 120, 686), QColor(0xFF, 0x5F, 0x57)));
}

TEST_F(Composed, WindowCornersShowWhatIsBehind) {
    const QImage empty = compose();
    desk.twoWindows();
    const QImage image = compose();
    // The outermost pixel of the corner is the desktop under the window's shadow; a little further in stands the window.
    EXPECT_LT(at(image, 100, 699).lightness(), at(empty, 100, 699).lightness());
    EXPECT_GT(at(image, 100, 699).lightness(), at(empty, 100, 699).lightness() * 7 / 10);
    EXPECT_TRUE(isNear(at(image, 150, 697), QColor(0xF0, 0xEF, 0xF1)));
    EXPECT_EQ(at(image, 1300, 800), at(empty, 1300, 800));
}

TEST_F(Composed, SelectionIsHighlighted) {
    desk.tree({"/Users/ana/Work/One/a.txt", "/Users/ana/Work/One/b.txt"});
    const auto window = desk.machine.finder.open("/Users/ana/Work/One", CGRectMake(100, 200, 800, 500));
    desk.machine.finder.select(*window, {"/Users/ana/Work/One/b.txt"});
    desk.machine.settle();
    // Rows begin 52 points below the top and are 24 high; the second one's middle is 88 below 700.
    const int probeX = 100 + 168 + 16;
    EXPECT_TRUE(isNear(at(compose(), probeX, 700 - 88), QColor(0x00, 0x7A, 0xFF)));
    desk.machine.finder.select(*window, {});
    EXPECT_FALSE(isNear(at(compose(), probeX, 700 - 88), QColor(0x00, 0x7A, 0xFF)));
}

TEST_F(Composed, BarsLieOverTheirSurroundingsWithClearMargins) {
    const QImage before = compose();
    const Bar made = bar(CGRectMake(100, 300, 400, 44), 0x00FF00);
    const QImage after = compose();
    EXPECT_EQ(at(after, 300, 320), QColor(0x00, 0xFF, 0x00));
    EXPECT_EQ(at(after, 300, 303), at(before, 300, 303));
    EXPECT_EQ(at(after, 102, 320), at(before, 102, 320));
}

TEST_F(Composed, BarsArePaintedAgainOnlyWhenTheirDrawingChanged) {
    const Bar one = bar(CGRectMake(100, 300, 400, 44), 0x00FF00);
    const Bar two = bar(CGRectMake(100, 500, 400, 44), 0x0000FF);
    compose();
    EXPECT_EQ(compositor.counts().barPaints, 2);
    compose();
    one.panel->setFrameOrigin({200, 350});
    const QImage moved = compose();
    EXPECT_EQ(compositor.counts().barPaints, 2);
    EXPECT_EQ(at(moved, 580, 370), QColor(0x00, 0xFF, 0x00));
    two.view->show(0xFF0000);
    EXPECT_EQ(at(compose(), 300, 520), QColor(0xFF, 0x00, 0x00));
    EXPECT_EQ(compositor.counts().barPaints, 3);
    desk.machine.appearance.colorScheme.set(platform::ColorScheme::dark);
    compose();
    EXPECT_EQ(compositor.counts().barPaints, 5);
}

TEST_F(Composed, CoveredAndAbsentBarsKeepNoPicture) {
    const Bar covered = bar(CGRectMake(300, 300, 400, 44), 0x00FF00);
    const Bar seen = bar(CGRectMake(20, 20, 100, 44), 0x0000FF);
    compose();
    EXPECT_EQ(compositor.keptPictures(), 2U);
    desk.machine.finder.open("/Users/ana", CGRectMake(200, 200, 800, 400));
    desk.machine.settle();
    desk.machine.windows.raise(101);
    compose();
    EXPECT_EQ(compositor.keptPictures(), 1U);
    seen.panel->orderOut();
    compose();
    EXPECT_EQ(compositor.keptPictures(), 0U);
    covered.panel->orderFrontRegardless();
    EXPECT_EQ(at(compose(), 500, 320), QColor(0x00, 0xFF, 0x00));
}

TEST_F(Composed, OneBarAloneStandsOnNothing) {
    const Bar made = bar(CGRectMake(100, 300, 400, 44), 0x00FF00);
    const QImage image =
        compositor.composeWindow(*layers.contentOf(made.panel->windowNumber()), platform::ColorScheme::light, 2);
    EXPECT_EQ(image.size(), QSize(800, 88));
    EXPECT_EQ(image.pixelColor(400, 44), QColor(0x00, 0xFF, 0x00));
    EXPECT_EQ(image.pixelColor(400, 4).alpha(), 0);
    desk.twoWindows();
    EXPECT_FALSE(layers.contentOf(101));
    EXPECT_FALSE(layers.contentOf(7));
}

TEST_F(Composed, MenuBarAndDockTakeTheirRoomAndGoInFullScreen) {
    desk.machine.displays.add({CGRectMake(0, 0, 800, 600), 60, 24, 70});
    const auto window = desk.machine.finder.open("/Users/ana", CGRectMake(100, 150, 400, 300));
    desk.machine.settle();
    const QImage image = compose();
    EXPECT_GT(at(image, 700 - 350, 590).lightness(), 215);  // the menu bar is light
    EXPECT_NE(at(image, 400, 30), at(image, 100, 30));      // the Dock is in the middle alone
    desk.machine.finder.setFullScreen(*window, true);
    desk.machine.settle();
    const QImage full = compose();
    EXPECT_TRUE(isNear(at(full, 20, 586), QColor(0xFF, 0x5F, 0x57)));
}

TEST_F(Composed, SchemeChangesTheWholePicture) {
    desk.twoWindows();
    const QImage light = compose();
    desk.machine.appearance.colorScheme.set(platform::ColorScheme::dark);
    const QImage dark = compose();
    for (const QPoint point : {QPoint(800, 890), QPoint(900, 300), QPoint(200, 650), QPoint(50, 50)})
        EXPECT_LT(at(dark, point.x(), point.y()).lightness() + 60, at(light, point.x(), point.y()).lightness())
            << point.x() << " " << point.y();
}

TEST_F(Composed, ContentOfAFolderIsReadAnewEachTime) {
    desk.tree({"/Users/ana/Work/One/"});
    desk.machine.finder.open("/Users/ana/Work/One", CGRectMake(100, 200, 800, 500));
    desk.machine.settle();
    const QImage empty = compose();
    EXPECT_EQ(compose(), empty);
    desk.tree({"/Users/ana/Work/One/new.txt"});
    EXPECT_NE(compose(), empty);
}

testing::AssertionResult isSame(const QImage& shown, const QImage& wanted) {
    if (shown == wanted) return testing::AssertionSuccess();
    int count = 0;
    QRect place;
    for (int y = 0; y < wanted.height(); ++y)
        for (int x = 0; x < wanted.width(); ++x)
            if (shown.pixel(x, y) != wanted.pixel(x, y)) {
                place |= QRect(x, y, 1, 1);
                ++count;
            }
    return testing::AssertionFailure() << count << " pixels differ within " << place.x() << ", " << place.y() << ", "
                                       << place.width() << ", " << place.height();
}

// Whatever happens between two pictures: painting what differs comes out as painting everything.
TEST_F(Composed, PictureBroughtUpToDateIsThePictureMadeAnew) {
    auto& machine = desk.machine;
    const auto [back, front] = desk.twoWindows();
    Bar above = bar(CGRectMake(100, 700, 800, 44), 0x3060C0);
    above.panel->orderFrontRegardless();
    std::optional<std::int64_t> third;
    const std::vector<std::function<void()>> changes{
        [] {},
        [&, number = back] { machine.finder.raise(number); },
        [&, number = back] { machine.finder.setFrame(number, CGRectMake(140.5, 230.25, 640, 420)); },
        [&] { above.panel->setFrame(CGRectMake(140.5, 650.25, 640, 44), true); },
        [&] { above.view->show(0xC03060); },
        [&, number = front] { machine.finder.go(number, "/Users/ana/Documents"); },
        [&] { third = machine.finder.open("/Users/ana/Downloads", CGRectMake(300, 250, 500, 300)); },
        [&, number = front] { machine.finder.minimize(number); },
        [&] { machine.launchServices.startOtherProcess("com.example.notes"); },
        [&] { machine.activation.activate("com.example.notes"); },
        [&] { machine.finder.openInfoPanel("/Users/ana/Documents"); },
        [&] { machine.finder.setFullScreen(*third, true); },
        [&] { machine.finder.setFullScreen(*third, false); },
        [&] {
            machine.displays.add({CGRectMake(1440, 0, 800, 600), 60, 24, 40});
        },
        [&] { machine.appearance.colorScheme.set(platform::ColorScheme::dark); },
        [&] { machine.finder.close(*third); },
        [&] { machine.finder.quit(); }};
    for (const double scale : {1.0, 1.5}) {
        desk::DesktopFrame frame;
        compositor.update(layers.read(), frame, scale);
        EXPECT_TRUE(compositor.update(layers.read(), frame, scale).isEmpty());
    }
    desk::DesktopFrame frame;
    compositor.update(layers.read(), frame, 1.5);
    for (std::size_t i = 0; i < changes.size(); ++i) {
        changes[i]();
        machine.settle();
        compositor.update(layers.read(), frame, 1.5);
        EXPECT_TRUE(isSame(frame.image, desk::Compositor().compose(layers.read(), 1.5))) << "after change " << i;
    }
}

}  // namespace
