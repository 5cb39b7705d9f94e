// What the functions that cells and sheets are made with send to the frameworks.

#include "Framework.h"
#include "Instances.h"
#include "Journal.h"
#include "Preferences/PSListController.h"
#include "QuartzCore/CAGradientLayer.h"
#include "UIKit/NSLayoutDimension.h"
#include "UIKit/NSLayoutXAxisAnchor.h"
#include "UIKit/NSLayoutYAxisAnchor.h"
#include "UIKit/UIButton.h"
#include "UIKit/UILayoutGuide.h"
#include "UIKit/UINavigationBar.h"
#include "UIKit/UIStackView.h"
#include "UIKit/UITableView.h"
#include "UIKit/UITapGestureRecognizer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using Lines = std::vector<std::string>;

class ViewMessagesTest : public testing::Test {
protected:
    ViewMessagesTest() { takeJournal(); }

    const Ref<UIView> view = make<UIView>();
};

} // namespace

TEST_F(ViewMessagesTest, AViewsLooksAndTree) {
    const auto inner = make<UIView>();
    takeJournal();
    view->setTag(-7);
    view->setLayoutMargins({.top = 1, .left = 2, .bottom = 3, .right = 4});
    view->setTranslatesAutoresizingMaskIntoConstraints(false);
    view->tintColorDidChange();
    view->didMoveToSuperview();
    EXPECT_EQ(takeJournal(), (Lines{"-[UIView setTag:] -7", "-[UIView setLayoutMargins:] {1, 2, 3, 4}",
                                    "-[UIView setTranslatesAutoresizingMaskIntoConstraints:] 0",
                                    "-[UIView tintColorDidChange]", "-[UIView didMoveToSuperview]"}));
    EXPECT_TRUE(view->tintColor());
    view->addSubview(inner);
    EXPECT_EQ(view->subviews(), std::vector{inner});
}

TEST_F(ViewMessagesTest, ConstraintsBetweenAnchors) {
    const auto other = make<UIView>();
    takeJournal();
    NSLayoutConstraint::activateConstraints(
        {view->leadingAnchor()->constraintEqualToAnchor(other->trailingAnchor(), 8),
         view->widthAnchor()->constraintEqualToConstant(29)});
    EXPECT_EQ(takeJournal(),
              (Lines{"-[UIView leadingAnchor]", "-[UIView trailingAnchor]",
                     "-[NSLayoutXAxisAnchor constraintEqualToAnchor:constant:] NSLayoutXAxisAnchor 8",
                     "-[UIView widthAnchor]", "-[NSLayoutDimension constraintEqualToConstant:] 29",
                     "+[NSLayoutConstraint activateConstraints:] [NSLayoutConstraint, NSLayoutConstraint]"}));
}

TEST_F(ViewMessagesTest, EveryAnchorIsAskedForByItsName) {
    EXPECT_TRUE(view->centerXAnchor()->constraintEqualToAnchor(view->centerXAnchor()));
    EXPECT_TRUE(view->topAnchor()->constraintEqualToAnchor(view->bottomAnchor()));
    EXPECT_TRUE(view->heightAnchor()->constraintEqualToAnchor(view->heightAnchor(), 2));
    EXPECT_TRUE(view->centerYAnchor());
    EXPECT_EQ(takeJournal(),
              (Lines{"-[UIView centerXAnchor]", "-[UIView centerXAnchor]",
                     "-[NSLayoutXAxisAnchor constraintEqualToAnchor:constant:] NSLayoutXAxisAnchor 0",
                     "-[UIView topAnchor]", "-[UIView bottomAnchor]",
                     "-[NSLayoutYAxisAnchor constraintEqualToAnchor:constant:] NSLayoutYAxisAnchor 0",
                     "-[UIView heightAnchor]", "-[UIView heightAnchor]",
                     "-[NSLayoutDimension constraintEqualToAnchor:constant:] NSLayoutDimension 2",
                     "-[UIView centerYAnchor]"}));
}

TEST_F(ViewMessagesTest, TheSafeAreasGuide) {
    const auto guide = view->safeAreaLayoutGuide();
    EXPECT_TRUE(guide->topAnchor());
    EXPECT_TRUE(guide->centerYAnchor());
    EXPECT_EQ(takeJournal(), (Lines{"-[UIView safeAreaLayoutGuide]", "-[UILayoutGuide topAnchor]",
                                    "-[UILayoutGuide centerYAnchor]"}));
}

TEST_F(ViewMessagesTest, ATapRecogniser) {
    const auto tap = UITapGestureRecognizer::initWithTarget(*view, "tapped:");
    EXPECT_FALSE(tap->view());
    view->addGestureRecognizer(tap);
    EXPECT_EQ(tap->view(), view);
    EXPECT_EQ(takeJournal(), (Lines{"-[UITapGestureRecognizer initWithTarget:action:] UIView tapped:",
                                    "-[UIView addGestureRecognizer:] UITapGestureRecognizer"}));
}

TEST_F(ViewMessagesTest, AButton) {
    const auto button = UIButton::buttonWithType(UIButtonType::InfoDark);
    const auto image = UIImage::systemImageNamed("gear");
    takeJournal();
    button->setImage(image, UIControlState::Normal);
    button->setImageEdgeInsets({.top = 1, .left = 2, .bottom = 3, .right = 4});
    button->setContentHorizontalAlignment(UIControlContentHorizontalAlignment::Fill);
    button->setContentVerticalAlignment(UIControlContentVerticalAlignment::Fill);
    EXPECT_EQ(takeJournal(), (Lines{"-[UIButton setImage:forState:] <gear 0> 0",
                                    "-[UIButton setImageEdgeInsets:] {1, 2, 3, 4}",
                                    "-[UIButton setContentHorizontalAlignment:] 3",
                                    "-[UIButton setContentVerticalAlignment:] 3"}));
    button->imageView().setContentMode(UIViewContentMode::ScaleAspectFit);
    EXPECT_EQ(takeJournal().back(), "-[UIImageView setContentMode:] 1");
}

TEST_F(ViewMessagesTest, TheTypeOfAButton) {
    const auto button = UIButton::buttonWithType(UIButtonType::InfoDark);
    EXPECT_EQ(takeJournal().front(), "+[UIButton buttonWithType:] 4");
}

TEST_F(ViewMessagesTest, AStack) {
    const auto stack = make<UIStackView>();
    takeJournal();
    stack->setAxis(UILayoutConstraintAxis::Vertical);
    stack->setDistribution(UIStackViewDistribution::EqualSpacing);
    stack->setAlignment(UIStackViewAlignment::Center);
    stack->setSpacing(2.5);
    stack->setLayoutMarginsRelativeArrangement(true);
    stack->addArrangedSubview(view);
    EXPECT_EQ(takeJournal(), (Lines{"-[UIStackView setAxis:] 1", "-[UIStackView setDistribution:] 3",
                                    "-[UIStackView setAlignment:] 3", "-[UIStackView setSpacing:] 2.5",
                                    "-[UIStackView setLayoutMarginsRelativeArrangement:] 1",
                                    "-[UIStackView addArrangedSubview:] UIView"}));
}

TEST_F(ViewMessagesTest, ALayerOfAGradient) {
    const auto gradient = make<CAGradientLayer>();
    takeJournal();
    gradient->setFrame(CGRectMake(1, 2, 3, 4));
    gradient->setColors({UIColor::blackColor(), UIColor::whiteColor()});
    gradient->setStartPoint({0, 0.5});
    gradient->setEndPoint({1, 0.5});
    view->layer().insertSublayer(gradient, 2);
    EXPECT_EQ(takeJournal(),
              (Lines{"-[CAGradientLayer setFrame:] {{1, 2}, {3, 4}}",
                     "-[CAGradientLayer setColors:] [black, white]",
                     "-[CAGradientLayer setStartPoint:] {0, 0.5}", "-[CAGradientLayer setEndPoint:] {1, 0.5}",
                     "-[CALayer insertSublayer:atIndex:] CAGradientLayer 2"}));
}

TEST_F(ViewMessagesTest, ABarOfItsOwn) {
    const auto bar = make<UINavigationBar>();
    takeJournal();
    const auto item = UINavigationItem::initWithTitle("Colours");
    item->setLeftBarButtonItem(
        UIBarButtonItem::initWithTitle("Reset", UIBarButtonItemStyle::Plain, *view, "reset"));
    item->setRightBarButtonItem(
        UIBarButtonItem::initWithTitle("Done", UIBarButtonItemStyle::Done, *view, "done:"));
    bar->setItems({item});
    EXPECT_EQ(takeJournal(),
              (Lines{"-[UINavigationItem initWithTitle:] \"Colours\"",
                     "-[UIBarButtonItem initWithTitle:style:target:action:] \"Reset\" 0 UIView reset",
                     "-[UINavigationItem setLeftBarButtonItem:] UIBarButtonItem",
                     "-[UIBarButtonItem initWithTitle:style:target:action:] \"Done\" 2 UIView done:",
                     "-[UINavigationItem setRightBarButtonItem:] UIBarButtonItem",
                     "-[UINavigationBar setItems:] [UINavigationItem]"}));
}

TEST_F(ViewMessagesTest, AnUpdateOfAPagesTable) {
    const auto page = make<PSListController>();
    const auto table = page->table();
    takeJournal();
    table->beginUpdates();
    table->endUpdates();
    EXPECT_EQ(takeJournal(), (Lines{"-[UITableView beginUpdates]", "-[UITableView endUpdates]"}));
}
