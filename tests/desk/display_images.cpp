// Pictures to the pixel: from the Mac's disk, read, scaled about their middle, cut to a rounded shape; and drawn by a handler.
#include <gtest/gtest.h>

#include <QBuffer>

#include "desk/display/QtTextSystem.h"
#include "desk/ports/ImagesPort.h"
#include "platform/NSGraphicsContext.h"
#include "tests/desk/display_Picture.h"
#include "tests/kit/Desk.h"
#include "tests/kit/FixedText.h"
#include "tests/kit/ViewPlatform.h"
#include "views/LaidOutView.h"
#include "views/Views.h"

namespace {

std::string pngOf(QSize size, QColor color) {
    QImage image(size, QImage::Format_ARGB32);
    image.fill(color);
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data().toStdString();
}

struct Icon {
    platform::NSImage image;
    views::View body() const {
        return views::View(views::Image(image).resizable().interpolation(platform::ImageInterpolation::high))
            .frame({.width = 40, .height = 40})
            .scaleEffect(1.5)
            .clipShape(views::RoundedRectangle(10));
    }
};

TEST(FileImages, AreReadScaledAndClipped) {
    kit::Desk desk;
    ASSERT_TRUE(desk.machine.disk.makeFile("/Users/ana/red.png", pngOf({8, 4}, Qt::red)));
    desk::ImagesPort images(desk.machine.disk);
    const auto image = images.imageWithContentsOf("/Users/ana/../ana/red.png");
    ASSERT_TRUE(image);
    EXPECT_EQ(image->name(), "/Users/ana/red.png");
    EXPECT_EQ(image->size(), (platform::CGSize{8, 4}));

    kit::ViewPlatform machine;
    views::NSHostingView<Icon> host(machine.platform, Icon{*image});
    host.setSize({80, 60});
    machine.endTurn();
    const platform::CGRect frame = platform::CGRectMake(20, 10, 40, 40);
    EXPECT_EQ(host.drawing(), (platform::Drawing{{platform::BeginClip{frame, 10, platform::CornerStyle::continuous},
                                                  platform::DrawImage{*image, platform::CGRectMake(10, 0, 60, 60),
                                                                      platform::ImageInterpolation::high},
                                                  platform::EndClip{}}}));
    const QImage painted = picture::paint(host.drawing(), {80, 60});
    EXPECT_EQ(picture::inked(painted), QRect(40, 20, 80, 80));
    EXPECT_TRUE(picture::isNear(painted.pixelColor(80, 60), Qt::red));
    EXPECT_EQ(painted.pixelColor(41, 21).alpha(), 0) << "outside the rounded corner";
}

TEST(FileImages, AnswerNothingForWhatIsNoPicture) {
    kit::Desk desk;
    desk::ImagesPort images(desk.machine.disk);
    const std::string good = pngOf({64, 64}, Qt::blue);
    std::string huge = good;
    huge.replace(16, 8, std::string("\x7f\xff\xff\xff\x7f\xff\xff\xff", 8));
    const std::pair<const char*, std::string> hostile[] = {
        {"cut off", good.substr(0, good.size() / 2)}, {"empty", ""}, {"text", "not a picture"}, {"huge", huge}};
    for (const auto& [what, contents] : hostile) {
        ASSERT_TRUE(desk.machine.disk.makeFile("/Users/ana/bad.png", contents));
        EXPECT_FALSE(images.imageWithContentsOf("/Users/ana/bad.png")) << what;
    }
    EXPECT_FALSE(images.imageWithContentsOf("/Users/ana/none.png"));
    EXPECT_FALSE(images.imageWithContentsOf("/Users/ana"));
    EXPECT_FALSE(images.imageWithContentsOf(""));
}

// A line up the left side with round ends, a disc in the upper right corner.
platform::NSImage lineAndDisc() {
    platform::NSImage image({10, 10}, false, [](platform::NSGraphicsContext& context, const platform::CGRect&) {
        platform::NSBezierPath line;
        line.lineWidth = 2;
        line.lineCapStyle = platform::LineCap::round;
        line.move({2, 2});
        line.line({2, 8});
        context.stroke(line);
        context.fill(platform::NSBezierPath::ovalIn(platform::CGRectMake(5, 6, 4, 4)));
        return true;
    });
    image.setTemplate(true);
    return image;
}

TEST(DrawnImages, StandUprightInTheColourAroundThemAtAnySize) {
    kit::FixedText text;
    const auto painted = [&](views::View view, double side, double scale) {
        const views::LaidOutView laidOut(std::move(view).foregroundStyle(views::ColorRole::red), {side, side}, text);
        return picture::paint(laidOut.drawing(), {side, side}, scale);
    };
    const QImage image = painted(views::Image(lineAndDisc()), 10, 2);
    EXPECT_EQ(picture::inked(image), QRect(2, 0, 16, 18));
    const QColor red(0xFF, 0x3B, 0x30);
    for (const QPoint inside : {QPoint(3, 3), QPoint(3, 16), QPoint(14, 4)})
        EXPECT_TRUE(picture::isNear(image.pixelColor(inside), red)) << inside.x() << ", " << inside.y();
    for (const QPoint outside : {QPoint(14, 14), QPoint(10, 0), QPoint(8, 10)})
        EXPECT_EQ(image.pixelColor(outside).alpha(), 0) << outside.x() << ", " << outside.y();
    EXPECT_EQ(image, painted(views::View(views::Image(lineAndDisc()).resizable()), 20, 1));
}

}  // namespace
