// The desk's pictures of folders, documents, disks and applications, drawn into a square of any size.
#pragma once

#include <string_view>

#include "desk/display/DrawingBuilder.h"
#include "platform/Geometry.h"

namespace desk {

void drawFolderIcon(DrawingBuilder& builder, const platform::CGRect& square);
void drawDocumentIcon(DrawingBuilder& builder, const platform::CGRect& square);
// A small folder window.
void drawWindowIcon(DrawingBuilder& builder, const platform::CGRect& square);
// Well-known applications have their own; others get their initial on a colour of their name's.
void drawApplicationIcon(DrawingBuilder& builder, const platform::CGRect& square, std::string_view name);

}  // namespace desk
