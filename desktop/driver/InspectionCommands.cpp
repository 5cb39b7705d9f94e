#include "InspectionCommands.h"

#include "ContinuousCorners.h"
#include "DrivenApplication.h"
#include "JsonValues.h"
#include "ObjectiveC/Class.h"
#include "ScreenReport.h"
#include "ViewReport.h"
#include "objects/LiveObjects.h"
#include "screen/Compositor.h"
#include "screen/Screen.h"

#include <QBuffer>
#include <QFile>
#include <QImage>
#include <QJsonObject>
#include <QPainter>

namespace {

Answer views(const std::string& name) {
    const auto* const viewClass = NSClassFromString(name);
    const auto* const anyView = NSClassFromString("UIView");
    if (viewClass == nullptr || anyView == nullptr || !viewClass->isSubclassOf(*anyView))
        return std::unexpected("there is no class of views of that name");
    return QJsonObject{{"views", viewReports(*viewClass)}};
}

/// What has ended leaves none behind: a pane's classes are unknown again once it is unloaded.
Answer live(const std::string& name) {
    const auto* const known = NSClassFromString(name);
    const auto count = known != nullptr ? LiveObjects::shared().countOf(*known) : 0;
    return QJsonObject{{"known", known != nullptr}, {"count", static_cast<qint64>(count)}};
}

/// In memory first, since the encoder loses a picture's memory when the file cannot take all of it.
QByteArray pngOf(const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "png");
    return bytes;
}

/// Without what the device's glass has not.
QImage rounded(const QImage& picture) {
    const auto& screen = Screen::current();
    QImage result(picture.size(), QImage::Format_ARGB32_Premultiplied);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(picture.width() / screen.bounds().size.width,
                  picture.height() / screen.bounds().size.height);
    QBrush pixels(picture);
    pixels.setTransform(painter.transform().inverted());
    const QRectF glass(0, 0, screen.bounds().size.width, screen.bounds().size.height);
    painter.fillPath(continuousCornersPath(glass, screen.cornerRadius()), pixels);
    return result;
}

Answer snapshot(Compositor& compositor, const CommandTable::Arguments& arguments) {
    const auto& path = arguments[0].text;
    const auto isRounded = arguments.size() > 1;
    if (isRounded && arguments[1].text != "rounded")
        return std::unexpected("usage: snapshot FILE [rounded]");
    const auto picture = isRounded ? rounded(compositor.render()) : compositor.render();
    if (path.empty())
        return std::unexpected("the picture cannot be written: it has no name");
    const auto bytes = pngOf(picture);
    QFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        return std::unexpected("the picture cannot be written: " + file.errorString().toStdString());
    return QJsonObject{{"size", jsonOf(CGSize{static_cast<double>(picture.width()),
                                              static_cast<double>(picture.height())})}};
}

} // namespace

void addInspectionCommands(CommandTable& table, DrivenApplication& application, Compositor& compositor) {
    const auto lookingAfterRefresh = [&application](auto look) {
        return [&application, look](const CommandTable::Arguments& arguments) -> Answer {
            application.refresh();
            Screen::current().layoutIfNeeded();
            return look(arguments);
        };
    };
    table.add({.usage = "screen", .run = lookingAfterRefresh([&application](const auto&) {
                                      return Answer(screenReport(application));
                                  })});
    table.add({.usage = "views CLASS",
               .fewest = 1,
               .most = 1,
               .run = lookingAfterRefresh([](const auto& arguments) { return views(arguments[0].text); })});
    table.add({.usage = "live CLASS", .fewest = 1, .most = 1, .run = [](const auto& arguments) {
                   return live(arguments[0].text);
               }});
    table.add({.usage = "snapshot FILE [rounded]",
               .fewest = 1,
               .most = 2,
               .run = lookingAfterRefresh(
                   [&compositor](const auto& arguments) { return snapshot(compositor, arguments); })});
}
