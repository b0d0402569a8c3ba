// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/Annotation/AnnotationStore.h"
#include "core/Rendering/TextGeometry.h"
#include "ui/Editor/Canvas/CanvasCommands.h"
#include "ui/Editor/Canvas/CanvasKeys.h"
#include "ui/Editor/Canvas/CanvasLayer.h"
#include "ui/Editor/Canvas/CanvasMenu.h"
#include "ui/Editor/Canvas/CanvasNavigation.h"
#include "ui/Editor/Canvas/CanvasPointer.h"
#include "ui/Editor/Canvas/CanvasScrollBars.h"
#include "ui/Editor/Canvas/CanvasSurface.h"
#include "ui/Editor/Canvas/CanvasView.h"
#include "ui/Editor/Canvas/CanvasViewport.h"
#include "ui/Editor/Canvas/TextEditor.h"

namespace tessaly {

/// The commands of the context menu that the canvas leaves to its window.
class RequestedCommands : public CommandTarget {
public:
    explicit RequestedCommands(CanvasView &view) : m_view(view) { }
    bool knows(CommandId) const override { return true; }
    bool canPerform(CommandId) const override { return true; }
    void perform(CommandId command) override { Q_EMIT m_view.commandRequested(command); }

private:
    CanvasView &m_view;
};

/// What a canvas consists of, in the order in which one needs the other.
struct CanvasView::Implementation {
    Implementation(CanvasView &view, AnnotationStore &annotations, EditorZoom &zoom, const Services &services) :
        store(annotations),
        controller(store, textGeometry, services.clock),
        surface(view, store, controller, viewport, layer),
        navigation(view, store, controller, viewport, zoom),
        bars(view, viewport, navigation),
        text(store, textGeometry, controller, services.clipboard),
        pointer(view, controller, navigation, text, layer),
        commands(store, controller, text, services.clipboard, services.styles, services.copiedStyle, layer),
        requests(view),
        keys(store, controller, pointer, commands, text, layer),
        menu(view, store, controller, commands, text, requests, layer)
    {
    }

    AnnotationStore &store;
    CanvasLayerSlot layer;
    TextGeometry textGeometry;
    CanvasController controller;
    CanvasViewport viewport;
    CanvasSurface surface;
    CanvasNavigation navigation;
    CanvasScrollBars bars;
    TextEditor text;
    CanvasPointer pointer;
    CanvasCommands commands;
    RequestedCommands requests;
    CanvasKeys keys;
    CanvasMenu menu;
};

} // namespace tessaly
