#include "WelcomeFixture.h"

#include <cmath>

WelcomeFixture::WelcomeFixture() : Phone({.scale = 2, .size = phoneSheet}) {}

const Ref<OBWelcomeController>& WelcomeFixture::show(const Ref<OBWelcomeController>& page) {
    page_ = page;
    Phone::show(page);
    return page_;
}

const Ref<OBWelcomeController>& WelcomeFixture::show() {
    return show(OBWelcomeController::initWithTitle("New", std::nullopt, Ref<UIImage>()));
}

void WelcomeFixture::resize(CGSize size) {
    screen.setSize(size);
    layOut();
}

void WelcomeFixture::addItems(const std::vector<std::string>& titles) {
    for (const auto& title : titles)
        page_->addBulletedListItemWithTitle(title, "A text.", symbol("gear"));
    layOut();
}

std::vector<std::string> WelcomeFixture::itemTitles() const {
    std::vector<std::string> titles;
    for (const auto& item : items())
        titles.push_back(item->content().title);
    return titles;
}

std::vector<UILabel*> WelcomeFixture::labels(std::size_t item) {
    layOut();
    return labelsIn(*items()[item]);
}

std::vector<UILabel*> WelcomeFixture::headerLabels() {
    layOut();
    return labelsIn(header());
}

bool WelcomeFixture::hasColor(const UIView& view, const QColor& color) {
    const auto& shown = compositor.render();
    const auto scale = screen.traits().displayScale;
    const auto frame = view.peer().convertToScreen(view.bounds());
    const auto part = shown.copy(QRectF(frame.origin.x * scale, frame.origin.y * scale,
                                        frame.size.width * scale, frame.size.height * scale)
                                     .toRect());
    for (int y = 0; y < part.height(); ++y) {
        for (int x = 0; x < part.width(); ++x) {
            if (part.pixelColor(x, y) == color)
                return true;
        }
    }
    return false;
}

void WelcomeFixture::forEachView(const UIView& root, const std::function<void(UIView& view)>& action) {
    for (const auto& subview : root.peer().subviews()) {
        action(*subview);
        forEachView(*subview, action);
    }
}

Ref<UIImage> WelcomeFixture::picture(int width, int height) {
    QImage picture(width, height, QImage::Format_ARGB32);
    picture.fill(Qt::green);
    return make<DesktopImage>(picture, 1.0);
}

UIImageView& WelcomeFixture::imageIn(const UIView& view) {
    for (const auto& subview : view.peer().subviews()) {
        if (auto* const image = dynamic_cast<UIImageView*>(subview.get()))
            return *image;
    }
    ADD_FAILURE() << "there is no image view";
    std::abort();
}

std::vector<UILabel*> WelcomeFixture::labelsIn(const UIView& view) {
    std::vector<UILabel*> labels;
    for (const auto& subview : view.peer().subviews()) {
        if (auto* const label = dynamic_cast<UILabel*>(subview.get()))
            labels.push_back(label);
    }
    return labels;
}
