#include "touches/DesktopTapGestureRecognizer.h"

#include "ObjectiveC/Class.h"

#include <utility>

namespace {

const Class classObject = Class::define<UITapGestureRecognizer>("UITapGestureRecognizer");

} // namespace

/// Keeps the contract's recogniser alive while a view has this one.
class DesktopTapGestureRecognizer::Worker final : public TapGestureRecognizer {
public:
    explicit Worker(DesktopTapGestureRecognizer& owner) : owner_(&owner) {
        addHandler([this] {
            if (const auto living = owner_.strong())
                living->tapped();
        });
    }

    // AttachedRecognizer:
    void attachTo(UIView& view) override {
        TapGestureRecognizer::attachTo(view);
        kept_ = owner_.strong();
    }

    void viewIsGone() override {
        const auto kept = std::exchange(kept_, nullptr);
        TapGestureRecognizer::viewIsGone();
    }

private:
    Weak<DesktopTapGestureRecognizer> owner_;
    Ref<DesktopTapGestureRecognizer> kept_;
};

DesktopTapGestureRecognizer::DesktopTapGestureRecognizer(NSObject& target, std::string action)
    : target_(&target),
      action_(std::move(action)),
      recognizer_(make<Worker>(*this)) {}

Ref<UITapGestureRecognizer> UITapGestureRecognizer::initWithTarget(NSObject& target,
                                                                   std::string_view action) {
    return make<DesktopTapGestureRecognizer>(target, std::string(action));
}

Ref<UIView> DesktopTapGestureRecognizer::view() const {
    return retain(recognizer_->view());
}

void DesktopTapGestureRecognizer::tapped() {
    if (const auto target = target_.strong())
        target->performSelector(action_, {Ref<NSObject>(retain(this))});
}
