#include "ProcessorTime.h"

#include <QGuiApplication>
#include <QImage>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickRenderControl>
#include <QQuickRenderTarget>
#include <QQuickWindow>
#include <QVariant>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

/// Measures the frames of a list and of a sheet of the pane's size and content as another engine paints them
/// without a graphics card: Qt Quick, with its software renderer. To be printed beside `bench_frames`, as so
/// many milliseconds of processor time and so many copies of the picture. Its sheet is a plain colour, since
/// the renderer blurs nothing. Fails when nothing moved.

namespace {

constexpr auto frames = 120;
constexpr auto pointsPerFrame = 4.0;
constexpr QSize points(390, 844);
constexpr auto scale = 3;

constexpr auto scene = R"(
import QtQuick
Item {
    id: root
    width: 390; height: 844
    property alias place: list.contentY
    property real sheetTop: 844
    Rectangle { anchors.fill: parent; color: "#f2f2f7" }
    ListView {
        id: list
        anchors.fill: parent
        model: 200
        delegate: Item {
            width: 390; height: 44
            Rectangle { x: 16; width: 358; height: 44; color: "white" }
            Text { x: 32; y: 12; font.pixelSize: 17; text: "Row " + index }
            Text { x: 320; y: 12; font.pixelSize: 17; color: "#8a8a8e"; text: "On" }
            Rectangle { x: 32; y: 43.67; width: 342; height: 0.33; color: "#c6c6c8" }
        }
    }
    Rectangle {
        anchors.fill: parent; color: "black"; opacity: 0.2 * (844 - root.sheetTop) / 787
        visible: root.sheetTop < 844
    }
    Rectangle {
        x: 0; y: root.sheetTop; width: 390; height: 787; radius: 10; color: "#f0eeeef0"
        visible: root.sheetTop < 844
        Text { y: 100; width: 390; horizontalAlignment: Text.AlignHCenter; font.pixelSize: 34; font.bold: true; text: "Corvex" }
        Repeater {
            model: 6
            Item {
                x: 32; y: 250 + index * 90
                Rectangle { width: 29; height: 29; radius: 14.5; color: "#ffcc00" }
                Text { x: 56; font.pixelSize: 17; font.bold: true; text: "Something that is new" }
                Text { x: 56; y: 22; width: 270; wrapMode: Text.Wrap; font.pixelSize: 15; color: "#8a8a8e"
                       text: "It is told of in two lines, which are wrapped at the width of the sheet." }
            }
        }
    }
})";

[[noreturn]] void fail(const char* reason) {
    std::fprintf(stderr, "%s\n", reason);
    std::exit(EXIT_FAILURE);
}

double median(std::vector<double> values) {
    std::ranges::sort(values);
    return values[values.size() / 2];
}

/// A scene that is painted into a picture.
class Peer {
public:
    Peer() {
        window_.setColor(Qt::white);
        picture_.setDevicePixelRatio(scale);
        window_.setRenderTarget(QQuickRenderTarget::fromPaintDevice(&picture_));
        window_.setGeometry(QRect({}, points));
        QQmlComponent component(&engine_);
        component.setData(scene, {});
        item_.reset(qobject_cast<QQuickItem*>(component.create()));
        if (!item_)
            fail(qPrintable(component.errorString()));
        item_->setParentItem(window_.contentItem());
    }

    /// \returns the median of the frames in which a property goes from one value on by equal steps
    double play(const char* property, double from, double step) {
        std::vector<double> times;
        for (auto frame = 0; frame < frames; ++frame) {
            const auto before = picture_.copy();
            const auto begin = processorTime();
            item_->setProperty(property, from + frame * step);
            control_.polishItems();
            control_.beginFrame();
            control_.sync();
            control_.render();
            control_.endFrame();
            times.push_back((processorTime() - begin).count());
            if (frame > 0 && picture_ == before)
                fail("a frame painted nothing");
        }
        return median(times);
    }

    /// The median of copying the picture.
    [[nodiscard]] double timeOfCopy() const {
        QImage copy(picture_.size(), picture_.format());
        std::vector<double> times;
        for (auto turn = 0; turn < frames; ++turn) {
            const auto begin = processorTime();
            std::memcpy(copy.bits(), picture_.constBits(), static_cast<std::size_t>(picture_.sizeInBytes()));
            times.push_back((processorTime() - begin).count());
        }
        return median(times);
    }

private:
    QImage picture_{points * scale, QImage::Format_ARGB32_Premultiplied};
    QQuickRenderControl control_;
    QQuickWindow window_{&control_};
    QQmlEngine engine_;
    std::unique_ptr<QQuickItem> item_;
};

} // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    const QGuiApplication application(argc, argv);
    Peer peer;
    const auto list = peer.play("place", 0, pointsPerFrame);
    const auto sheet = peer.play("sheetTop", points.height() - 1.0, -(787.0 / frames));
    const auto copy = peer.timeOfCopy();
    std::printf("Qt Quick's software renderer on such a phone: a list dragged %.2f ms, %.1f copies; a sheet "
                "dragged %.2f ms, %.1f copies\n",
                list, list / copy, sheet, sheet / copy);
    return EXIT_SUCCESS;
}
