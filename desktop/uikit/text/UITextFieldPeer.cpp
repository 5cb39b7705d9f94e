#include "text/UITextFieldPeer.h"

#include "AnimationGroup.h"
#include "DesktopColor.h"
#include "RectGeometry.h"
#include "screen/Screen.h"
#include "text/TextFieldBorder.h"

#include <QPainter>
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

constexpr FontStyle textStyle{.size = 17};
constexpr double caretWidth = 2;
constexpr double selectionOpacity = 0.2;
constexpr double underlineWidth = 1;
constexpr double underlineDistance = 2; ///< below the baseline
constexpr double disabledOpacity = 0.3;

QRectF toQt(const CGRect& rect) {
    return {rect.origin.x, rect.origin.y, rect.size.width, rect.size.height};
}

QColor withOpacity(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(color.alphaF() * opacity));
    return color;
}

} // namespace

UITextFieldPeer::~UITextFieldPeer() {
    if (isFirstResponder_)
        Screen::current().firstResponder().remove(*this);
}

void UITextFieldPeer::setUp() {
    caret_ = make<UIView>();
    caret_->setUserInteractionEnabled(false);
    caret_->layer().setCornerRadius(caretWidth / 2);
    caret_->peer().setHidden(true);
    addSubview(caret_);
    layer().setMasksToBounds(true);
}

void UITextFieldPeer::setText(const std::string& text) {
    text_.setString(text);
    changed();
}

void UITextFieldPeer::setPlaceholder(const std::string& placeholder) {
    placeholder_ = placeholder;
    changed();
}

void UITextFieldPeer::setBorderStyle(UITextBorderStyle style) {
    borderStyle_ = style;
    changed();
}

void UITextFieldPeer::setTextInputTraits(const TextInputTraits& traits) {
    inputTraits_ = traits;
    changed();
}

QString UITextFieldPeer::readableText() const {
    constexpr QChar bullet(0x2022);
    return inputTraits_.secure ? QString(text_.string().size(), bullet) : text_.string();
}

void UITextFieldPeer::changed() {
    laid_.reset();
    setNeedsConstraintLayout();
    showChange();
}

void UITextFieldPeer::showChange() {
    setNeedsDisplay();
    followCaret();
    placeCaret();
    if (isFirstResponder_)
        Screen::current().firstResponder().noteEdit();
}

void UITextFieldPeer::edit(const std::function<void(EditedText&)>& change) {
    const auto kept = retain(&control());
    const auto before = text_.string();
    change(text_);
    if (text_.string() == before)
        showChange();
    else
        changed();
}

// The keyboard.

bool UITextFieldPeer::becomeFirstResponder() {
    wantsKeyboard_ = isEnabled() && window() == nullptr;
    if (isEnabled() && window() != nullptr)
        Screen::current().firstResponder().set(*this);
    return isFirstResponder_;
}

bool UITextFieldPeer::resignFirstResponder() {
    wantsKeyboard_ = false;
    if (isFirstResponder_)
        Screen::current().firstResponder().remove(*this);
    return !isFirstResponder_;
}

void UITextFieldPeer::firstResponderDidChange(bool isFirstResponder) {
    const auto kept = retain(&control());
    isFirstResponder_ = isFirstResponder;
    text_.endComposing();
    changed();
    if (!isFirstResponder && endHandler_)
        endHandler_();
}

void UITextFieldPeer::returnPressed() {
    const auto kept = retain(&control());
    edit([](EditedText& text) { text.endComposing(); });
    if (endsOnReturn_)
        resignFirstResponder();
    if (returnHandler_)
        returnHandler_();
}

void UITextFieldPeer::didMoveToWindow() {
    UIControlPeer::didMoveToWindow();
    if (window() == nullptr)
        resignFirstResponder();
    else if (wantsKeyboard_)
        becomeFirstResponder();
}

void UITextFieldPeer::stateDidChange() {
    if (!isEnabled())
        resignFirstResponder();
    setNeedsDisplay();
}

void UITextFieldPeer::setCaretLit(bool lit) {
    const auto alpha = lit ? 1.0 : 0.0;
    if (!std::equal_to()(caret_->layer().peer().number(LayerProperty::Opacity), alpha))
        AnimationGroup::runWithoutAnimation([this, alpha] { caret_->setAlpha(alpha); });
}

// Where things are.

CGRect UITextFieldPeer::textRect() const {
    return UIEdgeInsetsInsetRect(view().bounds(), TextFieldBorder::textInsets(borderStyle_));
}

double UITextFieldPeer::laidWidth() const {
    return isFirstResponder_ ? std::numeric_limits<double>::infinity() : std::max(0.0, textRect().size.width);
}

const TextLayout& UITextFieldPeer::layout() const {
    const auto scale = traits().displayScale;
    const auto width = laidWidth();
    if (!laid_ || !std::equal_to()(laid_->scale, scale) || !std::equal_to()(laid_->width, width)) {
        const TextLayoutOptions options{
            .maximumWidth = width, .maximumLines = 1, .alignment = alignment(), .pixelScale = scale};
        laid_.emplace(Laid{scale, width, TextLayout(readableText().toStdString(), textStyle, options)});
    }
    return laid_->layout;
}

HorizontalAlignment UITextFieldPeer::alignment() const {
    return isRightToLeft() ? HorizontalAlignment::Right : HorizontalAlignment::Left;
}

double UITextFieldPeer::textLeft() const {
    const auto room = textRect();
    const auto isEdited = std::isinf(laidWidth());
    const auto needed = layout().size().width() + caretWidth;
    const auto free = isEdited && isRightToLeft() ? room.size.width - needed : 0;
    return room.origin.x + std::max(0.0, free) - scrolled_;
}

double UITextFieldPeer::textTop() const {
    const auto room = textRect();
    return room.origin.y + layout().topWithin(room.size.height);
}

std::size_t UITextFieldPeer::byteIndex(qsizetype position) const {
    return static_cast<std::size_t>(QStringView(readableText()).left(position).toUtf8().size());
}

CGRect UITextFieldPeer::caretRect(qsizetype position) const {
    const auto room = textRect();
    const auto caret = layout().caretRect(byteIndex(position));
    const auto last = std::max(room.origin.x, CGRectGetMaxX(room) - caretWidth);
    return CGRectMake(std::clamp(textLeft() + caret.x(), room.origin.x, last), textTop(), caretWidth,
                      caret.height());
}

CGRect UITextFieldPeer::caretOnScreen() const {
    return convertToScreen(caretRect(text_.caret()));
}

qsizetype UITextFieldPeer::positionAt(const DesktopTouch& touch) const {
    const auto x = touch.locationInView(view()).x - textLeft();
    const auto index = layout().indexAt({x, 0});
    return QString::fromUtf8(readableText().toStdString().substr(0, index)).size();
}

std::vector<QRectF> UITextFieldPeer::rectsOf(EditedText::Range range) const {
    auto rects = layout().rangeRects(byteIndex(range.begin), byteIndex(range.end));
    for (auto& rect : rects)
        rect.translate(textLeft(), textTop());
    return rects;
}

/// Moves the text by as little as shows the caret, and leaves no room free that text could fill.
void UITextFieldPeer::followCaret() {
    if (!isFirstResponder_) {
        scrolled_ = 0;
        return;
    }
    const auto room = std::max(0.0, textRect().size.width - caretWidth);
    const auto caret = layout().caretRect(byteIndex(text_.caret())).x();
    const auto most = std::max(0.0, layout().size().width() - room);
    scrolled_ = std::clamp(std::clamp(scrolled_, caret - room, caret), 0.0, most);
}

void UITextFieldPeer::placeCaret() {
    AnimationGroup::runWithoutAnimation([this] {
        const auto isSeen = isFirstResponder_ && text_.selection().isEmpty();
        caret_->peer().setHidden(!isSeen);
        if (isSeen)
            caret_->setFrame(caretRect(text_.caret()));
        caret_->setBackgroundColor(tintColor());
    });
}

void UITextFieldPeer::layoutSubviews() {
    followCaret();
    placeCaret();
    setNeedsDisplay();
}

void UITextFieldPeer::tintColorDidChange() {
    UIControlPeer::tintColorDidChange();
    setNeedsDisplay();
    if (caret_)
        placeCaret();
}

double UITextFieldPeer::textWidth() const {
    const auto shown = shownText();
    return TextLayout(shown.value_or(""), textStyle, {.pixelScale = traits().displayScale}).size().width();
}

CGSize UITextFieldPeer::sizeThatFits(CGSize /*room*/) const {
    return {intrinsicWidth().value_or(0), intrinsicHeight().value_or(0)};
}

std::optional<double> UITextFieldPeer::intrinsicWidth() const {
    const auto insets = TextFieldBorder::textInsets(borderStyle_);
    return insets.left + textWidth() + caretWidth + insets.right;
}

std::optional<double> UITextFieldPeer::intrinsicHeight() const {
    return TextFieldBorder::height(borderStyle_);
}

// What it tells of itself.

Accessibility UITextFieldPeer::accessibility() const {
    auto told = UIControlPeer::accessibility();
    if (told.label.empty())
        told.label = placeholder_;
    told.value = readableText().toStdString();
    told.role = AccessibilityRole::TextField;
    told.isElement = true;
    return told;
}

std::optional<std::string> UITextFieldPeer::shownText() const {
    return text_.string().isEmpty() ? placeholder_ : readableText().toStdString();
}

PropertyList::Dictionary UITextFieldPeer::inspectedProperties() const {
    auto properties = UIControlPeer::inspectedProperties();
    const auto [begin, end] = text_.selection();
    properties.insert_or_assign("text", readableText().toStdString());
    properties.insert_or_assign("placeholder", placeholder_);
    properties.insert_or_assign("firstResponder", isFirstResponder_);
    properties.insert_or_assign(
        "selection", PropertyList::Array{static_cast<std::int64_t>(begin), static_cast<std::int64_t>(end)});
    return properties;
}

void UITextFieldPeer::drawLayer(QPainter& painter, const CGRect& bounds, const Traits& traits) {
    painter.save();
    TextFieldBorder::draw(borderStyle_, painter, bounds, traits);
    painter.setClipRect(toQt(textRect()), Qt::IntersectClip);
    if (text_.string().isEmpty())
        drawPlaceholder(painter, traits);
    else
        drawText(painter, traits);
    painter.restore();
}

void UITextFieldPeer::drawText(QPainter& painter, const Traits& traits) const {
    const auto tint = DesktopColor::resolve(tintColor(), traits).toQColor();
    const auto top = textTop();
    if (isFirstResponder_) {
        for (const auto& rect : rectsOf(text_.selection()))
            painter.fillRect(rect, withOpacity(tint, selectionOpacity));
    }
    const auto color = DesktopColor::resolve(DesktopColor::system(SystemColor::Label), traits).toQColor();
    layout().paint(painter, {textLeft(), top}, isEnabled() ? color : withOpacity(color, disabledOpacity));
    const auto scale = traits.displayScale;
    const auto y = std::round((top + layout().baseline(0) + underlineDistance) * scale) / scale;
    for (const auto& rect : rectsOf(text_.composed()))
        painter.fillRect(QRectF(rect.x(), y, rect.width(), underlineWidth), color);
}

void UITextFieldPeer::drawPlaceholder(QPainter& painter, const Traits& traits) const {
    const auto room = textRect();
    const TextLayout placeholder(placeholder_, textStyle,
                                 {.maximumWidth = std::max(0.0, room.size.width),
                                  .maximumLines = 1,
                                  .alignment = alignment(),
                                  .pixelScale = traits.displayScale});
    const auto color = DesktopColor::resolve(DesktopColor::system(SystemColor::PlaceholderText), traits);
    placeholder.paint(painter, {room.origin.x, room.origin.y + placeholder.topWithin(room.size.height)},
                      color.toQColor());
}
