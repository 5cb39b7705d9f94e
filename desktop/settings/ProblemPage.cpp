#include "ProblemPage.h"

#include "ObjectiveC/Class.h"
#include "ProblemView.h"
#include "SystemTexts.h"
#include "controllers/UIViewControllerPeer.h"

#include <memory>
#include <utility>

namespace {

const Class classObject = Class::define<ProblemPage, UIViewController>("ProblemPage");

class ProblemPagePeer final : public UIViewControllerPeer {
public:
    ProblemPagePeer(std::string title, std::string reason)
        : title_(std::move(title)),
          reason_(std::move(reason)) {}

    // UIViewControllerPeer:
    [[nodiscard]] Ref<UIView> makeView() override { return make<ProblemView>(title_, reason_); }

private:
    std::string title_;
    std::string reason_;
};

} // namespace

ProblemPage::ProblemPage(const std::string& label, const std::string& reason)
    : UIViewController(std::make_unique<ProblemPagePeer>(systemText("Cannot Open “%@”", {label}), reason)) {
    peer().setTitle(label);
}
