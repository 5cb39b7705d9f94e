#include "cells/PSEditableTableCell.h"

#include "ObjectiveC/Class.h"
#include "cells/PSControlTableCellPeer.h"
#include "cells/RowControl.h"
#include "specifiers/SpecifierChoices.h"
#include "text/UITextFieldPeer.h"

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <string_view>

namespace {

const Class cellClass = Class::define<PSEditableTableCell, PSControlTableCell>("PSEditableTableCell");

constexpr double titleGap = 12;
constexpr double leastField = 80; ///< points; a longer title is cut short

bool hasNumbers(const DesktopSpecifier& row) {
    constexpr std::array<std::string_view, 4> keyboards{"numbers", "phone", "decimalPad", "numberPad"};
    const auto keyboard = row.textForKey("keyboard");
    return std::ranges::find(keyboards, keyboard) != keyboards.end() || row.boolForKey("isNumeric", false) ||
           row.boolForKey("isDecimalPad", false) || row.boolForKey("isIP", false);
}

TextInputTraits::Capitals capitalsOf(const DesktopSpecifier& row) {
    using Capitals = TextInputTraits::Capitals;
    const auto named = row.textForKey("autoCaps");
    if (named == "sentences")
        return Capitals::Sentences;
    if (named == "words")
        return Capitals::Words;
    return named == "all" ? Capitals::All : Capitals::None;
}

TextInputTraits inputTraitsOf(const DesktopSpecifier& row) {
    return {.keys = hasNumbers(row) ? TextInputTraits::Keys::Numbers : TextInputTraits::Keys::Letters,
            .capitals = capitalsOf(row),
            .secure = row.kind() == SpecifierKind::SecureEditText};
}

/// Keeps the field and the row's value the same.
class PSEditableTableCellPeer final : public PSControlTableCellPeer {
public:
    [[nodiscard]] UITextField& field() const { return *field_; }

    // PSTableCellPeer:
    void refresh() override;

    // UIViewPeer:
    void layoutSubviews() override;
    /// A finger anywhere on the row edits.
    [[nodiscard]] UIView* hitTest(CGPoint point) override;

protected:
    // UITableViewCellPeer:
    void viewMade() override;

private:
    [[nodiscard]] UITextFieldPeer& fieldPeer() const { return peerOf<UITextFieldPeer>(*field_); }

    [[nodiscard]] std::string value() const;
    void write();

    Ref<UITextField> field_;
    std::string written_; ///< what the field showed when it was last the row's value
};

void PSEditableTableCellPeer::viewMade() {
    PSControlTableCellPeer::viewMade();
    field_ = make<UITextField>();
    contentView().addSubview(field_);
    fieldPeer().setEndsOnReturn(true);
    fieldPeer().setEndHandler([this] { write(); });
}

void PSEditableTableCellPeer::refresh() {
    PSControlTableCellPeer::refresh();
    if (!specifier())
        return;
    adoptRow(*field_, *specifier());
    if (specifier()->label().empty() && !specifier()->textForKey("placeholder").empty())
        fieldPeer().setAccessibility({});
    fieldPeer().setPlaceholder(specifier()->textForKey("placeholder"));
    fieldPeer().setTextInputTraits(inputTraitsOf(*specifier()));
    if (fieldPeer().fieldIsFirstResponder())
        return;
    written_ = value();
    fieldPeer().setText(written_);
    written_ = field_->text();
}

std::string PSEditableTableCellPeer::value() const {
    const auto kept = specifier()->performGetter();
    return kept ? textOfValue(*kept).value_or("") : "";
}

void PSEditableTableCellPeer::write() {
    const auto kept = retain(&cell());
    const auto text = field_->text();
    if (!specifier() || text == written_)
        return;
    written_ = text;
    specifier()->performSetter(text);
}

void PSEditableTableCellPeer::layoutSubviews() {
    PSControlTableCellPeer::layoutSubviews();
    const auto& content = contentView().peer();
    const auto room = content.fromLeading(textLabel().frame());
    constexpr auto unlimited = std::numeric_limits<double>::max();
    const auto wanted = textLabel().peer().sizeThatFits({unlimited, room.size.height}).width;
    const auto most = std::max(0.0, room.size.width - titleGap - leastField);
    const auto title = std::min(wanted, most);
    const auto before = title > 0 ? title + titleGap : 0;
    content.place(textLabel(), CGRectMake(room.origin.x, room.origin.y, title, room.size.height));
    content.place(*field_, CGRectMake(room.origin.x + before, 0, std::max(0.0, room.size.width - before),
                                      room.size.height));
}

UIView* PSEditableTableCellPeer::hitTest(CGPoint point) {
    auto* const hit = PSControlTableCellPeer::hitTest(point);
    return hit != nullptr && fieldPeer().isEnabled() ? field_.get() : hit;
}

} // namespace

PSEditableTableCell::PSEditableTableCell()
    : PSControlTableCell(std::make_unique<PSEditableTableCellPeer>()) {}

bool PSEditableTableCell::becomeFirstResponder() {
    return peerOf<PSEditableTableCellPeer>(*this).field().becomeFirstResponder();
}
