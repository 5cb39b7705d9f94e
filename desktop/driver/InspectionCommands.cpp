#include "InspectionCommands.h"

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

Answer snapshot(Compositor& compositor, const std::string& path) {
    const auto& picture = compositor.render();
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
    table.add({.usage = "snapshot FILE",
               .fewest = 1,
               .most = 1,
               .run = lookingAfterRefresh([&compositor](const auto& arguments) {
                   return snapshot(compositor, arguments[0].text);
               })});
}
