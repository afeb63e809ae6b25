// The pixels of a picture that was read from the disk, as the display paints them.
#pragma once

#include <QImage>
#include <utility>

#include "platform/Images.h"

namespace desk {

class DecodedImage final : public platform::ImagePixels {
public:
    explicit DecodedImage(QImage theImage) : image(std::move(theImage)) {}
    const QImage image;
};

}  // namespace desk
