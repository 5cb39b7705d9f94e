#include "touches/GestureRecognizer.h"

#include "ObjectiveC/Class.h"
#include "touches/GestureArena.h"

#include <utility>

namespace {

const Class classObject = Class::define<GestureRecognizer>("GestureRecognizer");

} // namespace

GestureRecognizer::~GestureRecognizer() = default;

void GestureRecognizer::setEnabled(bool enabled) {
    enabled_ = enabled;
    if (!enabled)
        loseTouch();
}

void GestureRecognizer::addHandler(std::function<void()> handler) {
    handlers_.push_back(std::move(handler));
}

void GestureRecognizer::viewIsGone() {
    const auto kept = retain(this);
    view_ = nullptr;
    touch_ = nullptr;
    reset();
}

void GestureRecognizer::follow(GestureArena& arena, DesktopTouch& touch) {
    arena_ = &arena;
    touch_ = retain(&touch);
    location_ = touch.place();
}

void GestureRecognizer::fingerCameDown(DesktopTouch& touch) {
    const auto kept = retain(this);
    if (!isOver())
        touchBegan(touch);
}

void GestureRecognizer::fingerMoved(DesktopTouch& touch) {
    const auto kept = retain(this);
    location_ = touch.place();
    if (!isOver())
        touchMoved(touch);
}

void GestureRecognizer::fingerLifted(DesktopTouch& touch) {
    const auto kept = retain(this);
    location_ = touch.place();
    if (!isOver())
        touchEnded(touch);
    if (!isFollowing(touch))
        return;
    touch_ = nullptr;
    resetIfOver();
}

void GestureRecognizer::loseTouch() {
    const auto kept = retain(this);
    touch_ = nullptr;
    cancel();
    resetIfOver();
}

void GestureRecognizer::leaveArena() {
    const auto kept = retain(this);
    touch_ = nullptr;
    reset();
}

void GestureRecognizer::want(State state) {
    if (state_ != State::Possible || arena_ == nullptr)
        return;
    if (!shouldBegin())
        fail();
    else if (arena_->mustWait(*this))
        wanted_ = state;
    else
        enter(state);
}

void GestureRecognizer::recognizeWaiting() {
    if (wanted_)
        enter(*wanted_);
}

void GestureRecognizer::enter(State state) {
    const auto kept = retain(this);
    wanted_.reset();
    state_ = state;
    arena_->recognized(*this);
    if (state_ != state)
        return;
    tell();
    resetIfOver();
}

void GestureRecognizer::change() {
    if (state_ != State::Began && state_ != State::Changed)
        return;
    state_ = State::Changed;
    tell();
}

void GestureRecognizer::end() {
    if (state_ != State::Began && state_ != State::Changed)
        return;
    state_ = State::Ended;
    tell();
}

void GestureRecognizer::cancel() {
    if (state_ == State::Possible)
        fail();
    if (state_ != State::Began && state_ != State::Changed)
        return;
    state_ = State::Cancelled;
    tell();
}

void GestureRecognizer::fail() {
    if (state_ != State::Possible)
        return;
    const auto kept = retain(this);
    wanted_.reset();
    state_ = State::Failed;
    if (arena_ != nullptr)
        arena_->reconsider();
    resetIfOver();
}

void GestureRecognizer::tell() {
    const auto kept = retain(this);
    for (const auto& handler : std::vector(handlers_))
        handler();
}

bool GestureRecognizer::isOver() const {
    return state_ == State::Ended || state_ == State::Cancelled || state_ == State::Failed;
}

void GestureRecognizer::resetIfOver() {
    if (isOver() && !isFollowing())
        reset();
}

void GestureRecognizer::reset() {
    wanted_.reset();
    state_ = State::Possible;
    didReset();
    if (auto* const arena = std::exchange(arena_, nullptr))
        arena->remove(*this);
}
