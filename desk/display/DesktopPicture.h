// The picture on the desktop behind everything: calm hills under a sky, in a light and a dark version. Those of the last few screen sizes are kept.
#pragma once

#include <QImage>
#include <QSize>
#include <vector>

#include "platform/Drawing.h"

namespace desk {

class DesktopPicture {
public:
    QImage image(QSize pixels, platform::ColorScheme scheme);

private:
    std::vector<QImage> kept;
    platform::ColorScheme keptScheme = platform::ColorScheme::light;
};

}  // namespace desk
