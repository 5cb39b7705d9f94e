#include "PaintList.h"

#include "QuartzCore/CALayer.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

namespace {

/// A picture of 60 pixels by 40 with opaque layers in it.
class PaintListTest : public testing::Test {
protected:
    void add(const CGRect& frame) {
        const auto layer = make<CALayer>();
        layer->setFrame(frame);
        layer->peer().setColor(LayerProperty::BackgroundColor, {.alpha = 1});
        root_->peer().addSublayer(layer);
    }

    [[nodiscard]] QRect opaque() const {
        root_->setFrame(CGRectMake(0, 0, 60, 40));
        return PaintList({root_.get()}, {60, 40}, 1).opaque();
    }

private:
    TestDevice device_;
    Ref<CALayer> root_ = make<CALayer>();
};

TEST_F(PaintListTest, IsOpaqueWhereOneLayerIs) {
    EXPECT_TRUE(opaque().isEmpty());
    add(CGRectMake(10, 10, 20, 20));
    EXPECT_EQ(opaque(), QRect(10, 10, 20, 20));
}

TEST_F(PaintListTest, IsOpaqueWhereLayersAdjoin) {
    add(CGRectMake(40, 0, 20, 40));
    add(CGRectMake(10, 0, 30, 40));
    EXPECT_EQ(opaque(), QRect(10, 0, 50, 40));
}

TEST_F(PaintListTest, IsOpaqueWhereLayersOverlap) {
    add(CGRectMake(0, 20, 60, 20));
    add(CGRectMake(0, -5, 60, 30));
    EXPECT_EQ(opaque(), QRect(0, 0, 60, 40));
}

TEST_F(PaintListTest, IsNotOpaqueBetweenLayers) {
    add(CGRectMake(0, 0, 30, 40));
    add(CGRectMake(31, 0, 20, 40));
    EXPECT_EQ(opaque(), QRect(0, 0, 30, 40));
}

TEST_F(PaintListTest, IsNotOpaqueBesideAShorterLayer) {
    add(CGRectMake(0, 0, 30, 40));
    add(CGRectMake(30, 1, 20, 39));
    EXPECT_EQ(opaque(), QRect(0, 0, 30, 40));
}

} // namespace
