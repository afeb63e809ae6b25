#include "platform/Images.h"

#include "platform/NSGraphicsContext.h"

namespace platform {

NSImage::NSImage(CGSize theSize, bool isFlipped, const DrawingHandler& handler) : ownSize(theSize), flipped(isFlipped) {
    NSGraphicsContext context;
    const bool isThere = handler(context, {{0, 0}, theSize});
    drawn = std::make_shared<const Drawing>(isThere ? context.takeDrawing() : Drawing());
}

}  // namespace platform
