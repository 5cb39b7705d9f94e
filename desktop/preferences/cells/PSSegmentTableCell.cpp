#include "cells/PSSegmentTableCell.h"

#include "ObjectiveC/Class.h"
#include "RectGeometry.h"
#include "cells/PSControlTableCellPeer.h"
#include "cells/RowControl.h"
#include "controls/UISegmentedControlPeer.h"
#include "specifiers/SpecifierChoices.h"

#include <memory>
#include <utility>

namespace {

const Class cellClass = Class::define<PSSegmentTableCell, PSControlTableCell>("PSSegmentTableCell");

/// Keeps the chosen segment and the row's value the same.
class PSSegmentTableCellPeer final : public PSControlTableCellPeer {
public:
    // PSTableCellPeer:
    void refresh() override;

    // UIViewPeer:
    void layoutSubviews() override;

protected:
    // UITableViewCellPeer:
    void viewMade() override;

private:
    [[nodiscard]] UISegmentedControlPeer& segments() const {
        return peerOf<UISegmentedControlPeer>(*control_);
    }

    void showChoices();
    void write() const;

    Ref<UISegmentedControl> control_;
    SpecifierChoices choices_;
};

void PSSegmentTableCellPeer::viewMade() {
    PSControlTableCellPeer::viewMade();
    control_ = make<UISegmentedControl>();
    contentView().addSubview(control_);
    segments().addHandler(UIControlEvents::ValueChanged, [this] { write(); });
}

void PSSegmentTableCellPeer::refresh() {
    PSControlTableCellPeer::refresh();
    if (!specifier())
        return;
    textLabel().setText({});
    imageView().setImage(nullptr);
    showChoices();
    const auto value = specifier()->performGetter();
    segments().setSelected(value ? choices_.indexOf(*value) : std::nullopt, false);
    adoptRow(*control_, *specifier());
}

void PSSegmentTableCellPeer::showChoices() {
    auto choices = SpecifierChoices::of(*specifier());
    if (choices.shortTitles != choices_.shortTitles)
        segments().setTitles(choices.shortTitles);
    choices_ = std::move(choices);
}

void PSSegmentTableCellPeer::write() const {
    const auto kept = retain(&cell());
    const auto chosen = segments().selected();
    if (specifier() && chosen)
        specifier()->performSetter(choices_.values[*chosen]);
}

void PSSegmentTableCellPeer::layoutSubviews() {
    PSControlTableCellPeer::layoutSubviews();
    const auto room = textLabel().frame();
    control_->setFrame(CGRectMake(room.origin.x, CGRectGetMidY(room) - UISegmentedControlPeer::height / 2,
                                  room.size.width, UISegmentedControlPeer::height));
}

} // namespace

PSSegmentTableCell::PSSegmentTableCell() : PSControlTableCell(std::make_unique<PSSegmentTableCellPeer>()) {}
