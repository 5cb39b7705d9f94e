#pragma once

#include "DesktopColor.h"
#include "DesktopImage.h"
#include "OBWelcomeControllerPeer.h"
#include "Phone.h"
#include "PrimaryColors.h"
#include "screen/Compositor.h"
#include "scrolling/UIScrollViewPeer.h"
#include "touches/TapGestureRecognizer.h"
#include "views/UILabelPeer.h"
#include "views/UIViewPeer.h"

#include <functional>
#include <string>
#include <vector>

/// A screen of a sheet's size with a welcome page that fills it, and shorthand for the page's parts.
class WelcomeFixture : public Phone {
protected:
    static constexpr CGSize phoneSheet{390, 787};
    static constexpr CGSize formSheet{540, 620};
    static constexpr CGSize pageSheet{712, 900};

    WelcomeFixture();

    /// Shows a page in place of the one before it. \returns it
    const Ref<OBWelcomeController>& show(const Ref<OBWelcomeController>& page);
    /// A page of a short title.
    const Ref<OBWelcomeController>& show();
    void resize(CGSize size);

    /// Items with a symbol and a short text.
    void addItems(const std::vector<std::string>& titles);

    [[nodiscard]] const Ref<OBWelcomeController>& page() const { return page_; }

    [[nodiscard]] OBWelcomeControllerPeer& peer() const { return peerOf<OBWelcomeControllerPeer>(*page_); }

    [[nodiscard]] UIViewPeer& list() const { return peer().welcomeView().list().peer(); }

    [[nodiscard]] OBHeaderView& header() const { return peer().welcomeView().header(); }

    [[nodiscard]] UIScrollViewPeer& scroll() const {
        return peerOf<UIScrollViewPeer>(peer().welcomeView().scrollView());
    }

    [[nodiscard]] const std::vector<Ref<OBBulletedListItem>>& items() const {
        return peer().welcomeView().list().items();
    }

    [[nodiscard]] std::vector<std::string> itemTitles() const;

    [[nodiscard]] UIImageView& image(std::size_t item) const { return imageIn(*items()[item]); }

    [[nodiscard]] UIImageView& headerImage() const { return imageIn(header()); }

    /// The title's, then the text's, laid out.
    std::vector<UILabel*> labels(std::size_t item);
    std::vector<UILabel*> headerLabels();

    /// Whether the view shows that colour somewhere.
    bool hasColor(const UIView& view, const QColor& color);

    static void forEachView(const UIView& root, const std::function<void(UIView& view)>& action);

    [[nodiscard]] static Ref<UIImage> symbol(const char* name) { return UIImage::systemImageNamed(name); }

    /// A green one.
    [[nodiscard]] static Ref<UIImage> picture(int width, int height);

    [[nodiscard]] static bool isShortened(UILabel& label) { return peerOf<UILabelPeer>(label).isTruncated(); }

    Compositor compositor{screen};

private:
    [[nodiscard]] static UIImageView& imageIn(const UIView& view);
    static std::vector<UILabel*> labelsIn(const UIView& view);

    Ref<OBWelcomeController> page_;
};
