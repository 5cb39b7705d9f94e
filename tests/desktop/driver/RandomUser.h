#pragma once

#include "WholeProgram.h"

#include <algorithm>
#include <cstddef>
#include <deque>
#include <optional>
#include <random>
#include <string>
#include <vector>

/// Somebody who does everything that can be done with the program, in any order and at the worst of times:
/// fingers and commands, with sense and without, in the middle of animations and of other gestures, while
/// files change under the program and it is ended and started again. Checks after each command that the
/// program is whole. What is done follows from the seed alone. Made by a test.
class RandomUser {
public:
    RandomUser(WholeProgram& program, unsigned seed);

    /// Gives one command, or does one thing that no command does, and checks.
    void act();

    /// Takes the finger away, lets everything come to rest, and checks that the pane opens and its master
    /// switch works.
    void finish();

    [[nodiscard]] std::size_t commands() const { return commands_; }

    /// How often the master switch was found at rest, on and off, in agreement with the file.
    [[nodiscard]] std::size_t agreements() const { return std::min(agreementsOn_, agreementsOff_); }

    /// The last commands, for messages.
    [[nodiscard]] std::string trail() const;

private:
    using Deed = void (RandomUser::*)();

    [[nodiscard]] unsigned below(unsigned end);
    [[nodiscard]] double within(double end);
    template <class Choices>
    [[nodiscard]] const Choices::value_type& oneOf(const Choices& choices);
    [[nodiscard]] std::string duration();

    // Where to.
    [[nodiscard]] CGPoint somewhere();
    [[nodiscard]] CGPoint target();
    [[nodiscard]] std::vector<CGPoint> targets();

    // What to do: deeds that need several commands leave them in the plan.
    void planTouch();
    void planTap();
    void planDrag();
    void planSwipeBack();
    void planSwitch();
    void planMenu();
    void planSheet();
    void planReset();
    void planNamedTap();
    void planOpening();
    void planBack();
    void planTime();
    void planRest();
    void planSetting();
    void planLook();
    void planNonsense();
    void changeFile();
    void changeEntries();
    void leave();
    void changeScreen();
    void startAnew();
    void plan(const std::string& phase, CGPoint place);

    void give(const std::string& line);
    void check(const std::string& line, const QJsonObject& answer);
    void checkAtRest();
    /// Whether it is on; nothing while it is not on the screen.
    [[nodiscard]] std::optional<bool> masterSwitchAtRest();

    WholeProgram& program_;
    std::mt19937 random_;
    std::deque<std::string> plan_;
    std::deque<std::string> trail_;
    std::size_t commands_ = 0;
    std::size_t agreementsOn_ = 0;
    std::size_t agreementsOff_ = 0;
    /// Whether the file was changed from outside since the page with the master switch was made.
    bool fileWasChanged_ = false;
};
