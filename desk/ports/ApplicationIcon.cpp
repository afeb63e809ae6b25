#include "desk/ports/ApplicationIcon.h"

#include <QPainter>

#include "desk/display/DecodedImage.h"
#include "desk/processes/Bundle.h"

namespace desk {

namespace {

constexpr const char* nameOfIcon = "application icon";

// A blank tile with the rounded square's proportions.
std::shared_ptr<const platform::ImagePixels> plainIcon(int size) {
    QImage picture(size, size, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient light(0, 0, 0, size);
    light.setColorAt(0, QColor(0xFD, 0xFD, 0xFE));
    light.setColorAt(1, QColor(0xC9, 0xCE, 0xD6));
    painter.setBrush(light);
    painter.setPen(QPen(QColor(0x9A, 0xA1, 0xAC), size / 128.0));
    const double margin = size * 0.1;
    painter.drawRoundedRect(QRectF(margin, margin, size - 2 * margin, size - 2 * margin), size * 0.18, size * 0.18);
    painter.end();
    return std::make_shared<DecodedImage>(std::move(picture));
}

}  // namespace

platform::NSImage applicationIcon(const Bundle& bundle, platform::ImageSystem& images) {
    const platform::Value* entry = platform::find(bundle.info, "CFBundleIconFile");
    const auto* file = entry == nullptr ? nullptr : entry->as<std::string>();
    const auto read =
        file == nullptr ? std::nullopt : images.imageWithContentsOf(bundle.path + "/Contents/Resources/" + *file);
    constexpr int plainSize = 256;
    if (!read) return {nameOfIcon, {plainSize, plainSize}, plainIcon(plainSize)};
    // The same pixels under another name, for as long as somebody holds them.
    const auto held = std::make_shared<platform::NSImage>(*read);
    return {nameOfIcon, read->size(), std::shared_ptr<const platform::ImagePixels>(held, held->pixels())};
}

}  // namespace desk
