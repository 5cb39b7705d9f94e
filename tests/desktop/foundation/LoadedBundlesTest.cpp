#include "LoadedBundles.h"

#include "DesktopBundle.h"
#include "TestDevice.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

namespace {

class Loaded : public NSObject {};

class Derived : public Loaded {};

class Other : public NSObject {};

class LoadedBundlesTest : public testing::Test {
protected:
    LoadedBundlesTest() {
        device_.write("/one/Info.plist", "{}");
        device_.write("/two/Info.plist", "{}");
    }

    ~LoadedBundlesTest() override {
        bundles().removeBundle("/one");
        bundles().removeBundle("/two");
    }

    static LoadedBundles& bundles() { return LoadedBundles::shared(); }

    static std::string pathOf(const Class& asked) { return bundles().bundleOf(asked)->path(); }

    TestDevice device_;
};

} // namespace

TEST_F(LoadedBundlesTest, WhatIsLoadedBelongsToItsBundle) {
    struct Statement {
        Class loaded = Class::define<Loaded>("LoadedBundlesTestLoaded");
        Class derived = Class::define<Derived, Loaded>("LoadedBundlesTestDerived");
    };

    std::unique_ptr<Statement> statement;
    bundles().addClassesLoadedBy([&statement] { statement = std::make_unique<Statement>(); },
                                 DesktopBundle::withPath("/two"));
    EXPECT_EQ(pathOf(statement->loaded), "/two");
    EXPECT_EQ(pathOf(statement->derived), "/two");
    bundles().removeBundle("/two");
    EXPECT_EQ(pathOf(statement->loaded), "/Applications/Preferences.app");
}

TEST_F(LoadedBundlesTest, BundlesLoadedByBundlesKeepTheirClasses) {
    struct Inner {
        Class stated = Class::define<Loaded>("LoadedBundlesTestInner");
    };

    struct Outer {
        Class stated = Class::define<Other>("LoadedBundlesTestOuter");
    };

    std::unique_ptr<Inner> inner;
    std::unique_ptr<Outer> outer;
    bundles().addClassesLoadedBy(
        [&] {
            bundles().addClassesLoadedBy([&inner] { inner = std::make_unique<Inner>(); },
                                         DesktopBundle::withPath("/two"));
            outer = std::make_unique<Outer>();
        },
        DesktopBundle::withPath("/one"));
    EXPECT_EQ(pathOf(inner->stated), "/two");
    EXPECT_EQ(pathOf(outer->stated), "/one");
}

TEST_F(LoadedBundlesTest, AClassWithoutABundleHasThatOfItsBase) {
    const Class loaded = Class::define<Loaded>("LoadedBundlesTestLoaded");
    const Class derived = Class::define<Derived, Loaded>("LoadedBundlesTestDerived");
    bundles().addClass(loaded, DesktopBundle::withPath("/one"));
    EXPECT_EQ(pathOf(derived), "/one");
    bundles().addClass(derived, DesktopBundle::withPath("/two"));
    EXPECT_EQ(pathOf(derived), "/two");
    EXPECT_EQ(pathOf(loaded), "/one");
}

TEST_F(LoadedBundlesTest, OtherClassesAreTheApplications) {
    const Class other = Class::define<Other>("LoadedBundlesTestOther");
    EXPECT_EQ(pathOf(other), "/Applications/Preferences.app");
}

TEST_F(LoadedBundlesTest, TheContractAsksForAClassesBundleHere) {
    const Class loaded = Class::define<Loaded>("LoadedBundlesTestLoaded");
    bundles().addClass(loaded, DesktopBundle::withPath("/one"));
    EXPECT_EQ(NSBundle::bundleForClass(loaded), bundles().bundleOf(loaded));
    EXPECT_EQ(pathOf(loaded), "/one");
}
