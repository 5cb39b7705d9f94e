#include "RandomUser.h"

#include "EntryList.h"
#include "Foundation/NSDictionary.h"

#include <gtest/gtest.h>

#include <QJsonArray>
#include <algorithm>
#include <array>
#include <numeric>
#include <utility>

namespace {

constexpr auto preferences = "/var/mobile/Library/Preferences/com.orvel.corvexprefs.plist";
constexpr auto masterSwitch = "kEnabled";
constexpr std::size_t trailLength = 60;

const std::array<std::string, 20> labels{
    "Settings", "Corvex", "About", "Language",         "gear.badge",    "Apply",
    "Rows",     "Back",   "plain", "\"Circle Icons\"", "\"Time Zone\"", "\"Reset Settings\"",
    "Pane",     "Stack",  "First", "Nobody",           "missing",       "Nonsense",
    "Confirm",  "Cancel"};

const std::array<std::string, 9> entries{"",         " Corvex",  " corvexPrefs", " plain", " broken",
                                         " missing", " nothing", " odd",         " \"\""};

/// Classes of pages, and some that are none, for an entry to name.
const std::array<std::string, 9> details{
    "UIViewController", "UINavigationController", "PSListController", "SettingsRootPage",    "AboutPage",
    "ProblemPage",      "SplitController",        "UIView",           "cxRootListController"};

const std::array<std::string, 10> values{"true",          "false",    "null", "0",
                                         "-1.5e300",      "\"text\"", "[]",   R"({"a":[1,{"b":null}]})",
                                         "[[[[[[1]]]]]]", "{"};

const std::array<std::string, 12> rows{"kAppleAccount", "hideSearchBar", "kcircleIcons", "kCustomTitle",
                                       "blurRadius",    "textColor",     "about",        "corvexPrefs",
                                       "kEnabled",      "value",         "\"\"",         "nothing"};

const std::array<std::string, 8> viewClasses{"UIView",   "UILabel",          "UIControl", "UITableViewCell",
                                             "UIWindow", "GlintImageSwitch", "NSObject",  "MenuView"};

const std::array<std::string, 18> nonsense{"",
                                           "\"",
                                           "touch",
                                           "touch down nan 1",
                                           "touch down 1e999 1",
                                           "touch down 1e308 1",
                                           "tap",
                                           "tap \"",
                                           "advance 1,5",
                                           "advance 0x10",
                                           "advance",
                                           "set",
                                           "set a {",
                                           "views",
                                           "\xff\xfe",
                                           "url-handler a b",
                                           "swipe-down",
                                           "pick /etc/passwd"};

/// A list with a row of every kind, and some that make no sense.
constexpr auto plainList = R"(<plist version="1.0"><dict><key>items</key><array>
<dict><key>cell</key><string>PSGroupCell</string><key>label</key><string>Rows</string></dict>
<dict><key>cell</key><string>PSLinkCell</string><key>label</key><string>About</string>
<key>detail</key><string>AboutPage</string></dict>
<dict><key>cell</key><string>PSLinkCell</string><key>label</key><string>missing</string>
<key>detail</key><string>NoSuchPage</string></dict>
<dict><key>cell</key><string>PSLinkCell</string><key>label</key><string>Pane</string>
<key>detail</key><string>cxRootListController</string></dict>
<dict><key>cell</key><string>PSLinkCell</string><key>label</key><string>Stack</string>
<key>detail</key><string>UINavigationController</string></dict>
<dict><key>cell</key><string>PSLinkCell</string><key>label</key><string>First</string>
<key>detail</key><string>SettingsRootPage</string></dict>
<dict><key>cell</key><string>PSLinkCell</string><key>label</key><string>Nobody</string>
<key>detail</key><string>UIViewController</string></dict>
<dict><key>cell</key><string>PSSwitchCell</string><key>label</key><string>Switch</string>
<key>key</key><string>value</string><key>defaults</key><string>com.example.plain</string></dict>
<dict><key>cell</key><string>PSButtonCell</string><key>label</key><string>Back</string>
<key>action</key><string>noSuchAction</string></dict>
<dict><key>cell</key><string>PSNoSuchCell</string><key>label</key><integer>7</integer></dict>
<integer>1</integer></array></dict></plist>)";

constexpr auto missingBundle = R"(<plist version="1.0"><dict><key>entry</key><dict>
<key>bundle</key><string>Missing</string><key>label</key><string>missing</string></dict></dict></plist>)";

std::string oddEntry(const std::string& detail) {
    return "<plist version=\"1.0\"><dict><key>entry</key><dict><key>bundle</key><string>corvexPrefs</string>"
           "<key>detail</key><string>" +
           detail + "</string></dict></dict></plist>";
}

CGPoint middleOf(const QJsonValue& view) {
    const auto frame = view["screenFrame"].toArray();
    return {frame[0].toDouble() + frame[2].toDouble() / 2, frame[1].toDouble() + frame[3].toDouble() / 2};
}

std::string fileOf(const char* value) {
    return std::string("<plist version=\"1.0\"><dict><key>kEnabled</key>") + value + "</dict></plist>";
}

} // namespace

RandomUser::RandomUser(WholeProgram& program, unsigned seed) : program_(program), random_(seed) {
    const std::string folder(EntryList::folder);
    program_.device().write(folder + "/plain.plist", plainList);
    program_.device().write(folder + "/missing.plist", missingBundle);
    program_.device().write(folder + "/broken.plist", "bplist00 and then nothing");
}

void RandomUser::act() {
    // A plan is seldom given up, so that gestures get somewhere, and now and then interrupted.
    if (!plan_.empty() && below(12) != 0) {
        const auto line = std::exchange(plan_.front(), {});
        plan_.pop_front();
        give(line);
        return;
    }
    static constexpr std::array<std::pair<Deed, unsigned>, 21> deeds{
        {{&RandomUser::planTouch, 16},    {&RandomUser::planTap, 16},     {&RandomUser::planDrag, 10},
         {&RandomUser::planSwipeBack, 5}, {&RandomUser::planSwitch, 10},  {&RandomUser::planMenu, 6},
         {&RandomUser::planSheet, 10},    {&RandomUser::planReset, 4},    {&RandomUser::planNamedTap, 8},
         {&RandomUser::planOpening, 6},   {&RandomUser::planBack, 4},     {&RandomUser::planTime, 14},
         {&RandomUser::planRest, 8},      {&RandomUser::planSetting, 6},  {&RandomUser::planLook, 4},
         {&RandomUser::planNonsense, 3},  {&RandomUser::changeFile, 3},   {&RandomUser::changeEntries, 4},
         {&RandomUser::leave, 4},         {&RandomUser::changeScreen, 3}, {&RandomUser::startAnew, 1}}};
    auto chance = below(std::accumulate(deeds.begin(), deeds.end(), 0U,
                                        [](unsigned sum, const auto& deed) { return sum + deed.second; }));
    const auto* const chosen = std::ranges::find_if(deeds, [&chance](const auto& deed) {
        return chance < deed.second || (chance -= deed.second, false);
    });
    (this->*chosen->first)();
    check("", program_.done("screen"));
}

void RandomUser::finish() {
    plan_.clear();
    if (program_.touches().isTouching())
        give("touch cancel 0 0");
    for (const auto* const line : {"settle", "relaunch", "settle", "open", "settle", "swipe-down", "settle"})
        give(line);
    const auto before = masterSwitchAtRest();
    ASSERT_TRUE(before);
    const auto place = middleOf(program_.ask("views GlintImageSwitch").value("views").toArray().last());
    plan("down", place);
    plan("up", place);
    plan_.emplace_back("settle");
    for (; !plan_.empty(); plan_.pop_front())
        give(plan_.front());
    EXPECT_EQ(masterSwitchAtRest(), !*before);
}

std::string RandomUser::trail() const {
    std::string text = "the last of " + std::to_string(commands_) + " commands:";
    for (const auto& line : trail_)
        text.append("\n    ").append(line);
    return text;
}

unsigned RandomUser::below(unsigned end) {
    return std::uniform_int_distribution<unsigned>(0, end - 1)(random_);
}

double RandomUser::within(double end) {
    return std::uniform_real_distribution<double>(0, end)(random_);
}

template <class Choices>
const Choices::value_type& RandomUser::oneOf(const Choices& choices) {
    return choices[below(static_cast<unsigned>(choices.size()))];
}

std::string RandomUser::duration() {
    return "advance " + std::to_string(below(3) == 0 ? within(1) : 0.001 + within(0.05));
}

CGPoint RandomUser::somewhere() {
    const auto size = program_.screen().bounds().size;
    if (below(8) == 0)
        return {within(4 * size.width) - 2 * size.width, within(4 * size.height) - 2 * size.height};
    return {within(size.width), within(size.height)};
}

CGPoint RandomUser::target() {
    const auto all = targets();
    return all.empty() ? somewhere() : oneOf(all);
}

std::vector<CGPoint> RandomUser::targets() {
    std::vector<CGPoint> places;
    const auto screen = program_.done("screen");
    for (const auto& row : screen.value("rows").toArray())
        places.push_back(middleOf(row));
    for (const auto& presented : screen.value("presented").toArray()) {
        for (const auto& action : presented.toObject().value("actions").toArray())
            places.push_back(middleOf(action));
    }
    for (const auto* const name :
         {"GlintImageSwitch", "BarButtonView", "BackButtonView", "HomeIcon", "TweakButton"}) {
        for (const auto& view : program_.ask(std::string("views ") + name).value("views").toArray())
            places.push_back(middleOf(view));
    }
    return places;
}

void RandomUser::plan(const std::string& phase, CGPoint place) {
    plan_.push_back("touch " + phase + " " + std::to_string(place.x) + " " + std::to_string(place.y));
}

void RandomUser::planTouch() {
    static const std::array<std::string, 6> phases{"down", "move", "move", "up", "cancel", "down"};
    plan(oneOf(phases), below(2) == 0 ? somewhere() : target());
}

void RandomUser::planTap() {
    const auto place = target();
    plan("down", place);
    if (below(2) == 0)
        plan_.push_back(duration());
    plan("up", place);
    plan_.push_back(duration());
}

void RandomUser::planDrag() {
    auto place = below(2) == 0 ? somewhere() : target();
    const CGPoint step{within(60) - 30, within(160) - 80};
    plan("down", place);
    for (auto count = below(12); count > 0; --count) {
        plan_.push_back(below(4) == 0 ? duration() : "advance 0.016");
        place = {place.x + step.x, place.y + step.y};
        plan("move", place);
    }
    plan(below(6) == 0 ? "cancel" : "up", place);
}

void RandomUser::planSwipeBack() {
    CGPoint place{within(12), within(program_.screen().bounds().size.height)};
    plan("down", place);
    for (auto count = 2 + below(10); count > 0; --count) {
        plan_.emplace_back("advance 0.016");
        place.x += within(60);
        plan("move", place);
    }
    plan(below(5) == 0 ? "cancel" : "up", place);
}

void RandomUser::planSwitch() {
    const auto found = program_.ask("views GlintImageSwitch").value("views").toArray();
    if (found.isEmpty()) {
        planOpening();
        return;
    }
    auto place = middleOf(found.last());
    plan("down", place);
    if (below(3) == 0) {
        plan_.push_back(duration());
        place.x += within(80) - 40;
        plan("move", place);
    }
    plan(below(6) == 0 ? "cancel" : "up", place);
    plan_.push_back(below(2) == 0 ? "settle" : duration());
}

void RandomUser::planMenu() {
    plan_.emplace_back("tap gear.badge");
    plan_.push_back(below(2) == 0 ? "settle" : duration());
    plan_.emplace_back(below(2) == 0 ? "tap Apply" : "tap \"Reset Settings\"");
}

void RandomUser::planSheet() {
    plan_.push_back(below(2) == 0 ? "settle" : duration());
    plan_.emplace_back("swipe-down");
    plan_.push_back(below(2) == 0 ? "settle" : duration());
}

void RandomUser::planReset() {
    for (const auto* const label : {"gear.badge", "\"Reset Settings\"", "Confirm"}) {
        plan_.push_back("tap " + std::string(label));
        plan_.push_back(below(5) == 0 ? duration() : "settle");
    }
}

void RandomUser::planNamedTap() {
    plan_.push_back("tap " + oneOf(labels) + (below(4) == 0 ? " #" + std::to_string(below(4)) : ""));
    plan_.push_back(duration());
}

void RandomUser::planOpening() {
    plan_.push_back(below(2) == 0 ? "open" : "open" + oneOf(entries));
    if (below(5) == 0)
        plan_.emplace_back("relaunch");
    plan_.push_back(duration());
}

void RandomUser::planBack() {
    plan_.emplace_back("back");
}

void RandomUser::planTime() {
    plan_.push_back(below(20) == 0 ? "advance 60" : duration());
}

void RandomUser::planRest() {
    if (program_.touches().isTouching())
        plan_.emplace_back("touch cancel 1 1");
    plan_.emplace_back("settle");
}

void RandomUser::planSetting() {
    plan_.push_back("set " + oneOf(rows) + " " + oneOf(values));
}

void RandomUser::planLook() {
    static const std::array<std::string, 4> takes{"log", "notifications", "sounds", "urls"};
    plan_.push_back(oneOf(takes));
    if (below(4) == 0)
        plan_.push_back("views " + oneOf(viewClasses));
    if (below(8) == 0)
        plan_.push_back("snapshot " + program_.device().hostPath("/picture.png"));
}

void RandomUser::planNonsense() {
    plan_.push_back(oneOf(nonsense));
}

void RandomUser::changeFile() {
    static const std::array<std::string, 6> contents{
        fileOf("<true/>"),  fileOf("<false/>"),          fileOf("<string>perhaps</string>"),
        fileOf("<array/>"), "bplist00 and then nothing", ""};
    program_.device().write(preferences, oneOf(contents));
    fileWasChanged_ = true;
    trail_.emplace_back("(the file is changed)");
}

void RandomUser::changeEntries() {
    static const std::array<std::string, 3> contents{plainList, missingBundle, ""};
    auto& device = program_.device();
    const std::string folder(EntryList::folder);
    if (below(3) == 0)
        device.write(folder + "/plain.plist", oneOf(contents));
    else
        device.write(folder + "/odd.plist", oddEntry(oneOf(details)));
    trail_.emplace_back("(the entries are changed)");
}

void RandomUser::leave() {
    auto& shell = program_.shell();
    const auto how = below(4);
    trail_.push_back("(leaving " + std::to_string(how) + ")");
    if (how == 0)
        shell.terminateSettings();
    else if (how == 1)
        shell.launchSettings();
    else
        shell.goHome();
}

void RandomUser::changeScreen() {
    auto& screen = program_.screen();
    const auto isPad = screen.traits().idiom == Idiom::Pad;
    const auto how = below(3);
    trail_.push_back("(the screen is changed " + std::to_string(how) + ")");
    if (how == 0)
        screen.setStyle(below(2) == 0 ? UserInterfaceStyle::Light : UserInterfaceStyle::Dark);
    else if (how == 1)
        screen.setScale(1 + below(3));
    else
        screen.setSize({(isPad ? 700 : 320) + within(600), 320 + within(900)});
}

void RandomUser::startAnew() {
    const auto idiom = below(2) == 0 ? Idiom::Phone : Idiom::Pad;
    trail_.emplace_back(idiom == Idiom::Phone ? "(a new start as a phone)" : "(a new start as a pad)");
    program_.restart({.idiom = idiom, .style = UserInterfaceStyle::Light, .scale = 1, .size = {}});
}

void RandomUser::give(const std::string& line) {
    trail_.push_back(line);
    while (trail_.size() > trailLength)
        trail_.pop_front();
    ++commands_;
    check(line, program_.ask(line));
    check("screen", program_.done("screen"));
}

void RandomUser::check(const std::string& line, const QJsonObject& answer) {
    const auto worked = answer.value("ok").toBool();
    if (worked && (line == "open" || line == "open Corvex" || line == "open corvexPrefs"))
        fileWasChanged_ = false;
    if (line == "screen") {
        EXPECT_TRUE(answer.value("app") == "home" || answer.value("app") == "Settings");
    }
    if (line != "settle")
        return;
    EXPECT_TRUE(worked);
    EXPECT_FALSE(WholeProgram::waits());
    EXPECT_EQ(program_.ask("settle").value("now"), answer.value("now"));
    if (!program_.touches().isTouching())
        checkAtRest();
}

void RandomUser::checkAtRest() {
    const auto isOn = masterSwitchAtRest();
    if (!isOn || fileWasChanged_)
        return;
    const auto kept = dictionaryWithContentsOfFile(preferences).value_or(PropertyList::Dictionary());
    const auto value = kept.find(masterSwitch);
    EXPECT_EQ(*isOn, value != kept.end() && value->second.boolValue());
    (*isOn ? agreementsOn_ : agreementsOff_)++;
}

std::optional<bool> RandomUser::masterSwitchAtRest() {
    const auto switches = program_.ask("views GlintImageSwitch").value("views").toArray();
    EXPECT_LE(switches.size(), 1) << "an old page is still on the screen";
    return switches.size() == 1 ? std::optional(switches[0]["properties"]["isOn"].toBool()) : std::nullopt;
}
