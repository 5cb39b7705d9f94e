#include "ProgramOptions.h"

#include "NumberText.h"
#include "time/UnixTime.h"

#include <QCommandLineParser>
#include <QDateTime>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTimeZone>
#include <array>

namespace {

constexpr double leastScale = 1;
constexpr double greatestScale = 3;

const QString driveOption = "drive";
const QString helpOption = "help";
const QString versionOption = "version";
const QString installOption = "install";
const QString deviceRootOption = "device-root";
const QString idiomOption = "idiom";
const QString appearanceOption = "appearance";
const QString scaleOption = "scale";
const QString localeOption = "locale";
const QString timeZoneOption = "time-zone";
const QString nowOption = "now";

void addOptions(QCommandLineParser& parser) {
    for (const auto& flag : {driveOption, installOption, helpOption, versionOption})
        parser.addOption(QCommandLineOption(flag));
    for (const auto& option : {deviceRootOption, idiomOption, appearanceOption, scaleOption, localeOption,
                               timeZoneOption, nowOption})
        parser.addOption(QCommandLineOption(option, {}, option));
}

ProgramOptions::Mode modeOf(const QCommandLineParser& parser) {
    using enum ProgramOptions::Mode;
    if (parser.isSet(helpOption))
        return Help;
    if (parser.isSet(versionOption))
        return Version;
    return parser.isSet(driveOption) ? Drive : Window;
}

QString defaultDeviceRoot() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/corvex/device";
}

/// Takes one option's text into the options. \returns whether it means something
using Reader = bool (*)(const QString& text, ProgramOptions& options);

bool readDeviceRoot(const QString& text, ProgramOptions& options) {
    options.deviceRoot = text.toStdString();
    return !text.isEmpty();
}

bool readIdiom(const QString& text, ProgramOptions& options) {
    options.idiom = text == "pad" ? Idiom::Pad : Idiom::Phone;
    return text == "pad" || text == "phone";
}

bool readAppearance(const QString& text, ProgramOptions& options) {
    options.appearance = text == "dark" ? UserInterfaceStyle::Dark : UserInterfaceStyle::Light;
    return text == "dark" || text == "light";
}

bool readScale(const QString& text, ProgramOptions& options) {
    options.scale = numberFromText(text.toStdString());
    return options.scale && *options.scale >= leastScale && *options.scale <= greatestScale;
}

/// A language, and after "_" or "-" what else a locale's name may hold: "de", "zh_Hant_TW",
/// "ar-EG@numbers=latn".
bool readLocale(const QString& text, ProgramOptions& options) {
    static const QRegularExpression pattern("^[A-Za-z]{2,8}([-_][A-Za-z0-9]{1,8})*(@[A-Za-z0-9=;_-]+)?$");
    options.locale = QString(text).replace('-', '_').toStdString();
    return pattern.match(text).hasMatch();
}

bool readTimeZone(const QString& text, ProgramOptions& options) {
    options.timeZone = text.toStdString();
    return !text.isEmpty() && QTimeZone(text.toUtf8()).isValid();
}

/// A moment without an offset is in the device's own zone.
bool readNow(const QString& text, ProgramOptions& options) {
    auto moment = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (moment.timeSpec() == Qt::LocalTime)
        moment.setTimeZone(QTimeZone(QByteArray::fromStdString(options.timeZone.value_or("UTC"))));
    if (!moment.isValid())
        return false;
    options.now = dateOfUnixTime(static_cast<double>(moment.toMSecsSinceEpoch()) / 1000);
    return true;
}

struct NamedReader {
    const QString& option;
    Reader read;
};

/// In the order in which they are read: later ones look at earlier ones.
const std::array readers = {
    NamedReader{deviceRootOption, readDeviceRoot},
    NamedReader{idiomOption, readIdiom},
    NamedReader{appearanceOption, readAppearance},
    NamedReader{scaleOption, readScale},
    NamedReader{localeOption, readLocale},
    NamedReader{timeZoneOption, readTimeZone},
    NamedReader{nowOption, readNow},
};

} // namespace

std::expected<ProgramOptions, std::string> ProgramOptions::parse(const QStringList& arguments) {
    QCommandLineParser parser;
    addOptions(parser);
    if (!parser.parse(arguments))
        return std::unexpected(parser.errorText().toStdString());
    if (!parser.positionalArguments().isEmpty())
        return std::unexpected("unexpected argument: " + parser.positionalArguments().first().toStdString());
    ProgramOptions options;
    options.mode = modeOf(parser);
    options.deviceRoot = defaultDeviceRoot().toStdString();
    options.install = parser.isSet(installOption);
    for (const auto& [option, read] : readers) {
        if (parser.isSet(option) && !read(parser.value(option), options))
            return std::unexpected("--" + option.toStdString() + " cannot be \"" +
                                   parser.value(option).toStdString() + "\"");
    }
    if (options.now && options.mode == Mode::Window)
        return std::unexpected("--now needs --drive: the window shows the present time");
    return options;
}

const char* const ProgramOptions::help =
    R"(corvex-settings opens a window with a device and the Settings application on it.

  --drive                 no window: reads commands from standard input and answers each with a line of
                          JSON on standard output; time stands still until a command moves it
  --device-root DIR       the folder that holds the device's files ($XDG_DATA_HOME/corvex/device); made
                          and filled when it is missing or empty
  --install               first brings the device's files up to date with what was built
  --idiom phone|pad       the kind of device (phone)
  --appearance light|dark the device's looks (the desktop's, or light with --drive)
  --scale N               pixels per point, from 1 to 3 (what the window shows, or with --drive 3 for a
                          phone and 2 for a pad)
  --locale L              language and region, such as de_DE (the desktop's, or en_US with --drive)
  --time-zone Z           such as Europe/Berlin (the desktop's, or UTC with --drive)
  --now ISO8601           with --drive, the moment at which the device's time starts (the present one)
  --version               prints the version
  --help                  prints this

docs/driving.md tells of the commands.
)";
