#pragma once

#include "UIKit/UITextField.h"
#include "WindowFixture.h"

/// The same with a text field below the buttons.
class TextWindowFixture : public WindowFixture {
protected:
    TextWindowFixture() {
        field_->setFrame(CGRectMake(20, 300, 200, 40));
        field_->setPlaceholder("Name");
        window->addSubview(field_);
        run();
    }

    Ref<UITextField> field_ = make<UITextField>();
};
