#pragma once

#include "ObjectiveC/NSObject.h"

#include <memory>
#include <vector>

/// The platform's half of a constraint; each platform defines it.
class NSLayoutConstraintPeer;

/// A relation between the places or sizes of views, made by a layout anchor. It holds while it is active, and
/// only for views whose autoresizing masks are not translated into constraints. Main thread only.
class NSLayoutConstraint : public NSObject {
public:
    /// The views of each are to be in one tree by now.
    static void activateConstraints(const std::vector<Ref<NSLayoutConstraint>>& constraints);

    /// For the platform's own code.
    [[nodiscard]] NSLayoutConstraintPeer& peer() const { return *peer_; }

protected:
    explicit NSLayoutConstraint(std::unique_ptr<NSLayoutConstraintPeer> peer);
    ~NSLayoutConstraint() override;

private:
    const std::unique_ptr<NSLayoutConstraintPeer> peer_;
};
