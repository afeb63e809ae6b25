// Everything one needs to declare what a window shows: include this one. A view is a type with a body() that answers a
// tree of nodes:
//
//     struct Counter {
//         views::ObservedObject<Model> model;
//         views::State<bool> isOpen{false};
//         void connect(views::Context& context) { context.connect(model, isOpen); }
//         views::View body() const {
//             return views::HStack({.spacing = 4}, views::Text(model->title.get()),
//                                  views::Button("Open", [this] { isOpen.set(true); }));
//         }
//     };
//     window.setContentView(std::make_unique<views::NSHostingView<Counter>>(platform, Counter{...}));
//
// Closures may capture `this`: the tree keeps the value that declared them as long as they can be called.
#pragma once

#include "views/AccessibilityElement.h"
#include "views/Alignment.h"
#include "views/Binding.h"
#include "views/Context.h"
#include "views/Environment.h"
#include "views/HostingView.h"
#include "views/NSTextField.h"
#include "views/NSViewRepresentable.h"
#include "views/ObservedObject.h"
#include "views/RenderCounts.h"
#include "views/State.h"
#include "views/Task.h"
#include "views/View.h"
// What there is
#include "views/nodes/ButtonNode.h"
#include "views/nodes/ChangeNode.h"
#include "views/nodes/CompositeNode.h"
#include "views/nodes/DividerNode.h"
#include "views/nodes/EmptyNode.h"
#include "views/nodes/GeometryReaderNode.h"
#include "views/nodes/GridNode.h"
#include "views/nodes/GroupNode.h"
#include "views/nodes/LayersNode.h"
#include "views/nodes/LinkNode.h"
#include "views/nodes/MenuNode.h"
#include "views/nodes/PictureNode.h"
#include "views/nodes/RepresentableNode.h"
#include "views/nodes/RowsNode.h"
#include "views/nodes/ScrollNode.h"
#include "views/nodes/ShapeNode.h"
#include "views/nodes/SpacerNode.h"
#include "views/nodes/StackNode.h"
#include "views/nodes/SymbolNode.h"
#include "views/nodes/TextNode.h"
#include "views/nodes/ToggleNode.h"
