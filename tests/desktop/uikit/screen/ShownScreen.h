#pragma once

#include "DesktopColor.h"
#include "PrimaryColors.h"
#include "TestDevice.h"
#include "screen/Compositor.h"
#include "screen/Screen.h"
#include "screen/UIWindow.h"
#include "views/UIViewPeer.h"

#include <QColor>

/// A device with a small screen of one white window, and a compositor that paints it.
struct ShownScreen {
    explicit ShownScreen(CGSize size = {40, 40}, double scale = 1)
        : screen({.scale = scale, .size = size}),
          window(make<UIWindow>()),
          compositor(screen) {
        window->setBackgroundColor(UIColor::whiteColor());
        screen.addWindow(window);
    }

    ~ShownScreen() { screen.removeWindow(*window); }

    ShownScreen(const ShownScreen&) = delete;
    ShownScreen& operator=(const ShownScreen&) = delete;

    /// A view of a fixed colour, in front of those that are in the window.
    Ref<UIView> add(const CGRect& frame, const ColorComponents& color) const {
        return add(*window, frame, color);
    }

    static Ref<UIView> add(UIView& superview, const CGRect& frame, const ColorComponents& color) {
        auto view = makeWith<UIView>(&UIView::initWithFrame, frame);
        view->setBackgroundColor(DesktopColor::fixed(color));
        superview.addSubview(view);
        return view;
    }

    /// The same where nobody asks for the view.
    void put(const CGRect& frame, const ColorComponents& color) const { put(*window, frame, color); }

    static void put(UIView& superview, const CGRect& frame, const ColorComponents& color) {
        const auto view = add(superview, frame, color);
    }

    /// The colour of a pixel of the next picture.
    QColor pixel(int x, int y) { return compositor.render().pixelColor(x, y); }

    TestDevice device;
    Screen screen;
    Ref<UIWindow> window;
    Compositor compositor;
};
