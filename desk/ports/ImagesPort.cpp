#include "desk/ports/ImagesPort.h"

#include <QBuffer>
#include <QImageReader>
#include <memory>

#include "desk/disk/Disk.h"
#include "desk/display/DecodedImage.h"
#include "platform/FileURL.h"

namespace desk {

namespace {

// A small file may claim a picture that would fill the memory.
constexpr int mostPixelsAlongASide = 8192;

bool hasSaneSize(const QSize& size) {
    return size.isValid() && size.width() <= mostPixelsAlongASide && size.height() <= mostPixelsAlongASide;
}

}  // namespace

std::optional<platform::NSImage> ImagesPort::imageWithContentsOf(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) return std::nullopt;
    const std::string absolute = platform::standardizedPath(path, "/");
    const auto contents = disk.read(absolute);
    if (!contents) return std::nullopt;
    QByteArray bytes = QByteArray::fromStdString(*contents);
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    if (!hasSaneSize(reader.size())) return std::nullopt;
    QImage image = reader.read();
    if (image.isNull()) return std::nullopt;
    image.convertTo(QImage::Format_ARGB32_Premultiplied);
    const platform::CGSize size{static_cast<double>(image.width()), static_cast<double>(image.height())};
    return platform::NSImage(absolute, size, std::make_shared<DecodedImage>(std::move(image)));
}

}  // namespace desk
