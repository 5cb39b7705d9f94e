#include "symbols/SymbolLibrary.h"

#include "Ink.h"

#include <gtest/gtest.h>

#include <array>

namespace {

constexpr std::array names{"gear",
                           "gear.badge",
                           "gear.badge.checkmark",
                           "gear.badge.xmark",
                           "checkmark.circle.fill",
                           "chevron.right",
                           "chevron.left",
                           "chevron.backward",
                           "chevron.forward",
                           "xmark",
                           "xmark.circle.fill",
                           "checkmark",
                           "plus",
                           "plus.circle.fill",
                           "trash",
                           "square.and.arrow.up",
                           "square.and.arrow.down",
                           "square.and.arrow.up.on.square.fill",
                           "arrow.counterclockwise",
                           "arrow.clockwise",
                           "info.circle",
                           "exclamationmark.triangle.fill",
                           "exclamationmark.triangle",
                           "folder",
                           "doc",
                           "photo",
                           "magnifyingglass",
                           "magnifyingglass.circle.fill",
                           "wifi",
                           "person.crop.circle.fill"};

SymbolOutline symbol(std::string_view name) {
    auto found = SymbolLibrary::shared().symbol(name);
    if (found)
        return *found;
    ADD_FAILURE() << "no symbol " << name;
    return {{}, [] { return QPainterPath(); }};
}

QPainterPath pathOf(std::string_view name, double size = 100, SymbolWeight weight = SymbolWeight::Regular) {
    return symbol(name).path(size, weight);
}

double areaOf(const QPainterPath& path) {
    return alphaSum(filled(path, {150, 150}, 1));
}

/// The middle of a badge of radius 25 at the lower right.
QPointF badgeCenter(std::string_view name) {
    return pathOf(name).boundingRect().bottomRight() - QPointF(25, 25);
}

/// How much of a symbol of 100 points is in parts so thin that a disc of that radius does not fit into them.
double areaOfThinParts(std::string_view name, double radius) {
    constexpr double scale = 3;
    const auto path = pathOf(name);
    const auto whole = filled(path, {120, 120}, scale);
    auto core = whole;
    {
        QPainter painter(&core);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        painter.strokePath(path, QPen(Qt::black, 2 * radius, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }
    const auto discs = painted({120, 120}, scale, [&](QPainter& painter) {
        painter.setPen(QPen(Qt::black, 2 * radius, Qt::SolidLine, Qt::RoundCap));
        for (int y = 0; y < core.height(); ++y) {
            for (int x = 0; x < core.width(); ++x) {
                if (qAlpha(core.pixel(x, y)) > 128)
                    painter.drawPoint(QPointF(x + 0.5, y + 0.5) / scale);
            }
        }
    });
    auto thin = whole;
    {
        QPainter painter(&thin);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        painter.drawImage(QPointF(), discs);
    }
    double sum = 0;
    for (int y = 0; y < thin.height(); ++y) {
        for (int x = 0; x < thin.width(); ++x)
            sum += qAlpha(thin.pixel(x, y)) > 200 ? 1 : 0; // and not what is left of smooth edges
    }
    return sum / (scale * scale);
}

/// How often there was something to be prepared.
int preparationsOf(SymbolLibrary& library) {
    constexpr auto more = 100; // than there are
    auto count = 0;
    while (count < more && library.prepare())
        ++count;
    return count;
}

} // namespace

TEST(SymbolLibraryTest, DrawsEverySymbolWithinItsBox) {
    for (const auto* const name : names) {
        for (const auto weight : {SymbolWeight::Regular, SymbolWeight::Semibold}) {
            const auto outline = symbol(name);
            const auto image = filled(outline.path(17, weight), {30, 30}, 3);
            const auto ink = inkOf(image);
            const auto size = outline.size(17, weight) * 3;
            EXPECT_GT(ink.width() * ink.height(), 300) << name;
            EXPECT_GT(ink.left(), 0) << name;
            EXPECT_GT(ink.top(), 0) << name;
            EXPECT_LT(ink.right(), size.width()) << name;
            EXPECT_LT(ink.bottom(), size.height()) << name;
        }
    }
}

TEST(SymbolLibraryTest, SymbolsAreAsLargeAsThePlatforms) {
    EXPECT_NEAR(symbol("gear").size(17).width(), 21, 1);
    EXPECT_NEAR(symbol("gear").size(17).height(), 20.5, 0.5);
    EXPECT_NEAR(symbol("circle").size(17).width(), 20, 0.4);
    EXPECT_NEAR(symbol("circle").size(17).height(), 19, 0.4);
    const auto disclosure = pathOf("chevron.right", 14, SymbolWeight::Semibold).boundingRect();
    EXPECT_NEAR(disclosure.width(), 7.5, 0.5);
    EXPECT_NEAR(disclosure.height(), 12.5, 0.5);
}

TEST(SymbolLibraryTest, SemiboldSymbolsOfStrokesHaveMoreInk) {
    for (const auto* const name :
         {"gear", "gear.badge.checkmark", "chevron.right", "xmark", "checkmark", "trash"}) {
        const double regular = areaOf(pathOf(name, 100));
        const double semibold = areaOf(pathOf(name, 100, SymbolWeight::Semibold));
        EXPECT_GT(semibold, 1.1 * regular) << name;
        EXPECT_LT(semibold, 1.7 * regular) << name;
    }
}

TEST(SymbolLibraryTest, SemiboldFilledSymbolsHaveHeavierSignsCutOut) {
    for (const auto* const name : {"checkmark.circle.fill", "xmark.circle.fill", "plus.circle.fill"}) {
        const auto regular = pathOf(name, 100);
        const auto semibold = pathOf(name, 100, SymbolWeight::Semibold);
        EXPECT_NEAR(semibold.boundingRect().width(), regular.boundingRect().width(), 0.2) << name;
        EXPECT_LT(areaOf(semibold), 0.98 * areaOf(regular)) << name;
    }
}

TEST(SymbolLibraryTest, ChevronsPointTheirWay) {
    for (const auto* const name : {"chevron.right", "chevron.forward"}) {
        const auto path = pathOf(name);
        const auto box = path.boundingRect();
        EXPECT_TRUE(path.contains(QPointF(box.right() - 3, box.center().y()))) << name;
        EXPECT_FALSE(path.contains(QPointF(box.left() + 3, box.center().y()))) << name;
    }
    for (const auto* const name : {"chevron.left", "chevron.backward"}) {
        const auto path = pathOf(name);
        const auto box = path.boundingRect();
        EXPECT_TRUE(path.contains(QPointF(box.left() + 3, box.center().y()))) << name;
        EXPECT_FALSE(path.contains(QPointF(box.right() - 3, box.center().y()))) << name;
    }
}

TEST(SymbolLibraryTest, ABadgeIsADiscWithAGapAroundIt) {
    const auto path = pathOf("gear.badge");
    const auto box = path.boundingRect();
    const QPointF center(box.right() - 19, box.top() + 19);
    EXPECT_TRUE(path.contains(center));
    for (int angle = 0; angle < 360; angle += 5) {
        const QPointF direction = QTransform().rotate(angle).map(QPointF(1, 0));
        EXPECT_TRUE(path.contains(center + direction * 18)) << angle;
        EXPECT_FALSE(path.contains(center + direction * 22)) << angle;
        EXPECT_FALSE(path.contains(center + direction * 24.5)) << angle;
    }
}

TEST(SymbolLibraryTest, ABadgesSignIsCutOutOfIt) {
    const auto xmark = pathOf("gear.badge.xmark");
    const auto center = badgeCenter("gear.badge.xmark");
    EXPECT_FALSE(xmark.contains(center)) << "the arms of the x meet there";
    for (const auto direction : {QPointF(1, 0), QPointF(0, 1), QPointF(-1, 0), QPointF(0, -1)})
        EXPECT_TRUE(xmark.contains(center + direction * 18));
    for (const auto direction : {QPointF(1, 1), QPointF(1, -1), QPointF(-1, 1), QPointF(-1, -1)})
        EXPECT_FALSE(xmark.contains(center + direction * 8));
    const auto checkmark = pathOf("gear.badge.checkmark");
    const auto disc = areaOf(pathOf("gear.badge.xmark"));
    EXPECT_FALSE(checkmark.contains(badgeCenter("gear.badge.checkmark") + QPointF(-3, 10)));
    EXPECT_NE(areaOf(checkmark), disc);
}

TEST(SymbolLibraryTest, ABadgedGearIsAGearElsewhere) {
    const auto gear = pathOf("gear");
    for (const auto* const name : {"gear.badge.checkmark", "gear.badge.xmark"}) {
        const auto badged = pathOf(name);
        int inGear = 0;
        int differing = 0;
        for (int y = 0; y < 60; ++y) {
            for (int x = 0; x < 60; ++x) {
                inGear += gear.contains(QPointF(x, y)) ? 1 : 0;
                differing += gear.contains(QPointF(x, y)) != badged.contains(QPointF(x, y)) ? 1 : 0;
            }
        }
        EXPECT_GT(inGear, 500) << name;
        EXPECT_LE(differing, 5) << name << ": but for what is on an edge";
    }
}

TEST(SymbolLibraryTest, UnknownNamesAreNoSymbols) {
    for (const auto* const name : {"", ".", "no.such.symbol", "gear.badge.plus", "checkmark_circle_fill",
                                   "search ", "Gear", "square_arrow_up", "gear..badge", "\xFF\xFF"})
        EXPECT_FALSE(SymbolLibrary::shared().symbol(name)) << name;
}

TEST(SymbolLibraryTest, ASymbolAskedForAgainIsTheSame) {
    EXPECT_EQ(pathOf("gear"), pathOf("gear"));
}

TEST(SymbolLibraryTest, PreparesBadgesAndHeavyChevronsOneByOne) {
    SymbolLibrary library;
    EXPECT_EQ(preparationsOf(library), 3 + 2);
    EXPECT_EQ(preparationsOf(library), 0);
}

TEST(SymbolLibraryTest, PreparesNothingThatIsKnown) {
    SymbolLibrary library;
    EXPECT_TRUE(library.symbol("gear.badge"));
    EXPECT_TRUE(library.symbol("gear.badge.xmark"));
    EXPECT_TRUE(library.symbol("chevron.left")->prepare(SymbolWeight::Semibold));
    EXPECT_EQ(preparationsOf(library), 1 + 1);
    EXPECT_EQ(library.symbol("gear.badge.checkmark")->path(100), pathOf("gear.badge.checkmark"));
}

TEST(SymbolLibraryTest, OfNoToothBesideABadgeIsOnlyASliver) {
    for (const auto* const name : {"gear.badge", "gear.badge.checkmark", "gear.badge.xmark"})
        EXPECT_LT(areaOfThinParts(name, 1.2), 9.6) << name;
}
